// Strong probable primes (Rabin, "Probabilistic algorithm for testing primality", 1980).
#pragma once

#include "ShortMontgomery.h"

#include <bit>

namespace qel::limbs {

/// The strong test of one odd number, with as many witnesses as wanted.
class StrongTest {
  public:
    /// @param n odd, `limbCount` >= 2 limbs, the highest not zero
    /// @param scratch strongTestScratch(limbCount) limbs, which the test keeps
    StrongTest(Limb const* n, std::size_t limbCount, Limb* scratch) noexcept;

    /// With n - 1 = d * 2^s: true when witness^d is 1, or witness^(d * 2^j) is -1 for a j from 0
    /// to s, modulo n. Costs a modular power, but hardly more than its squarings.
    [[nodiscard]] bool passes(Limb witness) noexcept;

  private:
    void raiseToOddPart(Limb witness) noexcept;
    void multiplyLimb(Limb factor) noexcept;
    [[nodiscard]] bool isEqual(Limb const* a) const noexcept;

    Limb const* n;
    std::size_t count;
    int shift;
    long long twos;
    Limb* one;
    Limb* minusOne;
    Limb* complement;
    Limb* power;
    MontgomeryContext context;
};

/// The same for a Limb or a DoubleLimb above 2^64, in registers.
template <typename Number>
class ShortStrongTest {
  public:
    /// @param number odd and above 1
    explicit ShortStrongTest(Number number) noexcept
        : n(number), montgomery(n), one(montgomery.enter(1)), twos(lowestBit(n - 1)),
          oddPart((n - 1) >> twos) {}

    [[nodiscard]] bool passes(Limb witness) const noexcept;

  private:
    Number n;
    ShortMontgomery<Number> montgomery;
    /// What represents 1.
    Number one;
    int twos;
    Number oddPart;
};

std::size_t strongTestScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
