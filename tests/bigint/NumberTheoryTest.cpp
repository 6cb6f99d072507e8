// Greatest common divisor, modular inverse, modular power.
#include "LargeIntegerPeer.h"

#include "model/PlainInteger.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

using namespace bigint_test;

LargeInteger gcd(LargeInteger const& a, LargeInteger const& b) {
    return a.findGreatestCommonDivisor(b);
}

LargeInteger inverse(LargeInteger value, LargeInteger const& m) {
    value.inverseModulo(m);
    return value;
}

LargeInteger power(LargeInteger base, LargeInteger const& e, LargeInteger const& m) {
    base.exponentModulo(e, m);
    return base;
}

TEST(GreatestCommonDivisor, AllSmallPairs) {
    for (int a = 0; a <= 60; ++a) {
        for (int b = 0; b <= 60; ++b) {
            EXPECT_EQ(gcd(LargeInteger(a), LargeInteger(b)), LargeInteger(std::gcd(a, b)))
                << a << ", " << b;
            if (a != 0 && b == 0)
                continue;
            LargeInteger x(a);
            LargeInteger y(b);
            EXPECT_EQ(LargeInteger::simpleGCD(&x, &y), LargeInteger(std::gcd(a, b)))
                << a << ", " << b;
        }
    }
}

TEST(GreatestCommonDivisor, OfDocumentedExamples) {
    EXPECT_EQ(gcd(powerOfTwo(40), LargeInteger(3) << 20), powerOfTwo(20));
    EXPECT_EQ(gcd(LargeInteger(12), LargeInteger(18)), LargeInteger(6));
    EXPECT_EQ(gcd(LargeInteger(7), LargeInteger(0)), LargeInteger(7));
    EXPECT_EQ(gcd(LargeInteger(0), LargeInteger(7)), LargeInteger(7));
}

/// The gcd, which is 1, of two numbers about 200 bits wide whose quotients are all 2^bits.
LargeInteger gcdWithQuotients(int bits) {
    LargeInteger a(1);
    LargeInteger b(0);
    for (int i = 0; i < 13; ++i) {
        LargeInteger const next = (a << bits) + b;
        b = a;
        a = next;
    }
    return gcd(a, b);
}

TEST(GreatestCommonDivisor, BothSidesOf16BitsApart) {
    EXPECT_TRUE(gcdWithQuotients(16).isOne());
    EXPECT_TRUE(gcdWithQuotients(17).isOne());
    for (int apart : {15, 16, 17, 18}) {
        LargeInteger const a = LargeInteger(9) << apart;
        LargeInteger const b(12);
        EXPECT_EQ(gcd(a, b), LargeInteger(12)) << apart;
        EXPECT_EQ(gcd(b, a), LargeInteger(12)) << apart;
    }
}

TEST(GreatestCommonDivisor, UsesUpTheOperandsOfTheSubtractiveForm) {
    LargeInteger a(12);
    LargeInteger b(18);
    EXPECT_EQ(LargeInteger::simpleGCD(&a, &b), LargeInteger(6));
    EXPECT_TRUE(a.isZero() != b.isZero());
}

TEST(GreatestCommonDivisor, LeavesTheOperandsOfTheSubtractiveFormAsThePlainStepsDo) {
    for (int i = 0; i <= 40; ++i) {
        for (int j = 1; j <= 40; ++j) {
            LargeInteger a(i);
            LargeInteger b(j);
            plain::LargeInteger slowA(i);
            plain::LargeInteger slowB(j);
            (void)LargeInteger::simpleGCD(&a, &b);
            (void)plain::LargeInteger::simpleGCD(&slowA, &slowB);
            EXPECT_EQ(a.toString(10), slowA.toString(10)) << i << ' ' << j;
            EXPECT_EQ(b.toString(10), slowB.toString(10)) << i << ' ' << j;
        }
    }
}

TEST(GreatestCommonDivisor, OfTwoNegativesIsNegativeAndLeavesAPlainZero) {
    LargeInteger a(-12);
    LargeInteger b(-18);
    EXPECT_EQ(LargeInteger::simpleGCD(&a, &b), LargeInteger(-6));
    EXPECT_EQ(representation(a.isZero() ? a : b).negative, false);
    EXPECT_EQ(LargeInteger(-12).findGreatestCommonDivisor(LargeInteger(-18)), LargeInteger(-6));
}

// The plain steps end where one divides the other; most other pairs of two signs never do.
TEST(GreatestCommonDivisor, OfNegativesFarApartHasTheSignOfTheSmallerOne) {
    for (int apart : {17, 18, 40, 200}) {
        for (auto const& [large, small] : {std::pair(-1, 3), {1, -3}, {-1, -3}}) {
            LargeInteger const multiple = LargeInteger(9 * large) << apart;
            LargeInteger const divisor(small);
            plain::LargeInteger slow(9 * large);
            slow <<= apart;
            slow = slow.findGreatestCommonDivisor(plain::LargeInteger(small));
            for (LargeInteger const& fast : {gcd(multiple, divisor), gcd(divisor, multiple)}) {
                EXPECT_EQ(fast, divisor) << large << ' ' << small << ' ' << apart;
                EXPECT_EQ(representation(fast),
                          (Representation{slow.size, slow.highestBit, slow.negative}));
            }
        }
    }
}

TEST(GreatestCommonDivisor, LeavesTheObjectAndMayTakeItAsOperand) {
    LargeInteger const v(36);
    EXPECT_EQ(v.findGreatestCommonDivisor(LargeInteger(48)), LargeInteger(12));
    EXPECT_EQ(v, LargeInteger(36));
    EXPECT_EQ(v.findGreatestCommonDivisor(v), v);
}

TEST(GreatestCommonDivisor, IsReturnedWithAnExactBound) {
    EXPECT_EQ(representation(gcd(powerOfTwo(200), powerOfTwo(199))).highestBit, 199);
    LargeInteger stale(7);
    makeStale(stale, 200);
    EXPECT_EQ(representation(gcd(stale, LargeInteger(0))).highestBit, 2);
}

TEST(Inverse, OfDocumentedExamples) {
    EXPECT_EQ(inverse(LargeInteger(3), LargeInteger(7)), LargeInteger(5));
    EXPECT_EQ(inverse(LargeInteger(17), LargeInteger(3120)), LargeInteger(2753));
    EXPECT_EQ(inverse(LargeInteger(10), LargeInteger(7)), LargeInteger(5));
    EXPECT_EQ(inverse(LargeInteger(1), LargeInteger(9)), LargeInteger(1));
    EXPECT_EQ(inverse(LargeInteger(65537), LargeInteger(1000000)), LargeInteger(473473));
}

TEST(Inverse, OfEveryOddCoprimeValue) {
    for (int m = 2; m <= 60; ++m) {
        for (int value = 1; value < m; value += 2) {
            if (std::gcd(value, m) != 1)
                continue;
            int const result = inverse(LargeInteger(value), LargeInteger(m)).toInteger();
            EXPECT_EQ(value * result % m, 1 % m) << value << " modulo " << m;
            EXPECT_TRUE(result > 0 && result < m) << value << " modulo " << m;
        }
    }
}

TEST(Inverse, OfAnEvenValueIsRefusedEvenWhereItExists) {
    EXPECT_EQ(representation(inverse(LargeInteger(4), LargeInteger(7))),
              (Representation{4, -1, false}));
    EXPECT_TRUE(inverse(LargeInteger(9), LargeInteger(7)).isZero());  // 2 once reduced
    EXPECT_TRUE(inverse(LargeInteger(0), LargeInteger(7)).isZero());
    EXPECT_TRUE(inverse(LargeInteger(14), LargeInteger(7)).isZero());
}

TEST(Inverse, ModuloOneZeroOrANegativeIsZero) {
    EXPECT_TRUE(inverse(LargeInteger(5), LargeInteger(1)).isZero());
    EXPECT_TRUE(inverse(LargeInteger(1), LargeInteger(1)).isZero());
    EXPECT_TRUE(inverse(LargeInteger(3), LargeInteger(-7)).isZero());
    EXPECT_TRUE(inverse(LargeInteger(3), LargeInteger(0)).isZero());
    EXPECT_TRUE(inverse(LargeInteger(3), negativeZero()).isZero());
}

TEST(Inverse, RefusalsReleaseALargeBuffer) {
    LargeInteger even = powerOfTwo(600);
    even.inverseModulo(powerOfTwo(601));
    EXPECT_EQ(representation(even), (Representation{4, -1, false}));
}

TEST(Inverse, OfANegativeValueWhereTheRemaindersReachOne) {
    // 7 and -5: 7 = (-5)(-1) + 2, -5 = 2(-2) - 1, 2 = (-1)(-2) + 0 does not end; 8 and -5 does:
    // 8 = (-5)(-1) + 3, -5 = 3(-1) - 2, 3 = (-2)(-1) + 1.
    EXPECT_EQ(inverse(LargeInteger(-5), LargeInteger(8)), LargeInteger(3));
    EXPECT_EQ(inverse(LargeInteger(-13), LargeInteger(8)), LargeInteger(3));
}

TEST(Inverse, ModuloTheObjectItselfIsZero) {
    for (int start : {-5, 0, 1, 5}) {
        LargeInteger v(start);
        v.inverseModulo(v);
        EXPECT_TRUE(v.isZero()) << start;
    }
}

TEST(Inverse, OfAWideModulus) {
    LargeInteger const m = hex("f0000000000000000000000000000000000000000000000000000000000000a2");
    LargeInteger const e(65537);
    EXPECT_EQ(inverse(e, m) * e % m, LargeInteger(1));
}

/// Compares the inverse with the plain steps', and all other fields.
void expectPlainInverse(LargeInteger const& value, LargeInteger const& m) {
    LargeInteger fast(value);
    fast.inverseModulo(m);
    plain::LargeInteger slow;
    plain::LargeInteger modulus;
    slow.parseString(value.toString(16), 16);
    modulus.parseString(m.toString(16), 16);
    slow.inverseModulo(modulus);
    EXPECT_EQ(fast.toString(16), slow.toString(16)) << value.toString(16) << " " << m.toString(16);
    EXPECT_EQ(representation(fast), (Representation{slow.size, slow.highestBit, slow.negative}))
        << value.toString(16) << " " << m.toString(16);
}

// With m = (2^j - 1) (2^k + 1) + 1 the inverse of 2^k + 1 is m - (2^j - 1), and the bound is that
// of (2^j - 1) 2^k + 1, just below a power of two: its leading 128 bits are too few to tell.
TEST(Inverse, LeavesTheBoundOfAProductJustBelowAPowerOfTwo) {
    for (int j : {1, 2, 31, 62, 63, 64, 65, 66, 127, 128, 200}) {
        for (int k : {1, 2, 5, 31, 62, 63, 64, 65, 100}) {
            LargeInteger const value = powerOfTwo(k) + LargeInteger(1);
            LargeInteger const m = (powerOfTwo(j) - LargeInteger(1)) * value + LargeInteger(1);
            if (m > value)
                expectPlainInverse(value, m);
        }
    }
}

// Small values: where the last coefficient is negative, the plain steps add the modulus up to half
// as many times.
TEST(Inverse, LeavesTheBooksOfThePlainSteps) {
    for (int bits : {3, 31, 33, 63, 64, 65, 66, 127, 129, 192, 500}) {
        for (int v = 3; v < 200; v += 2) {
            for (int offset = 0; offset < 3; ++offset) {
                LargeInteger const value(v);
                LargeInteger const m = powerOfTwo(bits) + LargeInteger(offset);
                if (value.findGreatestCommonDivisor(m).isOne())
                    expectPlainInverse(value, m);
            }
        }
    }
}

TEST(Power, OfDocumentedExamples) {
    EXPECT_EQ(power(LargeInteger(4), LargeInteger(13), LargeInteger(497)), LargeInteger(445));
    EXPECT_EQ(power(LargeInteger(2), LargeInteger(0), LargeInteger(1)), LargeInteger(1));
    EXPECT_EQ(power(LargeInteger(3), LargeInteger(5), LargeInteger(0)), LargeInteger(1));
}

/// The documented rule for small values: the exponent reduced first, the result never.
long long plainPower(long long base, long long e, long long m) {
    long long result = 1;
    for (long long i = m == 0 ? 0 : e % m; i > 0; --i)
        result = result * base % m;
    return result;
}

TEST(Power, OfAllSmallValues) {
    for (int base = 0; base <= 12; ++base) {
        for (int e = 0; e <= 40; ++e) {
            for (int m = 0; m <= 12; ++m)
                EXPECT_EQ(power(LargeInteger(base), LargeInteger(e), LargeInteger(m)),
                          LargeInteger(plainPower(base, e, m)))
                    << base << " to " << e << " modulo " << m;
        }
    }
}

TEST(Power, TheExponentIsReducedModuloTheModulus) {
    EXPECT_EQ(power(LargeInteger(3), LargeInteger(12), LargeInteger(10)), LargeInteger(9));
    EXPECT_EQ(power(LargeInteger(3), LargeInteger(20), LargeInteger(10)), LargeInteger(1));
}

TEST(Power, OfANegativeBaseKeepsTheSignOfItsSquares) {
    // Squaring in place keeps the sign: (-2)^2 comes out as -4, (-2)^3 as 8.
    EXPECT_EQ(power(LargeInteger(-2), LargeInteger(2), LargeInteger(100)), LargeInteger(-4));
    EXPECT_EQ(power(LargeInteger(-2), LargeInteger(3), LargeInteger(100)), LargeInteger(8));
}

TEST(Power, AnOperandMayBeTheObjectItself) {
    LargeInteger both(7);
    both.exponentModulo(LargeInteger(3), both);  // 7^3 mod 7
    EXPECT_TRUE(both.isZero());
    LargeInteger base(3);
    base.exponentModulo(base, LargeInteger(10));
    EXPECT_EQ(base, LargeInteger(7));
    LargeInteger all(5);
    all.exponentModulo(all, all);  // the exponent reduces to zero
    EXPECT_TRUE(all.isOne());
    LargeInteger modulus(10);
    LargeInteger other(3);
    other.exponentModulo(modulus, modulus);
    EXPECT_TRUE(other.isOne());
}

TEST(Power, AnExponentCongruentToZeroGivesAFreshOne) {
    LargeInteger v = powerOfTwo(600);
    v.exponentModulo(LargeInteger(0), LargeInteger(7));
    EXPECT_EQ(representation(v), (Representation{4, 0, false}));
}

TEST(Power, LeavesTheBoundOfTheLastProduct) {
    LargeInteger v(5);
    v.exponentModulo(LargeInteger(1), LargeInteger(7));
    EXPECT_EQ(representation(v).highestBit, 2);
    LargeInteger w(5);
    w.exponentModulo(LargeInteger(3), LargeInteger(7));  // 5 * (25 mod 7) = 20, reduced to 6
    EXPECT_EQ(w, LargeInteger(6));
    EXPECT_EQ(representation(w).highestBit, 4);
}

}  // namespace
