// Which candidates are struck: by the documented divisors, and by factors that make the test fail.
#include "crypto/Screening.h"

#include "bigint/Representation.h"
#include "model/PlainPrimes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using namespace qel::internal;
using qel::LargeInteger;
using qel::limbs::Limb;

/// Screening from a base, with the arrays it works on.
class Walk {
  public:
    Walk(LargeInteger const& base, int witnessCount, Limb limit = smallPrimeLimit)
        : count(static_cast<std::size_t>(base.getHighestBit()) / 64 + 2), start(count),
          scratch(count), screening(filled(base), count, witnessCount, limit, scratch.data()) {}

    Screening* operator->() { return &screening; }

  private:
    Limb const* filled(LargeInteger const& base) {
        loadLimbs(start.data(), count, Representation::magnitude(base));
        return start.data();
    }

    std::size_t count;
    std::vector<Limb> start;
    std::vector<Limb> scratch;
    Screening screening;
};

/// A prime factor from 31 to 2^16.
bool hasOtherSmallFactor(LargeInteger const& n) {
    return std::any_of(smallPrimes.begin() + 10, smallPrimes.end(),
                       [&n](int p) { return (n % LargeInteger(p)).isZero(); });
}

LargeInteger randomEven(std::mt19937& random, int bits) {
    LargeInteger n;
    for (int i = 1; i < bits - 1; ++i)
        n.setBit(i, random() % 2 != 0);
    n.setBit(bits - 1);
    return n;
}

LargeInteger candidate(LargeInteger const& base, int i) {
    return base + LargeInteger(2 * i + 1);
}

/// The documented divisors: 2p + 1, where p is 1 or a prime below 15000.
std::vector<int> documentedDivisors() {
    std::vector<int> divisors = {3};
    for (int p = 2; p < 15000; ++p) {
        bool prime = true;
        for (int d = 2; d * d <= p && prime; ++d)
            prime = p % d != 0;
        if (prime)
            divisors.push_back(2 * p + 1);
    }
    return divisors;
}

bool isStruck(LargeInteger const& n) {
    std::vector<Limb> limbs(static_cast<std::size_t>(n.getHighestBit()) / 64 + 2);
    loadLimbs(limbs.data(), limbs.size(), Representation::magnitude(n));
    return isStruckByDivisors(limbs.data(), limbs.size());
}

TEST(Screening, ByTheDocumentedDivisorsStrikesMultiplesButNotADivisorItself) {
    std::vector<int> const divisors = documentedDivisors();
    for (int n = 3; n < 2 * 29967; n += 2) {
        bool const expected = std::any_of(divisors.begin(), divisors.end(),
                                          [n](int q) { return n % q == 0 && n != q; });
        ASSERT_EQ(isStruck(LargeInteger(n)), expected) << n;
    }
    std::mt19937 random(309);
    for (int bits = 17; bits < 300; ++bits) {
        LargeInteger const n = randomEven(random, bits) + LargeInteger(1);
        bool const expected = std::any_of(divisors.begin(), divisors.end(),
                                          [&n](int q) { return (n % LargeInteger(q)).isZero(); });
        ASSERT_EQ(isStruck(n), expected) << n.toString(10);
    }
}

TEST(Screening, WithoutWitnessesStrikesFactorsUpTo23) {
    std::mt19937 random(310);
    for (int const bits : {12, 17, 40, 64, 65, 128, 200}) {
        LargeInteger base = randomEven(random, bits);
        Walk walk(base, 0);
        for (int const length : {128, 128, 64, 1}) {
            Screening::Window const struck = walk->window(length);
            for (int i = 0; i < length; ++i) {
                LargeInteger const n = candidate(base, i);
                ASSERT_EQ(!struck[static_cast<std::size_t>(i)], plain::isProbablyPrime(n, 0))
                    << n.toString(10);
            }
            walk->advance(length);
            base += LargeInteger(2 * length);
        }
    }
}

TEST(Screening, LooksAtPrimesBelowItsLimit) {
    LargeInteger const n = LargeInteger(8209) * ((LargeInteger(1) << 127) - LargeInteger(1));
    LargeInteger const base = n - LargeInteger(1);
    EXPECT_FALSE(Walk(base, 30, 8209)->window(1)[0]);
    EXPECT_TRUE(Walk(base, 30, 8210)->window(1)[0]);
}

TEST(Screening, NeverStrikesWhatTheTestWouldPass) {
    std::mt19937 random(311);
    for (int round = 0; round < 100; ++round) {
        int const witnesses = 1 + static_cast<int>(random() % 40);
        LargeInteger const base = randomEven(random, 12 + static_cast<int>(random() % 300));
        Screening::Window const struck = Walk(base, witnesses)->window(128);
        for (int i = 0; i < 128; ++i) {
            LargeInteger const n = candidate(base, i);
            if (struck[static_cast<std::size_t>(i)]) {
                ASSERT_FALSE(plain::isProbablyPrime(n, witnesses))
                    << n.toString(10) << ' ' << witnesses;
            }
        }
    }
}

// 8401 = 31 * 271 fools 3; 3215031751 = 151 * 751 * 28351 fools 3, 5 and 7: their factors are
// looked at, and must not strike as long as the test passes.
TEST(Screening, KeepsCompositesThatFoolTheWitnesses) {
    for (LargeInteger const& n : {LargeInteger(8401), LargeInteger(3215031751LL)}) {
        int passed = 0;
        for (int witnesses = 1; witnesses <= 40; ++witnesses) {
            if (!plain::isProbablyPrime(n, witnesses))
                continue;
            EXPECT_FALSE(Walk(n - LargeInteger(1), witnesses)->window(1)[0])
                << n.toString(10) << ' ' << witnesses;
            ++passed;
        }
        EXPECT_GT(passed, 0) << n.toString(10);
    }
}

// The first multiples above 2^600 without a factor up to 23.
TEST(Screening, StrikesMultiplesOfPrimesBelowTwoToTheSixteenth) {
    LargeInteger const start = LargeInteger(1) << 600;
    for (int const factor : {29, 31, 127, 131, 8191, 8209, 32749, 65521}) {
        LargeInteger n = start - start % LargeInteger(factor) + LargeInteger(factor);
        while (!plain::isProbablyPrime(n, 0))
            n += LargeInteger(factor);
        EXPECT_FALSE(Walk(n - LargeInteger(1), 0)->window(1)[0]) << factor;
        EXPECT_TRUE(Walk(n - LargeInteger(1), 1)->window(1)[0]) << factor;
    }
}

// With n = 1 modulo 28 a factor of 29 shows in no power of 3, 5 or 7; the witness 29, the ninth,
// strikes by itself.
TEST(Screening, StrikesMultiplesOfItsWitnesses) {
    LargeInteger n = LargeInteger(29) + (LargeInteger(28 * 29) << 100);
    while (!plain::isProbablyPrime(n, 0) || hasOtherSmallFactor(n))
        n += LargeInteger(28 * 29);
    EXPECT_FALSE(Walk(n - LargeInteger(1), 8)->window(1)[0]) << n.toString(10);
    EXPECT_TRUE(Walk(n - LargeInteger(1), 9)->window(1)[0]) << n.toString(10);
}

}  // namespace
