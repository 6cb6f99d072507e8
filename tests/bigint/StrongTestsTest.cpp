// Strong tests in eight lanes against the documented steps, one number at a time.
#include "LaneVariants.h"

#include "bigint/limbs/StrongTests.h"

#include <algorithm>

namespace {

using namespace limb_test;
using bigint_test::powerOfTwo;
using qel::LargeInteger;
namespace limbs = qel::limbs;

struct Question {
    LargeInteger modulus;
    Limb base;
};
using Questions = std::vector<Question>;

/// The documented steps.
bool passes(Question const& question) {
    LargeInteger const& n = question.modulus;
    LargeInteger const minusOne = n - LargeInteger(1);
    int const twos = minusOne.findNextSetBit(0);
    LargeInteger y = integerOf({question.base}) % n;
    y.exponentModulo(minusOne >> twos, n);
    if (y.isOne() || y == minusOne)
        return true;
    for (int squarings = 0; squarings < twos && y != minusOne; ++squarings)
        y = y * y % n;
    return y == minusOne;
}

Limbs limbsOf(LargeInteger const& a, std::size_t count) {
    Halves words(2 * count);
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = static_cast<std::uint32_t>(a.getBitRangeAsInt(static_cast<int>(32 * i), 32));
    return joined(words);
}

std::size_t limbsFor(Questions const& questions) {
    int highest = 0;
    for (Question const& question : questions)
        highest = std::max(highest, question.modulus.getHighestBit());
    return static_cast<std::size_t>(highest) / 64 + 1;
}

unsigned answer(Questions const& questions, std::size_t count) {
    std::vector<Limbs> moduli;
    Limb const* pointers[limbs::lanes];
    Limb bases[limbs::lanes];
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
        moduli.push_back(limbsOf(questions[lane].modulus, count));
        pointers[lane] = moduli.back().data();
        bases[lane] = questions[lane].base;
    }
    Fenced scratch(limbs::strongTestsScratch(count));
    unsigned const passed = limbs::passStrongTests(pointers, count, bases, scratch.data());
    EXPECT_TRUE(scratch.intact());
    return passed;
}

std::string text(Questions const& questions) {
    std::ostringstream out;
    for (Question const& question : questions)
        out << "\n  0x" << question.modulus.toString(16) << " to base " << question.base;
    return out.str();
}

/// Eight questions in moduli of `count` limbs.
void expectAnswersOf(Questions const& questions, std::size_t count) {
    unsigned expected = 0;
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane)
        expected |= unsigned{passes(questions[lane])} << lane;
    for (LaneVariant const& variant : laneVariants()) {
        UsingLanes const use(variant);
        ASSERT_EQ(answer(questions, count), expected) << variant.name << text(questions);
    }
}

/// Any number of questions, in the order given; the last lanes ask some of them again.
void expectAnswers(Questions questions) {
    for (std::size_t i = 0; questions.size() % limbs::lanes != 0; ++i)
        questions.push_back(questions[i]);
    for (auto first = questions.begin(); first != questions.end(); first += limbs::lanes) {
        Questions const eight(first, first + limbs::lanes);
        expectAnswersOf(eight, limbsFor(eight));
        if (testing::Test::HasFailure())
            return;
    }
}

LargeInteger anyOdd(Operands& operands, Pattern pattern, int bits) {
    LargeInteger out = integerOf(operands.make(pattern, static_cast<std::size_t>(bits) / 64 + 1));
    out = out % powerOfTwo(bits - 1) + powerOfTwo(bits - 1);
    out.setBit(0);
    return out;
}

/// The largest that a window of 4, 3, 2, 1 bits serves, and their neighbours.
constexpr Limb windowBases[] = {1,
                                2,
                                3,
                                5,
                                7,
                                8,
                                127,
                                128,
                                129,
                                65537,
                                131071,
                                131072,
                                131073,
                                4294967291,
                                1 << 30,
                                Limb{1} << 51,
                                (Limb{1} << 52) - 1};

// --- numbers known from the literature ----------------------------------------------------------

struct StrongPseudoprime {
    char const* number;
    /// The smallest prime base that finds it out.
    Limb firstWitness;
};

/// Composites that pass for all smaller prime bases (Jaeschke, "On strong pseudoprimes to several
/// bases", 1993; Sorenson and Webster, "Strong pseudoprimes to twelve prime bases", 2017).
constexpr StrongPseudoprime strongPseudoprimes[] = {
    {"2047", 3},
    {"1373653", 5},
    {"25326001", 7},
    {"3215031751", 11},
    {"2152302898747", 13},
    {"3474749660383", 17},
    {"341550071728321", 23},
    {"3825123056546413051", 37},
    {"318665857834031151167461", 41},
    {"3317044064679887385961981", 43},
};

constexpr Limb primes[] = {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53};

TEST(StrongTests, LetStrongPseudoprimesPassUpToTheirFirstWitness) {
    for (StrongPseudoprime const& row : strongPseudoprimes) {
        LargeInteger n;
        n.parseString(row.number, 10);
        Questions questions;
        for (Limb const prime : primes)
            questions.push_back({n, prime});
        for (Question const& question : questions)
            EXPECT_TRUE(question.base >= row.firstWitness || passes(question)) << row.number;
        EXPECT_FALSE(passes({n, row.firstWitness})) << row.number;
        expectAnswers(questions);
    }
}

struct PrimesNearPowerOfTwo {
    int exponent;
    /// 2^exponent - below and 2^exponent + above are the next primes on both sides.
    int below;
    int above;
};

/// Around whole numbers of digits, blocks and limbs.
constexpr PrimesNearPowerOfTwo primesNearPowersOfTwo[] = {
    {33, 9, 17},      {52, 47, 21},     {64, 59, 13},    {104, 17, 111},   {128, 159, 51},
    {156, 143, 45},   {192, 237, 133},  {208, 299, 375}, {256, 189, 297},  {260, 149, 223},
    {312, 203, 91},   {320, 197, 27},   {364, 923, 867}, {416, 435, 235},  {512, 569, 75},
    {520, 383, 513},  {576, 789, 243},  {624, 117, 451}, {700, 1113, 535}, {1024, 105, 643},
    {1040, 395, 387}, {2048, 1557, 981}};

TEST(StrongTests, LetPrimesNearPowersOfTwoPassAndTheirNeighboursNot) {
    for (PrimesNearPowerOfTwo const& row : primesNearPowersOfTwo) {
        LargeInteger const power = powerOfTwo(row.exponent);
        LargeInteger const below = power - LargeInteger(row.below);
        LargeInteger const above = power + LargeInteger(row.above);
        EXPECT_TRUE(passes({below, 3})) << row.exponent;
        EXPECT_TRUE(passes({above, 3})) << row.exponent;
        Questions questions;
        for (LargeInteger const& prime : {below, above}) {
            questions.push_back({prime, 3});
            questions.push_back({prime, 2});
            questions.push_back({prime + LargeInteger(2), 3});
            questions.push_back({prime - LargeInteger(2), 3});
        }
        expectAnswers(questions);
    }
}

/// p with 2^p - 1 prime: all ones in each digit.
TEST(StrongTests, OfNumbersAllOnes) {
    for (int const exponent : {61, 89, 107, 127, 521, 607, 1279}) {
        Questions questions;
        for (int const bits : {exponent, exponent - 1, exponent + 1, exponent - 6})
            questions.push_back({powerOfTwo(bits) - LargeInteger(1), 3});
        for (Limb const base : {5U, 7U, 11U, 131U})
            questions.push_back({powerOfTwo(exponent) - LargeInteger(1), base});
        EXPECT_TRUE(passes(questions[0])) << exponent;
        expectAnswers(questions);
    }
}

/// 3 * 2^s + 1 is prime for these s.
TEST(StrongTests, SquareOnUpToTheLastOfVeryManyTwos) {
    Questions questions;
    for (int const s : {1, 2, 5, 6, 8, 12, 18, 30, 36, 41, 66, 189, 201, 209, 276, 353, 408, 438}) {
        for (LargeInteger const& n :
             {(LargeInteger(3) << s) + LargeInteger(1), (LargeInteger(5) << s) + LargeInteger(1)}) {
            for (Limb const base : {2U, 5U, 17U})
                questions.push_back({n, base});
        }
    }
    expectAnswers(questions);
    std::reverse(questions.begin(), questions.end());
    expectAnswers(questions);
    std::mt19937_64 random(130);
    std::shuffle(questions.begin(), questions.end(), random);
    expectAnswers(questions);
}

// --- comparison with the documented steps -------------------------------------------------------

TEST(StrongTests, OfAllSmallOddNumbers) {
    Questions questions;
    for (int n = 3; n < 600; n += 2) {
        for (Limb base = 1; base < 20; ++base)
            questions.push_back({LargeInteger(n), base});
    }
    expectAnswers(questions);
}

TEST(StrongTests, OfNumbersOfEachLength) {
    Operands operands(131);
    for (int bits = 33; bits <= 700; ++bits) {
        Questions questions;
        for (Pattern const pattern : patterns)
            questions.push_back({anyOdd(operands, pattern, bits),
                                 windowBases[operands.below(std::size(windowBases))]});
        questions[operands.below(8)].base = 1;
        expectAnswers(questions);
        if (HasFailure())
            return;
    }
}

TEST(StrongTests, OfLongNumbers) {
    Operands operands(132);
    for (int const bits : {1023, 1025, 1536, 2049, 4500}) {
        Questions questions;
        for (Pattern const pattern : patterns)
            questions.push_back({anyOdd(operands, pattern, bits), 3});
        questions[1].base = 1;
        expectAnswers(questions);
    }
}

// One lane decides about the windows, another about where they end.
TEST(StrongTests, OfMixedLengthsBasesAndTwos) {
    Operands operands(133);
    for (int round = 0; round < 300; ++round) {
        Questions questions;
        for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
            int const bits = 2 + static_cast<int>(operands.below(400));
            LargeInteger n = anyOdd(operands, patterns[operands.below(8)], bits);
            if (operands.below(3) == 0) {
                int const twos =
                    1 + static_cast<int>(operands.below(static_cast<std::size_t>(bits) - 1));
                n = ((n >> twos) << twos) + LargeInteger(1);
            }
            std::size_t const bases = 1 + operands.below(std::size(windowBases));
            questions.push_back({n, windowBases[operands.below(bases)]});
        }
        expectAnswers(questions);
        if (HasFailure())
            return;
    }
}

TEST(StrongTests, OfOnePrimeToEachWindowsLargestBases) {
    LargeInteger const prime = powerOfTwo(256) - LargeInteger(189);
    LargeInteger const composite = prime + LargeInteger(2);
    for (Limb const base : windowBases) {
        Questions questions(limbs::lanes, Question{prime, base});
        expectAnswers(questions);
        questions.assign(limbs::lanes, Question{composite, base});
        questions[5].base = 1;
        expectAnswers(questions);
    }
}

TEST(StrongTests, AnswerEachLaneInItsBit) {
    LargeInteger const prime = powerOfTwo(128) - LargeInteger(159);
    LargeInteger const composite = powerOfTwo(128) - LargeInteger(161);
    for (LaneVariant const& variant : laneVariants()) {
        UsingLanes const use(variant);
        for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
            Questions questions(limbs::lanes, Question{composite, 3});
            questions[lane].modulus = prime;
            EXPECT_EQ(answer(questions, 2), 1U << lane) << variant.name;
        }
    }
}

TEST(StrongTests, TakeModuliWithZeroLimbsOnTop) {
    Questions questions;
    for (Limb const base : {2U, 3U, 5U, 7U, 11U, 13U, 17U, 19U})
        questions.push_back({LargeInteger(2047), base});
    expectAnswersOf(questions, 1);
    expectAnswersOf(questions, 2);
    expectAnswersOf(questions, 9);
}

}  // namespace
