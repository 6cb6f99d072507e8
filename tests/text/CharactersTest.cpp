// Single characters: classes, case, hexadecimal digits.
#include "qel/CharFunctions.h"

#include "model/PlainTextFunctions.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using qel::CharFunctions;

constexpr int byteCount = 256;

/// Runs `check` with every byte, and says which one failed.
template <typename Check>
void forEveryByte(Check check) {
    for (int byte = 0; byte < byteCount; ++byte) {
        SCOPED_TRACE("byte " + std::to_string(byte));
        check(byte, static_cast<char>(byte));
    }
}

bool isWithin(int byte, char first, char last) {
    return byte >= first && byte <= last;
}

TEST(Characters, ClassesAreTheAsciiRangesOfAllBytes) {
    forEveryByte([](int byte, char c) {
        bool const digit = isWithin(byte, '0', '9');
        bool const lower = isWithin(byte, 'a', 'z');
        bool const upper = isWithin(byte, 'A', 'Z');
        EXPECT_EQ(CharFunctions::IsDigit(c), digit);
        EXPECT_EQ(CharFunctions::IsLetter(c), lower || upper);
        EXPECT_EQ(CharFunctions::IsLetterOrDigit(c), digit || lower || upper);
        EXPECT_EQ(CharFunctions::IsLowerCase(c), lower);
        EXPECT_EQ(CharFunctions::IsUpperCase(c), upper);
    });
}

TEST(Characters, Byte233IsNoLetter) {
    EXPECT_FALSE(CharFunctions::IsLetter(static_cast<char>(233)));
}

TEST(Characters, OnlyAsciiLettersChangeCase) {
    forEveryByte([](int byte, char c) {
        int const upper = isWithin(byte, 'a', 'z') ? byte - 32 : byte;
        int const lower = isWithin(byte, 'A', 'Z') ? byte + 32 : byte;
        EXPECT_EQ(CharFunctions::ToUpperCase(c), static_cast<char>(upper));
        EXPECT_EQ(CharFunctions::ToLowerCase(c), static_cast<char>(lower));
    });
}

TEST(Characters, StringsChangeCaseByteByByteAndKeepExtendedBytes) {
    EXPECT_EQ(CharFunctions::ToUpperCase("a\xE9z"), "A\xE9Z");
    EXPECT_EQ(CharFunctions::ToLowerCase("A\xC9Z[1"), "a\xC9z[1");
    EXPECT_EQ(CharFunctions::ToUpperCase(""), "");
    EXPECT_EQ(CharFunctions::ToLowerCase(""), "");
}

TEST(Characters, EveryByteOfTextsOfAllLengthsChangesCase) {
    std::string allBytes;
    for (int byte = 1; byte < byteCount; ++byte)
        allBytes += static_cast<char>(byte);
    for (std::size_t length = 0; length <= allBytes.size(); ++length) {
        std::string const text = allBytes.substr(allBytes.size() - length);
        EXPECT_EQ(CharFunctions::ToUpperCase(text.c_str()), model::upperCase(text)) << length;
        EXPECT_EQ(CharFunctions::ToLowerCase(text.c_str()), model::lowerCase(text)) << length;
    }
}

TEST(Characters, HexDigitValueOfEveryByte) {
    forEveryByte([](int byte, char c) {
        std::size_t const lower = std::string_view("0123456789abcdef").find(c);
        std::size_t const upper = std::string_view("0123456789ABCDEF").find(c);
        std::size_t const value = lower != std::string_view::npos ? lower : upper;
        int const expected = value == std::string_view::npos ? -1 : static_cast<int>(value);
        EXPECT_EQ(CharFunctions::GetHexDigitValue(c), expected) << byte;
    });
    EXPECT_EQ(CharFunctions::GetHexDigitValue('G'), -1);
}

TEST(Characters, HexaToIntJoinsTwoDigitsAndRefusesOthers) {
    EXPECT_EQ(CharFunctions::HexaToInt('f', 'F'), 255);
    EXPECT_EQ(CharFunctions::HexaToInt('0', '0'), 0);
    EXPECT_EQ(CharFunctions::HexaToInt('1', 'a'), 26);
    EXPECT_EQ(CharFunctions::HexaToInt('g', '0'), -1);
    EXPECT_EQ(CharFunctions::HexaToInt('0', 'g'), -1);
    EXPECT_EQ(CharFunctions::HexaToInt('g', 'g'), -1);
}

}  // namespace
