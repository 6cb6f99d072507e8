#include "Residues.h"

#include <algorithm>

namespace qel::internal {

using limbs::Limb;

namespace {

/// So many long divisions go side by side, since each waits for itself from limb to limb.
constexpr std::size_t groupsAtOnce = 4;

template <std::size_t width>
void takeRests(Limb* rests, DivisorGroup const* groups, Limb const* n, std::size_t count) noexcept {
    std::array<Limb, width> rest{};
    for (std::size_t i = count; i > 0; --i) {
        for (std::size_t k = 0; k < width; ++k)
            rest[k] =
                limbs::divideTwoByOne(rest[k], n[i - 1], groups[k].multiple, groups[k].reciprocal)
                    .remainder;
    }
    std::copy(rest.begin(), rest.end(), rests);
}

}  // namespace

void takeResidues(std::span<std::uint16_t> out, std::span<std::uint16_t const> divisors,
                  DivisorGroup const* groups, Limb const* n, std::size_t count) noexcept {
    std::array<Limb, groupsAtOnce> rests;
    std::size_t group = 0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        if (i % (groupsAtOnce * divisorsPerGroup) == 0) {
            std::size_t const left = (out.size() - i - 1) / divisorsPerGroup + 1;
            if (left >= groupsAtOnce) {
                takeRests<groupsAtOnce>(rests.data(), groups + group, n, count);
            } else {
                for (std::size_t k = 0; k < left; ++k)
                    takeRests<1>(&rests[k], groups + group + k, n, count);
            }
            group += groupsAtOnce;
        }
        out[i] =
            static_cast<std::uint16_t>(rests[i / divisorsPerGroup % groupsAtOnce] % divisors[i]);
    }
}

void advanceResidues(std::span<std::uint16_t> residues, std::span<std::uint16_t const> divisors,
                     unsigned int step) noexcept {
    std::size_t i = 0;
    for (; i < residues.size() && divisors[i] <= step; ++i)
        residues[i] = static_cast<std::uint16_t>((residues[i] + step) % divisors[i]);
    for (; i < residues.size(); ++i) {
        unsigned int const moved = residues[i] + step;
        residues[i] = static_cast<std::uint16_t>(moved < divisors[i] ? moved : moved - divisors[i]);
    }
}

}  // namespace qel::internal
