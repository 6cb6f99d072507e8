// The strong test of one number against plain modular powers, on every variant of the kernels.
#include "LimbTables.h"

#include "bigint/limbs/StrongTest.h"

#include "qel/LargeInteger.h"

namespace {

using namespace limb_test;
using qel::LargeInteger;

LargeInteger integer(Limbs const& a) {
    LargeInteger out;
    for (std::size_t i = a.size(); i > 0; --i)
        out = (out << 64) + (LargeInteger(static_cast<unsigned int>(a[i - 1] >> 32)) << 32)
              + LargeInteger(static_cast<unsigned int>(a[i - 1]));
    return out;
}

/// The test as documented, the last squaring included.
bool plainVerdict(LargeInteger const& n, LargeInteger const& witness) {
    LargeInteger const minusOne = n - LargeInteger(1);
    int const twos = minusOne.findNextSetBit(0);
    LargeInteger y(witness);
    y.exponentModulo(minusOne >> twos, n);
    bool const startsAtOne = y.isOne();
    for (int j = 0; j < twos && y != minusOne; ++j)
        y.exponentModulo(LargeInteger(2), n);
    return startsAtOne || y == minusOne;
}

void expectPlainVerdicts(Limbs const& n, std::vector<Limb> const& witnesses) {
    std::size_t const needed = qel::limbs::strongTestScratch(n.size());
    std::vector<bool> expected;
    for (Limb const witness : witnesses)
        expected.push_back(plainVerdict(integer(n), integer({witness})));
    for (Variant const& variant : variants()) {
        Using const use(variant);
        Fenced number(n);
        Fenced scratch(needed);
        qel::limbs::StrongTest test(number.data(), n.size(), scratch.data());
        for (std::size_t i = 0; i < witnesses.size(); ++i)
            ASSERT_EQ(test.passes(witnesses[i]), expected[i])
                << variant.name << " n = " << text(n) << " witness " << witnesses[i];
        ASSERT_TRUE(scratch.intact()) << variant.name << " n = " << text(n);
        ASSERT_TRUE(number.holds(n)) << variant.name;
    }
}

// Powers of a witness are taken five bits at a time, or as many as let them fit a limb: 3 and 5
// have windows of 5 bits (3^31, 5^15 ...), 19 of 4, 509 of 3, 2^20 of 2, 2^32 of 1.
std::vector<Limb> const everyWindow = {
    2, 3, 4, 5, 7, 17, 19, 67, 509, 641, (1U << 20) + 7, 2097169, 4294967291, 4294967311, allOnes};

TEST(StrongTest, AgreesWithPlainPowersForOddNumbersOfAnyLength) {
    for (std::size_t const count : {1U, 2U, 3U, 4U, 5U, 8U, 9U, 16U}) {
        onOperands(210 + static_cast<unsigned>(count), {count}, [&](Limbs n) {
            n[0] |= 1;
            n.back() |= n.size() == 1 ? 8 : 1;
            expectPlainVerdicts(n, everyWindow);
        });
        if (HasFailure())
            return;
    }
}

TEST(StrongTest, AgreesForEveryLeadingZeroOfTheHighestLimb) {
    Operands operands(211);
    for (int bits = 1; bits <= 64; ++bits) {
        Limbs n = operands.make(Pattern::uniform, 3);
        n[0] |= 1;
        n[2] = (n[2] | topBit) >> (64 - bits);
        expectPlainVerdicts(n, {3, 5, 641});
        n[1] = n[2] = allOnes >> (64 - bits);
        expectPlainVerdicts(n, {3, 5, 641});
        if (HasFailure())
            return;
    }
}

// k * 2^s + 1: many squarings after the odd part, and primes among them (k = 1: Fermat's).
TEST(StrongTest, AgreesWhereTwoDividesOftenIntoTheNumberBelow) {
    for (int s = 1; s <= 200; ++s) {
        for (unsigned const k : {1U, 3U, 5U, 9U}) {
            Limbs n(5, 0);
            auto const limb = static_cast<std::size_t>(s / 64);
            n[limb] = Limb{k} << (s % 64);
            n[limb + 1] = s % 64 == 0 ? 0 : Limb{k} >> (64 - s % 64);
            n[0] |= 1;
            while (n.back() == 0)
                n.pop_back();
            expectPlainVerdicts(n, {2, 3, 5, 7, 11});
            if (HasFailure())
                return;
        }
    }
}

TEST(StrongTest, PassesPrimesAndWhatFoolsTheWitness) {
    // 2^521 - 1 is prime; 3825123056546413051 fools 3 to 31, not 37; 8401 fools 3, not 5.
    Limbs mersenne(9, allOnes);
    mersenne[8] = 0x1FF;
    std::vector<std::tuple<Limbs, Limb, bool>> const cases = {{mersenne, 3, true},
                                                              {mersenne, 31, true},
                                                              {{3825123056546413051}, 31, true},
                                                              {{3825123056546413051}, 37, false},
                                                              {{8401}, 3, true},
                                                              {{8401}, 5, false}};
    for (auto const& [n, witness, passes] : cases) {
        Limbs scratch(qel::limbs::strongTestScratch(n.size()));
        EXPECT_EQ(qel::limbs::StrongTest(n.data(), n.size(), scratch.data()).passes(witness),
                  passes)
            << text(n) << ' ' << witness;
    }
}

TEST(StrongTest, RefusesAWitnessThatTheNumberDivides) {
    for (Limb const prime : {2053ULL, 65537ULL, 4294967291ULL})
        expectPlainVerdicts({prime}, {prime, 3 * prime, prime + 1, prime - 1});
    Limbs scratch(qel::limbs::strongTestScratch(1));
    Limb const prime = 2053;
    EXPECT_FALSE(qel::limbs::StrongTest(&prime, 1, scratch.data()).passes(prime));
}

}  // namespace
