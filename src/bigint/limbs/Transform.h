// Products of long numbers by number-theoretic transforms.
//
// Where a number is a factor of several products, its image can be taken once: products of images
// of one shape then cost one transform for the other factor, and one back.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

struct Factor;

/// out[0, aCount + bCount) = a * b, in any order of lengths; `a` may be `b`, as the same array,
/// which saves a transform. For products of less than 2^33 bits.
void multiplyByTransform(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                         std::size_t bCount, Limb* scratch) noexcept;
std::size_t transformScratch(std::size_t aCount, std::size_t bCount) noexcept;

/// How operands are cut: into coefficients of `bits` bits, at `size` points, a power of two or
/// three times one. `length` is the limbs of a product.
struct Shape {
    int bits;
    std::size_t size;
    std::size_t length;

    [[nodiscard]] std::size_t imageLimbs() const noexcept { return 3 * size; }
    [[nodiscard]] bool whole() const noexcept;
    [[nodiscard]] bool cyclic() const noexcept;
    /// Those of a product.
    [[nodiscard]] std::size_t coefficients() const noexcept;
    /// What the values come out multiplied by.
    [[nodiscard]] std::size_t scale() const noexcept { return whole() ? size : size / 3 * 4; }
    /// The nodes of the last level; of node 2 the lower half of a block, whose inverses are in the
    /// upper half.
    [[nodiscard]] std::size_t nodes() const noexcept { return whole() ? size / 2 : size / 3 * 2; }
};

/// For products of two numbers of up to `count` limbs: 2 * count.
Shape productShape(std::size_t count) noexcept;
/// For products modulo 2^(64 * length) - 1, of at least `least` limbs.
Shape cyclicShape(std::size_t least) noexcept;

/// The factors of the transforms, for every shape of no more nodes.
class TransformTables {
  public:
    /// In the place of limbs(nodes).
    TransformTables(Limb* place, std::size_t nodes) noexcept;
    static std::size_t limbs(std::size_t nodes) noexcept { return 6 * nodes; }

    /// image[0, shape.imageLimbs()) = the image of a, of at most shape.length limbs.
    void take(Limb* image, Shape const& shape, Limb const* a, std::size_t count) const noexcept;
    /// out[0, shape.length) = the product of which both are images; uses up the first. Modulo
    /// 2^(64 * length) - 1 zero comes out as either 0 or all ones.
    void multiply(Limb* out, Shape const& shape, Limb* image, Limb const* other) const noexcept;

  private:
    [[nodiscard]] Factor* table(std::size_t which) const noexcept;

    Factor* factors;
    std::size_t nodes;
};

}  // namespace qel::limbs
