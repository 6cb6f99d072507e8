// Products and squares of numbers of one length, by whatever is fastest below transforms.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// out[0, 2 * count) = a * b; `b` may be `a`, as the same array, which is faster.
void multiplyByParts(Limb* out, Limb const* a, Limb const* b, std::size_t count,
                     Limb* scratch) noexcept;
/// Enough for products and squares.
std::size_t partsScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
