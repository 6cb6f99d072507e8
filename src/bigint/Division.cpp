// Division: the quotient and the remainder with the representation that long division, bit by bit,
// leaves.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace qel {

using namespace internal;

namespace {

/// A quotient and its remainder, computed before any of the operands' objects changes: so an
/// operand may be the result's own object.
class Quotient {
  public:
    /// Divides; neither operand is zero. The quotient goes to `out`, which has room for as many
    /// limbs as countOf tells, if there is one.
    Quotient(Magnitude dividend, Magnitude divisor, Limb* out = nullptr) noexcept;

    static std::size_t countOf(Magnitude dividend, Magnitude divisor) noexcept {
        return dividend.top < divisor.top ? 0 : dividend.count() + 1 - divisor.count();
    }

    Limb const* quotient = nullptr;
    std::size_t quotientCount;
    Limb const* remainder = nullptr;
    std::size_t remainderCount;

    [[nodiscard]] int top() const noexcept {
        return static_cast<int>(topBit(quotient, quotientCount));
    }

  private:
    static std::size_t workspaceFor(Magnitude dividend, Magnitude divisor) noexcept {
        return 2 * dividend.count() + divisor.count() + 2 + limbs::divideScratch(divisor.count());
    }

    Workspace workspace;
};

Quotient::Quotient(Magnitude dividend, Magnitude divisor, Limb* out) noexcept
    : quotientCount(countOf(dividend, divisor)), remainderCount(divisor.count()),
      workspace(workspaceFor(dividend, divisor)) {
    std::size_t const aCount = dividend.count();
    std::size_t const count = divisor.count();
    if (dividend.top < divisor.top) {
        Limb* const a = workspace.take(aCount);
        loadLimbs(a, aCount, dividend);
        remainder = a;
        remainderCount = aCount;
        return;
    }
    Limb* const q = out != nullptr ? out : workspace.take(quotientCount);
    Limb* const a = workspace.take(aCount + 1);
    quotient = q;
    remainder = a;
    if (count == 1) {
        a[0] = limbs::divideLimb(q, dividend.value, aCount, divisor.value[0]);
        return;
    }
    if (count == 2) {
        limbs::divideTwoLimbs(q, a, dividend.value, aCount, divisor.value);
        return;
    }
    // D1: both shifted left until the divisor's highest bit is set.
    int const shift = std::countl_zero(divisor.value[count - 1]);
    Limb const* d = divisor.value;
    Limb above = 0;
    if (shift == 0) {
        std::copy_n(dividend.value, aCount, a);
    } else {
        Limb* const shifted = workspace.take(count);
        limbs::shiftLeft(shifted, divisor.value, count, shift);
        d = shifted;
        above = limbs::shiftLeft(a, dividend.value, aCount, shift);
    }
    std::size_t digits = quotientCount;
    if (above == 0) {
        // With nothing above the dividend's highest limb the first digit is 0 or 1.
        --digits;
        Limb* const upper = a + digits;
        q[digits] = limbs::compare(upper, d, count) >= 0 ? 1 : 0;
        if (q[digits] != 0)
            limbs::subtract(upper, upper, d, count);
    } else {
        a[aCount] = above;
    }
    if (digits != 0)
        limbs::divide(q, a, count + digits, d, count, workspace.rest());
    if (shift != 0)
        limbs::shiftRight(a, a, count, shift);
}

}  // namespace

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

    swapWith(remainder);
    Representation::becomeQuotient(*this, clearedSize(size), result.quotient, result.top());
    negative = dividendNegative != divisorNegative;
    Representation::replaceMagnitude(remainder, dividend.top, result.remainder,
                                     result.remainderCount);
    remainder.negative = dividendNegative;
}

/// What a zero with the capacity `emptySize` becomes that grows once, for the highest bit.
void internal::Representation::becomeQuotient(LargeInteger& a, int emptySize, Limb const* quotient,
                                              int top) noexcept {
    int const capacity = top < 0 ? emptySize : grownSize(emptySize, wordIndex(top));
    become(a, quotient, limbCount(top), top, capacity);
}

// As divideBy into a new remainder.
LargeInteger& LargeInteger::operator/=(LargeInteger const& divisor) noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0) {
        clear();
        return *this;
    }
    Quotient const result(dividend, by);
    bool const flag = negative != divisor.negative;
    Representation::becomeQuotient(*this, initialSize, result.quotient, result.top());
    negative = flag;
    return *this;
}

LargeInteger& LargeInteger::operator%=(LargeInteger const& divisor) noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0) {
        LargeInteger zero;
        swapWith(zero);
    } else if (by.count() == 1) {
        Limb const rest = limbs::remainderLimb(dividend.value, dividend.count(), by.value[0]);
        Representation::replaceMagnitude(*this, dividend.top, &rest, 1);
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
    std::size_t const count = Quotient::countOf(dividend, by);
    ResultLimbs quotient(count);
    Quotient const result(dividend, by, quotient.get());
    return Representation::tight(quotient, count, negative != divisor.negative);
}

LargeInteger LargeInteger::operator%(LargeInteger const& divisor) const noexcept {
    Magnitude const dividend = Representation::magnitude(*this);
    Magnitude const by = Representation::magnitude(divisor);
    if (dividend.top < 0 || by.top < 0)
        return LargeInteger();
    if (by.count() == 1) {
        Limb const rest = limbs::remainderLimb(dividend.value, dividend.count(), by.value[0]);
        return Representation::copied(&rest, 1, dividend.top, negative);
    }
    Quotient const result(dividend, by);
    return Representation::copied(result.remainder, result.remainderCount, dividend.top, negative);
}

}  // namespace qel
