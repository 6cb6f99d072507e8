// Greatest common divisor, modular inverse, modular power.
#include "qel/LargeInteger.h"

#include "Product.h"
#include "Representation.h"
#include "limbs/Gcd.h"
#include "limbs/Power.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>
#include <optional>
#include <utility>

namespace qel {

using namespace internal;

namespace {

/// The 64 bits from the highest set bit `top` of a down, with zeros below where there are fewer.
Limb leadingLimb(Limb const* a, long long top) noexcept {
    std::size_t const i = limbCount(top) - 1;
    int const shift = std::countl_zero(a[i]);
    Limb const below = i == 0 || shift == 0 ? 0 : a[i - 1] >> (limbs::bitsPerLimb - shift);
    return (a[i] << shift) | below;
}

/// The highest set bit of x y; neither is zero.
///
/// It is the sum of theirs or one more, which the leading limbs tell nearly always: with
/// X 2^a <= x < (X + 1) 2^a, and Y 2^b likewise, x y is below (X + 1) (Y + 1) 2^(a + b).
long long topOfProduct(Limb const* x, Limb const* y, std::size_t count) noexcept {
    long long const xTop = topBit(x, count);
    long long const yTop = topBit(y, count);
    limbs::DoubleLimb const leadingX = leadingLimb(x, xTop);
    limbs::DoubleLimb const leadingY = leadingLimb(y, yTop);
    constexpr limbs::DoubleLimb half = limbs::DoubleLimb{1} << 127;
    if (leadingX * leadingY >= half)
        return xTop + yTop + 1;
    if (leadingX * leadingY + leadingX + leadingY < half)
        return xTop + yTop;
    Workspace workspace(2 * count + limbs::multiplyScratch(count, count));
    Limb* const product = workspace.take(2 * count);
    limbs::multiply(product, x, count, y, count, workspace.rest());
    return topBit(product, 2 * count);
}

/// A number of up to two limbs.
limbs::DoubleLimb pairOf(Magnitude a) noexcept {
    Limb pair[2];
    loadLimbs(pair, 2, a);
    return (limbs::DoubleLimb{pair[1]} << limbs::bitsPerLimb) | pair[0];
}

/// The greatest common divisor of two magnitudes, and which of them subtraction leaves it in,
/// unless only the divisor is asked for.
class CommonDivisor {
  public:
    CommonDivisor(Magnitude first, Magnitude second, bool isAlone) noexcept
        : count(std::max(first.count(), second.count())),
          workspace(3 * count + limbs::gcdScratch(count)) {
        Limb* const x = workspace.take(count);
        Limb* const y = workspace.take(count);
        Limb* const out = workspace.take(count);
        loadLimbs(x, count, first);
        loadLimbs(y, count, second);
        if (isAlone)
            limbs::gcdAlone(out, x, y, count, workspace.rest());
        else
            isInSecond = limbs::gcd(out, x, y, count, workspace.rest());
        value = out;
    }

    std::size_t count;
    Limb const* value;
    bool isInSecond = false;

  private:
    Workspace workspace;
};

}  // namespace

LargeInteger LargeInteger::simpleGCD(LargeInteger* a, LargeInteger* b) noexcept {
    assert((a->isZero() || (!b->isZero() && a->isNegative() == b->isNegative()))
           && "simpleGCD: b must not be zero, and no operand negative");
    if (!a->isZero())
        Representation::reduceToDivisor(*a, *b);
    return LargeInteger(a->isZero() ? *b : *a);
}

/// Neither is zero, and the signs are equal: other operands would be subtracted for ever.
///
/// A subtraction of magnitudes keeps the buffer, its capacity and its bound, and leaves a flag on
/// what is not zero only. So nothing but the values tells which steps were taken, and
/// `limbs::gcd` knows the last ones: the divisor in one operand, and zero in the other.
void internal::Representation::reduceToDivisor(LargeInteger& a, LargeInteger& b) noexcept {
    while (b.isZero() || a.isNegative() != b.isNegative())
        a -= b;
    Magnitude const first = magnitude(a);
    Magnitude const second = magnitude(b);
    CommonDivisor const divisor(first, second, false);
    LargeInteger& last = divisor.isInSecond ? b : a;
    LargeInteger& zero = divisor.isInSecond ? a : b;
    // In this order: one object may be both.
    replaceMagnitude(last, divisor.isInSecond ? second.top : first.top, divisor.value,
                     divisor.count);
    replaceMagnitude(zero, divisor.isInSecond ? first.top : second.top, nullptr, 0);
    zero.negative = false;
}

// Euclid's algorithm while the sizes differ, then repeated subtraction.
LargeInteger LargeInteger::findGreatestCommonDivisor(LargeInteger other) const noexcept {
    constexpr int closeEnough = 16;
    LargeInteger const* a = this;
    std::optional<LargeInteger> divisor;
    for (;;) {
        Magnitude const first = Representation::magnitude(*a);
        Magnitude const second = Representation::magnitude(other);
        if (second.top < 0)
            return Representation::copied(first.value, first.count(), first.top, a->negative);
        if (std::abs(first.top - second.top) > closeEnough) {
            LargeInteger const remainder = *a % other;
            divisor = other;
            a = &*divisor;
            other = remainder;
        } else if ((a->negative && first.top >= 0) || other.negative) {
            // Which signs come to an end, and with which sign, rests on the documented steps.
            LargeInteger dividend(*a);
            return simpleGCD(&dividend, &other);
        } else {
            return Representation::gcdOfMagnitudes(first, second);
        }
    }
}

/// What simpleGCD returns for two values that are not negative: a copy of the one that is not zero
/// in the end, under the bound that it had from the beginning. That bound tells no more than the
/// capacity.
LargeInteger internal::Representation::gcdOfMagnitudes(Magnitude first, Magnitude second) noexcept {
    int const size = std::max(first.top, second.top);
    if (size < 2 * limbs::bitsPerLimb) {
        limbs::DoubleLimb const divisor = limbs::gcdOfPairs(pairOf(first), pairOf(second));
        Limb const value[2] = {static_cast<Limb>(divisor), limbs::upperLimb(divisor)};
        return copied(value, 2, size, false);
    }
    bool const isAlone = tightSize(first.top) == tightSize(second.top);
    CommonDivisor const divisor(first, second, isAlone);
    return copied(divisor.value, divisor.count, divisor.isInSecond ? second.top : first.top, false);
}

// Extended Euclid on (m, this): the coefficients c and d follow the remainders a and b, with m
// standing for the first coefficient 0. Rounds end when the remainder is exactly +1.
void LargeInteger::inverseModulo(LargeInteger const& m) noexcept {
    Magnitude const modulus = Representation::magnitude(m);
    if (m.negative ? modulus.top >= 0 : modulus.top == 0) {
        clear();
        return;
    }
    Magnitude value = Representation::magnitude(*this);
    if ((negative && value.top >= 0) || compareMagnitudes(value, modulus) >= 0) {
        *this %= m;
        value = Representation::magnitude(*this);
    }
    if (!negative && value.top == 0)
        return;
    if (value.top < 0 || value.value[0] % 2 == 0) {
        clear();
        return;
    }
    if (!negative && Representation::invert(*this, value, modulus))
        return;
    // A negative value ends where the remainders, signs and all, come to +1; one that shares a
    // factor with m never does.
    LargeInteger a(m);
    LargeInteger b(*this);
    LargeInteger c(m);
    LargeInteger d(1);
    while (!b.isOne()) {
        assert(!b.isZero() && "inverseModulo: a value that is not negative and coprime to m");
        LargeInteger const quotient = a / b;
        LargeInteger difference = a - b * quotient;
        a = b;
        b = difference;
        difference = c - d * quotient;
        c = d;
        d = difference;
    }
    // A negative value's remainders change their sign each time, so that all quotients are negative
    // and all coefficients positive.
    d %= m;
    swapWith(d);
}

/// Becomes the inverse of its value, for 1 < value < m; false, and unchanged, when there is none.
///
/// Bound and capacity are those of the extended Euclid's last coefficient d before its reduction.
/// With s m + t v = 1 for this value v, d is t + s m = 1 - t (v - 1), since the coefficients start
/// from m and 1 instead of 0 and 1; and |t| <= m / 2, as Euclid's are. So t is the inverse i or i -
/// m, whichever is smaller in size. A negative t makes d positive, which then keeps its own bound;
/// a positive t makes d negative, and adding m leaves the bound of m.
bool internal::Representation::invert(LargeInteger& a, Magnitude value,
                                      Magnitude divisor) noexcept {
    std::size_t const count = limbCount(divisor.top);
    Workspace workspace(3 * count + limbs::inverseScratch(count));
    Limb* const v = workspace.take(count);
    Limb* const modulus = workspace.take(count);
    Limb* const out = workspace.take(count);
    loadLimbs(v, count, value);
    loadLimbs(modulus, count, divisor);
    if (!limbs::inverse(out, v, modulus, count, workspace.rest()))
        return false;
    // Both operands are used up; i - m takes the place of the modulus.
    loadLimbs(modulus, count, divisor);
    limbs::subtract(modulus, modulus, out, count);
    int bound = divisor.top;
    if (limbs::compare(out, modulus, count) > 0) {
        loadLimbs(v, count, value);
        // v is odd, so v - 1 is even, and 1 more than the product does not move the highest bit.
        v[0] -= 1;
        bound = checkedPosition(topOfProduct(modulus, v, count));
    }
    become(a, out, std::min(count, limbCount(bound)), bound, tightSize(bound));
    return true;
}

void LargeInteger::exponentModulo(LargeInteger const& e, LargeInteger const& m) noexcept {
    if (Representation::raise(*this, e, m, Representation::Kept::asProduct))
        return;
    // A base or an exponent of zero, and the signs that squaring in place gives a negative base. m
    // may be this object.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    LargeInteger const divisor(m);
    LargeInteger exponent(e);
    exponent %= divisor;
    LargeInteger base(1);
    swapWith(base);
    base %= divisor;
    while (!exponent.isZero()) {
        if (exponent[0] != 0) {
            *this *= base;
            *this %= divisor;
        }
        base *= base;
        base %= divisor;
        exponent >>= 1;
    }
}

/// Becomes a^e modulo m; false, and unchanged, where the documented steps are wanted.
bool internal::Representation::raise(LargeInteger& a, LargeInteger const& e, LargeInteger const& m,
                                     Kept kept) noexcept {
    Magnitude const base = magnitude(a);
    Magnitude const exponent = magnitude(e);
    Magnitude const modulus = magnitude(m);
    if (a.negative || base.top < 0 || exponent.top < 0)
        return false;
    if (compareMagnitudes(base, modulus) >= 0 || compareMagnitudes(exponent, modulus) >= 0) {
        LargeInteger reduced = a % m;
        if (!raise(reduced, e % m, m, kept))
            return false;
        a.swapWith(reduced);
        return true;
    }
    std::size_t const count = modulus.count();
    Workspace workspace(5 * count + limbs::powerScratch(count, exponent.top));
    Limb* const b = workspace.take(count);
    Limb* const lower = workspace.take(count);
    Limb* const highest = workspace.take(count);
    Limb* const result = workspace.take(2 * count);  // as far as the bound may reach
    std::fill(result + count, result + 2 * count, Limb{0});
    loadLimbs(b, count, base);
    limbs::power(result, lower, highest, b, exponent.value, exponent.top, modulus.value, count,
                 workspace.rest());

    auto const lowerTop = static_cast<int>(topBit(lower, count));
    auto const highestTop = static_cast<int>(topBit(highest, count));
    bool const isZero = lowerTop < 0 || highestTop < 0;
    int const bound = isZero ? -1 : checkedPosition(topOfProduct(lower, highest, count));
    if (kept == Kept::asProduct) {
        become(a, result, limbCount(bound), bound, productCapacity({lower, lowerTop}, highestTop));
    } else {
        auto const top = static_cast<int>(topBit(result, count));
        become(a, result, limbCount(top), top, grownSize(initialSize, wordIndex(bound + 1LL) + 1));
    }
    return true;
}

}  // namespace qel
