// Verdicts on single numbers.
#include "qel/PrimesNumber.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using qel::LargeInteger;
using qel::PrimesNumber;

bool isPrime(long long n, int witnessCount = 30) {
    return PrimesNumber::isProbablyPrime(LargeInteger(n), witnessCount);
}

LargeInteger decimal(char const* text) {
    LargeInteger v;
    v.parseString(text, 10);
    return v;
}

TEST(Verdicts, EveryEvenNumberIsRefusedTwoIncluded) {
    for (long long n : {0LL, 2LL, 4LL, 1024LL, 2048LL, 1LL << 40})
        EXPECT_FALSE(isPrime(n)) << n;
}

TEST(Verdicts, OneThreeFiveAndSevenPass) {
    for (int n : {1, 3, 5, 7})
        EXPECT_TRUE(isPrime(n)) << n;
}

TEST(Verdicts, SmallCompositesAreRefused) {
    for (int n : {9, 15, 21, 25, 27, 961, 1023})
        EXPECT_FALSE(isPrime(n)) << n;
}

TEST(Verdicts, From1024To2047TheLowTenBitsAreJudged) {
    for (int witnesses : {-1, 0, 1, 30}) {
        EXPECT_TRUE(isPrime(1025, witnesses));   // 1
        EXPECT_TRUE(isPrime(1027, witnesses));   // 3, though 1027 is 13 * 79
        EXPECT_TRUE(isPrime(1031, witnesses));   // 7
        EXPECT_FALSE(isPrime(1033, witnesses));  // 9, though 1033 is prime
        EXPECT_FALSE(isPrime(2047, witnesses));  // 1023
    }
}

TEST(Verdicts, From2048OnTheWholeNumberIsJudged) {
    for (int witnesses : {-1, 0, 1, 30}) {
        EXPECT_FALSE(isPrime(2049, witnesses));  // 3 * 683
        EXPECT_TRUE(isPrime(2053, witnesses));
    }
}

TEST(Verdicts, EachFactorUpTo23IsRefusedBeforeAnyWitness) {
    constexpr int cofactor = 10007;
    for (int factor : {3, 5, 7, 11, 13, 17, 19, 23})
        EXPECT_FALSE(isPrime(factor * cofactor, 0)) << factor;
    EXPECT_TRUE(isPrime(29 * cofactor, 0));
    EXPECT_FALSE(isPrime(29 * cofactor, 1));
}

TEST(Verdicts, WithoutWitnessesEveryOtherOddNumberPasses) {
    for (int witnesses : {0, -1, INT_MIN}) {
        EXPECT_TRUE(isPrime(29 * 31 * 37, witnesses));
        EXPECT_TRUE(isPrime(2049 * 2053 / 3, witnesses));
    }
}

TEST(Verdicts, StrongPseudoprimesPassTheWitnessesTheyFool) {
    // 8401 fools 3 but not 5. 42799 fools 2, which is no witness, but not 3.
    EXPECT_TRUE(isPrime(8401, 1));
    EXPECT_FALSE(isPrime(8401, 2));
    EXPECT_FALSE(isPrime(42799, 1));
    LargeInteger const fools3To7 = decimal("3215031751");
    EXPECT_TRUE(PrimesNumber::isProbablyPrime(fools3To7, 1));
    EXPECT_TRUE(PrimesNumber::isProbablyPrime(fools3To7, 3));
    EXPECT_FALSE(PrimesNumber::isProbablyPrime(fools3To7, 4));
    // Fools 3 to 31, the first ten witnesses, but not the next.
    LargeInteger const fools3To31 = decimal("3825123056546413051");
    EXPECT_TRUE(PrimesNumber::isProbablyPrime(fools3To31, 10));
    EXPECT_FALSE(PrimesNumber::isProbablyPrime(fools3To31, 11));
}

TEST(Verdicts, PrimesPassOnBothSidesOfEveryWitnessSieve) {
    // 53 witnesses come from the numbers below 256, 54 need those below 512, 97 those below 768.
    LargeInteger const prime = decimal("170141183460469231731687303715884105727");
    for (int witnesses : {0, 1, 30, 53, 54, 96, 97, 150})
        EXPECT_TRUE(PrimesNumber::isProbablyPrime(prime, witnesses)) << witnesses;
    EXPECT_TRUE(isPrime(2053, 97));
}

TEST(Verdicts, ANegativeNumberBelow2048IsJudgedByItsMagnitude) {
    EXPECT_TRUE(isPrime(-7));
    EXPECT_FALSE(isPrime(-9));
    EXPECT_FALSE(isPrime(-4096));
}

}  // namespace
