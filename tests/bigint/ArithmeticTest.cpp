// Signed addition, subtraction and multiplication, and the bounds and buffers they leave.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using namespace bigint_test;

constexpr int smallEnd = 20;

TEST(Arithmetic, AllSmallPairsAgreeWithMachineIntegers) {
    for (int a = -smallEnd; a <= smallEnd; ++a) {
        for (int b = -smallEnd; b <= smallEnd; ++b) {
            SCOPED_TRACE(std::to_string(a) + " and " + std::to_string(b));
            LargeInteger const x(a);
            LargeInteger const y(b);
            EXPECT_EQ(x + y, LargeInteger(a + b));
            EXPECT_EQ(x - y, LargeInteger(a - b));
            EXPECT_EQ(x * y, LargeInteger(a * b));
        }
    }
}

TEST(Arithmetic, SignsOfSumsAndDifferences) {
    EXPECT_EQ(LargeInteger(5) - LargeInteger(7), LargeInteger(-2));
    EXPECT_EQ(LargeInteger(-5) + LargeInteger(7), LargeInteger(2));
    EXPECT_EQ(LargeInteger(-5) - LargeInteger(7), LargeInteger(-12));
    EXPECT_EQ(LargeInteger(7) - LargeInteger(-5), LargeInteger(12));
    EXPECT_EQ(LargeInteger(-7) + LargeInteger(5), LargeInteger(-2));
    EXPECT_EQ(representation(LargeInteger(5) + LargeInteger(-5)), (Representation{4, -1, false}));
    EXPECT_EQ(representation(LargeInteger(-5) + LargeInteger(5)), (Representation{4, -1, false}));
    EXPECT_EQ(representation(LargeInteger(-5) - LargeInteger(-5)), (Representation{4, -1, false}));
}

TEST(Arithmetic, ACarryGoesIntoTheNextWord) {
    LargeInteger v(UINT_MAX);
    v += LargeInteger(1);
    EXPECT_EQ(v, powerOfTwo(32));
    // The bound before the scan was 32, the top word visited 2: six words.
    EXPECT_EQ(representation(v), (Representation{6, 32, false}));
}

TEST(Arithmetic, ACarryRunsThroughManyWords) {
    EXPECT_EQ(powerOfTwo(320) - LargeInteger(1) + LargeInteger(1), powerOfTwo(320));
    EXPECT_EQ((powerOfTwo(320) - LargeInteger(1)).countNumberOfSetBits(), 320);
}

TEST(Arithmetic, AdditionRaisesTheBoundByOneAndRescans) {
    LargeInteger v(1);
    v += LargeInteger(1);
    EXPECT_EQ(representation(v), (Representation{4, 1, false}));
    makeStale(v, 61);
    v += LargeInteger(1);  // bound 62: the top word visited is 2
    EXPECT_EQ(representation(v), (Representation{6, 1, false}));
    LargeInteger narrow(1);
    makeStale(narrow, 30);
    narrow += LargeInteger(1);  // bound 31: the top word visited is 1
    EXPECT_EQ(representation(narrow), (Representation{4, 1, false}));
}

TEST(Arithmetic, SubtractionLeavesTheBoundStale) {
    LargeInteger v = powerOfTwo(64);
    v -= LargeInteger(powerOfTwo(64) - LargeInteger(1));
    EXPECT_EQ(v.getHighestBit(), 0);
    EXPECT_EQ(representation(v).highestBit, 64);
    EXPECT_EQ(v, LargeInteger(1));
}

TEST(Arithmetic, SubtractingTheLargerTakesItsBufferAndNegates) {
    LargeInteger const large = powerOfTwo(200) + LargeInteger(1);
    LargeInteger v(1);
    v -= large;
    // The buffer and the bound are those of a copy of the larger operand.
    EXPECT_EQ(representation(v), (Representation{7, 200, true}));
    EXPECT_EQ(v, -powerOfTwo(200));
}

TEST(Arithmetic, BothOperandsMayHaveStaleBounds) {
    LargeInteger seven(7);
    LargeInteger five(5);
    makeStale(five, 500);
    EXPECT_EQ(seven - five, LargeInteger(2));
    EXPECT_EQ(seven + five, LargeInteger(12));
    EXPECT_EQ(seven * five, LargeInteger(35));
    makeStale(seven, 90);
    EXPECT_EQ(five - seven, LargeInteger(-2));
    EXPECT_EQ(five * seven, LargeInteger(35));
}

TEST(Arithmetic, ANegativeZeroPlusAPositiveIsNegative) {
    EXPECT_EQ(negativeZero() + LargeInteger(5), LargeInteger(-5));
    EXPECT_EQ(LargeInteger(5) + negativeZero(), LargeInteger(5));
}

TEST(Arithmetic, AnyZeroMinusFiveIsMinusFive) {
    EXPECT_EQ(LargeInteger(0) - LargeInteger(5), LargeInteger(-5));
    EXPECT_EQ(negativeZero() - LargeInteger(5), LargeInteger(-5));
    EXPECT_EQ(negativeZero() + LargeInteger(-5), LargeInteger(-5));
}

TEST(Arithmetic, ANegativeZeroMinusANegativeKeepsItsFlagInTheSum) {
    EXPECT_EQ(negativeZero() - LargeInteger(-5), LargeInteger(-5));
    EXPECT_EQ(representation(negativeZero() + LargeInteger(0)), (Representation{4, -1, true}));
    EXPECT_EQ(representation(negativeZero() - LargeInteger(0)), (Representation{4, -1, true}));
}

TEST(Arithmetic, UnaryMinusOfAnyZeroIsAPlainZero) {
    EXPECT_EQ(-LargeInteger(5), LargeInteger(-5));
    EXPECT_EQ(-LargeInteger(-5), LargeInteger(5));
    EXPECT_EQ(representation(-LargeInteger(0)), (Representation{4, -1, false}));
    EXPECT_EQ(representation(-negativeZero()), (Representation{4, -1, false}));
}

TEST(Arithmetic, IncrementAndDecrementCrossZero) {
    LargeInteger v(-1);
    EXPECT_EQ(++v, LargeInteger(0));
    EXPECT_EQ(++v, LargeInteger(1));
    EXPECT_EQ(v++, LargeInteger(1));
    EXPECT_EQ(v, LargeInteger(2));
    EXPECT_EQ(v--, LargeInteger(2));
    EXPECT_EQ(--v, LargeInteger(0));
    EXPECT_EQ(--v, LargeInteger(-1));
}

TEST(Arithmetic, IncrementingANegativeZeroGivesMinusOne) {
    LargeInteger v = negativeZero();
    EXPECT_EQ(++v, LargeInteger(-1));
}

TEST(Arithmetic, SignsOfProducts) {
    EXPECT_EQ(LargeInteger(-3) * LargeInteger(4), LargeInteger(-12));
    EXPECT_EQ(LargeInteger(-3) * LargeInteger(-4), LargeInteger(12));
    EXPECT_EQ(LargeInteger(3) * LargeInteger(-4), LargeInteger(-12));
}

TEST(Arithmetic, SquaringInPlaceKeepsTheSign) {
    LargeInteger v(-3);
    EXPECT_EQ(v * v, LargeInteger(9));
    v *= v;
    EXPECT_EQ(v, LargeInteger(-9));
    LargeInteger w(3);
    w *= w;
    EXPECT_EQ(w, LargeInteger(9));
}

TEST(Arithmetic, AZeroProductIsZeroButMayCarryAFlag) {
    EXPECT_EQ(representation(LargeInteger(-3) * LargeInteger(0)), (Representation{4, -1, true}));
    EXPECT_EQ(representation(LargeInteger(0) * LargeInteger(-3)), (Representation{4, -1, true}));
    EXPECT_EQ(representation(LargeInteger(0) * LargeInteger(3)), (Representation{4, -1, false}));
    EXPECT_EQ(representation(LargeInteger(0) * LargeInteger(0)), (Representation{4, -1, false}));
    // A negative zero is not negative: its flag does not count.
    EXPECT_EQ(representation(negativeZero() * LargeInteger(3)), (Representation{4, -1, false}));
    EXPECT_EQ(representation(LargeInteger(3) * negativeZero()), (Representation{4, -1, false}));
}

TEST(Arithmetic, AProductKeepsTheBufferItsPartialSumsGrew) {
    LargeInteger const ones = powerOfTwo(64) - LargeInteger(1);
    LargeInteger v(ones);
    v *= ones;
    // The first partial sum has bound 64, so words up to 3 are visited: seven words, and those
    // are enough for the last one, whose bound 127 visits words up to 4.
    EXPECT_EQ(representation(v), (Representation{7, 127, false}));
    EXPECT_EQ(v, powerOfTwo(128) - powerOfTwo(65) + LargeInteger(1));
    EXPECT_EQ(representation(ones * ones), (Representation{4, 127, false}));
}

TEST(Arithmetic, MultiplyingByOneLeavesAFreshBuffer) {
    LargeInteger one(1);
    one.ensureSize(100);
    one *= LargeInteger(9);
    EXPECT_EQ(representation(one), (Representation{4, 3, false}));
}

TEST(Arithmetic, OneTimesAVeryWideNumberIsThatNumber) {
    LargeInteger const wide = powerOfTwo(100000) + LargeInteger(5);
    EXPECT_EQ(LargeInteger(1) * wide, wide);
    EXPECT_EQ(wide * LargeInteger(1), wide);
    EXPECT_TRUE((wide * LargeInteger(0)).isZero());
    EXPECT_TRUE((LargeInteger(0) * wide).isZero());
}

TEST(Arithmetic, BinaryOperatorsReturnTightCopiesWithExactBounds) {
    LargeInteger const a = powerOfTwo(64);
    LargeInteger const b = powerOfTwo(64) - LargeInteger(1);
    EXPECT_EQ(representation(a - b), (Representation{4, 0, false}));
    LargeInteger const c = powerOfTwo(200);
    EXPECT_EQ(representation(c - LargeInteger(1)), (Representation{7, 199, false}));
    EXPECT_EQ(representation(c - c),
              (Representation{7, -1, false}));  // sized by the bound that subtraction left
    EXPECT_EQ(representation(c + c), (Representation{7, 201, false}));
}

TEST(Arithmetic, AddingTheObjectToItselfDoublesIt) {
    for (int start : {-6, 0, 6}) {
        LargeInteger v(start);
        v += v;
        EXPECT_EQ(v, LargeInteger(2 * start));
    }
    LargeInteger wide = powerOfTwo(319) + LargeInteger(5);
    wide += wide;
    EXPECT_EQ(wide, powerOfTwo(320) + LargeInteger(10));
}

TEST(Arithmetic, SubtractingTheObjectFromItselfIsZero) {
    for (int start : {-6, 0, 6}) {
        LargeInteger v(start);
        v -= self(v);
        EXPECT_TRUE(v.isZero());
        EXPECT_FALSE(LargeIntegerPeer::negative(v)) << start;
    }
    LargeInteger zero = negativeZero();
    zero -= self(zero);
    EXPECT_TRUE(LargeIntegerPeer::negative(zero));
}

TEST(Arithmetic, OperandsStayAsTheyWere) {
    LargeInteger const a(-7);
    LargeInteger const b(-9);
    (void)(a + b);
    (void)(a - b);
    (void)(a * b);
    EXPECT_EQ(a, LargeInteger(-7));
    EXPECT_EQ(b, LargeInteger(-9));
    EXPECT_EQ(representation(b), (Representation{4, 3, true}));
}

/// `value` with room for a word, under an exact bound or one that is too high.
void prepare(LargeInteger& v, LargeInteger const& value, int word, bool stale) {
    v = value;
    v.ensureSize(word);
    if (stale)
        makeStale(v, value.getHighestBit() + 40);
}

void expectStepsOfOne(LargeInteger const& value, int word, bool stale) {
    SCOPED_TRACE("0x" + value.toString(16) + ", room for word " + std::to_string(word)
                 + (stale ? ", stale" : ""));
    LargeInteger stepped;
    LargeInteger summed;
    for (bool const up : {true, false}) {
        prepare(stepped, value, word, stale);
        prepare(summed, value, word, stale);
        if (up) {
            ++stepped;
            summed += LargeInteger(1);
        } else {
            --stepped;
            summed -= LargeInteger(1);
        }
        EXPECT_EQ(representation(stepped), representation(summed)) << (up ? "up" : "down");
        EXPECT_EQ(stepped, summed) << (up ? "up" : "down");
    }
}

// Most steps are taken without asking what a sum asks.
TEST(Arithmetic, AStepLeavesWhatASumLeaves) {
    for (int const bits : {1, 2, 31, 32, 33, 63, 64, 65, 95, 96, 97, 127, 128, 160, 288, 320}) {
        LargeInteger const power = powerOfTwo(bits);
        LargeInteger const below = power - LargeInteger(1);
        for (LargeInteger const& value :
             {power, below, below - LargeInteger(1), -power, LargeInteger(0), negativeZero()}) {
            for (int word = 0; word < 14; ++word) {
                expectStepsOfOne(value, word, false);
                expectStepsOfOne(value, word, true);
            }
        }
    }
}

}  // namespace
