// Greatest common divisor, modular inverse, modular power.
#include "PlainInteger.h"

#include <cassert>
#include <cstdlib>
#include <utility>

namespace plain {

LargeInteger LargeInteger::simpleGCD(LargeInteger* a, LargeInteger* b) noexcept {
    assert((a->isZero() || (!b->isZero() && a->isNegative() == b->isNegative()))
           && "simpleGCD: b must not be zero, and no operand negative");
    LargeInteger* x = a;
    LargeInteger* y = b;
    while (!x->isZero()) {
        if (y->compareAbsolute(*x) > 0) {
            *y -= *x;
            std::swap(x, y);
        } else {
            *x -= *y;
        }
    }
    return LargeInteger(*y);
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

}  // namespace plain
