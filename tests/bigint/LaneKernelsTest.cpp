// Squares and products with digits in eight lanes, against remainders of LargeIntegers: the results
// are congruent, below their bounds, and the same digits from each variant.
#include "LaneVariants.h"

#include "bigint/limbs/Montgomery.h"

#include <array>

namespace {

using namespace limb_test;
using bigint_test::powerOfTwo;
using qel::LargeInteger;
namespace limbs = qel::limbs;

constexpr int bitsPerDigit = limbs::bitsPerDigit;
constexpr int half = bitsPerDigit / 2;

using Eight = std::array<LargeInteger, limbs::lanes>;

/// A digit of eight numbers.
struct alignas(64) Row {
    Limb lane[limbs::lanes];
};
using Rows = std::vector<Row>;

Rows rowsOf(Eight const& numbers, std::size_t digits) {
    Rows rows(digits, Row{});
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
        for (std::size_t i = 0; i < digits; ++i) {
            int const start = bitsPerDigit * static_cast<int>(i);
            Limb const low = static_cast<Limb>(numbers[lane].getBitRangeAsInt(start, half));
            Limb const high = static_cast<Limb>(numbers[lane].getBitRangeAsInt(start + half, half));
            rows[i].lane[lane] = low | high << half;
        }
    }
    return rows;
}

/// Without the litter above the digits.
Rows digitsOf(Rows rows) {
    for (Row& row : rows) {
        for (Limb& limb : row.lane)
            limb &= limbs::digitMask;
    }
    return rows;
}

bool operator==(Row const& a, Row const& b) {
    return std::equal(a.lane, a.lane + limbs::lanes, b.lane);
}

LargeInteger numberIn(Rows const& rows, std::size_t lane) {
    LargeInteger out;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        int const start = bitsPerDigit * static_cast<int>(i);
        Limb const digit = rows[i].lane[lane] & limbs::digitMask;
        out.setBitRangeAsInt(start, half, static_cast<unsigned int>(digit & ((1U << half) - 1)));
        out.setBitRangeAsInt(start + half, half, static_cast<unsigned int>(digit >> half));
    }
    return LargeInteger(out);
}

/// 2^-bits modulo each: 1 halved that often, after adding the modulus where it is odd.
Eight inversesOf(int bits, Eight const& moduli) {
    Eight out;
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
        out[lane] = LargeInteger(1);
        for (int i = 0; i < bits; ++i) {
            if (out[lane][0] != 0)
                out[lane] += moduli[lane];
            out[lane] >>= 1;
        }
    }
    return out;
}

/// Eight moduli in the form that the kernels want.
class Moduli {
  public:
    Moduli(Eight const& moduli, std::size_t blockCount)
        : numbers(moduli), digits(blockCount * limbs::digitsPerBlock), rows(rowsOf(moduli, digits)),
          inverseOfDigit(rowsOf(inversesOf(bitsPerDigit, moduli), digits)),
          inverseOfBlock(rowsOf(inversesOf(limbs::bitsPerBlock, moduli), digits)),
          scratch(limbs::laneKernelScratch(blockCount) / limbs::lanes, Row{}) {
        for (std::size_t lane = 0; lane < limbs::lanes; ++lane)
            negatedInverses.lane[lane] =
                limbs::negatedInverse(rows[0].lane[lane]) & limbs::digitMask;
        context = {blockCount, rows[0].lane, inverseOfDigit[0].lane, inverseOfBlock[0].lane,
                   negatedInverses.lane};
    }

    Rows square(LaneVariant const& variant, Rows y, int times) {
        variant.kernels->square(y[0].lane, context, times, scratch[0].lane);
        return y;
    }

    Rows multiplyDigit(LaneVariant const& variant, Rows y, Row const& factor) {
        variant.kernels->multiplyDigit(y[0].lane, context, factor.lane, scratch[0].lane);
        return y;
    }

    Eight numbers;
    std::size_t digits;

  private:
    Rows rows;
    Rows inverseOfDigit;
    Rows inverseOfBlock;
    Row negatedInverses;
    Rows scratch;
    limbs::LaneModuli context;
};

/// z * 2^bits = product modulo n, and z <= most.
void expectQuotient(LargeInteger const& z, int bits, LargeInteger const& product,
                    LargeInteger const& n, LargeInteger const& most) {
    EXPECT_EQ((z << bits) % n, product % n);
    EXPECT_LE(z, most);
}

/// y below 8 n in each lane.
void expectSquares(Moduli& moduli, Eight const& y) {
    Rows const rows = rowsOf(y, moduli.digits);
    int const bits = bitsPerDigit * static_cast<int>(moduli.digits);
    Rows const expected = digitsOf(moduli.square(laneVariants()[0], rows, 1));
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
        SCOPED_TRACE(testing::Message() << "n = 0x" << moduli.numbers[lane].toString(16)
                                        << "\ny = 0x" << y[lane].toString(16));
        expectQuotient(numberIn(expected, lane), bits, y[lane] * y[lane], moduli.numbers[lane],
                       moduli.numbers[lane] * LargeInteger(7));
    }
    Rows const thrice = digitsOf(
        moduli.square(laneVariants()[0], moduli.square(laneVariants()[0], expected, 1), 1));
    for (LaneVariant const& variant : laneVariants()) {
        EXPECT_EQ(digitsOf(moduli.square(variant, rows, 1)), expected) << variant.name;
        EXPECT_EQ(digitsOf(moduli.square(variant, rows, 3)), thrice) << variant.name;
    }
}

void expectProducts(Moduli& moduli, Eight const& y, Row const& factor) {
    Rows const rows = rowsOf(y, moduli.digits);
    Rows const expected = digitsOf(moduli.multiplyDigit(laneVariants()[0], rows, factor));
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
        LargeInteger const product = y[lane] * integerOf({factor.lane[lane]});
        SCOPED_TRACE(testing::Message() << "n = 0x" << moduli.numbers[lane].toString(16)
                                        << "\nproduct = 0x" << product.toString(16));
        expectQuotient(numberIn(expected, lane), bitsPerDigit, product, moduli.numbers[lane],
                       y[lane] + moduli.numbers[lane]);
    }
    for (LaneVariant const& variant : laneVariants())
        EXPECT_EQ(digitsOf(moduli.multiplyDigit(variant, rows, factor)), expected) << variant.name;
}

/// The largest odd number that R has four bits more than.
LargeInteger largestModulus(std::size_t blocks) {
    return powerOfTwo(limbs::bitsPerBlock * static_cast<int>(blocks) - 4) - LargeInteger(1);
}

LargeInteger anyNumber(Operands& operands, std::size_t lane, LargeInteger const& end) {
    Limbs const limbs =
        operands.make(patterns[lane], static_cast<std::size_t>(end.getHighestBit()) / 64 + 1);
    return integerOf(limbs) % end;
}

/// Every second one the largest below it.
Eight below(Operands& operands, Eight const& ends) {
    Eight out;
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane)
        out[lane] = operands.below(2) != 0 ? ends[lane] - LargeInteger(1)
                                           : anyNumber(operands, lane, ends[lane]);
    return out;
}

Eight timesEight(Eight numbers) {
    for (LargeInteger& number : numbers)
        number <<= 3;
    return numbers;
}

/// A factor below 2^52 in each lane, from smallest to largest.
Row factors(Operands& operands) {
    return {{0, 1, 2, limbs::digitMask, limbs::digitMask - 1, Limb{1} << 51,
             operands.limb() & limbs::digitMask, operands.limb() & 0xFFFF}};
}

TEST(LaneKernels, AreTheFastestThatTheProcessorRunsUnlessChosen) {
    limbs::LaneKernels const* const own =
        limbs::hasIfma() ? &limbs::ifmaLanes : &limbs::portableLanes;
    EXPECT_EQ(&limbs::laneKernels(), own);
    for (LaneVariant const& variant : laneVariants()) {
        UsingLanes const use(variant);
        EXPECT_EQ(&limbs::laneKernels(), variant.kernels);
    }
    EXPECT_EQ(&limbs::laneKernels(), own);
    EXPECT_EQ(limbs::laneKernels().pays, limbs::hasIfma());
}

TEST(LaneKernels, SquareAndMultiplyModuloNumbersOfAllPatterns) {
    Operands operands(120);
    for (std::size_t const blocks : {1U, 2U, 3U, 4U, 5U, 8U}) {
        LargeInteger const end = largestModulus(blocks) + LargeInteger(1);
        for (int round = 0; round < 8; ++round) {
            Eight numbers;
            for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
                numbers[lane] = anyNumber(operands, lane, end);
                numbers[lane].setBit(0);
                numbers[lane].setBit(1);
            }
            Moduli moduli(numbers, blocks);
            Eight const y = below(operands, timesEight(numbers));
            expectSquares(moduli, y);
            expectProducts(moduli, y, factors(operands));
            if (HasFailure())
                return;
        }
    }
}

TEST(LaneKernels, StayBelowTheirBoundsModuloTheLargestNumbers) {
    Operands operands(121);
    for (std::size_t const blocks : {1U, 2U, 4U, 7U}) {
        Eight numbers;
        for (std::size_t lane = 0; lane < limbs::lanes; ++lane)
            numbers[lane] = largestModulus(blocks) - LargeInteger(2 * static_cast<int>(lane));
        Moduli moduli(numbers, blocks);
        Eight y = timesEight(numbers);
        for (LargeInteger& number : y)
            number -= LargeInteger(1);
        expectSquares(moduli, y);
        expectProducts(moduli, y, factors(operands));
    }
}

// The low digit alone decides about the multiple of the modulus that clears a digit.
TEST(LaneKernels, ReduceModuloNumbersWithTheLowestDigitOneAndAllOnes) {
    Operands operands(122);
    for (std::size_t const blocks : {1U, 2U, 3U}) {
        Eight numbers;
        for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
            int const digits = 1 + static_cast<int>(lane % 4);
            LargeInteger const low =
                lane < 4 ? LargeInteger(1) : powerOfTwo(bitsPerDigit * digits) - LargeInteger(1);
            numbers[lane] = (LargeInteger(5) << (bitsPerDigit * digits)) + low;
        }
        Moduli moduli(numbers, blocks);
        Eight const y = below(operands, timesEight(numbers));
        expectSquares(moduli, y);
        expectProducts(moduli, y, factors(operands));
    }
}

// As long as passStrongTests may ask for: the sums of a column are the largest.
TEST(LaneKernels, KeepTheSumsOfTheLongestNumbersInTheirLimbs) {
    constexpr std::size_t blocks = 197;
    Operands operands(123);
    Eight numbers;
    for (std::size_t lane = 0; lane < limbs::lanes; ++lane) {
        numbers[lane] = largestModulus(blocks);
        if (lane % 2 != 0)
            numbers[lane] -= LargeInteger(1) << (1 + static_cast<int>(operands.below(50'000)));
    }
    Moduli moduli(numbers, blocks);
    Eight y = timesEight(numbers);
    for (LargeInteger& number : y)
        number -= LargeInteger(1);
    expectSquares(moduli, y);
}

}  // namespace
