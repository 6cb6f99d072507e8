// The operands reach the calls with the bounds and capacities that make them unusual.
#include "IntegerRows.h"

#include <gtest/gtest.h>

namespace {

using namespace interface_test;

TEST(Operands, KeepBoundAndCapacityUntilTheCall) {
    Results results;
    unary("", [](auto const& x) { return x.isOne(); }).exercise(results);
    std::string const text = results.text();
    EXPECT_NE(text.find("1 0x1 {size 4, bound 0}"), std::string::npos);
    EXPECT_NE(text.find("1 0x1 {size 7, bound 100}"), std::string::npos);
    EXPECT_NE(text.find("1 0x1 {size 63, bound 0}"), std::string::npos);
    EXPECT_NE(text.find("0 0x {size 96, bound 1999}"), std::string::npos);
    EXPECT_NE(text.find("0 0x {size 4, bound -1, flagged}"), std::string::npos);
}

}  // namespace
