// Candidates for a prime, without those that are certain to fail their test.
#pragma once

#include "../bigint/limbs/Limbs.h"
#include "SmallPrimes.h"

#include <array>
#include <bitset>

namespace qel::internal {

/// Walks over the odd numbers above an even start, a window at a time.
///
/// A number is struck when the documented screening strikes it, or when the test with
/// `witnessCount` witnesses certainly refuses it; both are the same to the search.
class Screening {
  public:
    static constexpr int windowLength = 128;
    using Window = std::bitset<std::size_t{windowLength}>;
    /// The documented divisors: twice 1 or a prime below 15000, plus one.
    static constexpr std::size_t divisorCount = 1755;

    /// @param start even, 2048 or more, `count` limbs; the highest may be zero and must have room
    ///     for as far as the walk goes
    /// @param scratch screeningScratch(count) limbs, which the walk keeps
    Screening(limbs::Limb const* start, std::size_t count, int witnessCount,
              limbs::Limb* scratch) noexcept;

    /// Bit i is set when base() + 2i + 1 is struck, for i < length.
    [[nodiscard]] Window window(int length) noexcept;
    /// Moves the base up by 2 * length.
    void advance(int length) noexcept;
    [[nodiscard]] limbs::Limb const* base() const noexcept { return number; }

  private:
    void strikeDocumented(Window& struck, unsigned int length) const noexcept;
    void strikeFactors(Window& struck, unsigned int length) noexcept;
    [[nodiscard]] bool isRefused(unsigned int offset, unsigned int factor) noexcept;

    limbs::Limb* number;
    std::size_t count;
    limbs::Limb* quotient;
    int witnesses;
    std::size_t primeCount;
    std::array<std::uint16_t, divisorCount> divisorResidues;
    std::array<std::uint16_t, smallPrimes.size()> primeResidues;
};

std::size_t screeningScratch(std::size_t count) noexcept;

}  // namespace qel::internal
