// Text in radix 2, 8, 10 and 16, and the leniency of reading.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

namespace {

using namespace bigint_test;

LargeInteger parse(std::string const& text, int radix) {
    LargeInteger v(-77);
    v.parseString(text, radix);
    return v;
}

TEST(Text, DocumentedExamples) {
    EXPECT_EQ(LargeInteger(255).toString(16), "ff");
    EXPECT_EQ(LargeInteger(-255).toString(16), "-ff");
    EXPECT_EQ(LargeInteger(16).toString(16), "10");
    EXPECT_EQ(LargeInteger(5).toString(2), "101");
    EXPECT_EQ(LargeInteger(8).toString(8), "10");
    EXPECT_EQ(LargeInteger(1000).toString(10), "1000");
    EXPECT_EQ(LargeInteger(-42).toString(10), "-42");
    EXPECT_EQ(LargeInteger(LLONG_MIN).toString(10), "-9223372036854775808");
}

TEST(Text, ZeroIsTheEmptyTextInEveryRadix) {
    LargeInteger stale;
    makeStale(stale, 70);
    for (int radix : {2, 8, 10, 16, 7}) {
        EXPECT_EQ(LargeInteger(0).toString(radix), "");
        EXPECT_EQ(negativeZero().toString(radix), "");
        EXPECT_EQ(stale.toString(radix), "");
    }
}

TEST(Text, OtherRadixesGiveTheEmptyTextAndReadNothing) {
    for (int radix : {INT_MIN, -10, -1, 0, 1, 3, 4, 5, 7, 9, 11, 15, 17, 32, 36, INT_MAX}) {
        EXPECT_EQ(LargeInteger(123).toString(radix), "") << radix;
        EXPECT_TRUE(parse("123", radix).isZero()) << radix;
        EXPECT_FALSE(LargeIntegerPeer::negative(parse("123", radix))) << radix;
    }
}

TEST(Text, ReadingSkipsWhatIsNoDigitOfTheRadix) {
    struct Row {
        char const* text;
        int radix;
        int value;
    };
    Row const rows[] = {
        {"FF", 16, 255},  {"ff", 16, 255},     {"-ff", 16, -255}, {"z9", 10, 9},
        {"0x1F", 16, 31}, {"1 000", 10, 1000}, {"12-3", 10, 123}, {"8", 8, 0},
        {"123", 5, 0},    {"", 16, 0},         {"-", 10, 0},      {"+7", 10, 7},
        {"1a2b", 10, 12}, {"--5", 10, -5},     {" -5", 10, 5},    {"102", 2, 2},
        {"7891", 8, 57},  {"0007", 10, 7},     {"fg", 16, 15},    {"a", 10, 0},
    };
    for (Row const& row : rows)
        EXPECT_EQ(parse(row.text, row.radix), LargeInteger(row.value))
            << '"' << row.text << "\" in radix " << row.radix;
}

TEST(Text, AMinusInFrontIsKeptOnZero) {
    EXPECT_TRUE(LargeIntegerPeer::negative(parse("-0", 10)));
    EXPECT_TRUE(parse("-0", 10).isZero());
    EXPECT_TRUE(LargeIntegerPeer::negative(parse("-123", 5)));
}

TEST(Text, ReadingStopsAtAZeroByte) {
    EXPECT_EQ(parse(std::string("12\0"
                                "34",
                                5),
                    10),
              LargeInteger(12));
    EXPECT_TRUE(parse(std::string("\0"
                                  "12",
                                  3),
                      10)
                    .isZero());
}

TEST(Text, ReadingReplacesTheValueAndReleasesALargeBuffer) {
    LargeInteger v = -powerOfTwo(600);
    v.parseString("f", 16);
    EXPECT_EQ(books(v), (Books{4, 3, false}));
    LargeInteger small;
    small.ensureSize(9);
    small.parseString("f", 16);
    EXPECT_EQ(books(small), (Books{16, 3, false}));
}

TEST(Text, ReadingGrowsDigitByDigit) {
    // The 8th hexadecimal digit makes bound 31; adding it visits word 2: six words.
    EXPECT_EQ(books(parse("fffffff", 16)), (Books{4, 27, false}));
    EXPECT_EQ(books(parse("ffffffff", 16)), (Books{6, 31, false}));
}

TEST(Text, EveryRadixReadsBackWhatItWrites) {
    std::mt19937 random(6);
    for (int round = 0; round < 300; ++round) {
        LargeInteger v;
        for (int i = static_cast<int>(random() % 8); i >= 0; --i)
            v.setBitRangeAsInt(i * 32, 32, static_cast<unsigned int>(random()));
        v.setNegative(random() % 2 == 0);
        for (int radix : {2, 8, 10, 16})
            EXPECT_EQ(parse(v.toString(radix), radix), v) << v.toString(16) << ' ' << radix;
    }
}

TEST(Text, DoesNotChangeTheValueWritten) {
    LargeInteger v(-5);
    makeStale(v, 100);
    (void)v.toString(10);
    (void)v.toString(16);
    EXPECT_EQ(books(v).highestBit, 100);
    EXPECT_EQ(v, LargeInteger(-5));
}

}  // namespace
