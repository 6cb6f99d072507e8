// Products of transformed operands: plain ones, and those modulo 2^(64 n) - 1, against the rows.
#include "LimbTables.h"

#include "bigint/limbs/Transform.h"

namespace {

using namespace limb_test;
using namespace qel::limbs;

Limbs byRows(Limbs const& a, Limbs const& b) {
    Limbs out(a.size() + b.size());
    portableKernels.multiplyRows(out.data(), a.data(), a.size(), b.data(), b.size());
    return out;
}

/// a modulo 2^(64 count) - 1, for an a of up to twice the count; zero as zeros.
Limbs folded(Limbs a, std::size_t count) {
    a.resize(2 * count);
    Limbs out(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(count));
    Limb const carry = add(out.data(), out.data(), a.data() + count, count);
    addLimb(out.data(), out.data(), count, carry);
    return out == Limbs(count, allOnes) ? Limbs(count) : out;
}

/// The product of two images that were taken once, with tables for `shape` or larger ones.
Limbs productOfImages(Shape const& shape, std::size_t nodes, Limbs const& a, Limbs const& b) {
    Fenced memory(TransformTables::limbs(nodes));
    TransformTables const tables(memory.data(), nodes);
    Fenced imageOfA(shape.imageLimbs());
    Fenced imageOfB(shape.imageLimbs());
    Fenced out(shape.length);
    tables.take(imageOfA.data(), shape, a.data(), a.size());
    tables.take(imageOfB.data(), shape, b.data(), b.size());
    Limbs const kept = imageOfB.values();
    tables.multiply(out.data(), shape, imageOfA.data(), imageOfB.data());
    EXPECT_TRUE(imageOfB.holds(kept));
    EXPECT_TRUE(memory.intact() && imageOfA.intact() && out.intact());
    return out.values();
}

TEST(TransformedOperands, GiveTheirProduct) {
    Operands operands(1);
    for (std::size_t count : {1U, 2U, 7U, 8U, 30U, 31U, 64U, 100U, 129U, 515U}) {
        Shape const shape = productShape(count);
        ASSERT_EQ(shape.length, 2 * count);
        for (Pattern pattern : patterns) {
            Limbs const a = operands.make(pattern, count);
            Limbs const b = operands.any(count / 2 + 1);
            Limbs expected = byRows(a, b);
            expected.resize(2 * count);
            ASSERT_EQ(productOfImages(shape, shape.nodes(), a, b), expected)
                << text(a) << " times " << text(b);
        }
    }
}

TEST(TransformedOperands, GiveTheirProductModuloAPowerLessOne) {
    Operands operands(2);
    for (std::size_t least : {1U, 86U, 87U, 172U, 173U, 500U}) {
        Shape const shape = cyclicShape(least);
        ASSERT_GE(shape.length, least);
        for (Pattern pattern : patterns) {
            for (std::size_t count : {std::size_t{1}, shape.length / 2, shape.length}) {
                Limbs const a = operands.make(pattern, shape.length);
                Limbs const b = operands.any(count);
                Limbs const out = productOfImages(shape, shape.nodes(), a, b);
                ASSERT_EQ(folded(out, shape.length), folded(byRows(a, b), shape.length))
                    << text(a) << " times " << text(b);
            }
        }
    }
}

TEST(TransformedOperands, TakeTheTablesOfLongerShapes) {
    Operands operands(3);
    std::size_t const nodes = cyclicShape(1000).nodes();
    for (std::size_t count : {5U, 30U, 43U, 60U}) {
        Limbs const a = operands.any(count);
        Limbs const b = operands.any(count);
        ASSERT_EQ(productOfImages(productShape(count), nodes, a, b), byRows(a, b));
        Shape const shape = cyclicShape(count);
        ASSERT_EQ(folded(productOfImages(shape, nodes, a, b), shape.length),
                  folded(byRows(a, b), shape.length));
    }
}

/// With n for 2^(64 n) - 1 the largest factors there are have only ones in all their coefficients
/// but one: (-1)^2 = 1. The lengths lie on both sides of those where coefficients become narrower.
TEST(TransformedOperands, TheLargestCoefficientsOfCyclicProductsFit) {
    std::size_t before = 0;
    for (std::size_t least : {86U, 1377U, 5505U, 11009U, 21761U}) {
        Shape const shape = cyclicShape(least);
        ASSERT_GT(shape.size, before);
        before = shape.size;
        Limbs a(shape.length, allOnes);
        Limbs one(shape.length);
        one[0] = 1;
        ASSERT_EQ(folded(productOfImages(shape, shape.nodes(), a, one), shape.length),
                  Limbs(shape.length))
            << least;
        a[0] -= 1;
        ASSERT_EQ(folded(productOfImages(shape, shape.nodes(), a, a), shape.length), one) << least;
    }
}

}  // namespace
