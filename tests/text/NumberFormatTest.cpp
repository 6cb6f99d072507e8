// Text from numbers.
#include "qel/CharFunctions.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

namespace {

using qel::CharFunctions;

/// The text that `write` leaves in a buffer of exactly the size it needs.
template <typename Write>
std::string inBufferOf(std::size_t length, Write write) {
    std::string buffer(length + 2, '#');
    write(buffer.data());
    EXPECT_EQ(buffer[length], '\0');
    EXPECT_EQ(buffer[length + 1], '#') << "written behind the terminator";
    return buffer.substr(0, length);
}

TEST(NumberFormat, IntegersAreDecimalDigitsBehindTheirSign) {
    EXPECT_EQ(CharFunctions::Int2String(0), "0");
    EXPECT_EQ(CharFunctions::Int2String(-7), "-7");
    EXPECT_EQ(CharFunctions::Int2String(INT_MAX), "2147483647");
    EXPECT_EQ(CharFunctions::Int2String(INT_MIN), "-2147483648");
    EXPECT_EQ(CharFunctions::Long2String(-5), "-5");
    EXPECT_EQ(CharFunctions::Long2String(LONG_MAX), std::to_string(LONG_MAX));
}

TEST(NumberFormat, TheSmallestLongIsWrittenInFull) {
    EXPECT_EQ(CharFunctions::Long2String(LONG_MIN), std::to_string(LONG_MIN));
}

TEST(NumberFormat, UnsignedValuesAboveTheLargestIntComeOutNegative) {
    EXPECT_EQ(CharFunctions::UnsignedInt2String(4294967295U), "-1");
    EXPECT_EQ(CharFunctions::UnsignedInt2String(2147483648U), "-2147483648");
    EXPECT_EQ(CharFunctions::UnsignedInt2String(2147483647U), "2147483647");
    EXPECT_EQ(CharFunctions::UnsignedInt2String(0), "0");
}

TEST(NumberFormat, HexadecimalShowsTheBitsWithoutPadding) {
    EXPECT_EQ(CharFunctions::Int2Hexa(255, true), "FF");
    EXPECT_EQ(CharFunctions::Int2Hexa(255, false), "ff");
    EXPECT_EQ(CharFunctions::Int2Hexa(-1, false), "ffffffff");
    EXPECT_EQ(CharFunctions::Int2Hexa(INT_MIN, true), "80000000");
    EXPECT_EQ(CharFunctions::Int2Hexa(0, true), "0");
}

TEST(NumberFormat, IntegersAgreeWithPrintf) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 100000; ++i) {
        auto const bits = random() >> random() % 64;
        auto const longValue = static_cast<long>(random() % 2 == 0 ? bits : 0 - bits);
        auto const value = static_cast<int>(longValue);
        SCOPED_TRACE(longValue);
        char expected[32];
        std::snprintf(expected, sizeof expected, "%ld", longValue);
        ASSERT_EQ(CharFunctions::Long2String(longValue), expected);
        std::snprintf(expected, sizeof expected, "%d", value);
        ASSERT_EQ(CharFunctions::Int2String(value), expected);
        ASSERT_EQ(CharFunctions::UnsignedInt2String(static_cast<unsigned int>(value)), expected);
        std::snprintf(expected, sizeof expected, "%x", static_cast<unsigned int>(value));
        ASSERT_EQ(CharFunctions::Int2Hexa(value, false), expected);
        std::snprintf(expected, sizeof expected, "%X", static_cast<unsigned int>(value));
        ASSERT_EQ(CharFunctions::Int2Hexa(value, true), expected);
    }
}

TEST(NumberFormat, CharFormsWriteTheTextAndItsTerminatorAndNothingElse) {
    EXPECT_EQ(inBufferOf(11, [](char* out) { CharFunctions::Int2Char(INT_MIN, out); }),
              "-2147483648");
    EXPECT_EQ(inBufferOf(1, [](char* out) { CharFunctions::Int2Char(0, out); }), "0");
    EXPECT_EQ(inBufferOf(2, [](char* out) { CharFunctions::UnsignedInt2Char(UINT_MAX, out); }),
              "-1");
    std::string const smallest = std::to_string(LONG_MIN);
    EXPECT_EQ(
        inBufferOf(smallest.size(), [](char* out) { CharFunctions::Long2Char(LONG_MIN, out); }),
        smallest);
    EXPECT_EQ(inBufferOf(4, [](char* out) { CharFunctions::Float2Char(1.5, out, "%.2f"); }),
              "1.50");
    EXPECT_EQ(inBufferOf(3, [](char* out) { CharFunctions::Float2Char(0.1F, out, "%g"); }), "0.1");
    EXPECT_EQ(inBufferOf(38, [](char* out) { CharFunctions::Float2Char(1e30, out, "%f"); }),
              "1000000000000000019884624838656.000000");
}

TEST(NumberFormat, FloatsFollowTheCallersFormat) {
    EXPECT_EQ(CharFunctions::Float2String(1.5, "%.2f"), "1.50");
    EXPECT_EQ(CharFunctions::Float2String(0.1F, "%g"), "0.1");
    EXPECT_EQ(CharFunctions::Float2String(0.25, "<%8.3e>"), "<2.500e-01>");
    EXPECT_EQ(CharFunctions::Float2String(-0.0, "%g"), "-0");
    EXPECT_EQ(CharFunctions::Float2String(HUGE_VAL, "%f"), "inf");
    EXPECT_EQ(CharFunctions::Float2String(1.0, "no conversion"), "no conversion");
    EXPECT_EQ(CharFunctions::Float2String(1.0, ""), "");
}

TEST(NumberFormat, ASingleIsWidenedBeforeItIsWritten) {
    EXPECT_EQ(CharFunctions::Float2String(0.1F, "%.17g"), "0.10000000149011612");
    EXPECT_EQ(CharFunctions::Float2String(0.1, "%.17g"), "0.10000000000000001");
}

TEST(NumberFormat, LongTextsOfFloatsAreWrittenInFull) {
    EXPECT_EQ(CharFunctions::Float2String(1e30, "%f"), "1000000000000000019884624838656.000000");
    for (int const width : {18, 19, 20, 62, 63, 64, 65, 1000}) {
        std::string const format = '%' + std::to_string(width) + ".1f";
        EXPECT_EQ(CharFunctions::Float2String(2.5, format.c_str()),
                  std::string(static_cast<std::size_t>(width) - 3, ' ') + "2.5");
    }
}

TEST(NumberFormat, AFormatThatTheCLibraryRefusesGivesNothing) {
    char const* const tooWide = "%2147483648f";
    EXPECT_EQ(CharFunctions::Float2String(1.5, tooWide), "");
    EXPECT_EQ(CharFunctions::Float2String(1.5F, tooWide), "");
    EXPECT_EQ(inBufferOf(0, [=](char* out) { CharFunctions::Float2Char(1.5, out, tooWide); }), "");
}

}  // namespace
