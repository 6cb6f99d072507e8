// Single bits, ranges of bits, and searches for them, against a plain list of bits.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>
#include <vector>

namespace {

using namespace bigint_test;

TEST(Bits, OutsideTheValueTheyReadAsZero) {
    LargeInteger const v(-1);
    EXPECT_EQ(v[0], 1);
    EXPECT_EQ(v[-1], 0);
    EXPECT_EQ(v[1], 0);
    EXPECT_EQ(v[INT_MAX], 0);
    EXPECT_EQ(v[INT_MIN], 0);
}

TEST(Bits, SettingANegativePositionChangesNothing) {
    LargeInteger v(-6);
    v.setBit(-1);
    v.setBit(-1, true);
    v.setBit(INT_MIN);
    EXPECT_EQ(v, LargeInteger(-6));
    EXPECT_EQ(representation(v), (Representation{4, 2, true}));
}

TEST(Bits, ClearingOutsideTheValueChangesNothing) {
    LargeInteger v(-6);
    v.clearBit(-1);
    v.clearBit(3);
    v.clearBit(INT_MAX);
    v.setBit(INT_MAX, false);
    EXPECT_EQ(representation(v), (Representation{4, 2, true}));
    EXPECT_EQ(v, LargeInteger(-6));
}

TEST(Bits, ClearingTheLastBitKeepsBoundAndFlag) {
    LargeInteger v(-4);
    v.setBit(2, false);
    EXPECT_EQ(representation(v), (Representation{4, 2, true}));
    EXPECT_TRUE(v.isZero());
    EXPECT_FALSE(v.isNegative());
}

TEST(Bits, ARangeIsSetBitByBitSoItGrowsInSteps) {
    LargeInteger v;
    v.setRange(0, 200, true);
    // Growth at bit 64 to 6 words, at bit 128 to 9; bit 199 at once would have made 12.
    EXPECT_EQ(representation(v), (Representation{9, 199, false}));
    EXPECT_EQ(v, powerOfTwo(200) - LargeInteger(1));
}

TEST(Bits, AClearedRangeKeepsTheBound) {
    LargeInteger v = hex("ffff");
    v.setRange(8, 100, false);
    EXPECT_EQ(v, LargeInteger(0xFF));
    EXPECT_EQ(representation(v).highestBit, 15);
    v.setRange(-5, 7, false);
    EXPECT_EQ(v, LargeInteger(0xFC));
    v.setRange(INT_MAX, INT_MAX, false);
    EXPECT_EQ(v, LargeInteger(0xFC));
}

TEST(Bits, ARangeOfNoBitsChangesNothing) {
    LargeInteger v(5);
    v.setRange(3, 0, true);
    v.setRange(3, -1, true);
    v.setRange(0, -1, false);
    v.setRange(INT_MIN, INT_MIN, true);
    v.setRange(-9, 9, true);
    EXPECT_EQ(v, LargeInteger(5));
    v.setRange(-9, 11, true);
    EXPECT_EQ(v, LargeInteger(7));
}

TEST(Bits, ARangeReadAsIntMayStraddleTwoWords) {
    LargeInteger v;
    v.setRange(30, 4, true);
    EXPECT_EQ(v.getBitRangeAsInt(30, 4), 15);
    EXPECT_EQ(v.getBitRangeAsInt(29, 4), 14);
    EXPECT_EQ(v.getBitRangeAsInt(31, 100), 7);
}

TEST(Bits, ARangeReadAsIntOutsideTheValueIsZero) {
    LargeInteger const v = hex("ffffffffffffffff");
    EXPECT_EQ(v.getBitRangeAsInt(64, 1), 0);
    EXPECT_EQ(v.getBitRangeAsInt(63, 1), 1);
    EXPECT_EQ(v.getBitRangeAsInt(0, 0), 0);
    EXPECT_EQ(v.getBitRangeAsInt(0, -1), 0);
    EXPECT_EQ(v.getBitRangeAsInt(0, INT_MIN), 0);
    EXPECT_EQ(v.getBitRangeAsInt(-1, 4), 0);
    EXPECT_EQ(v.getBitRangeAsInt(INT_MIN, 32), 0);
    EXPECT_EQ(v.getBitRangeAsInt(INT_MAX, INT_MAX), 0);
}

TEST(Bits, ARangeOf32BitsIsAnUnsignedValueInAnInt) {
    EXPECT_EQ(hex("ffffffffff").getBitRangeAsInt(4, 32), -1);
    EXPECT_EQ(hex("8000000000").getBitRangeAsInt(8, 33), INT_MIN);
}

TEST(Bits, WritingARangePutsBitKOfTheIntAtStartPlusK) {
    LargeInteger v;
    v.setBitRangeAsInt(40, 8, 0xA5);
    EXPECT_EQ(v, LargeInteger(0xA5) << 40);
    EXPECT_EQ(v.getBitRangeAsInt(40, 8), 0xA5);
    v.setBitRangeAsInt(44, 4, 0x3);
    EXPECT_EQ(v, LargeInteger(0x35) << 40);
}

TEST(Bits, WritingARangeTakesAtMost32BitsAndIgnoresNegativePositions) {
    LargeInteger v;
    v.setBitRangeAsInt(0, 100, 0xFFFFFFFFU);
    EXPECT_EQ(v, LargeInteger(0xFFFFFFFFU));
    v.setBitRangeAsInt(0, 0, 0);
    v.setBitRangeAsInt(0, -3, 0);
    EXPECT_EQ(v, LargeInteger(0xFFFFFFFFU));
    v.setBitRangeAsInt(-4, 8, 0x20);  // bit 5 of the int goes to position 1
    EXPECT_EQ(v, hex("fffffff2"));
}

TEST(Bits, WritingZerosAboveTheValueDoesNotGrowIt) {
    LargeInteger v(5);
    v.setBitRangeAsInt(300, 32, 0);
    v.setBitRangeAsInt(INT_MAX, 32, 0);
    EXPECT_EQ(representation(v), (Representation{4, 2, false}));
}

TEST(Bits, ASubrangeIsANewValueWithAnExactBound) {
    LargeInteger const v = -hex("123456789abcdef0fedcba98");
    LargeInteger const middle = v.getBitRange(12, 64);
    EXPECT_EQ(middle.toString(16), "6789abcdef0fedcb");
    // Grown for word 64 / 32 = 2.
    EXPECT_EQ(representation(middle), (Representation{6, 62, false}));
    EXPECT_EQ(representation(v.getBitRange(12, 63)), (Representation{4, 62, false}));
}

TEST(Bits, ASubrangeOutsideTheValueIsZero) {
    LargeInteger const v = hex("ff");
    for (LargeInteger const& range :
         {v.getBitRange(8, 1), v.getBitRange(INT_MAX, INT_MAX), v.getBitRange(0, 0),
          v.getBitRange(0, -1), v.getBitRange(-1, 4), v.getBitRange(INT_MIN, INT_MAX)})
        EXPECT_EQ(representation(range), (Representation{4, -1, false}));
    EXPECT_EQ(v.getBitRange(7, INT_MAX), LargeInteger(1));
}

TEST(Bits, SearchesSkipTheZerosBelowAStaleBound) {
    LargeInteger v(5);
    makeStale(v, 100);
    EXPECT_EQ(v.findNextSetBit(0), 0);
    EXPECT_EQ(v.findNextSetBit(1), 2);
    EXPECT_EQ(v.findNextSetBit(3), -1);
    EXPECT_EQ(v.findNextSetBit(1000), -1);
    EXPECT_EQ(v.findNextSetBit(-7), 0);
    EXPECT_EQ(v.countNumberOfSetBits(), 2);
}

// Zeros are passed over four limbs at a time.
TEST(Bits, TheNextSetBitIsFoundBehindAnyNumberOfZeroLimbs) {
    for (int limbs = 0; limbs < 14; ++limbs) {
        for (int const bit : {0, 1, 63}) {
            int const position = 64 * limbs + 64 + bit;
            LargeInteger v = powerOfTwo(position);
            v.setBit(3);
            for (int const start : {4, 63, 64, position})
                EXPECT_EQ(v.findNextSetBit(start), position) << start;
            EXPECT_EQ(v.findNextSetBit(position + 1), -1);
            v.clearBit(position);  // the bound stays
            EXPECT_EQ(v.findNextSetBit(3), 3);
            EXPECT_EQ(v.findNextSetBit(4), -1) << position;
        }
    }
}

TEST(Bits, AClearBitIsFoundUpToOneAboveTheBound) {
    LargeInteger v = hex("ffffffffff");
    EXPECT_EQ(v.findNextClearBit(0), 40);
    EXPECT_EQ(v.findNextClearBit(40), 40);
    EXPECT_EQ(v.findNextClearBit(1000), 1000);
    EXPECT_EQ(v.findNextClearBit(-7), 40);
    v.clearBit(33);
    EXPECT_EQ(v.findNextClearBit(0), 33);
    EXPECT_EQ(LargeInteger().findNextClearBit(-1), 0);
    EXPECT_EQ(v.findNextClearBit(INT_MAX), INT_MAX);
}

/// A magnitude as a list of bits, read one by one.
using BitList = std::vector<bool>;

bool bitOf(BitList const& bits, long long i) {
    return i >= 0 && i < static_cast<long long>(bits.size()) && bits[static_cast<std::size_t>(i)];
}

LargeInteger valueOf(BitList const& bits) {
    LargeInteger v;
    for (std::size_t i = 0; i < bits.size(); ++i)
        v.setBit(static_cast<int>(i), bits[i]);
    return v;
}

/// Up to 140 bits in runs, with a bound that may be stale.
BitList randomBits(std::mt19937& random) {
    BitList bits(random() % 140);
    bool bit = false;
    for (std::size_t i = 0; i < bits.size(); ++i) {
        if (random() % 5 == 0)
            bit = !bit;
        bits[i] = bit;
    }
    return bits;
}

TEST(Bits, ReadsAndSearchesAgreeWithAListOfBits) {
    std::mt19937 random(2);
    for (int round = 0; round < 3000; ++round) {
        BitList const bits = randomBits(random);
        LargeInteger v = valueOf(bits);
        if (random() % 2 == 0)
            makeStale(v, static_cast<int>(140 + random() % 100));
        int const start = static_cast<int>(random() % 150);
        int const count = static_cast<int>(random() % 40);
        SCOPED_TRACE(v.toString(2) + " from " + std::to_string(start) + " for "
                     + std::to_string(count));

        unsigned int range = 0;
        for (int k = 0; k < std::min(count, 32); ++k)
            range |= static_cast<unsigned int>(bitOf(bits, start + k)) << k;
        EXPECT_EQ(v.getBitRangeAsInt(start, count), static_cast<int>(range));

        LargeInteger const sub = v.getBitRange(start, count);
        for (int k = 0; k < 50; ++k)
            EXPECT_EQ(sub[k], k < count && bitOf(bits, start + k) ? 1 : 0);

        int nextSet = start;
        while (nextSet < 150 && !bitOf(bits, nextSet))
            ++nextSet;
        EXPECT_EQ(v.findNextSetBit(start), nextSet == 150 ? -1 : nextSet);
        int nextClear = start;
        while (bitOf(bits, nextClear))
            ++nextClear;
        EXPECT_EQ(v.findNextClearBit(start), nextClear);
        EXPECT_EQ(v.countNumberOfSetBits(), std::count(bits.begin(), bits.end(), true));
    }
}

TEST(Bits, WritesAgreeWithAListOfBits) {
    std::mt19937 random(3);
    for (int round = 0; round < 3000; ++round) {
        BitList bits = randomBits(random);
        LargeInteger v = valueOf(bits);
        bits.resize(250);
        int const start = static_cast<int>(random() % 150);
        int const count = static_cast<int>(random() % 60);
        unsigned int const value = static_cast<unsigned int>(random());
        SCOPED_TRACE(v.toString(2) + " from " + std::to_string(start) + " for "
                     + std::to_string(count));
        if (random() % 2 == 0) {
            v.setBitRangeAsInt(start, count, value);
            for (int k = 0; k < std::min(count, 32); ++k)
                bits[static_cast<std::size_t>(start + k)] = ((value >> k) & 1U) != 0;
        } else {
            v.setRange(start, count, value % 2 != 0);
            for (int k = 0; k < count; ++k)
                bits[static_cast<std::size_t>(start + k)] = value % 2 != 0;
        }
        EXPECT_EQ(v, valueOf(bits));
    }
}

}  // namespace
