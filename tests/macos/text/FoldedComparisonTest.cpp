// The comparison of macOS gives what the C library's gives here, in the "C" locale.
#include "text/FoldedComparison.h"

#include <gtest/gtest.h>

#include <string>

#include <strings.h>

namespace {

using qel::internal::compareFolded;

TEST(FoldedComparison, OfEveryPairOfBytesIsTheCLibrarys) {
    for (int left = 0; left < 256; ++left) {
        for (int right = 0; right < 256; ++right) {
            std::string const a = {'x', static_cast<char>(left), '\0'};
            std::string const b = {'X', static_cast<char>(right), '\0'};
            EXPECT_EQ(compareFolded(a.c_str(), b.c_str()), strcasecmp(a.c_str(), b.c_str()))
                << left << " and " << right;
        }
    }
}

TEST(FoldedComparison, EndsWithTheShorterText) {
    EXPECT_EQ(compareFolded("", ""), 0);
    EXPECT_EQ(compareFolded("abc", "ABC"), 0);
    EXPECT_EQ(compareFolded("abC", "AB"), 'c');
    EXPECT_EQ(compareFolded("", "A"), -'a');
}

TEST(FoldedComparison, OfSoManyBytesIsTheCLibrarys) {
    for (char const* const b : {"", "x", "ABC", "abd", "abcd"}) {
        for (std::size_t n = 0; n < 6; ++n)
            EXPECT_EQ(compareFolded("abc", b, n), strncasecmp("abc", b, n)) << b << ", " << n;
    }
}

}  // namespace
