// The capacity of a greatest common divisor, which is that of the documented steps: it tells which
// operand repeated subtraction leaves.
#include "Twins.h"

#include <gtest/gtest.h>

namespace {

using namespace bigint_test;

/// Empty when the library's divisor has all four fields of the model's.
std::string divisorDifference(Twin const& a, Twin const& b) {
    return difference(a.fast.findGreatestCommonDivisor(b.fast),
                      a.plain.findGreatestCommonDivisor(b.plain));
}

/// 2^bit, or zero for -1, under a bound that is too high.
Twin staleTwin(int bit, int bound, bool flag) {
    Twin twin;
    both(twin, [=](auto& v) {
        v.setBit(bit);
        v.setNegative(flag);
        v.setBit(bound);
        v.clearBit(bound);
    });
    return twin;
}

TEST(DivisorCapacity, WithAZeroIsThatOfATightCopyWhateverTheBounds) {
    for (int bit : {0, 3, 126, 127, 128, 159, 160, 300}) {
        for (int bound : {bit + 1, bit + 40, bit + 200}) {
            for (bool flag : {false, true}) {
                Twin const value = staleTwin(bit, bound, flag);
                Twin const zero = staleTwin(-1, bound, !flag);
                EXPECT_EQ(divisorDifference(value, zero), "") << describe(value);
                EXPECT_EQ(divisorDifference(zero, value), "") << describe(value);
                EXPECT_EQ(divisorDifference(zero, zero), "") << describe(zero);
                EXPECT_EQ(representation(value.fast.findGreatestCommonDivisor(zero.fast)).size,
                          std::max(4, bit / 32 + 1));
                EXPECT_EQ(representation(zero.fast.findGreatestCommonDivisor(zero.fast)).size, 4);
            }
        }
    }
}

/// Pairs with a common divisor, built backwards from small quotients.
class Pairs {
  public:
    explicit Pairs(unsigned int seed) : choices_(seed) {
        refill(larger_, 1 + choices_.below(400), choices_);
        both(larger_, [](auto& v) { v.setNegative(false), v.setBit(0); });
    }

    /// The next pair is (quotient * larger + smaller, larger).
    void grow() {
        Twin next = smaller_;
        for (int quotient = 1 + choices_.below(5); quotient > 0; --quotient) {
            next.fast += larger_.fast;
            next.plain += larger_.plain;
        }
        smaller_ = larger_;
        larger_ = next;
    }

    [[nodiscard]] Twin const& larger() const { return larger_; }
    [[nodiscard]] Twin const& smaller() const { return smaller_; }

  private:
    SeededChoices choices_;
    Twin larger_;
    Twin smaller_;
};

TEST(DivisorCapacity, IsThatOfTheOperandThatSubtractionLeaves) {
    int differing = 0;
    for (unsigned int seed = 0; seed < 400; ++seed) {
        Pairs pairs(seed);
        for (int step = 0; step < 120; ++step) {
            pairs.grow();
            Twin const& a = pairs.larger();
            Twin const& b = pairs.smaller();
            bool const sizesDiffer = a.fast.getHighestBit() / 32 != b.fast.getHighestBit() / 32;
            if (!sizesDiffer || a.fast.getHighestBit() < 128)
                continue;
            ++differing;
            ASSERT_EQ(divisorDifference(a, b), "") << seed << ' ' << describe(a) << describe(b);
            ASSERT_EQ(divisorDifference(b, a), "") << seed << ' ' << describe(b) << describe(a);
        }
    }
    EXPECT_GT(differing, 1000);
}

/// Empty when the subtractive form leaves both operands, and its result, as the model does.
std::string usedUpDifference(Twin a, Twin b) {
    return difference(LargeInteger::simpleGCD(&a.fast, &b.fast),
                      plain::LargeInteger::simpleGCD(&a.plain, &b.plain))
           + difference(a.fast, a.plain) + difference(b.fast, b.plain);
}

TEST(DivisorCapacity, TheSubtractiveFormLeavesOneOperandZeroBothUnderTheirOwnBoundsAndCapacities) {
    for (unsigned int seed = 0; seed < 200; ++seed) {
        Pairs pairs(seed);
        SeededChoices choices(seed);
        for (int step = 0; step < 60; ++step) {
            pairs.grow();
            Twin a = pairs.larger();
            Twin b = pairs.smaller();
            bool const negative = choices.oneIn(2);
            for (Twin* const twin : {&a, &b}) {
                int const reserved = choices.below(30);
                int const bound = twin->fast.getHighestBit() + 1 + choices.below(80);
                both(*twin, [&](auto& v) {
                    v.setNegative(negative);
                    v.ensureSize(reserved);
                    v.setBit(bound);
                    v.clearBit(bound);
                });
            }
            if (b.fast.isZero())
                continue;
            ASSERT_EQ(usedUpDifference(a, b), "") << seed << ' ' << describe(a) << describe(b);
            ASSERT_EQ(usedUpDifference(b, a), "") << seed << ' ' << describe(b) << describe(a);
        }
    }
}

TEST(DivisorCapacity, TheSubtractiveFormOfOneObjectTwiceLeavesItZero) {
    for (bool const negative : {false, true}) {
        Twin twin = staleTwin(3, 200, negative);
        ASSERT_EQ(difference(LargeInteger::simpleGCD(&twin.fast, &twin.fast),
                             plain::LargeInteger::simpleGCD(&twin.plain, &twin.plain)),
                  "");
        ASSERT_EQ(difference(twin.fast, twin.plain), "");
    }
}

}  // namespace
