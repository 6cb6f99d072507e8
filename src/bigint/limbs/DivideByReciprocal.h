// Long quotients by a reciprocal of the divisor.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// As divide, for a divisor of 4 limbs or more, and 2 digits or more.
void divideByReciprocal(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                        std::size_t count, Limb* scratch) noexcept;
std::size_t divideByReciprocalScratch(std::size_t count) noexcept;

/// x[0, count) such that X = B^count + x, for B = 2^64, has a X < B^(2 count) <= a (X + 2). For an
/// `a` of 2 limbs or more, with the top bit of the highest set.
void reciprocal(Limb* x, Limb const* a, std::size_t count, Limb* scratch) noexcept;
std::size_t reciprocalScratch(std::size_t count) noexcept;
/// Its two ways: a quotient, and one step of Newton's iteration, for 3 limbs or more.
void reciprocalByDivision(Limb* x, Limb const* a, std::size_t count, Limb* scratch) noexcept;
void reciprocalByNewton(Limb* x, Limb const* a, std::size_t count, Limb* scratch) noexcept;

}  // namespace qel::limbs
