// Signed addition, subtraction and multiplication.
#include "PlainInteger.h"

#include "PlainWords.h"

#include <algorithm>
#include <utility>

namespace plain {

/// |this| + |b|; the flag stays.
void LargeInteger::addMagnitude(LargeInteger const& b) noexcept {
    long long const bound = std::max(highestBit, b.highestBit) + 1LL;
    int const top = wordIndex(bound) + 1;
    ensureSize(top);
    std::uint64_t sum = 0;
    for (int i = 0; i <= top; ++i) {
        if (i < size)
            sum += data[i];
        if (i < b.size)
            sum += b.data[i];
        data[i] = static_cast<std::uint32_t>(sum);
        sum >>= bitsPerWord;
    }
    refreshHighestBit(bound);
}

/// |this| - |b| for |this| >= |b|; the flag and the cached bound stay, which may leave the bound
/// too high.
void LargeInteger::subtractMagnitude(LargeInteger const& b) noexcept {
    int const top = wordIndex(highestBit) + 1;
    int const bTop = wordIndex(b.highestBit) + 1;
    std::uint64_t borrow = 0;
    for (int i = 0; i <= top; ++i) {
        std::uint64_t const sub = borrow + (i <= bTop ? b.data[i] : 0U);
        borrow = data[i] < sub ? 1 : 0;
        data[i] = static_cast<std::uint32_t>(data[i] - sub);
    }
}

LargeInteger& LargeInteger::operator+=(LargeInteger const& b) noexcept {
    if (b.isNegative())
        return *this -= -b;
    if (!isNegative()) {
        addMagnitude(b);  // a negative zero keeps its flag: -0 + 5 is -5
        return *this;
    }
    if (compareAbsolute(b) >= 0) {
        negative = false;
        *this -= b;
        negative = !isZero();
    } else {
        LargeInteger const absolute = -*this;
        *this = b;
        *this -= absolute;
    }
    return *this;
}

LargeInteger& LargeInteger::operator-=(LargeInteger const& b) noexcept {
    if (b.isNegative())
        return *this += -b;
    if (isNegative()) {
        negative = false;
        *this += b;
        negative = !isZero();
    } else if (compareAbsolute(b) >= 0) {
        subtractMagnitude(b);
    } else {
        LargeInteger smaller(b);
        swapWith(smaller);
        *this -= smaller;
        negate();
    }
    return *this;
}

// Shift and add over the set bits of the left operand.
LargeInteger& LargeInteger::operator*=(LargeInteger const& b) noexcept {
    LargeInteger product;
    highestBit = getHighestBit();
    bool const leftNegative = isNegative();
    negative = false;
    for (long long i = 0; i <= highestBit; ++i) {
        if ((*this)[static_cast<int>(i)] == 0)
            continue;
        LargeInteger term(b);
        term.negative = false;
        term.shiftBits(static_cast<int>(i), 0);
        product += term;
    }
    // Read only now: in x *= x the sign of b is gone, so the product keeps the sign of x.
    bool const rightNegative = b.isNegative();
    std::swap(data, product.data);
    std::swap(size, product.size);
    std::swap(highestBit, product.highestBit);
    negative = leftNegative != rightNegative;
    return *this;
}

// The binary operators return a copy of the working value, not the value itself: a copy has an
// exact bound and a tight buffer.

LargeInteger LargeInteger::operator+(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work += b);
}

LargeInteger LargeInteger::operator-(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work -= b);
}

LargeInteger LargeInteger::operator*(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work *= b);
}

LargeInteger LargeInteger::operator-() const noexcept {
    LargeInteger opposite(*this);
    opposite.negate();
    return opposite;
}

LargeInteger& LargeInteger::operator++() noexcept {
    return *this += LargeInteger(1);
}

LargeInteger& LargeInteger::operator--() noexcept {
    return *this -= LargeInteger(1);
}

LargeInteger LargeInteger::operator++(int) noexcept {
    LargeInteger old(*this);
    ++*this;
    return old;
}

LargeInteger LargeInteger::operator--(int) noexcept {
    LargeInteger old(*this);
    --*this;
    return old;
}

}  // namespace plain
