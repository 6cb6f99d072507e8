// Greatest common divisor, modular inverse, modular power.
#include "qel/LargeInteger.h"

#include "Representation.h"
#include "limbs/Gcd.h"
#include "limbs/Power.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>
#include <utility>

namespace qel {

using namespace internal;

namespace {

/// The 64 bits from the highest set bit `top` of a down, with zeros below where there are fewer.
limbs::Limb leadingLimb(limbs::Limb const* a, long long top) noexcept {
    std::size_t const i = limbCount(top) - 1;
    int const shift = std::countl_zero(a[i]);
    limbs::Limb const below = i == 0 || shift == 0 ? 0 : a[i - 1] >> (limbs::bitsPerLimb - shift);
    return (a[i] << shift) | below;
}

/// The highest set bit of x y; neither is zero.
///
/// It is the sum of theirs or one more, which the leading limbs tell nearly always: with
/// X 2^a <= x < (X + 1) 2^a, and Y 2^b likewise, x y is below (X + 1) (Y + 1) 2^(a + b).
long long topOfProduct(limbs::Limb const* x, limbs::Limb const* y, std::size_t count) noexcept {
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
    limbs::Limb* const product = workspace.take(2 * count);
    limbs::multiply(product, x, count, y, count, workspace.rest());
    return topBit(product, 2 * count);
}

}  // namespace

LargeInteger LargeInteger::simpleGCD(LargeInteger* a, LargeInteger* b) noexcept {
    assert((a->isZero() || (!b->isZero() && a->isNegative() == b->isNegative()))
           && "simpleGCD: b must not be zero, and no operand negative");
    LargeInteger* x = a;
    LargeInteger* y = b;
    while (!x->isZero()) {
        if (y->compareAbsolute(*x) > 0) {
            Representation::subtractWhileLarger(*y, *x);
            std::swap(x, y);
        } else {
            Representation::subtractWhileLarger(*x, *y);
        }
    }
    return LargeInteger(*y);
}

/// What repeated subtraction of b leaves: the remainder, in the same buffer and under the same
/// bound. A b of zero or of another sign is subtracted once: that never comes to an end.
void internal::Representation::subtractWhileLarger(LargeInteger& a,
                                                   LargeInteger const& b) noexcept {
    if (b.isZero() || b.isNegative() != a.isNegative()) {
        a -= b;
        return;
    }
    a %= b;
    a.negative = a.isNegative();
}

// Euclid's algorithm while the sizes differ, then repeated subtraction.
LargeInteger LargeInteger::findGreatestCommonDivisor(LargeInteger other) const noexcept {
    constexpr int closeEnough = 16;
    LargeInteger a(*this);
    while (!other.isZero()) {
        if (std::abs(a.getHighestBit() - other.getHighestBit()) > closeEnough) {
            LargeInteger const remainder = a % other;
            a = other;
            other = remainder;
        } else if (a.isNegative() || other.isNegative()) {
            // Which signs come to an end, and with which sign, rests on the documented steps.
            return simpleGCD(&a, &other);
        } else {
            return Representation::gcdOfMagnitudes(a, other);
        }
    }
    return LargeInteger(a);
}

/// What simpleGCD returns for two values that are not negative: a copy of the one that is not zero
/// in the end, under the bound that it had from the beginning.
LargeInteger internal::Representation::gcdOfMagnitudes(LargeInteger const& a,
                                                       LargeInteger const& b) noexcept {
    Magnitude const first = magnitude(a);
    Magnitude const second = magnitude(b);
    std::size_t const count = limbCount(std::max({first.top, second.top, 0}));
    Workspace workspace(3 * count + limbs::gcdScratch(count));
    limbs::Limb* const x = workspace.take(count);
    limbs::Limb* const y = workspace.take(count);
    limbs::Limb* const out = workspace.take(count);
    loadLimbs(x, count, first);
    loadLimbs(y, count, second);
    bool const isInSecond = limbs::gcd(out, x, y, count, workspace.rest());
    LargeInteger divisor;
    replaceZero(divisor, out, static_cast<int>(topBit(out, count)),
                tightSize(isInSecond ? second.top : first.top));
    return divisor;
}

// Extended Euclid on (m, this): the coefficients c and d follow the remainders a and b, with m
// standing for the first coefficient 0. Rounds end when the remainder is exactly +1.
void LargeInteger::inverseModulo(LargeInteger const& m) noexcept {
    if (m.isOne() || m.isNegative()) {
        clear();
        return;
    }
    if (isNegative() || compareAbsolute(m) >= 0)
        *this %= m;
    if (isOne())
        return;
    if ((*this)[0] == 0) {
        clear();
        return;
    }
    if (!isNegative() && Representation::invert(*this, m))
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

/// Becomes its inverse, for 1 < this < m; false, and unchanged, when there is none.
///
/// The books are those of the extended Euclid's last coefficient d before its reduction. With
/// s m + t v = 1 for this value v, d is t + s m = 1 - t (v - 1), since the coefficients start from
/// m and 1 instead of 0 and 1; and |t| <= m / 2, as Euclid's are. So t is the inverse i or i - m,
/// whichever is smaller in size. A negative t makes d positive, which then keeps its own bound; a
/// positive t makes d negative, and adding m leaves the bound of m.
bool internal::Representation::invert(LargeInteger& a, LargeInteger const& m) noexcept {
    Magnitude const value = magnitude(a);
    Magnitude const divisor = magnitude(m);
    std::size_t const count = limbCount(divisor.top);
    Workspace workspace(3 * count + limbs::inverseScratch(count));
    limbs::Limb* const v = workspace.take(count);
    limbs::Limb* const modulus = workspace.take(count);
    limbs::Limb* const out = workspace.take(count);
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
    LargeInteger inverse;
    replaceZero(inverse, out, static_cast<int>(topBit(out, count)), tightSize(bound));
    inverse.highestBit = bound;
    a.swapWith(inverse);
    return true;
}

void LargeInteger::exponentModulo(LargeInteger const& e, LargeInteger const& m) noexcept {
    // m may be this object.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    LargeInteger const modulus(m);
    LargeInteger exponent(e);
    exponent %= modulus;
    LargeInteger base(1);
    swapWith(base);
    base %= modulus;
    if (!exponent.isZero() && !base.isZero() && !base.isNegative()) {
        *this = base;
        Representation::raise(*this, exponent, modulus);
        return;
    }
    // A base of zero, and the signs that squaring in place gives a negative one.
    while (!exponent.isZero()) {
        if (exponent[0] != 0) {
            *this *= base;
            *this %= modulus;
        }
        base *= base;
        base %= modulus;
        exponent >>= 1;
    }
}

/// Becomes its power; neither the base, which is below the modulus, nor the exponent is zero.
///
/// Bound and capacity are those of the last product before its reduction.
void internal::Representation::raise(LargeInteger& base, LargeInteger const& exponent,
                                     LargeInteger const& modulus) noexcept {
    Magnitude const exponentBits = magnitude(exponent);
    int const top = exponentBits.top;
    Magnitude const divisor = magnitude(modulus);
    std::size_t const count = limbCount(divisor.top);
    std::size_t const exponentCount = limbCount(top);
    Workspace workspace(5 * count + exponentCount + limbs::powerScratch(count, top));
    limbs::Limb* const m = workspace.take(count);
    limbs::Limb* const b = workspace.take(count);
    limbs::Limb* const lower = workspace.take(count);
    limbs::Limb* const highest = workspace.take(count);
    limbs::Limb* const result = workspace.take(count);
    limbs::Limb* const e = workspace.take(exponentCount);
    loadLimbs(m, count, divisor);
    loadLimbs(b, count, magnitude(base));
    loadLimbs(e, exponentCount, exponentBits);
    limbs::power(result, lower, highest, b, e, top, m, count, workspace.rest());

    base = tight(lower, topBit(lower, count), false);
    base *= tight(highest, topBit(highest, count), false);
    if (!base.isZero())
        replaceMagnitude(base, base.highestBit, result, static_cast<int>(topBit(result, count)));
}

}  // namespace qel
