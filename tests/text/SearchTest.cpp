// What a string holds: emptiness, counts, positions, prefixes and suffixes.
#include "qel/CharFunctions.h"

#include "model/PlainTextFunctions.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using qel::CharFunctions;

constexpr char const* none = nullptr;

TEST(Search, EmptinessAndLengthGoByTheFirstZeroByte) {
    EXPECT_TRUE(CharFunctions::IsEmpty(""));
    EXPECT_FALSE(CharFunctions::IsEmpty(" "));
    EXPECT_EQ(CharFunctions::Length(""), 0U);
    EXPECT_EQ(CharFunctions::Length("ab\0c"), 2U);
    EXPECT_EQ(CharFunctions::Length(std::string(100000, 'x').c_str()), 100000U);
}

TEST(Search, StartsWithDigitLooksAtTheFirstByteOnly) {
    EXPECT_TRUE(CharFunctions::StartsWithDigit("0x"));
    EXPECT_TRUE(CharFunctions::StartsWithDigit("9"));
    EXPECT_FALSE(CharFunctions::StartsWithDigit("x0"));
    EXPECT_FALSE(CharFunctions::StartsWithDigit(""));
    EXPECT_FALSE(CharFunctions::StartsWithDigit(none));
}

TEST(Search, ExtendedBytesStartAt128) {
    EXPECT_TRUE(CharFunctions::ContainsExtendedAsciiCharacters("caf\xE9"));
    EXPECT_TRUE(CharFunctions::ContainsExtendedAsciiCharacters("\x80"));
    EXPECT_FALSE(CharFunctions::ContainsExtendedAsciiCharacters("\x7F~"));
    EXPECT_FALSE(CharFunctions::ContainsExtendedAsciiCharacters(""));
}

TEST(Search, CountsBytesButNeverTheTerminator) {
    EXPECT_EQ(CharFunctions::CountOccurence("banana", 'a'), 3U);
    EXPECT_EQ(CharFunctions::CountOccurence("banana", 'x'), 0U);
    EXPECT_EQ(CharFunctions::CountOccurence("banana", '\0'), 0U);
    EXPECT_EQ(CharFunctions::CountOccurence("", 'a'), 0U);
    EXPECT_EQ(CharFunctions::CountOccurence(none, 'a'), 0U);
    EXPECT_EQ(CharFunctions::CountOccurence("\xE9\xE9", '\xE9'), 2U);
}

TEST(Search, BooleanWordsAreExactlyEight) {
    for (char const* word : {"True", "true", "TRUE", "False", "false", "FALSE", "0", "1"})
        EXPECT_TRUE(CharFunctions::IsBoolean(word)) << word;
    for (char const* word : {"yes", "", " true", "true ", "tRUE", "fALSE", "2", "00", "01", "T"})
        EXPECT_FALSE(CharFunctions::IsBoolean(word)) << word;
}

TEST(Search, IndexOfSearchesForCharactersOfASetNotForAWord) {
    EXPECT_EQ(CharFunctions::IndexOfFirstOccurence("path/to\\x", "/\\"), 4);
    EXPECT_EQ(CharFunctions::IndexOfLastOccurence("path/to\\x", "/\\"), 7);
    EXPECT_EQ(CharFunctions::IndexOfFirstOccurence("abc", "cb"), 1);
    EXPECT_EQ(CharFunctions::IndexOfLastOccurence("abc", "ab"), 1);
}

TEST(Search, IndexOfGivesMinusOneWhenTheSetIsAbsentOrEmpty) {
    for (char const* s : {"", "abc"}) {
        for (char const* set : {"", "xyz"}) {
            EXPECT_EQ(CharFunctions::IndexOfFirstOccurence(s, set), -1) << s << ',' << set;
            EXPECT_EQ(CharFunctions::IndexOfLastOccurence(s, set), -1) << s << ',' << set;
        }
    }
}

TEST(Search, ContainsRefusesTheEmptyAndTheNullPart) {
    EXPECT_TRUE(CharFunctions::Contains("abc", "bc"));
    EXPECT_TRUE(CharFunctions::Contains("abc", "abc"));
    EXPECT_FALSE(CharFunctions::Contains("abc", "abcd"));
    EXPECT_FALSE(CharFunctions::Contains("abc", "cb"));
    EXPECT_FALSE(CharFunctions::Contains("abc", ""));
    EXPECT_FALSE(CharFunctions::Contains("", ""));
    EXPECT_FALSE(CharFunctions::Contains("abc", none));
}

TEST(Search, StartsWithAcceptsTheEmptyPrefixAndRefusesNull) {
    EXPECT_TRUE(CharFunctions::StartsWith("abc", "ab"));
    EXPECT_TRUE(CharFunctions::StartsWith("abc", "abc"));
    EXPECT_TRUE(CharFunctions::StartsWith("abc", ""));
    EXPECT_TRUE(CharFunctions::StartsWith("", ""));
    EXPECT_FALSE(CharFunctions::StartsWith("abc", "bc"));
    EXPECT_FALSE(CharFunctions::StartsWith("abc", "abcd"));
    EXPECT_FALSE(CharFunctions::StartsWith("", "a"));
    EXPECT_FALSE(CharFunctions::StartsWith("abc", none));
}

TEST(Search, EndsWithTakesItsSuffixAsASetOfCharacters) {
    EXPECT_TRUE(CharFunctions::EndsWith("a/", "/"));
    EXPECT_TRUE(CharFunctions::EndsWith("abc", "xc"));
    EXPECT_TRUE(CharFunctions::EndsWith("abc", "cb"));
    EXPECT_FALSE(CharFunctions::EndsWith("abc", "ab"));
    EXPECT_FALSE(CharFunctions::EndsWith("ab", ""));
    EXPECT_FALSE(CharFunctions::EndsWith("abc", none));
}

TEST(Search, AnEmptyTextEndsWithEverySuffixButNull) {
    EXPECT_TRUE(CharFunctions::EndsWith("", "/"));
    EXPECT_TRUE(CharFunctions::EndsWith("", ""));
    EXPECT_FALSE(CharFunctions::EndsWith("", none));
}

TEST(Search, IgnoreCaseFoldsBothSides) {
    EXPECT_TRUE(CharFunctions::StartsWithIgnoreCase("ABC", "aB"));
    EXPECT_FALSE(CharFunctions::StartsWithIgnoreCase("ABC", "b"));
    EXPECT_FALSE(CharFunctions::StartsWithIgnoreCase("AB", "abc"));
    EXPECT_TRUE(CharFunctions::StartsWithIgnoreCase("AB", ""));
    EXPECT_TRUE(CharFunctions::StartsWithIgnoreCase("", ""));
    EXPECT_FALSE(CharFunctions::StartsWithIgnoreCase("[", "{"));
    EXPECT_TRUE(CharFunctions::EndsWithIgnoreCase("abC", "Xc"));
    EXPECT_TRUE(CharFunctions::EndsWithIgnoreCase("abc", "C"));
    EXPECT_FALSE(CharFunctions::EndsWithIgnoreCase("abc", "AB"));
    EXPECT_FALSE(CharFunctions::EndsWithIgnoreCase("abc", ""));
    EXPECT_TRUE(CharFunctions::EndsWithIgnoreCase("", ""));
    EXPECT_TRUE(CharFunctions::EndsWithIgnoreCase("", "x"));
}

TEST(Search, IgnoreCaseLeavesExtendedBytesAlone) {
    EXPECT_FALSE(CharFunctions::StartsWithIgnoreCase("\xC9", "\xE9"));
    EXPECT_TRUE(CharFunctions::StartsWithIgnoreCase("\xC9", "\xC9"));
}

std::string randomText(std::mt19937& random) {
    std::string text(random() % 6, ' ');
    for (char& c : text)
        c = "abA"[random() % 3];
    return text;
}

TEST(Search, PrefixAndSuffixAgreeWithThePlainSteps) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        std::string const s = randomText(random);
        std::string const other = randomText(random);
        SCOPED_TRACE('"' + s + "\", \"" + other + '"');
        EXPECT_EQ(CharFunctions::StartsWith(s.c_str(), other.c_str()), model::startsWith(s, other));
        EXPECT_EQ(CharFunctions::EndsWith(s.c_str(), other.c_str()), model::endsWith(s, other));
        std::string const lowerS = model::lowerCase(s);
        std::string const lowerOther = model::lowerCase(other);
        EXPECT_EQ(CharFunctions::StartsWithIgnoreCase(s.c_str(), other.c_str()),
                  model::startsWith(lowerS, lowerOther));
        EXPECT_EQ(CharFunctions::EndsWithIgnoreCase(s.c_str(), other.c_str()),
                  model::endsWith(lowerS, lowerOther));
    }
}

/// Bytes of all kinds but the terminator.
std::string randomBytes(std::mt19937& random, std::size_t length) {
    std::string text(length, ' ');
    for (char& c : text)
        c = static_cast<char>(1 + random() % 255);
    return text;
}

TEST(Search, AnExtendedByteIsFoundAtEveryPlaceOfTextsOfAllLengths) {
    for (std::size_t length = 0; length < 70; ++length) {
        std::string text(length, '\x7F');
        EXPECT_FALSE(CharFunctions::ContainsExtendedAsciiCharacters(text.c_str())) << length;
        for (char& c : text) {
            c = '\x80';
            EXPECT_TRUE(CharFunctions::ContainsExtendedAsciiCharacters(text.c_str())) << length;
            c = '\x7F';
        }
    }
}

TEST(Search, CountsInTextsOfAllLengthsAgreeWithThePlainSteps) {
    std::mt19937 random(2);
    for (std::size_t length = 0; length < 200; ++length) {
        std::string text = randomBytes(random, length);
        for (char& c : text)
            c = random() % 2 == 0 ? c : '\xE9';
        ASSERT_EQ(CharFunctions::CountOccurence(text.c_str(), '\xE9'), model::count(text, '\xE9'))
            << length;
        ASSERT_EQ(CharFunctions::CountOccurence(text.c_str(), '\0'), 0U) << length;
    }
}

TEST(Search, CountsGoBeyondWhatABytePerPlaceHolds) {
    for (std::size_t const blocks : {254U, 255U, 256U, 510U, 511U, 5000U}) {
        for (std::size_t const rest : {0U, 1U, 15U}) {
            std::string const text(16 * blocks + rest, 'a');
            EXPECT_EQ(CharFunctions::CountOccurence(text.c_str(), 'a'), text.size());
            EXPECT_EQ(CharFunctions::CountOccurence(text.c_str(), 'b'), 0U);
        }
    }
}

TEST(Search, SetsOfAllSizesAgreeWithThePlainSteps) {
    std::mt19937 random(3);
    for (int i = 0; i < 20000; ++i) {
        std::string const s = randomBytes(random, random() % 40);
        std::string const set = randomBytes(random, random() % 20);
        SCOPED_TRACE(testing::PrintToString(s) + ", " + testing::PrintToString(set));
        ASSERT_EQ(CharFunctions::IndexOfFirstOccurence(s.c_str(), set.c_str()),
                  model::indexOfFirst(s, set));
        ASSERT_EQ(CharFunctions::IndexOfLastOccurence(s.c_str(), set.c_str()),
                  model::indexOfLast(s, set));
        ASSERT_EQ(CharFunctions::EndsWith(s.c_str(), set.c_str()), model::endsWith(s, set));
    }
}

TEST(Search, TheLastMemberOfASetIsFoundAtEveryPlaceOfTextsOfAllLengths) {
    for (char const* set : {"\xE9", "#\xE9", "1234567\xE9", "12345678\xE9"}) {
        for (std::size_t length = 0; length < 150; ++length) {
            std::string text(length, 'x');
            EXPECT_EQ(CharFunctions::IndexOfLastOccurence(text.c_str(), set), -1) << length;
            // The places behind each are empty again.
            for (std::size_t place = length; place-- > 0; text[place] = 'x') {
                text[0] = text[place] = '\xE9';
                ASSERT_EQ(CharFunctions::IndexOfLastOccurence(text.c_str(), set), place)
                    << set << ", " << length;
            }
        }
    }
}

TEST(Search, TheLastOfEveryMemberOfASetIsFound) {
    std::string const members = "0123456789\xE9";
    for (std::size_t size = 1; size <= members.size(); ++size) {
        std::string const set = members.substr(0, size);
        for (char const member : members) {
            std::string const s = std::string("x0") + member + "x";
            EXPECT_EQ(CharFunctions::IndexOfLastOccurence(s.c_str(), set.c_str()),
                      model::indexOfLast(s, set))
                << set << " in " << s;
        }
    }
}

}  // namespace
