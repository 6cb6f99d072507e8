// Greatest common divisor, modular inverse, modular power.
#include "qel/LargeInteger.h"

#include "Storage.h"
#include "limbs/Montgomery.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>
#include <utility>

namespace qel {

LargeInteger LargeInteger::simpleGCD(LargeInteger* a, LargeInteger* b) noexcept {
    assert((a->isZero() || (!b->isZero() && a->isNegative() == b->isNegative()))
           && "simpleGCD: b must not be zero, and no operand negative");
    LargeInteger* x = a;
    LargeInteger* y = b;
    while (!x->isZero()) {
        if (y->compareAbsolute(*x) > 0) {
            y->subtractWhileLarger(*x);
            std::swap(x, y);
        } else {
            x->subtractWhileLarger(*y);
        }
    }
    return LargeInteger(*y);
}

/// What repeated subtraction of b leaves: the remainder, in the same buffer and under the same
/// bound. A b of zero or of another sign is subtracted once: that never comes to an end.
void LargeInteger::subtractWhileLarger(LargeInteger const& b) noexcept {
    if (b.isZero() || b.isNegative() != isNegative()) {
        *this -= b;
        return;
    }
    *this %= b;
    negative = isNegative();
}

LargeInteger LargeInteger::findGreatestCommonDivisor(LargeInteger other) const noexcept {
    // Euclid's algorithm while the sizes differ; once they are close, the quotients are expected
    // to be small and repeated subtraction finishes.
    constexpr int closeEnough = 16;
    LargeInteger a(*this);
    while (!other.isZero()) {
        if (std::abs(a.getHighestBit() - other.getHighestBit()) <= closeEnough)
            return simpleGCD(&a, &other);
        LargeInteger quotient(a);
        LargeInteger remainder;
        quotient.divideBy(other, remainder);
        a = other;
        other = remainder;
    }
    return LargeInteger(a);
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
    LargeInteger a(m);
    LargeInteger b(*this);
    LargeInteger c(m);
    LargeInteger d(1);
    while (!b.isOne()) {
        assert(!b.isZero() && "inverseModulo: a value that is not negative and coprime to m");
        LargeInteger quotient(a);
        LargeInteger scratch;
        quotient.divideBy(b, scratch);

        LargeInteger product(b);
        product *= quotient;
        LargeInteger difference(a);
        difference -= product;
        a = b;
        b = difference;

        product = d;
        product *= quotient;
        difference = c;
        difference -= product;
        c = d;
        d = difference;
    }
    while (d.isNegative())
        d += m;
    d %= m;
    swapWith(d);
}

void LargeInteger::exponentModulo(LargeInteger const& e, LargeInteger const& m) noexcept {
    LargeInteger const modulus(m);  // m may be this object
    LargeInteger exponent(e);
    exponent %= modulus;
    LargeInteger base(1);
    swapWith(base);
    base %= modulus;
    if (!exponent.isZero() && !base.isZero() && !base.isNegative() && modulus[0] != 0) {
        *this = base;
        raise(exponent, modulus);
        return;
    }
    // Even moduli, and the signs that squaring in place gives a negative base.
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

/// This value's power modulo an odd number, for a base below it and an exponent, neither zero.
///
/// Bound and capacity are those of the last product before its reduction.
void LargeInteger::raise(LargeInteger const& exponent, LargeInteger const& modulus) noexcept {
    std::size_t const count = limbCount(modulus.highestBit);
    std::size_t const exponentCount = limbCount(exponent.getHighestBit());
    int const top = exponent.getHighestBit();
    Workspace workspace(5 * count + exponentCount + limbs::powerScratch(count, top));
    limbs::Limb* const m = workspace.take(count);
    limbs::Limb* const base = workspace.take(count);
    limbs::Limb* const lower = workspace.take(count);
    limbs::Limb* const highest = workspace.take(count);
    limbs::Limb* const result = workspace.take(count);
    limbs::Limb* const e = workspace.take(exponentCount);
    loadLimbs(m, modulus.data, modulus.highestBit);
    std::fill(base, base + count, limbs::Limb{0});
    loadLimbs(base, data, getHighestBit());
    loadLimbs(e, exponent.data, top);
    limbs::power(result, lower, highest, base, e, top, m, count, workspace.take(0));

    LargeInteger const left(lower, static_cast<int>(topBit(lower, count)), false);
    LargeInteger const right(highest, static_cast<int>(topBit(highest, count)), false);
    *this = left;
    *this *= right;
    if (!isZero())
        overwrite(highestBit, result, static_cast<int>(topBit(result, count)));
}

}  // namespace qel
