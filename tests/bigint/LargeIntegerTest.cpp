// Storage: construction, copies, growth, and how the process ends when a value gets too large.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <csignal>
#include <string>
#include <sys/resource.h>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace bigint_test;

TEST(Storage, ADefaultValueIsZeroInFourWordsAndAGuard) {
    LargeInteger const zero;
    EXPECT_EQ(representation(zero), (Representation{4, -1, false}));
    for (int i = 0; i <= 4; ++i)
        EXPECT_EQ(LargeIntegerPeer::word(zero, i), 0U) << i;
    EXPECT_EQ(zero.getHighestBit(), -1);
    EXPECT_TRUE(zero.isZero());
    EXPECT_EQ(zero.countNumberOfSetBits(), 0);
    EXPECT_EQ(zero.toInteger(), 0);
    EXPECT_EQ(zero.findNextSetBit(0), -1);
    EXPECT_EQ(zero.findNextClearBit(0), 0);
}

TEST(Storage, MachineIntegersKeepTheirValueAndGetAnExactBound) {
    struct Row {
        LargeInteger value;
        char const* text;
        int highestBit;
    };
    Row const rows[] = {
        {LargeInteger(0), "", -1},
        {LargeInteger(0U), "", -1},
        {LargeInteger(0LL), "", -1},
        {LargeInteger(1), "1", 0},
        {LargeInteger(-1), "-1", 0},
        {LargeInteger(INT_MAX), "7fffffff", 30},
        {LargeInteger(INT_MIN), "-80000000", 31},
        {LargeInteger(UINT_MAX), "ffffffff", 31},
        {LargeInteger(0x80000000U), "80000000", 31},
        {LargeInteger(0xFFFFFFFFLL), "ffffffff", 31},
        {LargeInteger(0x100000000LL), "100000000", 32},
        {LargeInteger(-0x100000000LL), "-100000000", 32},
        {LargeInteger(LLONG_MAX), "7fffffffffffffff", 62},
        {LargeInteger(LLONG_MIN), "-8000000000000000", 63},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(row.value.toString(16), row.text);
        EXPECT_EQ(representation(row.value),
                  (Representation{4, row.highestBit, row.text[0] == '-'}))
            << row.text;
    }
}

TEST(Storage, NoConstructionFromOtherTypes) {
    EXPECT_FALSE((std::is_constructible_v<LargeInteger, unsigned long long>));
    EXPECT_FALSE((std::is_constructible_v<LargeInteger, long>));
    EXPECT_FALSE((std::is_constructible_v<LargeInteger, double>));
    EXPECT_FALSE((std::is_constructible_v<LargeInteger, char const*>));
}

TEST(Storage, CopiesOperatorsAndTextPromiseNotToThrow) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<LargeInteger>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<LargeInteger>);
    EXPECT_TRUE(noexcept(std::declval<LargeInteger&>() * std::declval<LargeInteger&>()));
    EXPECT_TRUE(noexcept(std::declval<LargeInteger&>().toString(10)));
    EXPECT_TRUE(noexcept(
        std::declval<LargeInteger&>().parseString(std::declval<std::string const&>(), 10)));
}

TEST(Storage, ACopyIsSizedByTheCachedBoundButHasAnExactOne) {
    LargeInteger v(5);
    makeStale(v, 200);
    EXPECT_EQ(representation(LargeInteger(v)), (Representation{7, 2, false}));
    EXPECT_EQ(LargeInteger(v), LargeInteger(5));
}

TEST(Storage, AnAssignedValueIsSizedByTheExactTop) {
    LargeInteger v(-5);
    makeStale(v, 200);
    LargeInteger assigned(77);
    assigned = v;
    EXPECT_EQ(representation(assigned), (Representation{4, 2, true}));
    EXPECT_EQ(assigned, LargeInteger(-5));
}

TEST(Storage, TightSizesGrowAtEveryWordAboveFour) {
    struct Row {
        int top;
        int size;
    };
    for (Row const row : {Row{0, 4}, Row{127, 4}, Row{128, 5}, Row{159, 5}, Row{160, 6}}) {
        LargeInteger v;
        v.setBit(row.top);
        LargeInteger assigned;
        assigned = v;
        EXPECT_EQ(representation(LargeInteger(v)), (Representation{row.size, row.top, false}));
        EXPECT_EQ(representation(assigned), (Representation{row.size, row.top, false}));
        EXPECT_EQ(assigned, v);
    }
}

TEST(Storage, ACopyOwnsItsWords) {
    LargeInteger v(5);
    LargeInteger copy(v);
    LargeInteger assigned;
    assigned = v;
    v.setBit(10);
    EXPECT_EQ(copy, LargeInteger(5));
    EXPECT_EQ(assigned, LargeInteger(5));
}

TEST(Storage, SelfAssignmentLeavesEvenAStaleBound) {
    LargeInteger v(5);
    makeStale(v, 200);
    LargeInteger& same = v;
    v = same;
    EXPECT_EQ(representation(v), (Representation{12, 200, false}));
    EXPECT_EQ(v, LargeInteger(5));
}

void expectMovesLikeCopies(LargeInteger const& value, bool stale, int words) {
    LargeInteger constructed(value);
    LargeInteger assigned(value);
    for (LargeInteger* const source : {&constructed, &assigned}) {
        if (stale)
            makeStale(*source, 300);
        source->ensureSize(words);
    }
    LargeInteger const constructedCopy(constructed);
    LargeInteger assignedCopy;
    assignedCopy = assigned;
    LargeInteger const fromConstructed(std::move(constructed));
    LargeInteger fromAssigned(1);
    fromAssigned = std::move(assigned);
    EXPECT_EQ(representation(fromConstructed), representation(constructedCopy));
    EXPECT_EQ(fromConstructed, value);
    EXPECT_EQ(representation(fromAssigned), representation(assignedCopy));
    EXPECT_EQ(fromAssigned, value);
    // What is left behind behaves as zero.
    EXPECT_EQ(representation(constructed).highestBit, -1);  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(constructed + LargeInteger(5), LargeInteger(5));
    EXPECT_EQ(assigned + LargeInteger(5), LargeInteger(5));  // NOLINT(bugprone-use-after-move)
}

// Of a source that is as wide as its copy would be, or wider, with its bound exact or too high.
TEST(Storage, AMoveLeavesTheBooksOfACopyAndAZeroBehind) {
    LargeInteger wide(-5);
    wide.setBit(200);
    for (LargeInteger const& value : {LargeInteger(-5), wide, negativeZero()}) {
        for (bool const stale : {false, true}) {
            for (int const words : {0, 3, 7, 20}) {
                SCOPED_TRACE(value.toString(10) + (stale ? ", stale, " : ", ")
                             + std::to_string(words) + " words");
                expectMovesLikeCopies(value, stale, words);
            }
        }
    }
}

TEST(Storage, AMoveToItselfChangesNothing) {
    LargeInteger v(-5);
    LargeInteger& same = v;
    v = std::move(same);
    EXPECT_EQ(v, LargeInteger(-5));
}

TEST(Storage, SwapExchangesAllFourFields) {
    LargeInteger a(-5);
    LargeInteger b(7);
    makeStale(b, 200);
    a.swapWith(b);
    EXPECT_EQ(representation(a), (Representation{12, 200, false}));
    EXPECT_EQ(representation(b), (Representation{4, 2, true}));
    EXPECT_EQ(a, LargeInteger(7));
    EXPECT_EQ(b, LargeInteger(-5));
    a.swapWith(a);
    EXPECT_EQ(a, LargeInteger(7));
}

/// A value of `bits` bits, each second one set, with a tight capacity.
LargeInteger ofWidth(int bits) {
    LargeInteger v;
    for (int i = bits - 1; i >= 0; i -= 2)
        v.setBit(i);
    return LargeInteger(v);
}

// Nine words and the guard are the five limbs in an object.
TEST(Storage, AValueOfUpTo288BitsIsKeptInTheObject) {
    for (int const bits : {1, 64, 128, 129, 256, 257, 288, 289, 320, 1000}) {
        SCOPED_TRACE(bits);
        bool const isShort = bits <= 288;
        LargeInteger v = ofWidth(bits);
        EXPECT_EQ(LargeIntegerPeer::keepsLimbsInside(v), isShort);
        LargeInteger assigned;
        assigned = v;
        EXPECT_EQ(LargeIntegerPeer::keepsLimbsInside(assigned), isShort);
        EXPECT_EQ(LargeIntegerPeer::keepsLimbsInside(v | v), isShort);
        LargeInteger const moved(std::move(v));
        EXPECT_EQ(LargeIntegerPeer::keepsLimbsInside(moved), isShort);
        EXPECT_EQ(moved, ofWidth(bits));
        EXPECT_EQ(assigned, moved);
        EXPECT_TRUE(LargeIntegerPeer::keepsLimbsInside(v));  // NOLINT(bugprone-use-after-move)
        EXPECT_EQ(representation(v), (Representation{4, -1, false}));
    }
}

TEST(Storage, GrowthMovesTheLimbsOutOfTheObject) {
    LargeInteger v = ofWidth(200);
    v.ensureSize(5);  // 7 < 7 is false: 10 words
    EXPECT_EQ(representation(v), (Representation{10, 199, false}));
    EXPECT_FALSE(LargeIntegerPeer::keepsLimbsInside(v));
    EXPECT_EQ(v, ofWidth(200));
    for (int i = 7; i < 10; ++i)
        EXPECT_EQ(LargeIntegerPeer::word(v, i), 0U) << i;
}

TEST(Storage, SwapAndMoveMeetValuesInObjectsAndInMemory) {
    for (int const first : {100, 288, 400}) {
        for (int const second : {70, 289, 3000}) {
            SCOPED_TRACE(std::to_string(first) + " and " + std::to_string(second));
            LargeInteger a = ofWidth(first);
            LargeInteger b = ofWidth(second);
            a.swapWith(b);
            EXPECT_EQ(a, ofWidth(second));
            EXPECT_EQ(b, ofWidth(first));
            a.setBit(3000);
            b.setBit(3001);  // each writes to its own limbs
            EXPECT_EQ(a, ofWidth(second) | powerOfTwo(3000));
            EXPECT_EQ(b, ofWidth(first) | powerOfTwo(3001));
            a = ofWidth(first);
            b = ofWidth(second);
            a = std::move(b);
            EXPECT_EQ(a, ofWidth(second));
            EXPECT_TRUE(b.isZero());  // NOLINT(bugprone-use-after-move)
        }
    }
}

TEST(Storage, ValuesThatAVectorMovesStayWhole) {
    std::vector<LargeInteger> values;
    for (int bits = 1; bits <= 600; ++bits)
        values.push_back(ofWidth(bits));
    std::reverse(values.begin(), values.end());
    std::sort(values.begin(), values.end());
    for (int bits = 1; bits <= 600; ++bits)
        EXPECT_EQ(values[static_cast<std::size_t>(bits - 1)], ofWidth(bits)) << bits;
}

// What is left over is at most what is used and eight limbs: 3 + 8 limbs for the smallest values.
TEST(Storage, AssignmentGivesAnOversizedBufferBack) {
    LargeInteger const five(5);
    for (int const limbs : {6, 22, 23, 24, 25, 1000}) {
        LargeInteger v = ofWidth(64 * limbs - 64);
        ASSERT_EQ(LargeIntegerPeer::room(v), limbs);
        v = five;
        EXPECT_EQ(LargeIntegerPeer::keepsLimbsInside(v), limbs >= 24) << limbs;
        EXPECT_EQ(representation(v), (Representation{4, 2, false}));
        EXPECT_EQ(v, five);
        // What the buffer held before is not read again.
        v.ensureSize(50);
        EXPECT_EQ(v, five);
        for (int i = 1; i < 78; ++i)
            EXPECT_EQ(LargeIntegerPeer::word(v, i), 0U) << i;
    }
}

TEST(Storage, ClearReleasesBuffersOf17WordsAndKeepsSmallerOnes) {
    LargeInteger kept;
    kept.setBit(9 * 32);
    kept.setNegative(true);
    ASSERT_EQ(representation(kept), (Representation{16, 288, true}));
    kept.clear();
    EXPECT_EQ(representation(kept), (Representation{16, -1, false}));
    for (int i = 0; i <= 16; ++i)
        EXPECT_EQ(LargeIntegerPeer::word(kept, i), 0U) << i;

    LargeInteger grown;
    grown.setBit(16 * 32);
    LargeInteger released(grown);
    ASSERT_EQ(representation(released), (Representation{17, 512, false}));
    released.clear();
    EXPECT_EQ(representation(released), (Representation{4, -1, false}));
    for (int i = 0; i <= 4; ++i)
        EXPECT_EQ(LargeIntegerPeer::word(released, i), 0U) << i;
}

TEST(Storage, EnsureSizeGrowsByHalfAgainOnceTwoSpareWordsAreGone) {
    struct Row {
        int word;
        int size;
    };
    for (Row const row : {Row{-1, 4}, Row{INT_MIN, 4}, Row{0, 4}, Row{1, 4}, Row{2, 6}, Row{3, 7},
                          Row{6, 12}, Row{100, 153}, Row{101, 154}}) {
        LargeInteger v(-5);
        v.ensureSize(row.word);
        EXPECT_EQ(representation(v), (Representation{row.size, 2, true})) << row.word;
        EXPECT_EQ(v, LargeInteger(-5));
        for (int i = 1; i < row.size; ++i)
            EXPECT_EQ(LargeIntegerPeer::word(v, i), 0U) << i;
    }
}

TEST(Storage, EnsureSizeNeverShrinks) {
    LargeInteger v;
    v.ensureSize(100);
    v.ensureSize(2);
    EXPECT_EQ(representation(v).size, 153);
    v.ensureSize(150);  // 152 < 153
    EXPECT_EQ(representation(v).size, 153);
    v.ensureSize(151);
    EXPECT_EQ(representation(v).size, 229);
}

TEST(Storage, SettingBit200GrowsTo12WordsAndClearingItLeavesTheBound) {
    LargeInteger v;
    v.setBit(200);
    EXPECT_EQ(representation(v), (Representation{12, 200, false}));
    EXPECT_EQ(v.getHighestBit(), 200);
    v.clearBit(200);
    EXPECT_EQ(representation(v), (Representation{12, 200, false}));
    EXPECT_EQ(v.getHighestBit(), -1);
    EXPECT_TRUE(v.isZero());
}

TEST(Storage, TheLargestPositionWorksAndOneMoreEndsTheProcess) {
    LargeInteger v;
    v.setBit(INT_MAX);
    EXPECT_EQ(v.getHighestBit(), INT_MAX);
    EXPECT_EQ(v[INT_MAX], 1);
    EXPECT_EQ(v.findNextSetBit(0), INT_MAX);
    EXPECT_EQ(v.findNextClearBit(INT_MAX), -1);
    ++v;
    EXPECT_EQ(v.getHighestBit(), INT_MAX);
    EXPECT_EQ(v.countNumberOfSetBits(), 2);
    EXPECT_EXIT(v += v, testing::KilledBySignal(SIGABRT), "^qel: .* wider than an int can index");
    EXPECT_EXIT(v <<= 1, testing::KilledBySignal(SIGABRT), "wider than an int can index");
    EXPECT_EXIT(v.shiftBits(1, 5), testing::KilledBySignal(SIGABRT), "wider than an int");
    v >>= INT_MAX;
    EXPECT_TRUE(v.isOne());
}

TEST(Storage, AReservationPastTheLargestCapacityEndsTheProcess) {
    LargeInteger v;
    EXPECT_EXIT(v.ensureSize(INT_MAX), testing::KilledBySignal(SIGABRT), "wider than an int");
    EXPECT_EXIT(v.setRange(INT_MAX, 2, true), testing::KilledBySignal(SIGABRT),
                "wider than an int");
    EXPECT_EXIT(v.setBitRangeAsInt(INT_MAX, 2, 2), testing::KilledBySignal(SIGABRT),
                "wider than an int");
}

void growWithLittleMemory() {
    LargeInteger v(1);
    rlimit const little{1 << 26, 1 << 26};
    setrlimit(RLIMIT_AS, &little);
    v.setBit(INT_MAX);
}

TEST(Storage, ExhaustedMemoryEndsTheProcessWithOneLine) {
    EXPECT_EXIT(growWithLittleMemory(), testing::KilledBySignal(SIGABRT), "qel: out of memory\n");
}

}  // namespace
