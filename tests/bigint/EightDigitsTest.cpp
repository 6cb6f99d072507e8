// Eight digits at once against one digit at a time.
#include "bigint/limbs/EightDigits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

using namespace qel::limbs;

constexpr char digitTable[] = "0123456789abcdef";

std::string plainDigits(std::uint64_t number, unsigned radix) {
    std::string digits(digitsPerBlock, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number /= radix)
        *digit = digitTable[number % radix];
    return digits;
}

std::string characters(std::uint64_t digits) {
    std::string text(digitsPerBlock, '?');
    storeBlock(text.data(), toCharacters(digits));
    return text;
}

template <int bits>
void splitsLikeDivisions() {
    std::mt19937_64 random(bits);
    std::uint64_t const end = std::uint64_t{1} << 8 * bits;
    for (int round = 0; round < 2000; ++round) {
        std::uint64_t const number = round == 0 ? end - 1 : random() % end;
        ASSERT_EQ(characters(splitBits<bits>(number)), plainDigits(number, 1U << bits)) << number;
    }
}

TEST(EightDigits, NumbersSplitIntoDigitsOfBits) {
    splitsLikeDivisions<1>();
    splitsLikeDivisions<3>();
    splitsLikeDivisions<4>();
}

// Each half of a block goes its own way, so all its values with a few other halves are enough.
TEST(EightDigits, NumbersSplitIntoDecimalDigitsAndJoinAgain) {
    for (std::uint64_t half = 0; half < 10000; ++half) {
        for (std::uint64_t other : {0U, 1U, 4999U, 5000U, 9999U}) {
            for (std::uint64_t number : {half * 10000 + other, other * 10000 + half}) {
                ASSERT_EQ(characters(splitDecimal(number)), plainDigits(number, 10));
                ASSERT_EQ(joinDecimal(splitDecimal(number)), number);
            }
        }
    }
}

TEST(EightDigits, OnlyEightDecimalDigitsCountAsSuch) {
    for (std::size_t position = 0; position < digitsPerBlock; ++position) {
        for (int byte = 0; byte < 256; ++byte) {
            for (char others : {'0', '9'}) {
                std::string text(digitsPerBlock, others);
                text[position] = static_cast<char>(byte);
                EXPECT_EQ(areDecimal(loadBlock(text.data())), byte >= '0' && byte <= '9')
                    << byte << " at " << position;
            }
        }
    }
    EXPECT_FALSE(areDecimal(inEveryByte('\0')));
    EXPECT_FALSE(areDecimal(inEveryByte('\xFF')));
}

}  // namespace
