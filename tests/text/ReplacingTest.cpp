// Replacing and removing parts of a text.
#include "qel/CharFunctions.h"

#include "model/PlainReplacement.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <random>
#include <string>
#include <sys/resource.h>

namespace {

using qel::CharFunctions;

constexpr char const* none = nullptr;

TEST(Replacing, ReplaceTakesAllOccurrences) {
    EXPECT_EQ(CharFunctions::Replace("a b c", " ", "_"), "a_b_c");
    EXPECT_EQ(CharFunctions::Replace("one two one", "one", "1"), "1 two 1");
    EXPECT_EQ(CharFunctions::Replace("one", "one", "1"), "1");
    EXPECT_EQ(CharFunctions::Replace("two", "one", "1"), "two");
    EXPECT_EQ(CharFunctions::Replace("on", "one", "1"), "on");
    EXPECT_EQ(CharFunctions::Replace("", "one", "1"), "");
    EXPECT_EQ(CharFunctions::Replace("a/b//c", "/", "\\"), "a\\b\\\\c");
}

TEST(Replacing, OneCharacterIsReplacedAtEveryPlaceOfTextsOfAllLengths) {
    for (std::size_t length = 0; length < 70; ++length) {
        std::string text(length, 'a');
        for (char& c : text) {
            c = '\xE9';
            EXPECT_EQ(CharFunctions::Replace(text.c_str(), "\xE9", "/"),
                      model::replace(text, "\xE9", "/", length));
            EXPECT_EQ(CharFunctions::Replace(text.c_str(), "a", "\xE9"),
                      std::string(length, '\xE9'));
            c = 'a';
        }
    }
}

TEST(Replacing, ReplaceBeginsWithTheLastOccurrence) {
    EXPECT_EQ(CharFunctions::Replace("aaa", "aa", "b"), "ab");
}

TEST(Replacing, ReplaceAlsoTakesWhatItsReplacementsBringAbout) {
    EXPECT_EQ(CharFunctions::Replace("aab", "ab", "b"), "b");
    EXPECT_EQ(CharFunctions::Replace("a    b", "  ", " "), "a b");
    EXPECT_EQ(CharFunctions::Replace("aabb", "ab", ""), "");
    EXPECT_EQ(CharFunctions::Replace("xaabby", "ab", "ba"), "xbbaay");
    EXPECT_EQ(CharFunctions::Replace("aab", "ab", "bba"), "bbbbaa");
}

TEST(Replacing, ReplaceLeavesTheTextAloneForNullOrEmptyArguments) {
    EXPECT_EQ(CharFunctions::Replace("x", "", "y"), "x");
    EXPECT_EQ(CharFunctions::Replace("x", none, "y"), "x");
    EXPECT_EQ(CharFunctions::Replace("x", "x", none), "x");
    EXPECT_EQ(CharFunctions::Replace("x", "", none), "x");
    EXPECT_EQ(CharFunctions::Replace("x", none, none), "x");
}

TEST(Replacing, AReplacementThatContainsTheOldTextIsFineWhereNothingIsReplaced) {
    EXPECT_EQ(CharFunctions::Replace("abc", "x", "xx"), "abc");
    EXPECT_EQ(CharFunctions::Replace("", "x", "x"), "");
}

#ifdef NDEBUG
constexpr char const* lastWords = "bad_alloc";
#else
constexpr char const* lastWords = "the replacement contains the old text";
#endif

/// Where memory is not limited the test itself would be the victim. (The sanitizers, which bear no
/// limit, run with asserts on.)
void replaceInLittleMemory(char const* s, char const* old, char const* replacement) {
#ifdef NDEBUG
    rlimit const limit = {rlim_t{128} << 20, rlim_t{128} << 20};
    if (setrlimit(RLIMIT_AS, &limit) != 0)
        std::_Exit(EXIT_FAILURE);
#endif
    (void)CharFunctions::Replace(s, old, replacement);
}

TEST(ReplacingDeathTest, AReplacementThatContainsTheOldTextEndsTheProcess) {
    testing::KilledBySignal const aborted(SIGABRT);
    EXPECT_EXIT(replaceInLittleMemory("x", "x", std::string(1000, 'x').c_str()), aborted,
                lastWords);
    EXPECT_EXIT(replaceInLittleMemory("..ab", "ab", "another cab in the street"), aborted,
                lastWords);
}

TEST(Replacing, TheFirstAndTheLastOccurrenceAreReplacedOnce) {
    EXPECT_EQ(CharFunctions::ReplaceFirstOccurence("a.b.c", ".", "-"), "a-b.c");
    EXPECT_EQ(CharFunctions::ReplaceLastOccurence("a.b.c", ".", "-"), "a.b-c");
    EXPECT_EQ(CharFunctions::ReplaceFirstOccurence("aaa", "aa", "aab"), "aaba");
    EXPECT_EQ(CharFunctions::ReplaceLastOccurence("aaa", "aa", "baa"), "abaa");
    EXPECT_EQ(CharFunctions::ReplaceFirstOccurence("aab", "ab", "b"), "ab");
    EXPECT_EQ(CharFunctions::ReplaceLastOccurence("aab", "ab", "b"), "ab");
}

TEST(Replacing, OneOccurrenceIsNotReplacedForNullEmptyOrAbsentText) {
    for (auto* const replaceOne :
         {CharFunctions::ReplaceFirstOccurence, CharFunctions::ReplaceLastOccurence}) {
        EXPECT_EQ(replaceOne("abc", "", "y"), "abc");
        EXPECT_EQ(replaceOne("abc", none, "y"), "abc");
        EXPECT_EQ(replaceOne("abc", "b", none), "abc");
        EXPECT_EQ(replaceOne("abc", "x", "y"), "abc");
        EXPECT_EQ(replaceOne("abc", "abcd", "y"), "abc");
        EXPECT_EQ(replaceOne("abc", "b", ""), "ac");
        EXPECT_EQ(replaceOne("", "b", "y"), "");
    }
}

TEST(Replacing, RemoveAllTakesEveryOccurrence) {
    EXPECT_EQ(CharFunctions::RemoveAllOccurence("abXcdXe", "X"), "abcde");
    EXPECT_EQ(CharFunctions::RemoveAllOccurence("aaabbb", "ab"), "");
    EXPECT_EQ(CharFunctions::RemoveAllOccurence("aaa", "aa"), "a");
}

TEST(Replacing, RemoveFirstKeepsOnlyWhatFollows) {
    EXPECT_EQ(CharFunctions::RemoveFirstOccurence("abXcd", "X"), "cd");
    EXPECT_EQ(CharFunctions::RemoveFirstOccurence("abXcdXe", "X"), "cdXe");
    EXPECT_EQ(CharFunctions::RemoveFirstOccurence("abXYcd", "XY"), "cd");
    EXPECT_EQ(CharFunctions::RemoveFirstOccurence("abX", "X"), "");
}

TEST(Replacing, RemoveLastCutsTheOccurrenceOut) {
    EXPECT_EQ(CharFunctions::RemoveLastOccurence("abXcdXe", "X"), "abXcde");
    EXPECT_EQ(CharFunctions::RemoveLastOccurence("abXYcd", "XY"), "abcd");
    EXPECT_EQ(CharFunctions::RemoveLastOccurence("X", "X"), "");
}

TEST(Replacing, RemovingNullEmptyOrAbsentPartsGivesTheText) {
    for (auto* const remove :
         {CharFunctions::RemoveAllOccurence, CharFunctions::RemoveFirstOccurence,
          CharFunctions::RemoveLastOccurence}) {
        EXPECT_EQ(remove("abc", none), "abc");
        EXPECT_EQ(remove("abc", ""), "abc");
        EXPECT_EQ(remove("abc", "x"), "abc");
        EXPECT_EQ(remove("", "x"), "");
    }
}

TEST(ReplacingDeathTest, ANullSubjectEndsTheProcess) {
    EXPECT_DEATH((void)CharFunctions::Replace(none, "a", "b"), "");
    EXPECT_DEATH((void)CharFunctions::ReplaceFirstOccurence(none, "a", "b"), "");
    EXPECT_DEATH((void)CharFunctions::ReplaceLastOccurence(none, "a", "b"), "");
    EXPECT_DEATH((void)CharFunctions::RemoveAllOccurence(none, "a"), "");
    EXPECT_DEATH((void)CharFunctions::RemoveFirstOccurence(none, "a"), "");
    EXPECT_DEATH((void)CharFunctions::RemoveLastOccurence(none, "a"), "");
}

// --- against the plain rescan ------------------------------------------------------------------

struct RandomTexts {
    std::mt19937 random;
    std::size_t letterCount;

    std::string of(std::size_t longest) {
        std::string text(random() % (longest + 1), ' ');
        for (char& c : text)
            c = static_cast<char>('a' + random() % letterCount);
        return text;
    }
};

/// Compares until `wanted` texts came to an end; those that do not within `steps` are passed by.
void compareWithThePlainRescan(RandomTexts texts, std::size_t longestText, std::size_t longestPart,
                               int wanted) {
    constexpr std::size_t steps = 400;
    for (int compared = 0; compared < wanted;) {
        std::string const s = texts.of(longestText);
        std::string const old = texts.of(longestPart - 1) + 'a';
        std::string const replacement = texts.of(longestPart);
        if (s.find(old) != std::string::npos && replacement.find(old) != std::string::npos)
            continue;
        auto const expected = model::replace(s, old, replacement, steps);
        if (!expected)
            continue;
        ++compared;
        ASSERT_EQ(CharFunctions::Replace(s.c_str(), old.c_str(), replacement.c_str()), *expected)
            << "Replace(\"" << s << "\", \"" << old << "\", \"" << replacement << "\")";
    }
}

TEST(Replacing, TwoLetterTextsAgreeWithThePlainRescan) {
    compareWithThePlainRescan({std::mt19937(1), 2}, 24, 4, 200000);
}

TEST(Replacing, ThreeLetterTextsAgreeWithThePlainRescan) {
    compareWithThePlainRescan({std::mt19937(2), 3}, 40, 3, 200000);
}

TEST(Replacing, LongPartsAgreeWithThePlainRescan) {
    compareWithThePlainRescan({std::mt19937(3), 2}, 300, 9, 50000);
}

TEST(Replacing, RemovingAgreesWithThePlainRescan) {
    RandomTexts texts{std::mt19937(4), 2};
    for (int i = 0; i < 50000; ++i) {
        std::string const s = texts.of(60);
        std::string const part = texts.of(6) + 'b';
        ASSERT_EQ(CharFunctions::RemoveAllOccurence(s.c_str(), part.c_str()),
                  model::replace(s, part, "", s.size()).value())
            << "RemoveAllOccurence(\"" << s << "\", \"" << part << "\")";
    }
}

TEST(Replacing, TheLastOccurrenceIsFoundAtEveryPlaceOfTextsOfAllLengths) {
    for (std::size_t length = 2; length < 150; ++length) {
        for (std::size_t place = 0; place + 2 <= length; ++place) {
            std::string text(length, 'x');
            text.replace(0, 2, "ab");
            text.replace(place, 2, "ab");
            std::string expected = text;
            expected.replace(place, 2, "...");
            ASSERT_EQ(CharFunctions::ReplaceLastOccurence(text.c_str(), "ab", "..."), expected);
        }
    }
}

TEST(Replacing, TheLastOccurrenceIsFoundInPeriodicTexts) {
    RandomTexts texts{std::mt19937(5), 2};
    for (int i = 0; i < 50000; ++i) {
        std::string period = texts.of(4) + 'a';
        std::string s;
        while (s.size() < 60)
            s += texts.random() % 16 == 0 ? texts.of(3) : period;
        std::size_t const from = texts.random() % s.size();
        std::string const part = s.substr(from, 1 + texts.random() % 20);
        std::size_t const last = s.rfind(part);
        std::string const expected = s.substr(0, last) + '-' + s.substr(last + part.size());
        ASSERT_EQ(CharFunctions::ReplaceLastOccurence(s.c_str(), part.c_str(), "-"), expected)
            << '"' << s << "\", \"" << part << '"';
    }
}

// --- long texts --------------------------------------------------------------------------------
// Each takes about a second. Were the whole text searched again after every replacement, or all
// that follows moved, a test would run into its time limit, a quarter of an hour.

constexpr std::size_t large = std::size_t{1} << 24;

std::string repeat(std::string const& part, std::size_t count) {
    std::string text;
    text.reserve(part.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        text += part;
    return text;
}

TEST(Replacing, ManyOccurrencesTakeLinearTime) {
    std::string const text = repeat("a, ", large / 3);
    EXPECT_TRUE(CharFunctions::Replace(text.c_str(), ", ", ";") == repeat("a;", large / 3));
    EXPECT_TRUE(CharFunctions::Replace(text.c_str(), ", ", " - ") == repeat("a - ", large / 3));
    EXPECT_TRUE(CharFunctions::RemoveAllOccurence(text.c_str(), ", ")
                == std::string(large / 3, 'a'));
}

TEST(Replacing, OccurrencesThatReplacementsBringAboutTakeLinearTime) {
    std::string const same(large, 'a');
    EXPECT_EQ(CharFunctions::Replace(same.c_str(), "aa", "a"), "a");
    EXPECT_EQ(CharFunctions::Replace((same + "b").c_str(), "ab", "b"), "b");
}

TEST(Replacing, OccurrencesThatRemovalsBringAboutTakeLinearTime) {
    std::string const text = std::string(large, 'a') + std::string(large, 'b');
    EXPECT_EQ(CharFunctions::RemoveAllOccurence(text.c_str(), "ab"), "");
}

TEST(Replacing, OccurrencesThatGrowingReplacementsBringAboutTakeLinearTime) {
    // Every a goes behind twice as many b.
    std::string const text = std::string(24, 'a') + 'b';
    EXPECT_TRUE(CharFunctions::Replace(text.c_str(), "ab", "bba")
                == std::string(1 << 24, 'b') + std::string(24, 'a'));
}

TEST(Replacing, LongPartsThatNearlyMatchEverywhereTakeLinearTime) {
    std::string const text(large, 'a');
    std::string const half(large / 8, 'a');
    for (std::string const& part : {half + 'b' + half, half + 'b', 'b' + half})
        EXPECT_TRUE(CharFunctions::Replace(text.c_str(), part.c_str(), "c") == text);
    EXPECT_EQ(CharFunctions::Replace(text.c_str(), half.c_str(), "c"), "cccccccc");
}

}  // namespace
