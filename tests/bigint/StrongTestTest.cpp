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

/// As the test of numbers of that length.
bool passes(Limbs const& n, Limb witness) {
    using namespace qel::limbs;
    if (n.size() == 1)
        return ShortStrongTest<Limb>(n[0]).passes(witness);
    if (n.size() == 2)
        return ShortStrongTest<DoubleLimb>(load<DoubleLimb>(n.data())).passes(witness);
    Limbs scratch(qel::limbs::strongTestScratch(n.size()));
    return qel::limbs::StrongTest(n.data(), n.size(), scratch.data()).passes(witness);
}

void expectPlainVerdicts(Limbs const& n, std::vector<Limb> const& witnesses) {
    std::vector<bool> expected;
    for (Limb const witness : witnesses)
        expected.push_back(plainVerdict(integer(n), integer({witness})));
    if (n.size() <= 2) {
        for (std::size_t i = 0; i < witnesses.size(); ++i)
            ASSERT_EQ(passes(n, witnesses[i]), expected[i])
                << "n = " << text(n) << " witness " << witnesses[i];
    }
    if (n.size() == 1)
        return;
    std::size_t const needed = qel::limbs::strongTestScratch(n.size());
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
    for (auto const& [n, witness, expected] : cases)
        EXPECT_EQ(passes(n, witness), expected) << text(n) << ' ' << witness;
}

TEST(StrongTest, RefusesAWitnessThatTheNumberDivides) {
    for (Limb const prime : {2053ULL, 65537ULL, 4294967291ULL})
        expectPlainVerdicts({prime}, {prime, 3 * prime, prime + 1, prime - 1});
    EXPECT_FALSE(passes({2053}, 2053));
}

// --- primes -------------------------------------------------------------------------------------

// The primes next to 2^65, 2^66, ... 2^192: their distances from there.
constexpr int firstExponent = 65;
constexpr std::uint16_t distancesBelow[] = {
    49, 5,   19,  23,  19,  35,  231, 93,  69,  35,  97,  15, 33, 11,  67,  65,  51,  57,  55,
    35, 19,  35,  67,  299, 1,   33,  45,  83,  25,  3,   15, 17, 141, 51,  115, 15,  69,  33,
    97, 17,  13,  117, 1,   59,  31,  21,  37,  75,  133, 11, 67, 3,   279, 5,   69,  119, 73,
    3,  67,  59,  9,   137, 1,   159, 25,  5,   69,  347, 99, 45, 45,  113, 13,  105, 187, 27,
    9,  111, 69,  83,  151, 153, 145, 167, 31,  3,   195, 17, 69, 243, 31,  143, 19,  15,  91,
    47, 159, 101, 55,  63,  25,  5,   135, 257, 643, 143, 19, 95, 55,  3,   229, 233, 339, 41,
    49, 47,  165, 161, 147, 33,  303, 371, 85,  125, 25,  11, 19, 237};
constexpr std::uint16_t distancesAbove[] = {
    131, 9,   3,   33,  29,  25,  11,  15,  29,  37,  33,  15,  11,  7,   23, 13,  17,  9,   75,
    3,   171, 27,  39,  7,   29,  133, 59,  25,  105, 129, 9,   61,  105, 7,  255, 277, 81,  267,
    81,  111, 39,  99,  39,  33,  147, 27,  51,  25,  281, 43,  71,  33,  29, 25,  9,   451, 41,
    277, 165, 67,  27,  7,   29,  51,  17,  169, 39,  67,  27,  27,  33,  85, 155, 87,  155, 37,
    5,   217, 5,   175, 27,  85,  51,  91,  69,  147, 45,  253, 95,  27,  15, 45,  69,  97,  299,
    7,   107, 19,  21,  117, 141, 85,  83,  87,  147, 49,  129, 105, 77,  7,  9,   427, 75,  87,
    309, 15,  165, 49,  215, 27,  159, 205, 303, 57,  35,  129, 5,   133};

// A composite fails whatever becomes of its powers; a prime passes only if all of them are right.
void expectEveryWitnessPasses(LargeInteger const& prime) {
    Limbs n;
    for (LargeInteger rest = prime; !rest.isZero(); rest >>= 64)
        n.push_back(static_cast<Limb>(static_cast<unsigned int>(rest.getBitRangeAsInt(32, 32)))
                        << 32
                    | static_cast<unsigned int>(rest.getBitRangeAsInt(0, 32)));
    std::vector<Limb> scratch(qel::limbs::strongTestScratch(n.size()));
    for (Variant const& variant : variants()) {
        Using const use(variant);
        qel::limbs::StrongTest test(n.data(), n.size(), scratch.data());
        for (Limb const witness : everyWindow)
            EXPECT_TRUE(test.passes(witness)) << variant.name << ' ' << text(n) << ' ' << witness;
    }
}

TEST(StrongTest, PrimesNextToPowersOfTwoPassWithEveryWitness) {
    int exponent = firstExponent;
    for (std::size_t i = 0; i < std::size(distancesBelow); ++i, ++exponent) {
        LargeInteger const power = LargeInteger(1) << exponent;
        expectEveryWitnessPasses(power - LargeInteger(static_cast<int>(distancesBelow[i])));
        expectEveryWitnessPasses(power + LargeInteger(static_cast<int>(distancesAbove[i])));
    }
}

}  // namespace
