// Long quotients by halves.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// As divide.
void divideByHalves(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                    std::size_t count, Limb* scratch) noexcept;
/// One step of it: quotient[0, digits) = a[0, count + digits) / divisor, for 2 <= digits < count,
/// by the upper part of the divisor first. The remainder stays in a, with zeros above.
void divideByUpperPart(Limb* quotient, Limb* a, Limb const* divisor, std::size_t count,
                       std::size_t digits, Limb* scratch) noexcept;
/// Enough for both.
std::size_t divideByHalvesScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
