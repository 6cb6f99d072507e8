// Keys: their text form, their creation, their application. Most expected keys stand in the
// vector files.
#include "qel/RSAKey.h"

#include "qel/Random.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using qel::LargeInteger;
using qel::Random;
using qel::RSAKey;

struct Pair {
    RSAKey first;
    RSAKey second;
};

Pair createPair(int bitCount, std::vector<int> const& seeds) {
    Pair pair;
    RSAKey::createKeyPair(pair.first, pair.second, bitCount, seeds.data(),
                          static_cast<int>(seeds.size()));
    return pair;
}

LargeInteger modulusOf(RSAKey const& key) {
    std::string const text = key.toString();
    LargeInteger modulus;
    modulus.parseString(text.substr(text.find(',') + 1), 16);
    return modulus;
}

/// The value after both keys of the pair, the first one first.
LargeInteger thereAndBack(Pair const& pair, LargeInteger value) {
    EXPECT_TRUE(pair.first.applyToValue(value));
    EXPECT_TRUE(pair.second.applyToValue(value));
    return value;
}

TEST(KeyText, ADefaultKeyIsACommaAlone) {
    EXPECT_EQ(RSAKey().toString(), ",");
    EXPECT_EQ(RSAKey(","), RSAKey());
}

TEST(KeyText, WithoutACommaTheKeyIsTheDefaultOne) {
    EXPECT_EQ(RSAKey("abc"), RSAKey());
    EXPECT_EQ(RSAKey(""), RSAKey());
}

TEST(KeyText, EitherSideMayBeEmpty) {
    EXPECT_EQ(RSAKey("3,").toString(), "3,");
    EXPECT_EQ(RSAKey(",f").toString(), ",f");
}

TEST(KeyText, FurtherCommasAreSkipped) {
    EXPECT_EQ(RSAKey("ff,1,2").toString(), "ff,12");
}

TEST(KeyText, BadDigitsAreSkippedAsParseStringDoes) {
    EXPECT_EQ(RSAKey(" x3 , 0 F\n").toString(), "3,f");
    EXPECT_EQ(RSAKey("-3,-f").toString(), "-3,-f");
}

TEST(KeyText, ReadsBackWhatItWrites) {
    Pair const pair = createPair(96, {1, 2, 3});
    EXPECT_EQ(RSAKey(pair.first.toString().c_str()), pair.first);
    EXPECT_EQ(RSAKey(pair.second.toString().c_str()), pair.second);
}

TEST(KeyComparison, LooksAtBothFields) {
    RSAKey const key("3,f");
    EXPECT_TRUE(key == RSAKey("3,f"));
    EXPECT_FALSE(key != RSAKey("3,f"));
    for (char const* other : {"5,f", "3,d", "5,d"}) {
        EXPECT_FALSE(key == RSAKey(other)) << other;
        EXPECT_TRUE(key != RSAKey(other)) << other;
    }
}

TEST(KeyExponent, IsTheFirstListedOneCoprimeToBoth) {
    struct Row {
        int first;
        int second;
        int exponent;
    };
    Row const rows[] = {
        {12, 10, 17},  // 3 divides 12, 5 divides 10, 9 shares 3 with 12
        {7, 7, 3},      {10, 4, 3},           {6, 4, 5},
        {3 * 5, 4, 17}, {3 * 5 * 17, 4, 257},  // 33, 65 and 129 share 3, 5 and 3
    };
    for (Row const& row : rows)
        EXPECT_EQ(RSAKey::findBestCommonDivisor(LargeInteger(row.first), LargeInteger(row.second)),
                  LargeInteger(row.exponent))
            << row.first << ", " << row.second;
}

TEST(KeyExponent, IsSearchedFromFourWhenTheListIsUsedUp) {
    // 3 * 5 * 17 * 257 * 65537 = 2^32 - 1 shares a factor with every 2^k + 1 of the list whose k
    // is a power of two; 2^3 + 1, 2^5 + 1, 2^7 + 1 ... share 3, 2^6 + 1 and the like share 5,
    // 2^12 + 1 shares 17.
    LargeInteger const all(0xFFFFFFFFU);
    EXPECT_EQ(RSAKey::findBestCommonDivisor(all, LargeInteger(1)), LargeInteger(4));
    EXPECT_EQ(RSAKey::findBestCommonDivisor(all, LargeInteger(2)), LargeInteger(7));
}

/// As documented: one candidate after the other.
LargeInteger firstCoprimeExponent(LargeInteger const& first, LargeInteger const& second) {
    auto const isCoprime = [&](LargeInteger const& x) {
        return x.findGreatestCommonDivisor(first).isOne()
               && x.findGreatestCommonDivisor(second).isOne();
    };
    for (int power = 2; power <= 65536; power *= 2) {
        if (isCoprime(LargeInteger(power + 1)))
            return LargeInteger(power + 1);
    }
    LargeInteger candidate(4);
    while (!isCoprime(candidate))
        ++candidate;
    return candidate;
}

// All ones up to a limb's end carry out of the sum of the limbs, again and again.
TEST(KeyExponent, OfWideNumbersIsTheFirstListedOneCoprimeToBoth) {
    int const factors[] = {3, 5, 17, 257, 65537};
    for (int bits = 62; bits < 700; bits += bits % 64 == 2 ? 61 : 1) {
        LargeInteger const ones = (LargeInteger(1) << bits) - LargeInteger(1);
        LargeInteger random;
        Random(bits).fillBitsRandomly(random, 0, bits);
        for (int set = 0; set < 32; ++set) {
            LargeInteger first = (LargeInteger(1) << bits) * LargeInteger(7);
            LargeInteger second = random | LargeInteger(1);
            for (int i = 0; i < 5; ++i)
                (set >> i & 1 ? first : second) *= LargeInteger(factors[i]);
            LargeInteger const one(1);
            EXPECT_EQ(RSAKey::findBestCommonDivisor(first, one), firstCoprimeExponent(first, one));
            EXPECT_EQ(RSAKey::findBestCommonDivisor(second, ones),
                      firstCoprimeExponent(second, ones));
        }
    }
}

TEST(KeyCreation, TheSameSeedsGiveTheSamePair) {
    Pair const one = createPair(128, {1, -2, 3, 4});
    Pair const other = createPair(128, {1, -2, 3, 4});
    EXPECT_EQ(one.first, other.first);
    EXPECT_EQ(one.second, other.second);
    EXPECT_NE(one.first, one.second);
    EXPECT_NE(one.first, createPair(128, {1, -2, 3, 5}).first);
}

TEST(KeyCreation, TheFirstHalfOfTheSeedsDrawsOnePrime) {
    // Three seeds: one for the first prime, two for the second, in any order.
    EXPECT_EQ(createPair(128, {1, 2, 3}).first, createPair(128, {1, 3, 2}).first);
    EXPECT_NE(createPair(128, {1, 2, 3}).first, createPair(128, {2, 1, 3}).first);
}

TEST(KeyCreation, ReplacesWhatTheKeysHeld) {
    RSAKey first("3,f");
    RSAKey second("5,d");
    int const seeds[] = {8, 9};
    RSAKey::createKeyPair(first, second, 64, seeds, 2);
    EXPECT_EQ(first, createPair(64, {8, 9}).first);
    EXPECT_EQ(second, createPair(64, {8, 9}).second);
}

TEST(KeyCreation, NullSeedsAreNoSeeds) {
    int const unused[] = {7, 8};
    Pair expected;
    RSAKey::createKeyPair(expected.first, expected.second, 64, unused, 0);
    for (int seedCount : {0, -4}) {
        Pair pair;
        RSAKey::createKeyPair(pair.first, pair.second, 64, nullptr, seedCount);
        EXPECT_EQ(pair.first, expected.first);
        EXPECT_EQ(pair.second, expected.second);
    }
}

TEST(KeyCreation, AFailedSearchGivesTwoDefaultKeys) {
    RSAKey first("3,f");
    RSAKey second("5,d");
    RSAKey::createKeyPair(first, second, -10, nullptr, 0);
    EXPECT_EQ(first, RSAKey());
    EXPECT_EQ(second, RSAKey());
    LargeInteger value(7);
    EXPECT_FALSE(first.applyToValue(value));
}

TEST(KeyApplication, IsUndoneByTheOtherKey) {
    Pair const pair = createPair(128, {11, 22, 33, 44});
    LargeInteger const n = modulusOf(pair.first);
    for (LargeInteger const& value : {LargeInteger(1), LargeInteger(2), LargeInteger(0x7FFFFFFF),
                                      n - LargeInteger(1), n >> 1}) {
        EXPECT_EQ(thereAndBack(pair, value), value);
        EXPECT_EQ(thereAndBack({pair.second, pair.first}, value), value);
    }
}

TEST(KeyApplication, WorksDigitByDigitAboveTheModulus) {
    Pair const pair = createPair(128, {11, 22, 33, 44});
    LargeInteger const n = modulusOf(pair.first);
    LargeInteger const low(1234567);
    LargeInteger const high(7654321);
    EXPECT_EQ(thereAndBack(pair, high * n + low), high * n + low);
    EXPECT_EQ(thereAndBack(pair, (high * n + low) * n + high), (high * n + low) * n + high);

    // Each digit is raised by itself, and their order is reversed.
    LargeInteger lowPower(low);
    LargeInteger highPower(high);
    EXPECT_TRUE(pair.first.applyToValue(lowPower));
    EXPECT_TRUE(pair.first.applyToValue(highPower));
    LargeInteger both = high * n + low;
    EXPECT_TRUE(pair.first.applyToValue(both));
    EXPECT_EQ(both, lowPower * n + highPower);
}

TEST(KeyApplication, AMultipleOfTheModulusLosesItsLowestDigit) {
    Pair const pair = createPair(128, {11, 22, 33, 44});
    LargeInteger const digit(7654321);
    EXPECT_EQ(thereAndBack(pair, digit * modulusOf(pair.first)), digit);
}

TEST(KeyApplication, ZeroAndNegativeValuesAreRefusedAndCleared) {
    RSAKey const key("3,21");
    LargeInteger flagged;
    flagged.setNegative(true);
    for (LargeInteger value : {LargeInteger(0), flagged, LargeInteger(-5)}) {
        EXPECT_FALSE(key.applyToValue(value));
        EXPECT_TRUE(value.isZero());
    }
}

TEST(KeyApplication, AKeyWithAZeroFieldRefusesAndClears) {
    for (char const* text : {",", "3,", ",21", "0,21", "-0,21"}) {
        LargeInteger value(5);
        EXPECT_FALSE(RSAKey(text).applyToValue(value)) << text;
        EXPECT_TRUE(value.isZero()) << text;
    }
}

TEST(KeyApplication, RaisesToTheExponentModuloTheModulus) {
    LargeInteger value(5);
    EXPECT_TRUE(RSAKey("3,21").applyToValue(value));
    EXPECT_EQ(value, LargeInteger(125 % 33));
}

#ifndef NDEBUG

TEST(KeyPreconditionsDeathTest, AModulusOfOneDividesForEver) {
    LargeInteger value(5);
    EXPECT_DEATH((void)RSAKey("3,1").applyToValue(value), "modulus of 1");
}

TEST(KeyPreconditionsDeathTest, NothingIsCoprimeToZero) {
    EXPECT_DEATH((void)RSAKey::findBestCommonDivisor(LargeInteger(0), LargeInteger(5)),
                 "coprime to 0");
    EXPECT_DEATH((void)RSAKey::findBestCommonDivisor(LargeInteger(5), LargeInteger(0)),
                 "coprime to 0");
}

#endif

}  // namespace
