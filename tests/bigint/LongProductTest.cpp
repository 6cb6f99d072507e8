// Products of every method against the rows, at lengths around every threshold and cut, with
// exactly the scratch that is asked for.
#include "LimbTables.h"

#include "bigint/limbs/Kernels.h"
#include "bigint/limbs/PrimeField.h"
#include "bigint/limbs/Thresholds.h"
#include "bigint/limbs/Transform.h"

namespace {

using namespace limb_test;
using namespace qel::limbs;

Limbs byRows(Limbs const& a, Limbs const& b) {
    Limbs out(a.size() + b.size());
    kernels().multiplyRows(out.data(), a.data(), a.size(), b.data(), b.size());
    return out;
}

using Kernel = void (*)(Limb*, Limb const*, std::size_t, Limb const*, std::size_t, Limb*);
using ScratchSize = std::size_t (*)(std::size_t, std::size_t);

void expectProduct(Kernel kernel, ScratchSize scratchSize, Limbs const& a, Limbs const& b) {
    Fenced out(a.size() + b.size());
    Fenced scratch(scratchSize(a.size(), b.size()));
    kernel(out.data(), a.data(), a.size(), b.data(), b.size(), scratch.data());
    ASSERT_EQ(out.values(), byRows(a, b)) << text(a) << " times " << text(b);
    ASSERT_TRUE(out.intact() && scratch.intact()) << a.size() << " by " << b.size();
}

void expectSquare(Limbs const& a) {
    Fenced out(2 * a.size());
    Fenced scratch(squareScratch(a.size()));
    square(out.data(), a.data(), a.size(), scratch.data());
    ASSERT_EQ(out.values(), byRows(a, a)) << text(a);
    ASSERT_TRUE(out.intact() && scratch.intact()) << a.size();
}

/// One below, at and above each length at which a method changes, and where it goes down twice.
std::vector<std::size_t> edges() {
    std::vector<std::size_t> all{1, 2, 3};
    for (std::size_t edge :
         {halvesMultiply, halvesSquare, 2 * halvesMultiply, 2 * halvesSquare, thirdsMultiply,
          thirdsSquare, 3 * thirdsMultiply, 3 * thirdsSquare, transformMultiply, transformSquare})
        all.insert(all.end(), {edge - 1, edge, edge + 1});
    return all;
}

TEST(LongProduct, EqualLengthsAroundEveryThreshold) {
    Operands operands(1);
    for (std::size_t count : edges()) {
        for (Pattern pattern : patterns) {
            Limbs const a = operands.make(pattern, count);
            expectProduct(multiply, multiplyScratch, a, operands.any(count));
            expectProduct(multiply, multiplyScratch, a, a);
            expectSquare(a);
        }
    }
}

// The value at -1 is negative where the middle third is more than the outer ones together, the
// value at 2 is above 6 x^(count / 3) where all are ones.
TEST(LongProduct, ByThirdsTakesValuesOfEitherSignAndTheLargest) {
    for (std::size_t const count : {thirdsMultiply, thirdsMultiply + 1, thirdsMultiply + 2,
                                    thirdsSquare, thirdsSquare + 1, thirdsSquare + 2}) {
        std::size_t const third = (count + 2) / 3;
        Limbs middle(count);
        std::fill_n(middle.begin() + static_cast<std::ptrdiff_t>(third), third, allOnes);
        Limbs outer(count, allOnes);
        std::fill_n(outer.begin() + static_cast<std::ptrdiff_t>(third), third, 0);
        Limbs lowAndMiddle(count);
        std::fill_n(lowAndMiddle.begin(), 2 * third, allOnes);
        Limbs const table[] = {middle, outer, lowAndMiddle, Limbs(count, allOnes), Limbs(count, 1)};
        for (Limbs const& a : table) {
            for (Limbs const& b : table)
                expectProduct(multiply, multiplyScratch, a, b);
            expectSquare(a);
        }
    }
}

TEST(LongProduct, LongerOperandsAreSliced) {
    Operands operands(2);
    for (std::size_t count : edges()) {
        for (std::size_t longer :
             {count + 1, count + count / 2, 2 * count - 1, 2 * count, 2 * count + 1, 3 * count,
              3 * count + 1, 5 * count + count / 3, 7 * count - 1}) {
            for (Pattern pattern : {Pattern::ones, Pattern::runs}) {
                Limbs const a = operands.make(pattern, longer);
                expectProduct(multiply, multiplyScratch, a, operands.any(count));
            }
        }
    }
}

TEST(LongProduct, TransformsOfANumberAndItsOwnLowerPart) {
    Limbs const a = Operands(8).any(300);
    Limbs const lower(a.begin(), a.begin() + 200);
    Fenced out(500);
    Fenced scratch(transformScratch(300, 200));
    multiplyByTransform(out.data(), a.data(), 300, a.data(), 200, scratch.data());
    EXPECT_EQ(out.values(), byRows(a, lower));
    EXPECT_TRUE(out.intact() && scratch.intact());
}

// 22019 limbs are 16579 coefficients of 85 bits and one of a single bit.
TEST(LongProduct, TransformsTakeACoefficientOfTheHighestBitAlone) {
    constexpr std::size_t count = 22019;
    Limbs a = Operands(9).any(count);
    a.back() |= topBit;
    expectProduct(multiplyByTransform, transformScratch, a, Limbs(count, allOnes));
}

/// Bits [86 j, 86 (j + 1)) of a, zeros so far, become `value`.
void putCoefficient(Limbs& a, std::size_t j, DoubleLimb value) {
    for (std::size_t bit = 86 * j; value != 0; value >>= 1, ++bit)
        a[bit / 64] |= static_cast<Limb>(value & 1) << (bit % 64);
}

// 63 limbs by one are cut into 48 coefficients of 86 bits: three times 16. The first step adds and
// subtracts those of the outer thirds, of which 2^64 - p comes in as the smallest number there is,
// and 2^85 as the largest.
TEST(LongProduct, TransformsMeetTheEndsOfTheirRangeInTheirFirstStep) {
    for (auto const& [p, root] : primes) {
        DoubleLimb const ends[] = {0 - p, DoubleLimb{1} << 85};
        for (std::size_t lower : {0U, 1U}) {
            Limbs a(63);
            for (std::size_t j = 0; j < 14; ++j) {
                putCoefficient(a, j, ends[lower]);
                putCoefficient(a, j + 32, ends[1 - lower]);
            }
            expectProduct(multiplyByTransform, transformScratch, a, Limbs{1});
        }
    }
}

TEST(LongProduct, TransformsOfEveryShortLength) {
    Operands operands(3);
    for (std::size_t aCount = 1; aCount <= 80; ++aCount) {
        for (std::size_t bCount : {std::size_t{1}, aCount / 2 + 1, aCount, aCount + 5}) {
            Limbs const a = operands.any(aCount);
            expectProduct(multiplyByTransform, transformScratch, a, operands.any(bCount));
            expectProduct(multiplyByTransform, transformScratch, a, a);
        }
    }
}

TEST(LongProduct, TransformsOfLongNumbersOfOnes) {
    for (std::size_t count : {1000U, 1500U, 2100U, 3000U, 5200U}) {
        Limbs const a(count, allOnes);
        expectProduct(multiplyByTransform, transformScratch, a, Limbs(count, allOnes));
        expectProduct(multiplyByTransform, transformScratch, a, Limbs(count / 3, allOnes));
        expectSquare(a);
    }
}

/// (2^(64 n) - 1)^2 = 2^(128 n) - 2^(64 n + 1) + 1: the largest coefficients there are. The lengths
/// lie around 22,016 and 87,000 limbs, where the coefficients become a bit narrower.
TEST(LongProduct, TheLargestCoefficientsFit) {
    for (std::size_t count : {21995U, 22001U, 22020U, 86950U, 87100U}) {
        Limbs const a(count, allOnes);
        Limbs out(2 * count);
        Limbs scratch(transformScratch(count, count));
        multiplyByTransform(out.data(), a.data(), count, a.data(), count, scratch.data());
        Limbs expected(2 * count, allOnes);
        std::fill(expected.begin(), expected.begin() + static_cast<std::ptrdiff_t>(count), Limb{0});
        expected[0] = 1;
        expected[count] = allOnes - 1;
        ASSERT_EQ(out, expected) << count;
    }
}

}  // namespace
