// The product and the quotient of two magnitudes as limbs, computed before any of the operands'
// objects changes: so an operand may be the result's own object.
#pragma once

#include "Storage.h"

namespace qel::internal {

class Product {
  public:
    Product(Magnitude a, Magnitude b) noexcept;

    /// The limbs of the product, and its exact top; no limbs when the top is -1.
    limbs::Limb const* value = nullptr;
    int top = -1;

  private:
    Workspace workspace;
};

/// The capacity that adding up the shifted copies of b, one for each set bit of a, leaves.
///
/// While bit i of a is added, the sum so far is below b * 2^i. So the addition's bound is
/// top(b) + i + 1, and the capacity follows from the positions of a's set bits alone.
[[nodiscard]] int productCapacity(Magnitude a, int bTop) noexcept;

class Quotient {
  public:
    /// Divides; neither operand is zero.
    Quotient(Magnitude dividend, Magnitude divisor) noexcept;

    limbs::Limb const* quotient = nullptr;
    int quotientTop = -1;
    limbs::Limb const* remainder = nullptr;
    int remainderTop;

  private:
    Workspace workspace;
};

}  // namespace qel::internal
