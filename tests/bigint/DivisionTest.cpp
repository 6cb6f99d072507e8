// Truncating division: values, signs, zeros, operands that are the same object, and the
// representation.
#include "LargeIntegerPeer.h"

#include <gtest/gtest.h>

namespace {

using namespace bigint_test;

TEST(Division, AllSmallPairsAgreeWithMachineIntegers) {
    for (int a = -40; a <= 40; ++a) {
        for (int b = -40; b <= 40; ++b) {
            if (b == 0)
                continue;
            SCOPED_TRACE(std::to_string(a) + " by " + std::to_string(b));
            LargeInteger quotient(a);
            LargeInteger remainder(99);
            quotient.divideBy(LargeInteger(b), remainder);
            EXPECT_EQ(quotient, LargeInteger(a / b));
            EXPECT_EQ(remainder, LargeInteger(a % b));
            EXPECT_EQ(LargeInteger(a) / LargeInteger(b), LargeInteger(a / b));
            EXPECT_EQ(LargeInteger(a) % LargeInteger(b), LargeInteger(a % b));
        }
    }
}

TEST(Division, ByZeroIsZeroWithAZeroRemainder) {
    for (LargeInteger const& zero : {LargeInteger(0), negativeZero()}) {
        LargeInteger quotient = -powerOfTwo(600);
        LargeInteger remainder = -powerOfTwo(600);
        quotient.divideBy(zero, remainder);
        EXPECT_EQ(representation(quotient), (Representation{4, -1, false}));
        EXPECT_EQ(representation(remainder), (Representation{4, -1, false}));
        EXPECT_EQ(LargeInteger(7) / zero, LargeInteger(0));
        EXPECT_EQ(LargeInteger(7) % zero, LargeInteger(0));
    }
}

TEST(Division, AZeroDividendResetsBothToAPlainZero) {
    LargeInteger quotient = negativeZero();
    LargeInteger remainder(-5);
    quotient.divideBy(LargeInteger(-3), remainder);
    EXPECT_EQ(representation(quotient), (Representation{4, -1, false}));
    EXPECT_EQ(representation(remainder), (Representation{4, -1, false}));
}

TEST(Division, ASmallerDividendIsTheWholeRemainder) {
    LargeInteger quotient(-1);
    LargeInteger remainder;
    quotient.divideBy(LargeInteger(5), remainder);
    EXPECT_EQ(representation(quotient), (Representation{4, -1, true}));  // a negative zero
    EXPECT_EQ(representation(remainder), (Representation{4, 0, true}));
    EXPECT_EQ(remainder, LargeInteger(-1));
    // Shorter by far: the divisor's alignment shifts right, and nothing is subtracted.
    EXPECT_EQ(LargeInteger(7) / powerOfTwo(300), LargeInteger(0));
    EXPECT_EQ(LargeInteger(7) % powerOfTwo(300), LargeInteger(7));
}

TEST(Division, AnExactDivisionOfANegativeLeavesAFlaggedZeroRemainder) {
    LargeInteger quotient(-6);
    LargeInteger remainder;
    quotient.divideBy(LargeInteger(3), remainder);
    EXPECT_EQ(quotient, LargeInteger(-2));
    EXPECT_TRUE(remainder.isZero());
    EXPECT_TRUE(LargeIntegerPeer::negative(remainder));
}

TEST(Division, TheRemainderKeepsTheDividendsBufferAndBound) {
    LargeInteger quotient = powerOfTwo(200) + LargeInteger(1);
    quotient.ensureSize(20);
    LargeInteger remainder = powerOfTwo(700);  // 22 words or more: released
    quotient.divideBy(LargeInteger(16), remainder);
    EXPECT_EQ(representation(remainder), (Representation{33, 200, false}));
    EXPECT_EQ(remainder, LargeInteger(1));
    EXPECT_EQ(quotient, powerOfTwo(196));
    // A fresh buffer of 4 words, grown for the first quotient bit at 196.
    EXPECT_EQ(representation(quotient), (Representation{12, 196, false}));
}

TEST(Division, TheQuotientTakesOverASmallRemainderBuffer) {
    LargeInteger quotient(100);
    LargeInteger remainder;
    remainder.ensureSize(9);  // 16 words: kept
    quotient.divideBy(LargeInteger(7), remainder);
    EXPECT_EQ(representation(quotient), (Representation{16, 3, false}));
    EXPECT_EQ(representation(remainder), (Representation{4, 6, false}));
}

TEST(Division, OperatorsReturnTightCopiesWithExactBounds) {
    LargeInteger const a = powerOfTwo(200) + LargeInteger(1);
    EXPECT_EQ(representation(a / LargeInteger(16)), (Representation{7, 196, false}));
    EXPECT_EQ(representation(a % LargeInteger(16)), (Representation{7, 0, false}));
    LargeInteger work(a);
    work %= LargeInteger(16);
    EXPECT_EQ(representation(work), (Representation{7, 200, false}));
}

// The divisor's highest limb is full, so that neither operand is shifted and the first digit is
// found by comparison; with a dividend of one bit more it is not.
TEST(Division, BeginsWithADigitOfZeroOrOneOrALargerOne) {
    for (int limbs : {2, 3, 4, 9, 25}) {
        LargeInteger const divisor = powerOfTwo(64 * limbs - 1) + powerOfTwo(70) + LargeInteger(5);
        for (int digits : {1, 2, 5, 30}) {
            for (int above : {-1, 0, 1, 3}) {
                LargeInteger const quotient = powerOfTwo(64 * digits + above) - LargeInteger(3);
                for (LargeInteger const& rest : {LargeInteger(0), divisor - LargeInteger(1)}) {
                    LargeInteger const dividend = quotient * divisor + rest;
                    EXPECT_EQ(dividend / divisor, quotient)
                        << limbs << ' ' << digits << ' ' << above;
                    EXPECT_EQ(dividend % divisor, rest) << limbs << ' ' << digits << ' ' << above;
                }
            }
        }
    }
}

TEST(Division, InPlaceLeavesNothingOfTheDividendWhereTheQuotientGrowsAgain) {
    for (int bits : {100, 500, 900, 2000}) {
        for (int left : {0, 20, 60, 90}) {
            LargeInteger v = powerOfTwo(bits) - LargeInteger(1);
            v /= powerOfTwo(bits - left);
            EXPECT_EQ(v, powerOfTwo(left) - LargeInteger(1));
            v.setBit(bits);
            EXPECT_EQ(v, powerOfTwo(bits) + powerOfTwo(left) - LargeInteger(1))
                << bits << ' ' << left;
        }
    }
}

TEST(Division, StaleBoundsDoNotMatter) {
    LargeInteger dividend(100);
    LargeInteger divisor(-7);
    makeStale(dividend, 333);
    makeStale(divisor, 222);
    EXPECT_EQ(dividend / divisor, LargeInteger(-14));
    EXPECT_EQ(dividend % divisor, LargeInteger(2));
    EXPECT_EQ(divisor / dividend, LargeInteger(0));
    EXPECT_EQ(divisor % dividend, LargeInteger(-7));
}

TEST(Division, ByTheObjectItselfIsOneAndLeavesNothing) {
    for (int start : {-6, 6}) {
        LargeInteger quotient(start);
        quotient /= self(quotient);
        EXPECT_EQ(quotient, LargeInteger(1)) << start;
        LargeInteger remainder(start);
        remainder %= self(remainder);
        EXPECT_TRUE(remainder.isZero()) << start;
        LargeInteger dividend(start);
        LargeInteger rest(5);
        dividend.divideBy(dividend, rest);
        EXPECT_EQ(dividend, LargeInteger(1)) << start;
        EXPECT_TRUE(rest.isZero()) << start;
    }
}

TEST(Division, ZeroByItselfIsZero) {
    LargeInteger zero;
    zero /= self(zero);
    EXPECT_TRUE(zero.isZero());
    zero %= self(zero);
    EXPECT_TRUE(zero.isZero());
    LargeInteger rest(5);
    zero.divideBy(zero, rest);
    EXPECT_TRUE(zero.isZero());
    EXPECT_TRUE(rest.isZero());
}

TEST(Division, TheRemainderMayBeTheDivisorWhoseOldValueDivides) {
    LargeInteger quotient(-100);
    LargeInteger both(-7);
    quotient.divideBy(both, both);
    EXPECT_EQ(quotient, LargeInteger(14));
    EXPECT_EQ(both, LargeInteger(-2));
    LargeInteger zero;
    quotient.divideBy(zero, zero);
    EXPECT_TRUE(quotient.isZero());
}

/// What is left of a dividend that is its own remainder: a zero with the dividend's sign flag.
void expectFlaggedZero(LargeInteger const& v, int size, bool flag) {
    EXPECT_EQ(representation(v), (Representation{size, -1, flag}));
    EXPECT_TRUE(v.isZero());
}

TEST(Division, ADividendThatIsItsOwnRemainderBecomesZeroWithItsSignFlag) {
    for (bool negative : {false, true}) {
        for (int bits : {0, 31, 32, 100, 543, 544, 20000}) {
            SCOPED_TRACE(bits);
            LargeInteger dividend = powerOfTwo(bits);
            dividend.setNegative(negative);
            // From a capacity of 17 words on, a reset releases the buffer.
            int const size = representation(dividend).size < 17 ? representation(dividend).size : 4;

            LargeInteger byAnother = dividend;
            LargeInteger divisor(-3);
            byAnother.divideBy(divisor, byAnother);
            expectFlaggedZero(byAnother, size, negative);
            EXPECT_EQ(divisor, LargeInteger(-3));

            LargeInteger byItself = dividend;
            byItself.divideBy(byItself, byItself);
            expectFlaggedZero(byItself, size, negative);

            LargeInteger byZero = dividend;
            byZero.divideBy(negativeZero(), byZero);
            expectFlaggedZero(byZero, size, false);
        }
    }
    LargeInteger zero = negativeZero();
    zero.divideBy(LargeInteger(5), zero);
    expectFlaggedZero(zero, 4, false);
}

}  // namespace
