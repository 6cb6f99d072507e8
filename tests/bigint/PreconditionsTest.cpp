// Calls that would never return: in builds with asserts they end with a line that names the
// precondition.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

#ifndef NDEBUG

namespace {

using namespace bigint_test;

TEST(PreconditionsDeathTest, TheSubtractiveDivisorMustNotBeZero) {
    LargeInteger a(7);
    LargeInteger b(0);
    EXPECT_DEATH((void)LargeInteger::simpleGCD(&a, &b), "b must not be zero");
}

TEST(PreconditionsDeathTest, OppositeSignsHaveNoCommonDivisor) {
    LargeInteger a(7);
    LargeInteger b(-5);
    EXPECT_DEATH((void)LargeInteger::simpleGCD(&a, &b), "no operand negative");
    EXPECT_DEATH((void)a.findGreatestCommonDivisor(b), "no operand negative");
}

TEST(PreconditionsDeathTest, AValueThatIsNotCoprimeHasNoInverse) {
    LargeInteger v(9);
    EXPECT_DEATH(v.inverseModulo(LargeInteger(15)), "coprime to m");
}

TEST(PreconditionsDeathTest, ANegativeValueWhoseRemaindersReachMinusOneHasNoInverse) {
    LargeInteger v(-3);
    EXPECT_DEATH(v.inverseModulo(LargeInteger(5)), "coprime to m");
}

}  // namespace

#endif
