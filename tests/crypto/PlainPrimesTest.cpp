// Verdicts and searches against the plain model, on every path that the processor can take.
#include "KernelVariants.h"
#include "Thoroughness.h"

#include "model/PlainPrimes.h"
#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using namespace limb_test;
using qel::LargeInteger;
using qel::PrimesNumber;

void expectPlainVerdict(LargeInteger const& n, int witnessCount) {
    bool const expected = plain::isProbablyPrime(n, witnessCount);
    for (Variant const& variant : paths()) {
        Using const use(variant);
        ASSERT_EQ(PrimesNumber::isProbablyPrime(n, witnessCount), expected)
            << variant.name << ' ' << n.toString(10) << " with " << witnessCount;
    }
}

void expectPlainSearch(int bitCount, int witnessCount, std::vector<int> const& seeds) {
    int const seedCount = static_cast<int>(seeds.size());
    LargeInteger const expected =
        plain::createProbablePrime(bitCount, witnessCount, seeds.data(), seedCount);
    for (Variant const& variant : paths()) {
        Using const use(variant);
        LargeInteger const prime =
            PrimesNumber::createProbablePrime(bitCount, witnessCount, seeds.data(), seedCount);
        ASSERT_EQ(prime, expected) << variant.name << ' ' << bitCount << " bits, " << witnessCount
                                   << " witnesses, seeds " << testing::PrintToString(seeds);
    }
}

// --- verdicts -----------------------------------------------------------------------------------

constexpr int shards = 8;

class PlainVerdicts : public testing::TestWithParam<int> {};

TEST_P(PlainVerdicts, OfEveryNumberBelowTwoToTheTwentieth) {
    constexpr int width = (1 << 20) / shards;
    constexpr int distance = thoroughness::cases(1, 5);  // every number, or every fifth
    for (int n = GetParam() * width; n < (GetParam() + 1) * width; n += distance) {
        expectPlainVerdict(LargeInteger(n), 30);
        if (HasFailure())
            return;
    }
}

/// Random bits.
LargeInteger randomNumber(std::mt19937& random, int bits) {
    LargeInteger n;
    for (int i = 0; i < bits; i += 32)
        n = (n << 32) + LargeInteger(static_cast<unsigned int>(random()));
    return n >> (n.getHighestBit() + 1 - bits);
}

/// A number below the limit with no factor up to 23.
int roughNumber(std::mt19937& random, int limit) {
    for (;;) {
        int const n = static_cast<int>(random() % static_cast<unsigned>(limit));
        bool rough = n > 1;
        for (int const p : {2, 3, 5, 7, 11, 13, 17, 19, 23})
            rough = rough && n % p != 0;
        if (rough)
            return n;
    }
}

TEST_P(PlainVerdicts, OfOddNumbersWithSmallFactors) {
    std::mt19937 random(320U + static_cast<unsigned>(GetParam()));
    for (int i = 0; i < thoroughness::cases(25000, 5000); ++i) {
        LargeInteger n(roughNumber(random, 1 << 17));
        switch (random() % 4) {
        case 0:
            n *= LargeInteger(n);
            break;
        case 1:
            n *= LargeInteger(roughNumber(random, 1 << 17));
            break;
        default:
            n *= randomNumber(random, 1 + static_cast<int>(random() % 239));
            n.setBit(0);
        }
        expectPlainVerdict(n, static_cast<int>(random() % 100) - 2);
        if (HasFailure())
            return;
    }
}

INSTANTIATE_TEST_SUITE_P(Shard, PlainVerdicts, testing::Range(0, shards));

// A witness that is the number itself has only zeros for powers: primes are refused from their own
// turn on. 65521 is the last witness of the table, 65537 the first that is looked for.
TEST(PlainVerdict, OfAPrimeThatIsItsOwnWitness) {
    for (auto const& [prime, place] : {std::pair(2053, 309), {65521, 6541}, {65537, 6542}}) {
        EXPECT_TRUE(PrimesNumber::isProbablyPrime(LargeInteger(prime), place - 1)) << prime;
        EXPECT_FALSE(PrimesNumber::isProbablyPrime(LargeInteger(prime), place)) << prime;
        expectPlainVerdict(LargeInteger(prime), place - 1);
        expectPlainVerdict(LargeInteger(prime), place);
    }
}

// --- searches -----------------------------------------------------------------------------------

TEST_P(PlainVerdicts, AndSearchesOfUpTo512Bits) {
    std::mt19937 random(330U + static_cast<unsigned>(GetParam()));
    for (int i = 0; i < 40; ++i) {
        std::vector<int> seeds(random() % 4);
        for (int& seed : seeds)
            seed = static_cast<int>(random());
        int const bitCount = 64 + static_cast<int>(random() % 449);
        expectPlainSearch(bitCount, random() % 4 != 0 ? 30 : static_cast<int>(random() % 9) - 1,
                          seeds);
        if (HasFailure())
            return;
    }
}

TEST(PlainSearch, OfEverySmallWidth) {
    for (int bitCount = -1; bitCount < 64; ++bitCount) {
        for (int const seed : {1, 2, 3}) {
            expectPlainSearch(bitCount, 30, {seed});
            expectPlainSearch(bitCount, 0, {seed});
            expectPlainSearch(bitCount, 1, {seed});
            if (HasFailure())
                return;
        }
    }
}

class LongSearches : public testing::TestWithParam<int> {};

TEST_P(LongSearches, Of1024BitsFindThePlainPrime) {
    expectPlainSearch(1024, 30, {GetParam(), -GetParam(), 12345});
}

INSTANTIATE_TEST_SUITE_P(Seed, LongSearches, testing::Range(0, 10));

}  // namespace
