#include "Residues.h"

namespace qel::internal {

using limbs::DoubleLimb;
using limbs::Limb;

// Divisors are taken together as long as their product fits a limb: one long division for four of
// them or more, and short ones of its remainder.
void takeResidues(std::span<std::uint16_t> out, std::span<std::uint16_t const> divisors,
                  Limb const* n, std::size_t count, Limb* scratch) noexcept {
    for (std::size_t first = 0; first < divisors.size();) {
        Limb product = 1;
        std::size_t end = first;
        while (end < divisors.size() && (DoubleLimb{product} * divisors[end]) >> 64 == 0)
            product *= divisors[end++];
        Limb const remainder = residue(n, count, product, scratch);
        for (; first < end; ++first)
            out[first] = static_cast<std::uint16_t>(remainder % divisors[first]);
    }
}

void advanceResidues(std::span<std::uint16_t> residues, std::span<std::uint16_t const> divisors,
                     unsigned int step) noexcept {
    std::size_t i = 0;
    for (; i < residues.size() && divisors[i] < step; ++i)
        residues[i] = static_cast<std::uint16_t>((residues[i] + step) % divisors[i]);
    for (; i < residues.size(); ++i) {
        unsigned int const moved = residues[i] + step;
        residues[i] = static_cast<std::uint16_t>(moved < divisors[i] ? moved : moved - divisors[i]);
    }
}

Limb residue(Limb const* n, std::size_t count, Limb divisor, Limb* scratch) noexcept {
    return limbs::divideLimb(scratch, n, count, divisor);
}

}  // namespace qel::internal
