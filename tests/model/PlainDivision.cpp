// Long division, bit by bit, restoring; and the quotient and remainder operators.
#include "PlainInteger.h"

#include <utility>

namespace plain {

void LargeInteger::divideBy(LargeInteger const& divisor, LargeInteger& remainder) noexcept {
    int const divisorTop = divisor.getHighestBit();
    int const top = getHighestBit();
    if (top < 0 || divisorTop < 0) {
        remainder.clear();
        clear();
        return;
    }
    bool const dividendNegative = isNegative();
    bool const divisorNegative = divisor.isNegative();
    // Copied before anything changes: the divisor may be this object, or the remainder.
    LargeInteger aligned(divisor);
    aligned.negative = false;

    // The dividend moves into the remainder, with its buffer and its bound.
    std::swap(data, remainder.data);
    std::swap(size, remainder.size);
    std::swap(highestBit, remainder.highestBit);
    remainder.negative = false;
    clear();

    int k = top - divisorTop;
    aligned.shiftBits(k, 0);
    while (k >= 0) {
        if (remainder.compareAbsolute(aligned) >= 0) {
            remainder -= aligned;
            setBit(k);
        }
        --k;
        if (k >= 0)
            aligned.shiftBits(-1, 0);
    }
    negative = dividendNegative != divisorNegative;
    remainder.negative = dividendNegative;
}

LargeInteger& LargeInteger::operator/=(LargeInteger const& divisor) noexcept {
    LargeInteger remainder;
    divideBy(divisor, remainder);
    return *this;
}

LargeInteger& LargeInteger::operator%=(LargeInteger const& divisor) noexcept {
    LargeInteger remainder;
    divideBy(divisor, remainder);
    swapWith(remainder);
    return *this;
}

// Copies of the working value, as in the arithmetic operators.

LargeInteger LargeInteger::operator/(LargeInteger const& divisor) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work /= divisor);
}

LargeInteger LargeInteger::operator%(LargeInteger const& divisor) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work %= divisor);
}

}  // namespace plain
