// The search for primes; most expected values stand in the vector files.
#include "qel/PrimesNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <csignal>
#include <vector>

namespace {

using qel::LargeInteger;
using qel::PrimesNumber;

constexpr int witnesses = 30;

LargeInteger search(int bitCount, std::vector<int> const& seeds) {
    return PrimesNumber::createProbablePrime(bitCount, witnesses, seeds.data(),
                                             static_cast<int>(seeds.size()));
}

TEST(PrimeSearch, TheSameArgumentsGiveTheSamePrime) {
    std::vector<int> const seeds = {5, -3, 2000000000};
    EXPECT_EQ(search(100, seeds), search(100, seeds));
}

TEST(PrimeSearch, TheOrderOfTheSeedsDoesNotMatter) {
    std::vector<int> seeds = {-7, 1, 5, 900};
    LargeInteger const prime = search(100, seeds);
    while (std::next_permutation(seeds.begin(), seeds.end()))
        EXPECT_EQ(search(100, seeds), prime);
}

TEST(PrimeSearch, EqualSeedsCancel) {
    EXPECT_EQ(search(100, {4, 9, 4}), search(100, {9}));
    EXPECT_EQ(search(100, {4, 4}), search(100, {}));
}

TEST(PrimeSearch, NullSeedsStartFromTheForcedWidth) {
    int const unused = 7;
    LargeInteger const prime = PrimesNumber::createProbablePrime(100, witnesses, nullptr, 0);
    EXPECT_EQ(prime, PrimesNumber::createProbablePrime(100, witnesses, &unused, 0));
    // The first block starts 2 * 1024 above the start, which is 2^99 here.
    EXPECT_GT(prime, (LargeInteger(1) << 99) + LargeInteger(2048));
    for (int none : {-1, -5, INT_MIN + 1, INT_MIN})
        EXPECT_EQ(PrimesNumber::createProbablePrime(100, witnesses, &unused, none), prime) << none;
}

TEST(PrimeSearch, SmallWidthsComeOutWider) {
    for (int bitCount : {2, 3, 8, 11}) {
        LargeInteger const prime = search(bitCount, {1});
        EXPECT_GE(prime.getHighestBit(), 11) << bitCount;
        EXPECT_TRUE(PrimesNumber::isProbablyPrime(prime, witnesses)) << bitCount;
    }
}

TEST(PrimeSearch, TheStretchJustAboveTheStartIsNeverSearched) {
    // The start is 8 and the first block 2057 to 4103: 11, the next prime, is out of reach.
    EXPECT_EQ(search(4, {}), LargeInteger(2063));
}

TEST(PrimeSearch, ResultsAreOddWithoutAFactorUpTo23) {
    for (int seed = 0; seed < 40; ++seed) {
        LargeInteger const prime = search(64, {seed});
        EXPECT_TRUE(prime.findGreatestCommonDivisor(LargeInteger(223092870)).isOne()) << seed;
        EXPECT_TRUE(PrimesNumber::isProbablyPrime(prime, witnesses)) << seed;
    }
}

TEST(PrimeSearch, WithoutWitnessesTheFirstUnstruckCandidateIsTheResult) {
    LargeInteger const candidate = PrimesNumber::createProbablePrime(64, 0, nullptr, 0);
    EXPECT_LT(candidate, (LargeInteger(1) << 63) + LargeInteger(2 * 1024 + 200));
    EXPECT_TRUE(PrimesNumber::isProbablyPrime(candidate, 0));
}

TEST(PrimeSearch, ANegativeWidthFindsNothing) {
    EXPECT_TRUE(search(-1, {1, 2}).isZero());
    EXPECT_TRUE(search(-2000000000, {}).isZero());
}

TEST(PrimeSearch, AWidthWithMoreCandidatesThanAnIntCountsEndsTheProcess) {
    EXPECT_EXIT((void)search(671088640, {}), testing::KilledBySignal(SIGABRT),
                "wider than an int can index");
}

}  // namespace
