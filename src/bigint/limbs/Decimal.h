// Decimal text of natural numbers, both ways, by halves: the number is split at a power
// 10^(19 * c * 2^k), or joined there (Knuth 4.4; the method is due to Schoenhage). 19 digits, a
// group, are what one limb holds.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

inline constexpr std::size_t digitsPerGroup = 19;

/// The groups that count limbs may need: 64 / log2(10^19) = 1.01399 for a limb.
[[nodiscard]] constexpr std::size_t decimalGroups(std::size_t count) noexcept {
    return count + count / 64 + 1;
}

/// Writes a as `digitsPerGroup * groups` digits, highest first, with leading zeros, for an
/// a < 10^(19 groups). Uses up a, which has room for one limb above count.
void toDecimal(char* out, std::size_t groups, Limb* a, std::size_t count, Limb* scratch) noexcept;
std::size_t toDecimalScratch(std::size_t groups) noexcept;

/// The groups that `length` digits take.
[[nodiscard]] constexpr std::size_t groupsOf(std::size_t length) noexcept {
    return (length + digitsPerGroup - 1) / digitsPerGroup;
}

/// out[0, groupsOf(length)) = the number that `length` >= 0 digits write, highest first. The digits
/// are '0' to '9'.
void fromDecimal(Limb* out, char const* digits, std::size_t length, Limb* scratch) noexcept;
std::size_t fromDecimalScratch(std::size_t groups) noexcept;

}  // namespace qel::limbs
