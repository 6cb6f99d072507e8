// The seeded generator: its steps, and the order in which it fills bits.
#include "qel/Random.h"

#include "model/PlainRandom.h"
#include "qel/LargeInteger.h"

#include <gtest/gtest.h>

#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <random>

namespace {

using qel::LargeInteger;
using qel::Random;

constexpr unsigned long long mask48 = 0xFFFFFFFFFFFFULL;

/// The C library's generator of the same family, with the state of a given seed.
struct LibraryGenerator {
    explicit LibraryGenerator(long long seed) {
        auto const bits = static_cast<unsigned long long>(seed);
        for (int i = 0; i < 3; ++i)
            state[i] = static_cast<unsigned short>(bits >> (16 * i));
    }

    int next() { return static_cast<int>(jrand48(state)); }
    long nextUnsigned31() { return nrand48(state); }

    unsigned short state[3] = {};
};

TEST(Random, SeedZeroStartsWithTheStateEleven) {
    Random first(0);
    EXPECT_EQ(first.nextInt(), 0);
    unsigned long long const second = 25214903917ULL * 11 + 11;
    EXPECT_EQ(first.nextInt(), static_cast<int>(second >> 16));
    Random again(0);
    EXPECT_FALSE(again.nextBool());
    EXPECT_EQ(again.nextBool(), ((second >> 47) & 1) != 0);
}

TEST(Random, AgreesWithTheCLibraryForManySeeds) {
    std::mt19937_64 seeds(4);
    for (int round = 0; round < 2000; ++round) {
        long long const seed = static_cast<long long>(seeds());
        SCOPED_TRACE(seed);
        Random random(seed);
        LibraryGenerator library(seed);
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(random.nextInt(), library.next());
        for (int i = 0; i < 20; ++i) {
            long const expected = library.nextUnsigned31();
            EXPECT_EQ(static_cast<long>(static_cast<unsigned int>(random.nextInt()) >> 1),
                      expected);
        }
    }
}

TEST(Random, ABoolIsTheTopBitOfTheState) {
    for (long long seed : {1LL, -1LL, 12345LL, LLONG_MAX, LLONG_MIN}) {
        Random ints(seed);
        Random bools(seed);
        for (int i = 0; i < 200; ++i)
            EXPECT_EQ(bools.nextBool(), ints.nextInt() < 0) << seed << " step " << i;
    }
}

TEST(Random, SeedsThatDifferAboveBit47GiveTheSameSequence) {
    for (unsigned long long low : {0ULL, 77ULL, mask48}) {
        Random plain(static_cast<long long>(low));
        Random high(static_cast<long long>(low | 0xABCD000000000000ULL));
        for (int i = 0; i < 50; ++i)
            EXPECT_EQ(plain.nextInt(), high.nextInt()) << low;
    }
}

TEST(Random, ACopyGoesOnFromTheSameState) {
    Random random(9);
    (void)random.nextInt();
    Random copy(random);
    EXPECT_EQ(copy.nextInt(), random.nextInt());
}

TEST(Random, AlignedWordsCostOneStepEach) {
    LargeInteger v;
    Random random(42);
    random.fillBitsRandomly(v, 0, 64);
    plain::Random plainSteps(42);
    EXPECT_EQ(v.getBitRangeAsInt(0, 32), plainSteps.nextInt());
    EXPECT_EQ(v.getBitRangeAsInt(32, 32), plainSteps.nextInt());
    EXPECT_EQ(random.nextInt(), plainSteps.nextInt());
}

TEST(Random, TrailingBitsAreDrawnFromTheTopDown) {
    LargeInteger v;
    Random random(42);
    random.fillBitsRandomly(v, 0, 70);
    plain::Random plainSteps(42);
    (void)plainSteps.nextInt();
    (void)plainSteps.nextInt();
    for (int i = 69; i >= 64; --i)
        EXPECT_EQ(v[i] != 0, plainSteps.nextBool()) << i;
    EXPECT_EQ(random.nextInt(), plainSteps.nextInt());
}

TEST(Random, LeadingBitsAreDrawnUpwardThenTheRestDownward) {
    LargeInteger v;
    Random random(7);
    random.fillBitsRandomly(v, 5, 30);
    plain::Random plainSteps(7);
    for (int i = 5; i <= 31; ++i)
        EXPECT_EQ(v[i] != 0, plainSteps.nextBool()) << i;
    for (int i = 34; i >= 32; --i)
        EXPECT_EQ(v[i] != 0, plainSteps.nextBool()) << i;
    EXPECT_EQ(random.nextInt(), plainSteps.nextInt());
}

TEST(Random, ARangeInsideOneWordIsDrawnUpward) {
    LargeInteger v;
    Random random(7);
    random.fillBitsRandomly(v, 3, 9);
    plain::Random plainSteps(7);
    for (int i = 3; i < 12; ++i)
        EXPECT_EQ(v[i] != 0, plainSteps.nextBool()) << i;
    EXPECT_EQ(random.nextInt(), plainSteps.nextInt());
}

// Limbs are filled two steps at a time, with a word before or after where the range wants it.
TEST(Random, RangesFromAnyPositionAreFilledAsThePlainStepsDo) {
    int const starts[] = {-200, -65, -64, -33, -32, -1, 0, 1, 31, 32, 33, 63, 64, 95, 96, 128};
    int const counts[] = {1,   31,  32,  33,  63,  64,  65,  95,  96,  97,
                          127, 128, 129, 159, 160, 161, 192, 257, 1000};
    for (int const start : starts) {
        for (int const count : counts) {
            for (long long const seed : {0LL, 42LL, -1LL, LLONG_MIN}) {
                LargeInteger filled;
                filled.setRange(0, 200, true);
                LargeInteger expected(filled);
                Random random(seed);
                random.fillBitsRandomly(filled, start, count);
                plain::Random plainSteps(seed);
                plainSteps.fillBitsRandomly(expected, start, count);
                EXPECT_EQ(filled, expected) << start << ' ' << count << ' ' << seed;
                EXPECT_EQ(random.nextInt(), plainSteps.nextInt()) << start << ' ' << count;
            }
        }
    }
}

TEST(Random, BitsOutsideTheRangeStay) {
    for (int fill : {0, 1}) {
        LargeInteger v;
        v.setRange(0, 300, fill != 0);
        Random(3).fillBitsRandomly(v, 37, 100);
        for (int i = 0; i < 37; ++i)
            EXPECT_EQ(v[i], fill) << i;
        for (int i = 137; i < 300; ++i)
            EXPECT_EQ(v[i], fill) << i;
    }
}

TEST(Random, AFillAboveTheHighestPositionEndsTheProcess) {
    LargeInteger v;
    EXPECT_EXIT(Random(3).fillBitsRandomly(v, INT_MAX, 2), testing::KilledBySignal(SIGABRT),
                "wider than an int can index");
    EXPECT_EXIT(Random(3).fillBitsRandomly(v, INT_MAX, INT_MAX), testing::KilledBySignal(SIGABRT),
                "wider than an int can index");
}

TEST(Random, AFillOfNoBitsDrawsNothingButMaySetTheBitBelow) {
    LargeInteger v;
    Random random(3);
    random.fillBitsRandomly(v, 0, 0);
    random.fillBitsRandomly(v, 0, INT_MIN);
    EXPECT_TRUE(v.isZero());
    random.fillBitsRandomly(v, 10, 0);
    EXPECT_EQ(v, LargeInteger(1 << 9));
    random.fillBitsRandomly(v, 10, -4);
    EXPECT_EQ(v, LargeInteger((1 << 9) | (1 << 5)));
    EXPECT_EQ(random.nextInt(), Random(3).nextInt());
}

}  // namespace
