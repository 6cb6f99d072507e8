// Division: the quotient and the remainder with the books that long division, bit by bit, leaves.
#include "qel/LargeInteger.h"

#include "Product.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace qel {

using namespace internal;

/// Replaces the words below the top of the value by those of `value`.
void LargeInteger::overwrite(int oldTop, std::uint64_t const* value, int top) noexcept {
    std::fill(data, data + wordIndex(oldTop) + 1, 0U);
    storeWords(data, value, top);
}

// The quotient takes over the remainder's old buffer, cleared, and grows once, for its highest
// bit; the remainder takes the dividend's buffer and keeps its bound.
void LargeInteger::divideBy(LargeInteger const& divisor, LargeInteger& remainder) noexcept {
    assert(this != &remainder && "divideBy: the remainder must not be the dividend");
    int const top = getHighestBit();
    int const divisorTop = divisor.getHighestBit();
    if (top < 0 || divisorTop < 0) {
        remainder.clear();
        clear();
        return;
    }
    bool const dividendNegative = negative;
    bool const divisorNegative = divisor.negative;
    Quotient const result({data, top}, {divisor.data, divisorTop});

    std::swap(data, remainder.data);
    std::swap(size, remainder.size);
    std::swap(highestBit, remainder.highestBit);
    clear();
    if (result.quotientTop >= 0) {
        ensureSize(wordIndex(result.quotientTop));
        storeWords(data, result.quotient, result.quotientTop);
        highestBit = result.quotientTop;
    }
    negative = dividendNegative != divisorNegative;
    remainder.overwrite(top, result.remainder, result.remainderTop);
    remainder.negative = dividendNegative;
}

LargeInteger& LargeInteger::operator/=(LargeInteger const& divisor) noexcept {
    LargeInteger remainder;
    divideBy(divisor, remainder);
    return *this;
}

LargeInteger& LargeInteger::operator%=(LargeInteger const& divisor) noexcept {
    int const top = getHighestBit();
    int const divisorTop = divisor.getHighestBit();
    if (top < 0 || divisorTop < 0) {
        LargeInteger zero;
        swapWith(zero);
        return *this;
    }
    Quotient const result({data, top}, {divisor.data, divisorTop});
    overwrite(top, result.remainder, result.remainderTop);
    return *this;
}

// The results are what a copy of the working value would be: the quotient is tight, the remainder
// sized by the dividend, whose bound it had.

LargeInteger LargeInteger::operator/(LargeInteger const& divisor) const noexcept {
    int const top = getHighestBit();
    int const divisorTop = divisor.getHighestBit();
    if (top < 0 || divisorTop < 0)
        return LargeInteger();
    Quotient const result({data, top}, {divisor.data, divisorTop});
    return LargeInteger(result.quotient, result.quotientTop, negative != divisor.negative);
}

LargeInteger LargeInteger::operator%(LargeInteger const& divisor) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work %= divisor);
}

}  // namespace qel
