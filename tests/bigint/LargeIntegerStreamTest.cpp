// Large integers written to streams.
#include "qel/LargeIntegerStream.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <string>

namespace {

using qel::LargeInteger;

LargeInteger negativeZero() {
    LargeInteger zero;
    zero.setNegative(true);
    return zero;
}

template <typename... Parts>
std::string written(Parts const&... parts) {
    std::ostringstream out;
    (out << ... << parts);
    return out.str();
}

TEST(LargeIntegerStreamTest, WritesDecimalWithASign) {
    EXPECT_EQ(written(LargeInteger(1234)), "1234");
    EXPECT_EQ(written(LargeInteger(-1234)), "-1234");
    EXPECT_EQ(written(LargeInteger(1) << 100), "1267650600228229401496703205376");
}

TEST(LargeIntegerStreamTest, WritesEveryZeroAsADigit) {
    EXPECT_EQ(written(LargeInteger(0)), "0");
    EXPECT_EQ(written(negativeZero()), "0");
    EXPECT_EQ(written(std::hex, negativeZero()), "0");
}

TEST(LargeIntegerStreamTest, FollowsTheBaseOfTheStream) {
    EXPECT_EQ(written(std::hex, LargeInteger(-255)), "-ff");
    EXPECT_EQ(written(std::oct, LargeInteger(8)), "10");
    EXPECT_EQ(written(std::hex, std::dec, LargeInteger(255)), "255");
}

TEST(LargeIntegerStreamTest, FollowsWidthAndFill) {
    EXPECT_EQ(written(std::setw(5), LargeInteger(42), LargeInteger(7)), "   427");
    EXPECT_EQ(written(std::setfill('.'), std::left, std::setw(4), LargeInteger(0)), "0...");
}

TEST(LargeIntegerStreamTest, IgnoresOtherManipulators) {
    EXPECT_EQ(written(std::hex, std::showbase, std::uppercase, LargeInteger(255)), "ff");
    EXPECT_EQ(written(std::showpos, LargeInteger(1)), "1");
}

}  // namespace
