// Numbers of 2^31 bits, the most that an int can index: 256 MB each. They work like any other, and
// one bit more ends the process with one line. Few are alive at once.
#include "LargeIntegerPeer.h"

#include "Thoroughness.h"

#include <gtest/gtest.h>

#include <climits>
#include <csignal>

namespace {

using namespace bigint_test;

testing::KilledBySignal const aborted(SIGABRT);
constexpr char const* tooWide = "^qel: a LargeInteger would be wider than an int can index\n$";

/// 2^(2^31 - 1), in a buffer that does not grow any more.
LargeInteger widest() {
    LargeInteger v;
    v.setBit(INT_MAX);
    return v;
}

/// 2^(2^31 - 1) - 1.
LargeInteger allOnes() {
    LargeInteger v = widest();
    --v;
    return v;
}

TEST(Widest, OneLessIsAllOnes) {
    LargeInteger v = allOnes();
    EXPECT_EQ(v.getHighestBit(), INT_MAX - 1);
    EXPECT_EQ(v.countNumberOfSetBits(), INT_MAX);
    EXPECT_EQ(v.findNextClearBit(INT_MAX - 100), INT_MAX);
    EXPECT_EQ(v.findNextSetBit(INT_MAX - 1), INT_MAX - 1);
    EXPECT_EQ(v.findNextSetBit(INT_MAX), -1);
    EXPECT_EQ(v.getBitRangeAsInt(INT_MAX - 2, 32), 3);
    EXPECT_EQ(v.toInteger(), INT_MAX);
    ++v;
    EXPECT_EQ(v.getHighestBit(), INT_MAX);
    EXPECT_EQ(v.countNumberOfSetBits(), 1);
}

TEST(Widest, AllBitsAreMoreThanAnIntCounts) {
    LargeInteger v = allOnes();
    v.setBit(INT_MAX);
    EXPECT_EQ(v.getHighestBit(), INT_MAX);
    EXPECT_EQ(v.findNextClearBit(INT_MAX - 100), -1);
    EXPECT_EXIT((void)v.countNumberOfSetBits(), aborted, tooWide);
    EXPECT_EXIT(++v, aborted, tooWide);
    EXPECT_EXIT(v -= LargeInteger(-1), aborted, tooWide);
    EXPECT_EXIT(v += LargeInteger(INT_MAX), aborted, tooWide);
}

TEST(Widest, NothingGrowsBeyond) {
    LargeInteger v = widest();
    EXPECT_EXIT(v <<= 1, aborted, tooWide);
    EXPECT_EXIT(v <<= INT_MAX, aborted, tooWide);
    EXPECT_EXIT(v >>= INT_MIN, aborted, tooWide);
    EXPECT_EXIT(v.shiftBits(1, INT_MAX), aborted, tooWide);
    EXPECT_EXIT(v.insertBit(INT_MAX, false), aborted, tooWide);
    EXPECT_EXIT(v.setRange(INT_MAX, 2, true), aborted, tooWide);
    EXPECT_EXIT(v.setBitRangeAsInt(INT_MAX - 1, 32, 4), aborted, tooWide);
    EXPECT_EXIT(v.ensureSize(1431655764), aborted, tooWide);  // a capacity of 2^31 words
    EXPECT_EXIT(v *= LargeInteger(2), aborted, tooWide);
    EXPECT_EXIT(v *= v, aborted, tooWide);  // at once: the product would take a minute
    EXPECT_EXIT(v -= -allOnes() - LargeInteger(1), aborted, tooWide);
}

TEST(Widest, BitsAtTheVeryEndAreWrittenMovedAndRead) {
    LargeInteger v = widest();
    v.setRange(INT_MAX, INT_MAX, false);
    EXPECT_TRUE(v.isZero());
    v.setBitRangeAsInt(INT_MAX - 31, 32, 0x90000005U);
    EXPECT_EQ(v.getHighestBit(), INT_MAX);
    EXPECT_EQ(v.getBitRangeAsInt(INT_MAX - 31, 32), static_cast<int>(0x90000005U));
    EXPECT_EQ(v.getBitRange(INT_MAX - 31, INT_MAX), LargeInteger(0x90000005U));
    EXPECT_EQ(v.getBitRange(INT_MAX - 3, 64), LargeInteger(9));
    EXPECT_EQ(v.findNextSetBit(INT_MAX - 28), INT_MAX - 3);
    v.shiftBits(-3, INT_MAX - 31);
    EXPECT_EQ(v.getHighestBit(), INT_MAX - 3);
    EXPECT_EQ(v.getBitRangeAsInt(INT_MAX - 31, 32), 0x12000000);
    v.setRange(INT_MAX - 10, INT_MAX, false);
    EXPECT_TRUE(v.isZero());
    v.clear();
    EXPECT_EQ(representation(v), (Representation{4, -1, false}));
}

TEST(Widest, RemaindersPowersAndShiftsAreExact) {
    LargeInteger v = widest();
    v += LargeInteger(5);
    EXPECT_EQ(v % LargeInteger(7), LargeInteger(0));  // 2^31 - 1 is 1 modulo 3, and 2 + 5 is 7
    LargeInteger power(5);
    power.exponentModulo(v, LargeInteger(97));
    LargeInteger expected(5);
    expected.exponentModulo(v % LargeInteger(97), LargeInteger(97));
    EXPECT_EQ(power, expected);
    v >>= INT_MAX - 1;
    EXPECT_EQ(v, LargeInteger(2));
}

TEST(Widest, OperandsOfEqualWidth) {
    if (!thoroughness::isDeep())
        GTEST_SKIP() << "QEL_DEEP is not set";
    LargeInteger v = widest();
    v += LargeInteger(5);
    LargeInteger quotient = v;
    LargeInteger remainder;
    quotient.divideBy(LargeInteger(1) << (INT_MAX - 5), remainder);
    EXPECT_EQ(quotient, LargeInteger(32));
    EXPECT_EQ(remainder, LargeInteger(5));
    quotient = widest();
    EXPECT_EQ(quotient.compareAbsolute(v), -1);
    quotient ^= v;
    EXPECT_EQ(quotient, LargeInteger(5));
}

}  // namespace
