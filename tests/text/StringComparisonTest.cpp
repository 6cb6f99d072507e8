// Comparing two strings, and the raw copies into a caller's buffer.
#include "qel/CharFunctions.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using qel::CharFunctions;

constexpr char const* none = nullptr;

TEST(StringComparison, ComparesBytesAsUnsigned) {
    EXPECT_EQ(CharFunctions::Compare("abc", "abc"), 0);
    EXPECT_LT(CharFunctions::Compare("abc", "abd"), 0);
    EXPECT_GT(CharFunctions::Compare("abc", "ab"), 0);
    EXPECT_GT(CharFunctions::Compare("\xE9", "z"), 0);
    EXPECT_GT(CharFunctions::Compare("a", "A"), 0);
}

TEST(StringComparison, ComparesAtMostNBytes) {
    EXPECT_EQ(CharFunctions::Compare("abc", "abd", 2), 0);
    EXPECT_LT(CharFunctions::Compare("abc", "abd", 3), 0);
    EXPECT_EQ(CharFunctions::Compare("abc", "xyz", 0), 0);
    EXPECT_EQ(CharFunctions::Compare("ab", "ab", 100), 0);
}

TEST(StringComparison, NullGivesMinusOneWhereItIsChecked) {
    EXPECT_EQ(CharFunctions::Compare(none, "a", 1), -1);
    EXPECT_EQ(CharFunctions::Compare("a", none, 1), -1);
    EXPECT_EQ(CharFunctions::Compare(none, none, 5), -1);
    EXPECT_EQ(CharFunctions::CompareIgnoreCase("a", none), -1);
    EXPECT_EQ(CharFunctions::CompareIgnoreCase(none, "a"), -1);
    EXPECT_EQ(CharFunctions::CompareIgnoreCase(none, none), -1);
}

TEST(StringComparison, IgnoringCaseFoldsAsciiOnly) {
    EXPECT_EQ(CharFunctions::CompareIgnoreCase("aBc", "AbC"), 0);
    EXPECT_LT(CharFunctions::CompareIgnoreCase("ABC", "abd"), 0);
    EXPECT_GT(CharFunctions::CompareIgnoreCase("abd", "ABC"), 0);
    EXPECT_NE(CharFunctions::CompareIgnoreCase("\xC9", "\xE9"), 0);
    // Folding goes to lower case: '_' (0x5F) stands below 'a' and so below every letter.
    EXPECT_LT(CharFunctions::CompareIgnoreCase("_", "A"), 0);
}

TEST(StringComparison, EqualityWithAndWithoutCase) {
    EXPECT_TRUE(CharFunctions::AreEqual("abc", "abc"));
    EXPECT_FALSE(CharFunctions::AreEqual("abc", "ABC"));
    EXPECT_TRUE(CharFunctions::AreEqualIgnoreCase("ABC", "abc"));
    EXPECT_FALSE(CharFunctions::AreEqualIgnoreCase("ABC", "abcd"));
}

TEST(StringComparison, NothingEqualsNullIgnoringCase) {
    EXPECT_FALSE(CharFunctions::AreEqualIgnoreCase(none, "a"));
    EXPECT_FALSE(CharFunctions::AreEqualIgnoreCase("a", none));
    EXPECT_FALSE(CharFunctions::AreEqualIgnoreCase(none, none));
}

TEST(StringComparison, CopyTakesTheTerminatorAndNothingBehindIt) {
    char buffer[] = "########";
    CharFunctions::Copy(buffer, "abc");
    EXPECT_EQ(std::string(buffer, 8), std::string("abc\0####", 8));
}

TEST(StringComparison, CopyOfNBytesAddsNoTerminatorWhenTheSourceIsAsLong) {
    char buffer[] = "########";
    CharFunctions::Copy(buffer, "abcdef", 3);
    EXPECT_EQ(std::string(buffer, 8), "abc#####");
    CharFunctions::Copy(buffer, "xyz", 3);
    EXPECT_EQ(std::string(buffer, 8), "xyz#####");
}

TEST(StringComparison, CopyOfNBytesFillsUpWithZeros) {
    char buffer[] = "########";
    CharFunctions::Copy(buffer, "ab", 5);
    EXPECT_EQ(std::string(buffer, 8), std::string("ab\0\0\0###", 8));
}

TEST(StringComparison, AppendWritesBehindTheText) {
    char buffer[16] = "ab";
    CharFunctions::Append(buffer, "cd");
    CharFunctions::Append(buffer, "");
    EXPECT_STREQ(buffer, "abcd");
}

}  // namespace
