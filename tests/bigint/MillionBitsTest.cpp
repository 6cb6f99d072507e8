// Numbers of a million bits through every operation once: those that are linear beside the plain
// model, the others by what must come back. None may take more than a few seconds.
#include "PlainDifference.h"

#include "Thoroughness.h"

#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"
#include "qel/Random.h"

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <string>

namespace {

using namespace bigint_test;
using qel::Random;

constexpr int million = 1000000;

/// Checks at the end of the test that it has not taken too long, in time of this process.
class MillionBits : public testing::Test {
  protected:
    void TearDown() override {
        constexpr int limit_s = 20;
        if (!thoroughness::slowBuild) {
            EXPECT_LT((std::clock() - begin_) / CLOCKS_PER_SEC, limit_s);
        }
    }

    /// Random bits with the top and the lowest one set.
    static LargeInteger number(int bits, int seed) {
        LargeInteger v;
        Random(seed).fillBitsRandomly(v, 0, bits);
        v.setBit(bits - 1);
        v.setBit(0);
        return LargeInteger(v);
    }

  private:
    std::clock_t begin_ = std::clock();
};

plain::LargeInteger modelOf(LargeInteger const& v) {
    plain::LargeInteger model;
    for (int i = 0; i <= v.getHighestBit(); i += 32)
        model.setBitRangeAsInt(i, 32, static_cast<unsigned>(v.getBitRangeAsInt(i, 32)));
    model.setNegative(v.isNegative());
    return {model};
}

TEST_F(MillionBits, LinearOperationsFollowThePlainSteps) {
    LargeInteger const a = number(million, 1);
    LargeInteger const b = -number(million - 70000, 2);
    plain::LargeInteger const plainA = modelOf(a);
    plain::LargeInteger const plainB = modelOf(b);
    EXPECT_EQ(difference(a + b, plainA + plainB), "");
    EXPECT_EQ(difference(a - b, plainA - plainB), "");
    EXPECT_EQ(difference(b - a, plainB - plainA), "");
    EXPECT_EQ(difference(a & b, plainA & plainB), "");
    EXPECT_EQ(difference(b | a, plainB | plainA), "");
    EXPECT_EQ(difference(a ^ b, plainA ^ plainB), "");
    EXPECT_EQ(difference(-a, -plainA), "");
    EXPECT_EQ(difference(a << 777777, plainA << 777777), "");
    EXPECT_EQ(difference(b >> 777777, plainB >> 777777), "");
    EXPECT_EQ(difference(a.getBitRange(33, 900001), plainA.getBitRange(33, 900001)), "");
    EXPECT_EQ(a.compare(b), plainA.compare(plainB));
    EXPECT_EQ(b.compareAbsolute(a), plainB.compareAbsolute(plainA));
    EXPECT_EQ(a.countNumberOfSetBits(), plainA.countNumberOfSetBits());
}

TEST_F(MillionBits, BitEditsFollowThePlainSteps) {
    LargeInteger v = number(million, 3);
    plain::LargeInteger model = modelOf(v);
    auto const both = [&](auto edit) {
        edit(v);
        edit(model);
        EXPECT_EQ(difference(v, model), "");
    };
    both([](auto& x) { x.insertBit(500, true); });
    both([](auto& x) { x.shiftBits(-40, 300); });
    both([](auto& x) { x.setRange(100, 900000, true); });
    both([](auto& x) { x.setRange(1000, 999, false); });
    both([](auto& x) { ++x; });
    both([](auto& x) { --x; });
    both([](auto& x) { x.clearBit(million); });
    EXPECT_EQ(v.findNextClearBit(2000), model.findNextClearBit(2000));
    EXPECT_EQ(v.findNextSetBit(1000), model.findNextSetBit(1000));
    both([](auto& x) { x.clear(); });
}

/// The plain product takes one step for each set bit of its left operand.
TEST_F(MillionBits, ProductsOfSparseNumbersFollowThePlainSteps) {
    LargeInteger sparse;
    for (int const bit : {0, 1, 31, 64, 500000, 999999})
        sparse.setBit(bit);
    LargeInteger const dense = number(million, 4);
    EXPECT_EQ(difference(sparse * dense, modelOf(sparse) * modelOf(dense)), "");
}

TEST_F(MillionBits, QuotientsUndoProducts) {
    LargeInteger const a = number(million, 5);
    LargeInteger const b = number(million / 2, 6);
    LargeInteger const rest = number(million / 2 - 1, 7);
    LargeInteger dividend = a * b + rest;
    EXPECT_EQ(dividend % b, rest);
    LargeInteger remainder;
    dividend.divideBy(b, remainder);
    EXPECT_EQ(dividend, a);
    EXPECT_EQ(remainder, rest);
    EXPECT_EQ(a * a, (a - LargeInteger(1)) * (a + LargeInteger(1)) + LargeInteger(1));
}

TEST_F(MillionBits, TextsComeBack) {
    LargeInteger const v = -number(million, 8);
    for (int const radix : {2, 8, 10, 16}) {
        LargeInteger back;
        back.parseString(v.toString(radix), radix);
        EXPECT_TRUE(back == v) << radix;
    }
    EXPECT_EQ(v.toString(10).size(), 301031U);
}

TEST_F(MillionBits, CommonDivisorsAreFound) {
    LargeInteger const divisor = number(million / 2, 9);
    LargeInteger a = divisor * number(million / 2, 10);
    LargeInteger const b = divisor * (number(million / 2, 10) + LargeInteger(1));
    EXPECT_TRUE(a.findGreatestCommonDivisor(b) == divisor);
    LargeInteger threeTimes = a * LargeInteger(3);
    EXPECT_TRUE(LargeInteger::simpleGCD(&a, &threeTimes) == divisor * number(million / 2, 10));
}

TEST_F(MillionBits, InversesAreInverse) {
    LargeInteger const modulus = number(million, 11);
    LargeInteger const value = LargeInteger(1) + LargeInteger(1) + modulus * LargeInteger(3);
    LargeInteger inverse = modulus - LargeInteger(2);  // coprime: the modulus is odd
    inverse.inverseModulo(modulus);
    EXPECT_TRUE((inverse * (modulus - LargeInteger(2)) % modulus).isOne());
    inverse = value;  // 2 once it is reduced
    inverse.inverseModulo(modulus);
    EXPECT_TRUE(inverse.isZero());
}

TEST_F(MillionBits, PowersAreProducts) {
    LargeInteger const modulus = number(million, 12);
    LargeInteger const base = number(million - 1, 13);
    LargeInteger power = base;
    power.exponentModulo(LargeInteger(5), modulus);
    LargeInteger const square = base * base % modulus;
    EXPECT_TRUE(power == square * square % modulus * base % modulus);
}

TEST_F(MillionBits, VerdictsAndKeysTakeThem) {
    LargeInteger const composite = number(million / 2, 14) * LargeInteger(23);
    EXPECT_FALSE(qel::PrimesNumber::isProbablyPrime(composite, 5));
    qel::RSAKey const key(("5," + number(million, 15).toString(16)).c_str());
    EXPECT_EQ(key, qel::RSAKey(key.toString().c_str()));
    LargeInteger value = number(million - 1, 16);
    LargeInteger const base = value;
    EXPECT_TRUE(key.applyToValue(value));
    LargeInteger power = base;
    power.exponentModulo(LargeInteger(5), number(million, 15));
    EXPECT_TRUE(value == power);
}

}  // namespace
