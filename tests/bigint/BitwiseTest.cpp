// And, or, exclusive or: on magnitudes, keeping the left operand's flag.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using namespace bigint_test;

LargeInteger signedAs(int left, int magnitude) {
    return LargeInteger(left < 0 ? -magnitude : magnitude);
}

TEST(Bitwise, AllSmallPairsCombineMagnitudesUnderTheLeftFlag) {
    for (int a = -17; a <= 17; ++a) {
        for (int b = -17; b <= 17; ++b) {
            SCOPED_TRACE(std::to_string(a) + " and " + std::to_string(b));
            int const x = std::abs(a);
            int const y = std::abs(b);
            EXPECT_EQ(LargeInteger(a) & LargeInteger(b), signedAs(a, x & y));
            EXPECT_EQ(LargeInteger(a) | LargeInteger(b), signedAs(a, x | y));
            EXPECT_EQ(LargeInteger(a) ^ LargeInteger(b), signedAs(a, x ^ y));
        }
    }
}

TEST(Bitwise, TheRightSignIsIgnored) {
    EXPECT_EQ(LargeInteger(-6) & LargeInteger(3), LargeInteger(-2));
    EXPECT_EQ(LargeInteger(-6) | LargeInteger(3), LargeInteger(-7));
    EXPECT_EQ(LargeInteger(-6) ^ LargeInteger(3), LargeInteger(-5));
    EXPECT_EQ(LargeInteger(6) & LargeInteger(-3), LargeInteger(2));
}

TEST(Bitwise, AZeroResultKeepsTheLeftFlag) {
    EXPECT_EQ(representation(LargeInteger(6) ^ LargeInteger(6)), (Representation{4, -1, false}));
    EXPECT_EQ(representation(LargeInteger(-6) ^ LargeInteger(6)), (Representation{4, -1, true}));
    EXPECT_EQ(representation(LargeInteger(-4) & LargeInteger(3)), (Representation{4, -1, true}));
    // Or makes a flagged zero a negative value.
    EXPECT_EQ(negativeZero() | LargeInteger(5), LargeInteger(-5));
}

TEST(Bitwise, AndWithASmallerBufferClearsTheWordsAbove) {
    LargeInteger wide = powerOfTwo(300) + LargeInteger(7);
    wide &= LargeInteger(5);
    EXPECT_EQ(wide, LargeInteger(5));
    EXPECT_EQ(representation(wide).highestBit, 2);
    for (int i = 1; i < representation(wide).size; ++i)
        EXPECT_EQ(LargeIntegerPeer::word(wide, i), 0U) << i;
}

TEST(Bitwise, AndWithAWiderBufferKeepsItsOwn) {
    LargeInteger narrow(7);
    narrow &= powerOfTwo(300) + LargeInteger(5);
    EXPECT_EQ(representation(narrow), (Representation{4, 2, false}));
    EXPECT_EQ(narrow, LargeInteger(5));
}

TEST(Bitwise, OrAndXorGrowForTheOtherBound) {
    LargeInteger either(1);
    either |= powerOfTwo(200);
    EXPECT_EQ(representation(either), (Representation{12, 200, false}));
    LargeInteger difference(1);
    difference ^= powerOfTwo(200);
    EXPECT_EQ(representation(difference), (Representation{12, 200, false}));
    difference ^= powerOfTwo(200);
    EXPECT_EQ(representation(difference), (Representation{12, 0, false}));
}

TEST(Bitwise, OrWithAStaleBoundGrowsButGetsAnExactBound) {
    LargeInteger stale(1);
    makeStale(stale, 200);
    LargeInteger v(4);
    v |= stale;
    EXPECT_EQ(representation(v), (Representation{12, 2, false}));
    EXPECT_EQ(v, LargeInteger(5));
}

TEST(Bitwise, NothingHappensForABoundlessRightOperand) {
    LargeInteger v(5);
    makeStale(v, 100);
    v |= LargeInteger();
    EXPECT_EQ(representation(v).highestBit, 100);
    v ^= negativeZero();
    EXPECT_EQ(representation(v).highestBit, 100);
    v &= LargeInteger();
    EXPECT_EQ(representation(v).highestBit, -1);
}

TEST(Bitwise, ResultsOfBinaryOperatorsAreTightCopies) {
    LargeInteger stale(5);
    makeStale(stale, 200);
    EXPECT_EQ(representation(stale | LargeInteger(2)), (Representation{4, 2, false}));
    EXPECT_EQ(representation(stale ^ LargeInteger()), (Representation{4, 2, false}));
    EXPECT_EQ(representation(powerOfTwo(200) ^ powerOfTwo(200)), (Representation{4, -1, false}));
}

TEST(Bitwise, AnOperandMayBeTheObjectItself) {
    for (int start : {-6, 0, 6}) {
        LargeInteger v(start);
        v &= self(v);
        EXPECT_EQ(v, LargeInteger(start));
        v |= self(v);
        EXPECT_EQ(v, LargeInteger(start));
        v ^= self(v);
        EXPECT_TRUE(v.isZero());
        EXPECT_EQ(representation(v), (Representation{4, -1, start < 0}));
    }
}

}  // namespace
