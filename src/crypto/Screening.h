// Candidates for a prime, without those that are certain to fail their test.
#pragma once

#include "../bigint/limbs/Limbs.h"
#include "SmallPrimes.h"

#include <array>
#include <bitset>

namespace qel::internal {

/// True when the documented screening strikes n: when 3, or 2p + 1 for a prime p below 15000,
/// divides it and is not n itself.
/// @param n odd, `count` limbs
[[nodiscard]] bool isStruckByDivisors(limbs::Limb const* n, std::size_t count) noexcept;

/// Walks over the odd numbers above an even start, a window at a time, and strikes those that the
/// test certainly refuses.
class Screening {
  public:
    static constexpr int windowLength = 128;
    using Window = std::bitset<std::size_t{windowLength}>;

    /// @param start even, 2048 or more, `limbCount` limbs, with room for as far as the walk goes
    /// @param witnessCount that of the test; with 0 or less only factors up to 23 strike
    /// @param limit the primes below it are looked at as factors, as far as they are small primes
    /// @param scratch limbCount limbs, which the walk keeps
    Screening(limbs::Limb const* start, std::size_t limbCount, int witnessCount, limbs::Limb limit,
              limbs::Limb* scratch) noexcept;

    /// Bit i is set when base() + 2i + 1 is struck, for i < length.
    [[nodiscard]] Window window(int length) noexcept;
    /// Moves the base up by 2 * length.
    void advance(int length) noexcept;
    [[nodiscard]] limbs::Limb const* base() const noexcept { return number; }

  private:
    [[nodiscard]] bool isRefused(unsigned int offset, unsigned int factor) const noexcept;

    limbs::Limb* number;
    std::size_t count;
    int witnesses;
    std::size_t primeCount;
    std::array<std::uint16_t, smallPrimes.size()> residues;
};

}  // namespace qel::internal
