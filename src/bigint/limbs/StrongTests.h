// Eight strong probable prime tests at once.
#pragma once

#include "LaneKernels.h"

namespace qel::limbs {

/// The longest moduli that passStrongTests takes, in limbs: longer ones could overflow its sums.
inline constexpr std::size_t longestStrongTest = 800;

/// The strong test (Miller-Rabin) of eight numbers, each to a base of its own.
///
/// With modulus - 1 = d * 2^s, d odd, and y = base^d: passed when y or one of the s squares after
/// it is modulus - 1, or y is 1. (The last of these squares, base^(modulus - 1), can never be
/// modulus - 1.) Worth its while where laneKernels().pays; same results everywhere.
///
/// @param moduli eight pointers to `count` limbs each, up to longestStrongTest: odd numbers above
///     1, of any lengths (the longest and the largest s decide about the time), also all the same
/// @param bases eight bases from 1 up to 2^52 - 1, fastest when all are below 8, then 128, 2^17
/// @param scratch strongTestsScratch(count) limbs
/// @returns bit k: modulus k passed
[[nodiscard]] unsigned passStrongTests(Limb const* const* moduli, std::size_t count,
                                       Limb const* bases, Limb* scratch) noexcept;
[[nodiscard]] std::size_t strongTestsScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
