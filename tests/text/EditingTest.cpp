// Building new text: joining, cutting, padding, reversing, trimming.
#include "qel/CharFunctions.h"

#include "model/PlainTextFunctions.h"

#include <gtest/gtest.h>

#include <cctype>
#include <climits>
#include <string>

namespace {

using qel::CharFunctions;

constexpr char const* none = nullptr;

TEST(Editing, ConcatenateJoinsInOrder) {
    EXPECT_EQ(CharFunctions::Concatenate("ab", "cd"), "abcd");
    EXPECT_EQ(CharFunctions::Concatenate("", "cd"), "cd");
    EXPECT_EQ(CharFunctions::Concatenate("ab", ""), "ab");
    EXPECT_EQ(CharFunctions::Concatenate("", ""), "");
}

TEST(Editing, SubStrIsClippedAtTheEnd) {
    EXPECT_EQ(CharFunctions::SubStr("hello", 1, 3), "ell");
    EXPECT_EQ(CharFunctions::SubStr("hello", 0, 5), "hello");
    EXPECT_EQ(CharFunctions::SubStr("hello", 3, 100), "lo");
    EXPECT_EQ(CharFunctions::SubStr("hello", 3, UINT_MAX), "lo");
    EXPECT_EQ(CharFunctions::SubStr("hello", 2, 0), "");
    EXPECT_EQ(CharFunctions::SubStr("hello", 5, 1), "");
    EXPECT_EQ(CharFunctions::SubStr("", 0, 1), "");
}

TEST(EditingDeathTest, SubStrFromBeyondTheEndEndsTheProcess) {
    EXPECT_DEATH((void)CharFunctions::SubStr("hello", 6, 1), "");
    EXPECT_DEATH((void)CharFunctions::SubStr("", 1, 0), "");
}

TEST(EditingDeathTest, NullEndsTheProcess) {
    EXPECT_DEATH((void)CharFunctions::Concatenate(none, "a"), "");
    EXPECT_DEATH((void)CharFunctions::Concatenate("a", none), "");
    EXPECT_DEATH((void)CharFunctions::SubStr(none, 0, 0), "");
    EXPECT_DEATH((void)CharFunctions::PadLeftWith(none, 1, ' '), "");
    EXPECT_DEATH((void)CharFunctions::PadWith(none, 1, ' '), "");
    EXPECT_DEATH((void)CharFunctions::Reverse(none), "");
    EXPECT_DEATH((void)CharFunctions::RemoveLeadingSpaces(none), "");
    EXPECT_DEATH((void)CharFunctions::RemoveTrailingSpaces(none), "");
    EXPECT_DEATH((void)CharFunctions::RemoveLeadingAndTrailingSpaces(none), "");
}

TEST(Editing, PadLeftWithFillsInFrontUpToTheWidth) {
    EXPECT_EQ(CharFunctions::PadLeftWith("7", 3, '0'), "007");
    EXPECT_EQ(CharFunctions::PadLeftWith("", 2, '\xE9'), "\xE9\xE9");
    EXPECT_EQ(CharFunctions::PadLeftWith("ab", 4, '\0'), std::string("\0\0ab", 4));
}

TEST(Editing, PadWithFillsBehindUpToTheWidth) {
    EXPECT_EQ(CharFunctions::PadWith("ab", 4, '.'), "ab..");
    EXPECT_EQ(CharFunctions::PadWith("", 2, '.'), "..");
}

TEST(Editing, PaddingNeverCutsAndLeavesTheExactWidthAlone) {
    for (unsigned int const width : {0U, 2U, 3U, 4U}) {
        EXPECT_EQ(CharFunctions::PadLeftWith("abcd", width, '0'), "abcd") << width;
        EXPECT_EQ(CharFunctions::PadWith("abcd", width, '0'), "abcd") << width;
    }
    EXPECT_EQ(CharFunctions::PadLeftWith("abcd", 5, '0'), "0abcd");
    EXPECT_EQ(CharFunctions::PadWith("abcd", 5, '0'), "abcd0");
}

TEST(Editing, ReverseGoesByteByByte) {
    EXPECT_EQ(CharFunctions::Reverse("abc"), "cba");
    EXPECT_EQ(CharFunctions::Reverse("caf\xC3\xA9"), "\xA9\xC3"
                                                     "fac");
    EXPECT_EQ(CharFunctions::Reverse("a"), "a");
    EXPECT_EQ(CharFunctions::Reverse(""), "");
}

TEST(Editing, ReverseTakesTextsOfAllLengths) {
    std::string text;
    for (int length = 0; length < 80; ++length) {
        EXPECT_EQ(CharFunctions::Reverse(text.c_str()), model::reverse(text));
        text += static_cast<char>('0' + length);
    }
}

TEST(Editing, TrimmingTakesItsSideOnly) {
    EXPECT_EQ(CharFunctions::RemoveLeadingSpaces(" \t a b \n"), "a b \n");
    EXPECT_EQ(CharFunctions::RemoveTrailingSpaces(" \t a b \n"), " \t a b");
    EXPECT_EQ(CharFunctions::RemoveLeadingAndTrailingSpaces(" \t a b \n"), "a b");
    EXPECT_EQ(CharFunctions::RemoveLeadingAndTrailingSpaces("a b"), "a b");
}

TEST(Editing, TrimmingWhiteSpaceOnlyGivesNothing) {
    for (char const* s : {"", " ", "   ", "\v\f\r\n\t "}) {
        EXPECT_EQ(CharFunctions::RemoveLeadingSpaces(s), "");
        EXPECT_EQ(CharFunctions::RemoveTrailingSpaces(s), "");
        EXPECT_EQ(CharFunctions::RemoveLeadingAndTrailingSpaces(s), "");
    }
}

TEST(Editing, WhiteSpaceIsThatOfTheCLibraryForEveryByte) {
    for (int byte = 1; byte < 256; ++byte) {
        std::string const space(1, static_cast<char>(byte));
        std::string const text = space + 'x' + space;
        bool const isSpace = std::isspace(byte) != 0;
        EXPECT_EQ(CharFunctions::RemoveLeadingSpaces(text.c_str()), isSpace ? "x" + space : text)
            << byte;
        EXPECT_EQ(CharFunctions::RemoveTrailingSpaces(text.c_str()), isSpace ? space + "x" : text)
            << byte;
        EXPECT_EQ(CharFunctions::RemoveLeadingAndTrailingSpaces(text.c_str()), isSpace ? "x" : text)
            << byte;
    }
}

}  // namespace
