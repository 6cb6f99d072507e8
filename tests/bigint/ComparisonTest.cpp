// Sign and small-value queries, and the order of values.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using namespace bigint_test;

int sign(long long v) {
    return v > 0 ? 1 : v < 0 ? -1 : 0;
}

TEST(Comparison, AllSmallPairsCompareAsMachineIntegers) {
    for (int a = -5; a <= 5; ++a) {
        for (int b = -5; b <= 5; ++b) {
            SCOPED_TRACE(std::to_string(a) + " and " + std::to_string(b));
            LargeInteger const x(a);
            LargeInteger const y(b);
            EXPECT_EQ(x.compare(y), sign(a - b));
            EXPECT_EQ(x.compareAbsolute(y), sign(std::abs(a) - std::abs(b)));
            EXPECT_EQ(x == y, a == b);
            EXPECT_EQ(x != y, a != b);
            EXPECT_EQ(x < y, a < b);
            EXPECT_EQ(x <= y, a <= b);
            EXPECT_EQ(x > y, a > b);
            EXPECT_EQ(x >= y, a >= b);
        }
    }
}

TEST(Comparison, WordsCompareAsUnsignedFromTheTop) {
    EXPECT_EQ(hex("80000000").compareAbsolute(hex("7fffffff")), 1);
    EXPECT_EQ(hex("100000000").compareAbsolute(hex("ffffffff")), 1);
    EXPECT_EQ(hex("2ffffffff").compareAbsolute(hex("300000000")), -1);
    EXPECT_EQ(hex("300000001").compareAbsolute(hex("300000000")), 1);
    EXPECT_EQ(hex("ff00000001").compareAbsolute(hex("ff00000001")), 0);
}

TEST(Comparison, AStaleBoundDoesNotMatter) {
    LargeInteger five(5);
    makeStale(five, 300);
    LargeInteger zero;
    makeStale(zero, 300);
    EXPECT_EQ(five.compare(LargeInteger(6)), -1);
    EXPECT_EQ(LargeInteger(6).compare(five), 1);
    EXPECT_EQ(five, LargeInteger(5));
    EXPECT_EQ(zero.compareAbsolute(LargeInteger()), 0);
    EXPECT_TRUE(zero.isZero());
    EXPECT_EQ(representation(five).highestBit, 300);
}

TEST(Comparison, ANegativeZeroIsZero) {
    LargeInteger const zero = negativeZero();
    EXPECT_FALSE(zero.isNegative());
    EXPECT_TRUE(zero.isZero());
    EXPECT_EQ(zero.compare(LargeInteger(0)), 0);
    EXPECT_EQ(LargeInteger(0).compare(zero), 0);
    EXPECT_EQ(zero, LargeInteger(0));
    EXPECT_GT(zero, LargeInteger(-1));
    EXPECT_LT(zero, LargeInteger(1));
}

TEST(Comparison, OneIsOnlyPlusOne) {
    EXPECT_TRUE(LargeInteger(1).isOne());
    EXPECT_FALSE(LargeInteger(-1).isOne());
    EXPECT_FALSE(LargeInteger(0).isOne());
    EXPECT_FALSE(LargeInteger(3).isOne());
    EXPECT_FALSE(powerOfTwo(32).isOne());
    LargeInteger one(1);
    makeStale(one, 99);
    EXPECT_TRUE(one.isOne());
}

TEST(Comparison, SetNegativeStoresTheFlagAsItIs) {
    LargeInteger v(5);
    v.setNegative(true);
    EXPECT_EQ(v, LargeInteger(-5));
    v.setNegative(false);
    EXPECT_EQ(v, LargeInteger(5));
    LargeInteger zero;
    zero.setNegative(true);
    EXPECT_EQ(representation(zero), (Representation{4, -1, true}));
}

TEST(Comparison, NegateReturnsTheNewSignAndClearsAnyZero) {
    LargeInteger v(5);
    EXPECT_TRUE(v.negate());
    EXPECT_EQ(v, LargeInteger(-5));
    EXPECT_FALSE(v.negate());
    EXPECT_EQ(v, LargeInteger(5));
    LargeInteger zero;
    EXPECT_FALSE(zero.negate());
    EXPECT_EQ(representation(zero), (Representation{4, -1, false}));
    zero.setNegative(true);
    EXPECT_FALSE(zero.negate());
    EXPECT_EQ(representation(zero), (Representation{4, -1, false}));
}

TEST(Comparison, ToIntegerDropsEverythingAbove31Bits) {
    EXPECT_EQ(LargeInteger(INT_MAX).toInteger(), INT_MAX);
    EXPECT_EQ(LargeInteger(-INT_MAX).toInteger(), -INT_MAX);
    EXPECT_EQ(LargeInteger(INT_MIN).toInteger(), 0);
    EXPECT_TRUE(LargeInteger(INT_MIN).isNegative());
    EXPECT_EQ(LargeInteger(UINT_MAX).toInteger(), INT_MAX);
    EXPECT_EQ(hex("-500000007").toInteger(), -7);
}

}  // namespace
