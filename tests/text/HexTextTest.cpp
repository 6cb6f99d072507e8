// The hexadecimal text of a byte string, and back.
#include "qel/CharFunctions.h"

#include "model/PlainTextFunctions.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

namespace {

using qel::CharFunctions;

TEST(HexText, DigitsAreNotPadded) {
    EXPECT_EQ(CharFunctions::AsciiToHexaString("A\n", false), "41a");
    EXPECT_EQ(CharFunctions::AsciiToHexaString("\x01\x0F\x10\x7F", false), "1f107f");
    EXPECT_EQ(CharFunctions::AsciiToHexaString("", false), "");
    EXPECT_EQ(CharFunctions::AsciiToHexaString("", true), "");
}

TEST(HexText, ExtendedBytesAreSignExtendedToEightDigits) {
    EXPECT_EQ(CharFunctions::AsciiToHexaString("\xE9", false), "ffffffe9");
    EXPECT_EQ(CharFunctions::AsciiToHexaString("\xE9", true), "FFFFFFE9");
    EXPECT_EQ(CharFunctions::AsciiToHexaString("\x80\xFF", false), "ffffff80ffffffff");
}

TEST(HexText, UpperCaseChangesTheLetters) {
    EXPECT_EQ(CharFunctions::AsciiToHexaString("z", true), "7A");
    EXPECT_EQ(CharFunctions::AsciiToHexaString("z", false), "7a");
}

TEST(HexText, EveryByteIsWrittenAsASignedIntegerIs) {
    for (int byte = 1; byte < 256; ++byte) {
        char expected[16];
        std::snprintf(expected, sizeof expected, "%x",
                      static_cast<unsigned int>(byte < 128 ? byte : byte - 256));
        std::string const s(1, static_cast<char>(byte));
        EXPECT_EQ(CharFunctions::AsciiToHexaString(s.c_str(), false), expected);
    }
}

TEST(HexText, PairsOfEitherCaseAreRead) {
    EXPECT_EQ(CharFunctions::HexaStringToAscii("414243"), "ABC");
    EXPECT_EQ(CharFunctions::HexaStringToAscii("7a7A"), "zz");
    EXPECT_EQ(CharFunctions::HexaStringToAscii("fFE9"), "\xFF\xE9");
    EXPECT_EQ(CharFunctions::HexaStringToAscii("410042"), std::string("A\0B", 3));
    EXPECT_EQ(CharFunctions::HexaStringToAscii(""), "");
}

TEST(HexText, AnOddLengthGivesNothing) {
    EXPECT_EQ(CharFunctions::HexaStringToAscii("4142a"), "");
    EXPECT_EQ(CharFunctions::HexaStringToAscii("4"), "");
}

TEST(HexText, ABadDigitAnywhereGivesNothingAtAll) {
    for (char const* hex : {"41zz", "zz41", "4g41", "g441", "4 41", "0x41", "41\xE9\xE9"})
        EXPECT_EQ(CharFunctions::HexaStringToAscii(hex), "") << hex;
}

TEST(HexText, ReadingUndoesWritingForBytes16To127Only) {
    for (int byte = 1; byte < 256; ++byte) {
        std::string const s(1, static_cast<char>(byte));
        for (bool const upperCase : {false, true}) {
            std::string const hex = CharFunctions::AsciiToHexaString(s.c_str(), upperCase);
            EXPECT_EQ(CharFunctions::HexaStringToAscii(hex.c_str()) == s, byte >= 16 && byte < 128)
                << byte;
        }
    }
}

TEST(HexText, TextsOfAllLengthsAreWrittenAsThePlainStepsDo) {
    std::mt19937 random(1);
    for (std::size_t length = 0; length < 200; ++length) {
        std::string s(length, ' ');
        for (char& c : s)
            c = static_cast<char>(1 + random() % 255);
        for (bool const upperCase : {false, true})
            ASSERT_EQ(CharFunctions::AsciiToHexaString(s.c_str(), upperCase),
                      model::hexText(s, upperCase))
                << testing::PrintToString(s);
    }
}

TEST(HexText, EveryPairOfBytesIsReadOrRefused) {
    for (int high = 1; high < 256; ++high) {
        for (int low = 1; low < 256; ++low) {
            std::string const hex = {'4', '1', static_cast<char>(high), static_cast<char>(low)};
            ASSERT_EQ(CharFunctions::HexaStringToAscii(hex.c_str()), model::bytesOfHexText(hex))
                << high << " and " << low;
        }
    }
}

}  // namespace
