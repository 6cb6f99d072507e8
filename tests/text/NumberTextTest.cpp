// Numbers from text: what counts as one, and its value to the bit.
#include "LongNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using qel::CharFunctions;
using namespace number_text;

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(NumberText, DecimalNumbers) {
    for (char const* s : {"12", "0", "-1.5e-3", "+1", ".5", "5.", "-.5", "1E5", "1e+5", "1e-5",
                          "1e.5", "00", "1e5."})
        EXPECT_TRUE(CharFunctions::IsNumber(s)) << s;
}

TEST(NumberText, TextsThatAreNoNumbers) {
    for (char const* s : {"",     "+",    "-",    ".",   "1e",   "e5",   "1.2.3", "+-1",   " 1",
                          "1 ",   "1\n",  "0X1F", "0xZ", "0x1g", "x1",   "1e5e",  "1e5e6", "--1",
                          "1-2-", "1e--", "1e+",  "1e.", "abc",  "12a",  "-.e",   ".e1",   "+.",
                          "1,5",  "inf",  "nan",  "0x-", "0x 1", "-0x1", "1\xE9"})
        EXPECT_FALSE(CharFunctions::IsNumber(s)) << s;
}

TEST(NumberText, ASignMayStandAnywhere) {
    for (char const* s : {"12-", "1-2", "1+2", "5.-", "1-.5", "1e5-", "1-e-5", "1e5-3"})
        EXPECT_TRUE(CharFunctions::IsNumber(s)) << s;
}

TEST(NumberText, AnExponentMayHaveItsOwnPointAndSign) {
    EXPECT_TRUE(CharFunctions::IsNumber("1e5.3"));
    EXPECT_TRUE(CharFunctions::IsNumber("-1.5e-5.3"));
    EXPECT_FALSE(CharFunctions::IsNumber("1e5.3.1"));
}

TEST(NumberText, HexadecimalNumbersNeedALowerCasePrefixAndNoDigit) {
    for (char const* s : {"0x1f", "0x", "0xABCDEFabcdef0123456789", "0xe"})
        EXPECT_TRUE(CharFunctions::IsNumber(s)) << s;
}

TEST(NumberText, EveryShortTextIsJudgedAsThePlainStepsDo) {
    constexpr std::string_view alphabet = "1-.e ";
    std::string s;
    auto const extend = [&](auto const& self) -> void {
        EXPECT_EQ(CharFunctions::IsNumber(s.c_str()), model::isDecimalNumber(s)) << '"' << s << '"';
        if (s.size() == 6)
            return;
        for (char const c : alphabet) {
            s.push_back(c);
            self(self);
            s.pop_back();
        }
    };
    extend(extend);
}

TEST(NumberText, IntegersMayBeWrittenInAnyWay) {
    for (char const* s : {"2", "2.0", "1e3", "0x10", "-0", "0x", "5-", "1-2", "20e-1.0"})
        EXPECT_TRUE(CharFunctions::IsInt(s)) << s;
    for (char const* s : {"2.5", "", "abc", "1 ", "1e-1", "25e-1.0", "20e-1.0e"})
        EXPECT_FALSE(CharFunctions::IsInt(s)) << s;
}

TEST(NumberText, IntsReachFromTheSmallestToTheLargest) {
    EXPECT_TRUE(CharFunctions::IsInt("2147483647"));
    EXPECT_TRUE(CharFunctions::IsInt("-2147483648"));
    for (char const* s : {"2147483648", "-2147483649", "3000000000", "2147483647.5",
                          "-2147483648.5", "0xffffffff", "1e300", "-1e300", "9223372036854775808"})
        EXPECT_FALSE(CharFunctions::IsInt(s)) << s;
}

TEST(NumberText, UnsignedIntsReachFromZeroToTheLargest) {
    for (char const* s : {"4294967295", "7", "0", "-0", "0xffffffff", "1e9", "7.0"})
        EXPECT_TRUE(CharFunctions::IsUnsignedInt(s)) << s;
    for (char const* s : {"4294967296", "-1", "0.5", "4294967295.5", "-0.5", "1e300", "", "abc",
                          "18446744073709551616", "9223372036854775808"})
        EXPECT_FALSE(CharFunctions::IsUnsignedInt(s)) << s;
}

TEST(NumberText, InfinitiesAndNaNAreNoIntegers) {
    EXPECT_EQ(CharFunctions::AsciiToDouble("1e999"), infinity);
    EXPECT_TRUE(std::isnan(CharFunctions::AsciiToDouble("0e999")));
    for (char const* s : {"1e999", "-1e999", "0e999"}) {
        EXPECT_TRUE(CharFunctions::IsNumber(s)) << s;
        EXPECT_FALSE(CharFunctions::IsInt(s)) << s;
        EXPECT_FALSE(CharFunctions::IsUnsignedInt(s)) << s;
    }
}

struct ValueCase {
    char const* text;
    double value;
};

TEST(NumberText, ValuesToTheBit) {
    for (ValueCase const& c : {
             ValueCase{"-12.5", -12.5},
             {"5-", -5.0},
             {"1-2", -12.0},
             {"1-2+", 12.0},
             {"2e3", 2000.0},
             {"0xff", 255.0},
             {"0xFFg", 255.0},
             {"0x", 0.0},
             {"0xg", 0.0},
             {"abc", 0.0},
             {"", 0.0},
             {" 5", 0.0},
             {"12abc", 12.0},
             {"1e2e3", 100.0},
             {"25e-1.0e", 2.5},
             {"1e", 1.0},
             {"1.2.5", 1.25},
             {"-", -0.0},
             {"-0", -0.0},
             {"0X1F", 0.0},
             {"1e2-", 0.01},
             {"1e0.5", 0x1.94c583ada5b53p+1},
             {"e5", 0.0},
             {"+7", 7.0},
             {"0x10000000000000000", 0x1p64},
         })
        EXPECT_EQ(bitsOf(CharFunctions::AsciiToDouble(c.text)), bitsOf(c.value)) << c.text;
}

TEST(NumberText, FractionsAddTheirDigitsTimesPowersOfATenth) {
    double const volatile tenth = 0.1;
    EXPECT_EQ(CharFunctions::AsciiToDouble("0.3"), 3 * tenth);
    EXPECT_NE(CharFunctions::AsciiToDouble("0.3"), 0.3);
}

TEST(NumberText, ANegativeExponentGoesThroughAPowerOfTen) {
    EXPECT_EQ(CharFunctions::AsciiToDouble("1e-2"), model::power(10.0, -2.0));
}

TEST(NumberText, AHugeExponentGivesInfinityAndASmallOneZero) {
    EXPECT_EQ(CharFunctions::AsciiToDouble("-1e400"), -infinity);
    EXPECT_EQ(CharFunctions::AsciiToDouble("1e-400"), 0.0);
    EXPECT_EQ(CharFunctions::AsciiToDouble(std::string(400, '9').c_str()), infinity);
}

/// Digits, and with them at least one of everything that means something in a number.
std::string randomNumber(std::mt19937& random) {
    std::string text(random() % 24, ' ');
    for (char& c : text)
        c = "01234567890123456789..-+eE "[random() % 27];
    return text;
}

TEST(NumberText, RandomTextsHaveTheValueOfThePlainStepsToTheBit) {
    std::mt19937 random(1);
    for (int i = 0; i < 300000; ++i) {
        std::string const s = randomNumber(random);
        ASSERT_EQ(bitsOf(CharFunctions::AsciiToDouble(s.c_str())),
                  bitsOf(model::decimalValue(s.c_str())))
            << '"' << s << '"';
    }
}

TEST(NumberText, LongTextsHaveTheValueOfThePlainSteps) {
    std::mt19937 random(2);
    for (int i = 0; i < 2000; ++i)
        expectPlainValue(randomLongNumber(random));
}

TEST(NumberText, WholeNumbersAround2To53HaveTheValueOfThePlainSteps) {
    for (char const* s :
         {"900719925474098", "9007199254740989", "900719925474099", "9007199254740990",
          "9007199254740992", "9007199254740993", "9007199254740995", "90071992547409931",
          "-9007199254740993", "90071992547-40993", "9007199254740993.", "9007199254740993.5",
          "0x1fffffffffffff", "0x20000000000000", "0x20000000000001", "0x3ffffffffffffe",
          "0x3fffffffffffff", "0x200000000000011"})
        expectPlainValue(s);
}

TEST(NumberText, HexadecimalTextsOfAllLengthsHaveTheValueOfThePlainSteps) {
    for (std::size_t length = 0; length < 300; ++length) {
        expectPlainValue("0x" + std::string(length, 'f'));
        expectPlainValue("0x1" + std::string(length, '0') + "g");
    }
}

TEST(NumberText, DigitsBehindInfinityAndBehindTheLastFractionAreStillPartOfTheText) {
    std::string const nines(400, '9');
    expectPlainValue(nines + "-");
    expectPlainValue('.' + nines + "e2");
    expectPlainValue('1' + nines + "e-500");
    EXPECT_TRUE(CharFunctions::IsNumber((nines + '.' + nines).c_str()));
    EXPECT_FALSE(CharFunctions::IsInt(nines.c_str()));
    EXPECT_TRUE(CharFunctions::IsInt(("7." + std::string(400, '0')).c_str()));
}

TEST(NumberText, RandomTextsAreIntegersWhereThePlainStepsSaySo) {
    constexpr double highest = std::numeric_limits<unsigned int>::max();
    std::mt19937 random(3);
    for (int i = 0; i < 300000; ++i) {
        std::string s(random() % 6, ' ');
        for (char& c : s)
            c = "0123-+.eExf "[random() % 12];
        if (random() % 2 == 0)
            s = "21474836" + s;
        ASSERT_EQ(CharFunctions::IsNumber(s.c_str()), model::isNumber(s)) << s;
        ASSERT_EQ(CharFunctions::IsInt(s.c_str()), model::isWholeNumber(s, -0x1p31, 0x1p31 - 1))
            << s;
        ASSERT_EQ(CharFunctions::IsUnsignedInt(s.c_str()), model::isWholeNumber(s, 0, highest))
            << s;
    }
}

TEST(NumberText, PowersOfTenAreThoseOfTheCLibrary) {
    for (int exponent = -330; exponent <= 310; ++exponent) {
        std::string const s = "1e" + std::to_string(exponent);
        ASSERT_EQ(bitsOf(CharFunctions::AsciiToDouble(s.c_str())),
                  bitsOf(model::power(10.0, exponent)))
            << s;
    }
}

TEST(NumberText, FloatsAreRoundedDoubles) {
    EXPECT_EQ(CharFunctions::AsciiToFloat("0.1"), 0.1F);
    EXPECT_EQ(CharFunctions::AsciiToFloat("16777217"), 16777216.0F);
    EXPECT_EQ(CharFunctions::AsciiToFloat("5-"), -5.0F);
    EXPECT_EQ(CharFunctions::AsciiToFloat("1e39"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(CharFunctions::GetFloatValue("16777217"), 16777216.0F);
    EXPECT_EQ(CharFunctions::GetFloatValue("-1e39"), -std::numeric_limits<float>::infinity());
}

TEST(NumberText, ThePlainGettersAreTheCLibrarys) {
    EXPECT_EQ(CharFunctions::GetDoubleValue("0.3"), 0.3);
    EXPECT_EQ(CharFunctions::GetDoubleValue(" 5"), 5.0);
    EXPECT_EQ(CharFunctions::GetDoubleValue("5-"), 5.0);
    EXPECT_EQ(CharFunctions::GetDoubleValue("abc"), 0.0);
    EXPECT_EQ(CharFunctions::GetFloatValue("0.3"), 0.3F);
    EXPECT_EQ(CharFunctions::GetIntValue(" 12abc"), 12);
    EXPECT_EQ(CharFunctions::GetIntValue("-7.9"), -7);
    EXPECT_EQ(CharFunctions::GetIntValue("0x10"), 0);
    EXPECT_EQ(CharFunctions::GetIntValue(""), 0);
}

}  // namespace
