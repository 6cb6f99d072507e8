// Shifts of whole values, of the bits above a position, and the insertion of a bit.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>

namespace {

using namespace bigint_test;

LargeInteger binary(std::string const& text) {
    LargeInteger v;
    v.parseString(text, 2);
    return LargeInteger(v);
}

TEST(Shifts, LeftMultipliesByPowersOfTwo) {
    LargeInteger expected = hex("123456789abcdef0f");
    LargeInteger const v(expected);
    for (int n = 0; n <= 130; ++n) {
        EXPECT_EQ(v << n, expected) << n;
        EXPECT_EQ(expected >> n, v) << n;
        expected *= LargeInteger(2);
    }
}

TEST(Shifts, RightRoundsTowardZero) {
    EXPECT_EQ(LargeInteger(-5) >> 1, LargeInteger(-2));
    EXPECT_EQ(LargeInteger(-3) >> 1, LargeInteger(-1));
    EXPECT_EQ(LargeInteger(5) >> 1, LargeInteger(2));
}

TEST(Shifts, ShiftingEveryBitOutGivesAPlainZero) {
    LargeInteger v(-1);
    v >>= 1;
    EXPECT_EQ(representation(v), (Representation{4, -1, false}));
    LargeInteger wide = -powerOfTwo(600);
    wide >>= 601;
    EXPECT_EQ(representation(wide), (Representation{4, -1, false}));
    EXPECT_EQ(-powerOfTwo(600) >> 600, LargeInteger(-1));
    EXPECT_EQ(representation(LargeInteger(-1) >> INT_MAX), (Representation{4, -1, false}));
}

TEST(Shifts, OneLeftBy32HasHighestBit32) {
    EXPECT_EQ((LargeInteger(1) << 32).getHighestBit(), 32);
}

TEST(Shifts, ANegativeCountShiftsTheOtherWay) {
    LargeInteger left(100);
    left <<= -3;
    EXPECT_EQ(left, LargeInteger(12));
    LargeInteger right(100);
    right >>= -3;
    EXPECT_EQ(right, LargeInteger(800));
    EXPECT_EQ(LargeInteger(100) << INT_MIN, LargeInteger(0));
    EXPECT_EXIT((void)(LargeInteger(1) >> INT_MIN), testing::KilledBySignal(SIGABRT),
                "wider than an int");
}

TEST(Shifts, ZeroStaysUntouchedWithItsFlag) {
    for (int count : {-40, -1, 0, 1, 40, INT_MAX, INT_MIN}) {
        for (int from : {0, 3}) {
            LargeInteger zero = negativeZero();
            zero.shiftBits(count, from);
            EXPECT_EQ(representation(zero), (Representation{4, -1, true}))
                << count << " from " << from;
        }
    }
}

TEST(Shifts, ACountOfZeroChangesNothingNotEvenTheBound) {
    LargeInteger v(5);
    makeStale(v, 100);
    v.shiftBits(0, 0);
    v.shiftBits(0, 4);
    v <<= 0;
    EXPECT_EQ(representation(v).highestBit, 100);
    EXPECT_EQ(v, LargeInteger(5));
}

TEST(Shifts, LeftGrowsForTheWordAboveTheNewTop) {
    struct Row {
        int count;
        int size;
    };
    // A new top t grows for word t / 32 + 1.
    for (Row const row : {Row{31, 4}, Row{32, 6}, Row{64, 7}, Row{95, 7}, Row{96, 9}}) {
        LargeInteger v(1);
        v <<= row.count;
        EXPECT_EQ(representation(v), (Representation{row.size, row.count, false}));
    }
}

TEST(Shifts, AFlaggedValueBelowItsBoundKeepsItsFlagWhenShiftedToZero) {
    LargeInteger v(-1);
    makeStale(v, 40);
    v >>= 20;  // within the bound: the general path, which keeps the flag
    EXPECT_EQ(representation(v).highestBit, -1);
    EXPECT_TRUE(LargeIntegerPeer::negative(v));
    EXPECT_EQ(v + LargeInteger(5), LargeInteger(-5));
}

TEST(Shifts, TheOperatorShiftsACopySoTheBoundIsExactAndTheFlagGoes) {
    LargeInteger v(-1);
    makeStale(v, 40);
    EXPECT_EQ(representation(v >> 20), (Representation{4, -1, false}));
    EXPECT_EQ((v >> 20) + LargeInteger(5), LargeInteger(5));
}

TEST(Shifts, AStaleBoundIsMadeExact) {
    LargeInteger left(5);
    makeStale(left, 100);
    left <<= 3;
    EXPECT_EQ(representation(left).highestBit, 5);
    EXPECT_EQ(left, LargeInteger(40));
    LargeInteger right(5);
    makeStale(right, 100);
    right >>= 1;
    EXPECT_EQ(representation(right).highestBit, 1);
}

TEST(Shifts, APartialLeftShiftKeepsTheBitsBelow) {
    LargeInteger v = binary("110101");
    v.shiftBits(3, 2);
    EXPECT_EQ(v.toString(2), "110100001");
    LargeInteger above = binary("101");
    above.shiftBits(5, 3);
    EXPECT_EQ(above, LargeInteger(5));
}

TEST(Shifts, APartialRightShiftDropsTheBitsAtThePosition) {
    LargeInteger v = binary("11010110");
    v.shiftBits(-2, 3);
    // Bits 3 and 4 (10) go; 110 moves down to position 3.
    EXPECT_EQ(v.toString(2), "110110");
    EXPECT_EQ(representation(v).highestBit, 5);
}

TEST(Shifts, PartialShiftsFollowTheBoundNotTheTop) {
    LargeInteger left = binary("1001");
    left.clearBit(3);
    left.shiftBits(4, 1);
    EXPECT_EQ(representation(left).highestBit, 3);  // nothing set moved, nothing was rescanned
    LargeInteger right = binary("1001");
    right.shiftBits(-3, 1);
    EXPECT_EQ(representation(right).highestBit, 0);
}

TEST(Shifts, InsertBitOpensAGap) {
    LargeInteger v = binary("101");
    v.insertBit(1, true);
    EXPECT_EQ(v.toString(2), "1011");
    LargeInteger one(1);
    one.insertBit(0, false);
    EXPECT_EQ(one.toString(2), "10");
    LargeInteger zero;
    zero.insertBit(5, true);
    EXPECT_EQ(zero.toString(2), "100000");
    LargeInteger above = binary("11");
    above.insertBit(40, false);
    EXPECT_EQ(above, LargeInteger(3));
}

TEST(Shifts, InsertBitAtANegativePositionChangesNothing) {
    LargeInteger v(5);
    v.insertBit(-1, true);
    v.insertBit(INT_MIN, true);
    EXPECT_EQ(v, LargeInteger(5));
}

TEST(Shifts, PartialShiftsAgreeWithTextSurgery) {
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        std::string text = "1";
        for (int i = static_cast<int>(random() % 100); i > 0; --i)
            text += "01"[random() % 2];
        int const from = 1 + static_cast<int>(random() % 100);
        int const count = static_cast<int>(random() % 70);
        SCOPED_TRACE(text + " by " + std::to_string(count) + " from " + std::to_string(from));
        LargeInteger const v = binary(text);
        LargeInteger const low = v & (powerOfTwo(from) - LargeInteger(1));
        LargeInteger const high = v >> from;
        LargeInteger left(v);
        left.shiftBits(count, from);
        EXPECT_EQ(left, (high << (from + count)) | low);
        LargeInteger right(v);
        right.shiftBits(-count, from);
        EXPECT_EQ(right, ((high >> count) << from) | low);
    }
}

}  // namespace
