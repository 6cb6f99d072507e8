// Products of long numbers by number-theoretic transforms.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// out[0, aCount + bCount) = a * b, in any order of lengths; `a` may be `b`, as the same array,
/// which saves a transform. For products of less than 2^33 bits.
void multiplyByTransform(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                         std::size_t bCount, Limb* scratch) noexcept;
std::size_t transformScratch(std::size_t aCount, std::size_t bCount) noexcept;

}  // namespace qel::limbs
