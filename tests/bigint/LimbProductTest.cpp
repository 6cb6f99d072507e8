// Products and squares: row by row in each variant, and by halves and slices around the lengths
// where these take over, against products by the rules of school.
#include "LimbTables.h"

#include "bigint/limbs/Thresholds.h"

namespace {

using namespace limb_test;
namespace limbs = qel::limbs;

// --- row by row ---------------------------------------------------------------------------------

void expectRows(Limbs const& a, Limbs const& b) {
    Limbs const expected = product(a, b);
    for (Variant const& variant : variants()) {
        Fenced out(a.size() + b.size());
        variant.kernels->multiplyRows(out.data(), a.data(), a.size(), b.data(), b.size());
        ASSERT_TRUE(out.holds(expected)) << variant.name << input("a", a, "b", b);
    }
}

TEST(LimbRows, OfOneLengthMultiply) {
    onPairs(20, rowLengths(), expectRows);
}

TEST(LimbRows, OfAnyTwoLengthsMultiply) {
    Operands operands(21);
    onOperands(22, rowLengths(), [&](Limbs const& a) {
        for (std::size_t bCount = 1; bCount <= 17; ++bCount)
            expectRows(a, operands.any(bCount));
    });
}

TEST(LimbRows, SquareANumber) {
    for (unsigned seed = 23; seed < 33; ++seed) {
        onOperands(seed, rowLengths(), [](Limbs const& a) {
            Limbs const expected = product(a, a);
            for (Variant const& variant : variants()) {
                Fenced out(2 * a.size());
                variant.kernels->squareRows(out.data(), a.data(), a.size());
                ASSERT_TRUE(out.holds(expected)) << variant.name << input("a", a);
            }
        });
    }
}

// --- by halves and slices -----------------------------------------------------------------------

void expectProduct(Limbs const& a, Limbs const& b) {
    Limbs const expected = product(a, b);
    for (Variant const& variant : variants()) {
        Using const use(variant);
        Fenced out(a.size() + b.size());
        Fenced scratch(limbs::multiplyScratch(a.size(), b.size()));
        limbs::multiply(out.data(), a.data(), a.size(), b.data(), b.size(), scratch.data());
        ASSERT_TRUE(out.holds(expected)) << variant.name << input("a", a, "b", b);
        ASSERT_TRUE(scratch.intact()) << variant.name << input("a", a, "b", b);
    }
}

/// Lengths with 0 to 3 levels of halves, and both sides of each first one.
std::vector<std::size_t> lengthsAround(std::size_t threshold) {
    std::vector<std::size_t> lengths{1, 2, 3};
    for (std::size_t levels = 1; levels <= 4; levels *= 2) {
        for (std::size_t count = levels * threshold - 2; count <= levels * threshold + 2; ++count)
            lengths.push_back(count);
    }
    return lengths;
}

TEST(LimbMultiply, OfOneLengthAroundEachLevelOfHalves) {
    onPairs(30, lengthsAround(limbs::halvesMultiply), expectProduct);
}

// Of the differences of halves none, one or both are negative, and either may be zero.
TEST(LimbMultiply, TakesDifferencesOfHalvesOfEitherSign) {
    for (std::size_t count = limbs::halvesMultiply; count < limbs::halvesMultiply + 4; ++count) {
        std::size_t const half = count - count / 2;
        Limbs highMore(count, 5);
        std::fill_n(highMore.begin(), half, 2);
        Limbs lowMore(count, 2);
        std::fill_n(lowMore.begin(), half, 5);
        Limbs longerLow(count, allOnes);  // the low half alone has its top limb, if count is odd
        longerLow[half - 1] = 1;
        Limbs const equal(count, 3);
        Limbs const table[] = {highMore, lowMore, longerLow, equal};
        for (Limbs const& a : table) {
            for (Limbs const& b : table)
                expectProduct(a, b);
        }
    }
}

TEST(LimbMultiply, OfEachLengthUpToFourTimesTheThreshold) {
    Operands operands(31);
    for (std::size_t count = 1; count <= 4 * limbs::halvesMultiply && !HasFailure(); ++count) {
        for (int i = 0; i < 4; ++i)
            expectProduct(operands.any(count), operands.any(count));
    }
}

// Whole slices, a last slice of one limb, below and above the threshold, and short of whole.
TEST(LimbMultiply, OfALongerByAShorterNumber) {
    Operands operands(32);
    constexpr std::size_t threshold = limbs::halvesMultiply;
    for (std::size_t const b : {std::size_t{1}, std::size_t{2}, threshold - 1, threshold,
                                threshold + 1, 2 * threshold - 1, 2 * threshold + 1}) {
        for (std::size_t const more :
             {std::size_t{1}, std::size_t{2}, std::size_t{7}, threshold - 1, threshold,
              threshold + 1, b - 1, b, b + 1, 2 * b - 1, 2 * b, 2 * b + 1, 4 * b + threshold}) {
            for (Pattern const pattern : patterns) {
                expectProduct(operands.make(pattern, b + more), operands.any(b));
                expectProduct(operands.any(b + more), operands.make(pattern, b));
            }
            if (HasFailure())
                return;
        }
    }
}

// The last slice goes down with the operands exchanged, which has a last slice of its own, and so
// on: Fibonacci numbers and their like go down furthest.
TEST(LimbMultiply, OfLengthsThatGoDownThroughManySlices) {
    Operands operands(33);
    constexpr std::size_t table[][2] = {{144, 89}, {233, 144}, {199, 123}, {239, 99}, {181, 180}};
    for (auto const& [a, b] : table) {
        for (Pattern const pattern : patterns)
            expectProduct(operands.make(pattern, a), operands.any(b));
        expectProduct(Limbs(a, allOnes), Limbs(b, allOnes));
    }
}

TEST(LimbMultiply, BelowTheThresholdNeedsNoScratch) {
    EXPECT_EQ(limbs::multiplyScratch(1000, limbs::halvesMultiply - 1), 0U);
    EXPECT_EQ(limbs::squareScratch(limbs::halvesSquare - 1), 0U);
}

// --- squares ------------------------------------------------------------------------------------

void expectSquare(Limbs const& a) {
    Limbs const expected = product(a, a);
    for (Variant const& variant : variants()) {
        Using const use(variant);
        Fenced out(2 * a.size());
        Fenced scratch(limbs::squareScratch(a.size()));
        limbs::square(out.data(), a.data(), a.size(), scratch.data());
        ASSERT_TRUE(out.holds(expected)) << variant.name << input("a", a);
        ASSERT_TRUE(scratch.intact()) << variant.name << input("a", a);
    }
}

TEST(LimbSquare, AroundEachLevelOfHalves) {
    for (unsigned seed = 40; seed < 44; ++seed)
        onOperands(seed, lengthsAround(limbs::halvesSquare), expectSquare);
}

TEST(LimbSquare, OfEachLengthUpToFourTimesTheThreshold) {
    Operands operands(44);
    for (std::size_t count = 1; count <= 4 * limbs::halvesSquare && !HasFailure(); ++count) {
        for (int i = 0; i < 4; ++i)
            expectSquare(operands.any(count));
    }
}

}  // namespace
