// Strong probable primes (Rabin, "Probabilistic algorithm for testing primality", 1980).
#pragma once

#include "Montgomery.h"

namespace qel::limbs {

/// The strong test of one odd number, with as many witnesses as wanted.
class StrongTest {
  public:
    /// @param n odd and above 1, `limbCount` limbs, the highest not zero
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

std::size_t strongTestScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
