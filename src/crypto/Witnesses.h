// Strong tests with the witnesses 3, 5, 7, 11, ..., as many at once as the processor can.
#pragma once

#include "../bigint/limbs/LaneKernels.h"

#include <cstddef>
#include <span>

namespace qel::internal {

inline constexpr std::size_t mostNumbersAtOnce = limbs::lanes;
/// How many numbers of `count` limbs indexOfPassing tests in hardly more time than one; 1 or 8.
[[nodiscard]] std::size_t numbersAtOnce(std::size_t count) noexcept;

/// The index of the first number that is a strong probable prime to each of the first
/// `witnessCount` odd primes; -1 when there is none.
/// @param numbers mostNumbersAtOnce or fewer, odd, from 2048 up, `count` limbs each; limbs on top
///     may be zero
/// @param witnessCount with 0 or less, every number passes
/// @param scratch witnessScratch(count) limbs
[[nodiscard]] int indexOfPassing(std::span<limbs::Limb const* const> numbers, std::size_t count,
                                 int witnessCount, limbs::Limb* scratch) noexcept;
std::size_t witnessScratch(std::size_t count) noexcept;

/// Whether a number that passes is certainly a prime.
[[nodiscard]] bool passingProves(limbs::Limb const* n, std::size_t count,
                                 int witnessCount) noexcept;

}  // namespace qel::internal
