// Long quotients by halves.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// As divide.
void divideByHalves(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                    std::size_t count, Limb* scratch) noexcept;
std::size_t divideByHalvesScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
