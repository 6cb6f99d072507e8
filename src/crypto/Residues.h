// The remainders of one long number by many small divisors.
#pragma once

#include "../bigint/limbs/Reciprocal.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

namespace qel::internal {

/// Divisors below 2^16 are taken by fours: one long division for their product, and four short
/// ones of its remainder.
struct DivisorGroup {
    /// A multiple of the product with the top bit set, and its reciprocal.
    limbs::Limb multiple;
    limbs::Limb reciprocal;
};
inline constexpr std::size_t divisorsPerGroup = 4;

template <std::size_t count>
struct DivisorTable {
    std::array<std::uint16_t, count> divisors;
    std::array<DivisorGroup, (count - 1) / divisorsPerGroup + 1> groups;
};

template <std::size_t count>
consteval DivisorTable<count>
makeDivisorTable(std::array<std::uint16_t, count> const& divisors) noexcept {
    DivisorTable<count> table{divisors, {}};
    for (std::size_t g = 0; g < table.groups.size(); ++g) {
        limbs::Limb product = 1;
        for (std::size_t i = g * divisorsPerGroup; i < count && i < (g + 1) * divisorsPerGroup; ++i)
            product *= divisors[i];
        limbs::Limb const multiple = product << std::countl_zero(product);
        table.groups[g] = {multiple, limbs::reciprocal(multiple)};
    }
    return table;
}

/// out[i] = n mod divisors[i]; `groups` are those of the divisors.
void takeResidues(std::span<std::uint16_t> out, std::span<std::uint16_t const> divisors,
                  DivisorGroup const* groups, limbs::Limb const* n, std::size_t count) noexcept;

/// residues[i] = the remainder of n + step, where it was that of n; divisors are in ascending
/// order.
void advanceResidues(std::span<std::uint16_t> residues, std::span<std::uint16_t const> divisors,
                     unsigned int step) noexcept;

}  // namespace qel::internal
