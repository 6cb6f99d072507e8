// Products modulo an odd number of one limb, in registers (Montgomery, 1985).
#pragma once

#include "Montgomery.h"
#include "Reciprocal.h"

namespace qel::limbs {

/// x is represented by x * 2^64 mod n.
class MontgomeryLimb {
  public:
    explicit MontgomeryLimb(Limb odd) noexcept
        : n(odd), inverse(0 - negatedInverse(odd)), one((0 - odd) % odd),
          radixSquared(static_cast<Limb>((DoubleLimb{one} << bitsPerLimb) % odd)) {}

    /// a b / 2^64. With q = a b / n modulo 2^64 the lower limbs of a b and q n agree, and the
    /// difference of the upper ones is above -n and below n.
    [[nodiscard]] Limb multiply(Limb a, Limb b) const noexcept {
        DoubleLimb const product = DoubleLimb{a} * b;
        Limb const quotient = low(product) * inverse;
        Limb const subtrahend = high(DoubleLimb{quotient} * n);
        Limb const difference = high(product) - subtrahend;
        return high(product) < subtrahend ? difference + n : difference;
    }
    [[nodiscard]] Limb enter(Limb a) const noexcept { return multiply(a, radixSquared); }
    [[nodiscard]] Limb leave(Limb a) const noexcept { return multiply(a, 1); }
    /// What represents 1.
    [[nodiscard]] Limb unit() const noexcept { return one; }
    [[nodiscard]] Limb minusUnit() const noexcept { return n - one; }

  private:
    Limb n;
    Limb inverse;
    Limb one;
    Limb radixSquared;
};

}  // namespace qel::limbs
