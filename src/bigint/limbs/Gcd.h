// Greatest common divisors and modular inverses.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// out[0, count) = the gcd of a and b, both of `count` limbs with zeros on top where one is
/// shorter; that of a number and zero is the number. Both operands are used up.
///
/// True when it is left in b once the smaller of the two has been subtracted from the larger, each
/// time in place, until one of them is zero. Equal ones make that zero which was decreased last, a
/// if neither was.
bool gcd(Limb* out, Limb* a, Limb* b, std::size_t count, Limb* scratch) noexcept;
/// The same for count >= 2 without telling where it is left, and faster for that.
void gcdAlone(Limb* out, Limb* a, Limb* b, std::size_t count, Limb* scratch) noexcept;
std::size_t gcdScratch(std::size_t count) noexcept;
/// The gcd of two numbers of up to two limbs; that of a number and zero is the number.
[[nodiscard]] DoubleLimb gcdOfPairs(DoubleLimb a, DoubleLimb b) noexcept;

/// out[0, count) = the inverse of v modulo m, for 1 < v < m, both of `count` limbs with zeros on
/// top where v is shorter. False when there is none. Both operands are used up.
bool inverse(Limb* out, Limb* v, Limb* m, std::size_t count, Limb* scratch) noexcept;
std::size_t inverseScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
