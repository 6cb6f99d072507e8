// Text in radix 2, 8, 10 and 16, and the leniency of reading.
#include "PlainDifference.h"

#include "qel/CharFunctions.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <random>

namespace {

using namespace bigint_test;

LargeInteger parse(std::string const& text, int radix) {
    LargeInteger v(-77);
    v.parseString(text, radix);
    return v;
}

constexpr int radixes[] = {2, 8, 10, 16};

/// Empty when the text leaves in a value of this capacity what the plain steps leave.
std::string readingDifference(std::string const& text, int radix, int capacity = 4) {
    LargeInteger fast(-77);
    plain::LargeInteger plain(-77);
    if (capacity > 4) {
        fast.ensureSize(capacity * 2 / 3 - 2);
        plain.ensureSize(capacity * 2 / 3 - 2);
    }
    fast.parseString(text, radix);
    plain.parseString(text, radix);
    return difference(fast, plain);
}

/// Digits of the radix, none of them 0 at the front.
std::string digitsOf(int radix, std::size_t length, std::mt19937& random) {
    std::string digits(length, '1');
    for (char& c : digits)
        c = "0123456789abcdef"[random() % static_cast<unsigned>(radix)];
    if (length != 0 && digits[0] == '0')
        digits[0] = '1';
    return digits;
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
    EXPECT_EQ(representation(v), (Representation{4, 3, false}));
    LargeInteger small;
    small.ensureSize(9);
    small.parseString("f", 16);
    EXPECT_EQ(representation(small), (Representation{16, 3, false}));
}

TEST(Text, ReadingGrowsDigitByDigit) {
    // The 8th hexadecimal digit makes bound 31; adding it visits word 2: six words.
    EXPECT_EQ(representation(parse("fffffff", 16)), (Representation{4, 27, false}));
    EXPECT_EQ(representation(parse("ffffffff", 16)), (Representation{6, 31, false}));
}

TEST(Text, ReadingTakesTheDigitsThatTheTextFunctionsTake) {
    for (int byte = 1; byte < 256; ++byte) {
        char const c = static_cast<char>(byte);
        int const value = qel::CharFunctions::GetHexDigitValue(c);
        for (int radix : radixes) {
            int const expected = value >= 0 && value < radix ? value : 0;
            EXPECT_TRUE(parse({c}, radix).compareAbsolute(LargeInteger(expected)) == 0)
                << byte << " in radix " << radix;
        }
    }
}

TEST(Text, ReadingSkipsWhatIsNoDigitAtEveryPosition) {
    std::mt19937 random(7);
    for (int radix : radixes) {
        char const tooLarge = "0123456789abcdefg"[radix];
        for (std::size_t length : {8U, 16U, 19U, 45U}) {
            std::string const digits = digitsOf(radix, length, random);
            for (std::size_t position = 0; position <= length; ++position) {
                for (char c : {tooLarge, '/', ':', '@', 'G', '`', 'x', '-', ' ', '\x80', '\xFF'}) {
                    std::string text = digits;
                    text.insert(position, 1, c);
                    ASSERT_EQ(readingDifference(text, radix), "") << text << " in radix " << radix;
                    text.insert(random() % text.size(), 1, c);
                    ASSERT_EQ(readingDifference(text, radix), "") << text << " in radix " << radix;
                }
            }
        }
    }
}

TEST(Text, LeadingZerosAreDigitsThatLeaveAZero) {
    std::mt19937 random(8);
    for (int radix : radixes) {
        for (std::size_t zeros = 0; zeros <= 40; ++zeros) {
            for (std::size_t length = 0; length <= 40; ++length) {
                std::string const text = std::string(zeros, '0') + digitsOf(radix, length, random);
                ASSERT_EQ(readingDifference(text, radix), "") << text << " in radix " << radix;
            }
        }
    }
}

TEST(Text, ReadingZerosReplacesTheBufferInRadixTenOnly) {
    LargeInteger wide;
    wide.ensureSize(6);
    ASSERT_EQ(representation(wide), (Representation{12, -1, false}));
    for (int radix : {2, 8, 16}) {
        wide.parseString("000", radix);
        EXPECT_EQ(representation(wide), (Representation{12, -1, false})) << radix;
    }
    wide.parseString("no digit", 10);
    EXPECT_EQ(representation(wide), (Representation{12, -1, false}));
    wide.parseString("000", 10);
    EXPECT_EQ(representation(wide), (Representation{4, -1, false}));
}

TEST(Text, ReadingGrowsAsThePlainStepsDoAtEveryLength) {
    for (int radix : radixes) {
        std::size_t const longest = radix == 10 ? 150 : radix == 2 ? 1700 : 600;
        for (std::size_t length = 1; length <= longest; length += 1 + length / 150) {
            for (char first : {'1', '3', '4', '9', 'F'}) {
                std::string text(length, static_cast<char>('0' + radix / 3));
                text[0] = first;
                ASSERT_EQ(readingDifference(text, radix), "") << text << " in radix " << radix;
            }
        }
    }
}

TEST(Text, ReadingGrowsFromTheCapacityThatAResetKeeps) {
    std::mt19937 random(9);
    for (int capacity = 6; capacity <= 18; capacity += 3) {  // 6, 9, 12, 15; 18 is given back
        for (int radix : radixes) {
            for (std::size_t length :
                 {1U, 20U, 40U, 60U, 80U, 100U, 120U, 140U, 160U, 240U, 480U}) {
                std::string const text = digitsOf(radix, length / (radix == 10 ? 2 : 1), random);
                ASSERT_EQ(readingDifference(text, radix, capacity), "")
                    << text << " in radix " << radix << " from capacity " << capacity;
            }
        }
    }
}

// The capacity after decimal text follows from set bits of the number without its last digit: a
// row of zero bits there delays the growth.
TEST(Text, ReadingDecimalTextWithFewSetBitsGrowsAsThePlainStepsDo) {
    std::mt19937 random(10);
    for (int top = 20; top < 500; top += 9) {
        for (int low = 0; low < 40; low += 13) {
            LargeInteger value;
            value.setBit(top);
            value.setBit(low);
            value.setBit(static_cast<int>(random() % static_cast<unsigned>(top)));
            for (char last : {'0', '9'}) {
                std::string const text = value.toString(10) + last;
                ASSERT_EQ(readingDifference(text, 10), "") << text;
            }
        }
    }
}

TEST(Text, WritesEveryLengthAsThePlainStepsDo) {
    std::mt19937 random(11);
    for (int bits = 1; bits <= 200; ++bits) {
        for (int radix : radixes) {
            std::string const text = (bits % 3 == 0 ? "-1" : "1")
                                     + digitsOf(2, static_cast<std::size_t>(bits) - 1, random);
            LargeInteger fast;
            plain::LargeInteger plain;
            fast.parseString(text, 2);
            plain.parseString(text, 2);
            ASSERT_EQ(fast.toString(radix), plain.toString(radix)) << text << " in " << radix;
        }
    }
}

TEST(Text, EveryRadixReadsBackWhatItWrites) {
    std::mt19937 random(6);
    for (int round = 0; round < 300; ++round) {
        LargeInteger v;
        for (int i = static_cast<int>(random() % 8); i >= 0; --i)
            v.setBitRangeAsInt(i * 32, 32, static_cast<unsigned int>(random()));
        v.setNegative(random() % 2 == 0);
        for (int radix : radixes)
            EXPECT_EQ(parse(v.toString(radix), radix), v) << v.toString(16) << ' ' << radix;
    }
}

TEST(Text, DoesNotChangeTheValueWritten) {
    LargeInteger v(-5);
    makeStale(v, 100);
    (void)v.toString(10);
    (void)v.toString(16);
    EXPECT_EQ(representation(v).highestBit, 100);
    EXPECT_EQ(v, LargeInteger(-5));
}

}  // namespace
