// The remainders of one long number by many small divisors.
#pragma once

#include "../bigint/limbs/Limbs.h"

#include <cstdint>
#include <span>

namespace qel::internal {

/// out[i] = n mod divisors[i], for divisors from 2 up, in ascending order.
/// @param n `count` limbs
/// @param scratch `count` limbs
void takeResidues(std::span<std::uint16_t> out, std::span<std::uint16_t const> divisors,
                  limbs::Limb const* n, std::size_t count, limbs::Limb* scratch) noexcept;

/// residues[i] = the remainder of n + step, where it was that of n.
void advanceResidues(std::span<std::uint16_t> residues, std::span<std::uint16_t const> divisors,
                     unsigned int step) noexcept;

/// n mod divisor, for any divisor but 0.
[[nodiscard]] limbs::Limb residue(limbs::Limb const* n, std::size_t count, limbs::Limb divisor,
                                  limbs::Limb* scratch) noexcept;

}  // namespace qel::internal
