// Division: the quotient and the remainder with the representation that long division, bit by bit,
// leaves.
#include "qel/LargeInteger.h"

#include "Product.h"
#include "Representation.h"

#include <utility>

namespace qel {

using namespace internal;

// The quotient takes over the remainder's old buffer, cleared, and grows once, for its highest
// bit; the remainder takes the dividend's buffer and keeps its bound. Where both are the same
// object there is nothing to exchange: the dividend is gone, and so is what it would be divided
// into.
void LargeInteger::divideBy(LargeInteger const& divisor, LargeInteger& remainder) noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0) {
        remainder.clear();
        clear();
        return;
    }
    bool const dividendNegative = negative;
    if (this == &remainder) {
        clear();
        negative = dividendNegative;
        return;
    }
    bool const divisorNegative = divisor.negative;
    Quotient const result(dividend, by);
    auto const quotientTop = static_cast<int>(topBit(result.quotient, result.quotientCount));

    swapWith(remainder);
    clear();
    if (quotientTop >= 0) {
        ensureSize(wordIndex(quotientTop));
        std::copy_n(result.quotient, limbCount(quotientTop), data);
        highestBit = quotientTop;
    }
    negative = dividendNegative != divisorNegative;
    Representation::replaceMagnitude(remainder, dividend.top, result.remainder,
                                     result.remainderCount);
    remainder.negative = dividendNegative;
}

LargeInteger& LargeInteger::operator/=(LargeInteger const& divisor) noexcept {
    LargeInteger remainder;
    divideBy(divisor, remainder);
    return *this;
}

LargeInteger& LargeInteger::operator%=(LargeInteger const& divisor) noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0) {
        LargeInteger zero;
        swapWith(zero);
    } else if (dividend.top >= by.top) {
        Quotient const result(dividend, by);
        Representation::replaceMagnitude(*this, dividend.top, result.remainder,
                                         result.remainderCount);
    }
    return *this;
}

// The results are what a copy of the working value would be: the quotient is tight, the remainder
// sized by the dividend, whose bound it had.

LargeInteger LargeInteger::operator/(LargeInteger const& divisor) const noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0)
        return LargeInteger();
    Quotient const result(dividend, by);
    auto const top = static_cast<int>(topBit(result.quotient, result.quotientCount));
    return Representation::copied(result.quotient, result.quotientCount, top,
                                  negative != divisor.negative);
}

LargeInteger LargeInteger::operator%(LargeInteger const& divisor) const noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0)
        return LargeInteger();
    Quotient const result(dividend, by);
    return Representation::copied(result.remainder, result.remainderCount, dividend.top, negative);
}

}  // namespace qel
