// Modular powers.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// The two factors of base^e mod modulus that its last multiplication joins.
///
/// With 2^top the highest bit of e, highest = base^(2^top) and lower = base^(e - 2^top), both
/// reduced; lower is 1 when e = 2^top, and the result then is highest. The product's length is one
/// of the representation that LargeInteger keeps, and this is why it wants the factors.
///
/// @param modulus above 1, `count` limbs, the highest not zero; an odd one is faster
/// @param base `count` limbs, below the modulus
/// @param e its highest bit is `top`
/// @param result base^e mod modulus
/// @param scratch powerScratch(count, top) limbs
void power(Limb* result, Limb* lower, Limb* highest, Limb const* base, Limb const* e, long long top,
           Limb const* modulus, std::size_t count, Limb* scratch) noexcept;
std::size_t powerScratch(std::size_t count, long long top) noexcept;

}  // namespace qel::limbs
