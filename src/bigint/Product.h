// The product of two magnitudes as limbs.
#pragma once

#include "Storage.h"

namespace qel::internal {

/// The limbs of a product; none for zero. Ends the process for one that is too wide to index.
[[nodiscard]] std::size_t productLimbs(Magnitude a, Magnitude b) noexcept;
/// out[0, productLimbs(a, b)) = a * b; `out` is neither.
void multiply(Limb* out, Magnitude a, Magnitude b) noexcept;

/// The capacity that adding up the shifted copies of b, one for each set bit of a, leaves.
///
/// While bit i of a is added, the sum so far is below b * 2^i. So the addition's bound is
/// top(b) + i + 1, and the capacity follows from the positions of a's set bits alone.
[[nodiscard]] int productCapacity(Magnitude a, int bTop) noexcept;

}  // namespace qel::internal
