// Sums, differences, comparisons and shifts of limbs, and rows by one limb, against sums and
// products on halves of limbs.
#include "LimbTables.h"

#include "bigint/limbs/Power.h"

namespace {

using namespace limb_test;
namespace limbs = qel::limbs;

// --- sums and differences -----------------------------------------------------------------------

struct Sums {
    char const* name;
    Limb (*add)(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept;
    Limb (*subtract)(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept;
};

constexpr Sums allSums[] = {{"in use", limbs::add, limbs::subtract},
                            {"portable", limbs::addPortable, limbs::subtractPortable}};

TEST(LimbAdd, IsTheSumWithItsCarryAlsoInPlace) {
    onPairs(1, rowLengths(), [](Limbs const& a, Limbs const& b) {
        Limbs const expected = sum(a, b);
        std::size_t const count = a.size();
        for (Sums const& variant : allSums) {
            auto const add = variant.add;
            Fenced out(count);
            Fenced inA(a);
            Fenced inB(b);
            Limb const carries[] = {add(out.data(), a.data(), b.data(), count),
                                    add(inA.data(), inA.data(), b.data(), count),
                                    add(inB.data(), a.data(), inB.data(), count)};
            Fenced const* const outs[] = {&out, &inA, &inB};
            for (int i = 0; i < 3; ++i) {
                ASSERT_EQ(with(outs[i]->values(), carries[i]), expected)
                    << variant.name << input("a", a, "b", b);
                ASSERT_TRUE(outs[i]->intact()) << variant.name;
            }
        }
    });
}

TEST(LimbAdd, DoublesANumberInPlace) {
    onOperands(2, rowLengths(), [](Limbs const& a) {
        for (Sums const& variant : allSums) {
            Fenced out(a);
            Limb const carry = variant.add(out.data(), out.data(), out.data(), a.size());
            ASSERT_EQ(with(out.values(), carry), sum(a, a)) << variant.name << input("a", a);
            ASSERT_TRUE(out.intact()) << variant.name;
        }
    });
}

// a - b = out - borrow * 2^(64 count) is a + borrow * 2^(64 count) = out + b.
TEST(LimbSubtract, IsTheDifferenceWithItsBorrowAlsoInPlace) {
    onPairs(3, rowLengths(), [](Limbs const& a, Limbs const& b) {
        std::size_t const count = a.size();
        for (Sums const& variant : allSums) {
            auto const subtract = variant.subtract;
            Fenced out(count);
            Fenced inA(a);
            Fenced inB(b);
            Limb const borrows[] = {subtract(out.data(), a.data(), b.data(), count),
                                    subtract(inA.data(), inA.data(), b.data(), count),
                                    subtract(inB.data(), a.data(), inB.data(), count)};
            Fenced const* const outs[] = {&out, &inA, &inB};
            for (int i = 0; i < 3; ++i) {
                ASSERT_EQ(sum(outs[i]->values(), b), with(a, borrows[i]))
                    << variant.name << input("a", a, "b", b);
                ASSERT_TRUE(outs[i]->intact()) << variant.name;
            }
        }
    });
}

TEST(LimbAddLimb, CarriesAnyLimbIntoTheNumberAlsoInPlace) {
    onOperands(4, rowLengths(), [](Limbs const& a) {
        for (Limb const b : edgeLimbs) {
            Limbs const expected = sum(a, {b});
            Fenced out(a.size());
            Fenced inA(a);
            Limb const carry = limbs::addLimb(out.data(), a.data(), a.size(), b);
            Limb const carryInA = limbs::addLimb(inA.data(), inA.data(), a.size(), b);
            ASSERT_EQ(with(out.values(), carry), expected) << input("a", a, "b", b);
            ASSERT_EQ(with(inA.values(), carryInA), expected) << input("a", a, "b", b);
            ASSERT_TRUE(out.intact());
            ASSERT_TRUE(inA.intact());
        }
    });
}

TEST(LimbSubtractLimb, BorrowsAnyLimbFromTheNumberAlsoInPlace) {
    onOperands(5, rowLengths(), [](Limbs const& a) {
        for (Limb const b : edgeLimbs) {
            Fenced out(a.size());
            Fenced inA(a);
            Limb const borrow = limbs::subtractLimb(out.data(), a.data(), a.size(), b);
            Limb const borrowInA = limbs::subtractLimb(inA.data(), inA.data(), a.size(), b);
            ASSERT_EQ(sum(out.values(), {b}), with(a, borrow)) << input("a", a, "b", b);
            ASSERT_EQ(sum(inA.values(), {b}), with(a, borrowInA)) << input("a", a, "b", b);
            ASSERT_TRUE(out.intact());
            ASSERT_TRUE(inA.intact());
        }
    });
}

// Products are folded with rests of no limbs.
TEST(LimbAdd, OfNoLimbsCarriesNothing) {
    for (Sums const& variant : allSums) {
        Fenced out(std::size_t{0});
        EXPECT_EQ(variant.add(out.data(), out.data(), out.data(), 0), 0U);
        EXPECT_EQ(variant.subtract(out.data(), out.data(), out.data(), 0), 0U);
        EXPECT_TRUE(out.intact());
    }
}

TEST(LimbAddLimb, OfNoLimbsReturnsTheCarry) {
    Fenced out(std::size_t{0});
    EXPECT_EQ(limbs::addLimb(out.data(), out.data(), 0, 7), 7U);
    EXPECT_EQ(limbs::subtractLimb(out.data(), out.data(), 0, 7), 7U);
    EXPECT_TRUE(out.intact());
}

// --- comparison ---------------------------------------------------------------------------------

TEST(LimbCompare, TellsLessEqualAndGreater) {
    onPairs(6, rowLengths(), [](Limbs const& a, Limbs const& b) {
        int const expected = less(a, b) ? -1 : less(b, a) ? 1 : 0;
        ASSERT_EQ(limbs::compare(a.data(), b.data(), a.size()), expected) << input("a", a, "b", b);
        ASSERT_EQ(limbs::compare(a.data(), a.data(), a.size()), 0) << input("a", a);
    });
}

TEST(LimbCompare, SeesADifferenceInEachLimbAndTheHighestDecides) {
    onOperands(7, {1, 2, 3, 8, 17}, [](Limbs const& a) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            Limbs b = a;
            b[i] ^= 1;
            std::fill_n(b.begin(), i, a[i] > b[i] ? allOnes : 0);
            int const expected = a[i] > b[i] ? 1 : -1;
            ASSERT_EQ(limbs::compare(a.data(), b.data(), a.size()), expected)
                << input("a", a, "b", b);
            ASSERT_EQ(limbs::compare(b.data(), a.data(), a.size()), -expected)
                << input("a", a, "b", b);
        }
    });
}

TEST(LimbSignificant, LeavesOutZeroLimbsOnTopOnly) {
    for (std::size_t count = 0; count <= 20; ++count) {
        for (std::size_t length = 0; length <= count; ++length) {
            Limbs a(count);
            if (length > 0)
                a[length - 1] = length % 2 == 0 ? 1 : topBit;
            ASSERT_EQ(limbs::significant(a.data(), count), length) << input("a", a);
            std::fill_n(a.begin(), length, allOnes);
            ASSERT_EQ(limbs::significant(a.data(), count), length) << input("a", a);
        }
    }
}

// --- shifts -------------------------------------------------------------------------------------

/// a * 2^bits, in one limb more.
Limbs shiftedUp(Limbs const& a, int bits) {
    return product(a, {Limb{1} << bits});
}

TEST(LimbShiftLeft, IsTheProductByAPowerOfTwoAlsoInPlace) {
    onOperands(8, rowLengths(), [](Limbs const& a) {
        for (int bits = 1; bits < 64; ++bits) {
            Limbs const expected = shiftedUp(a, bits);
            Fenced out(a.size());
            Fenced inA(a);
            Limb const top = limbs::shiftLeft(out.data(), a.data(), a.size(), bits);
            Limb const topInA = limbs::shiftLeft(inA.data(), inA.data(), a.size(), bits);
            ASSERT_EQ(with(out.values(), top), expected) << bits << input("a", a);
            ASSERT_EQ(with(inA.values(), topInA), expected) << bits << input("a", a);
            ASSERT_TRUE(out.intact());
            ASSERT_TRUE(inA.intact());
        }
    });
}

// a >> bits are the limbs of a << (64 - bits) from limb 1 up.
TEST(LimbShiftRight, IsAShiftLeftByTheRestOfALimbAlsoInPlace) {
    onOperands(9, rowLengths(), [](Limbs const& a) {
        for (int bits = 1; bits < 64; ++bits) {
            Limbs expected = shiftedUp(a, 64 - bits);
            expected.erase(expected.begin());
            Fenced out(a.size());
            Fenced inA(a);
            limbs::shiftRight(out.data(), a.data(), a.size(), bits);
            limbs::shiftRight(inA.data(), inA.data(), a.size(), bits);
            ASSERT_TRUE(out.holds(expected)) << bits << input("a", a);
            ASSERT_TRUE(inA.holds(expected)) << bits << input("a", a);
        }
    });
}

// --- one limb by many ---------------------------------------------------------------------------

TEST(LimbMultiplyLimb, IsTheProductAlsoInPlace) {
    onOperands(10, rowLengths(), [](Limbs const& a) {
        for (Limb const b : edgeLimbs) {
            Limbs const expected = product(a, {b});
            for (Variant const& variant : variants()) {
                auto const multiplyLimb = variant.kernels->multiplyLimb;
                Fenced out(a.size());
                Fenced inA(a);
                Limb const top = multiplyLimb(out.data(), a.data(), a.size(), b);
                Limb const topInA = multiplyLimb(inA.data(), inA.data(), a.size(), b);
                ASSERT_EQ(with(out.values(), top), expected)
                    << variant.name << input("a", a, "b", b);
                ASSERT_EQ(with(inA.values(), topInA), expected)
                    << variant.name << input("a", a, "b", b);
                ASSERT_TRUE(out.intact()) << variant.name;
                ASSERT_TRUE(inA.intact()) << variant.name;
            }
        }
    });
}

/// out + a * b with its carry; the sum is below 2^(64 (count + 1)).
Limbs rowSum(Limbs const& out, Limbs const& a, Limb b) {
    Limbs expected = sum(out, product(a, {b}));
    expected.pop_back();
    return expected;
}

TEST(LimbAddMultiply, AddsARowInEachVariantAlsoToItself) {
    Operands operands(11);
    onPairs(12, rowLengths(), [&](Limbs const& before, Limbs const& a) {
        Limbs multipliers(std::begin(edgeLimbs), std::end(edgeLimbs));
        multipliers.push_back(operands.limb());
        for (Limb const b : multipliers) {
            Limbs const expected = rowSum(before, a, b);
            Limbs const expectedInA = rowSum(a, a, b);
            for (Variant const& variant : variants()) {
                auto const addMultiply = variant.kernels->addMultiply;
                Fenced out(before);
                Fenced inA(a);
                Limb const carry = addMultiply(out.data(), a.data(), a.size(), b);
                Limb const carryInA = addMultiply(inA.data(), inA.data(), a.size(), b);
                ASSERT_EQ(with(out.values(), carry), expected)
                    << variant.name << input("out", before, "a", a, "b", b);
                ASSERT_EQ(with(inA.values(), carryInA), expectedInA)
                    << variant.name << " in place" << input("a", a, "b", b);
                ASSERT_TRUE(out.intact()) << variant.name << input("a", a, "b", b);
                ASSERT_TRUE(inA.intact()) << variant.name << input("a", a, "b", b);
            }
        }
    });
}

// --- the choice ---------------------------------------------------------------------------------

TEST(LimbVariants, TheFastestThatRunsIsChosenUnlessATestChooses) {
    limbs::Kernels const* const own =
        limbs::hasAdx() ? &limbs::adxKernels : &limbs::portableKernels;
    EXPECT_EQ(&limbs::kernels(), own);
    for (Variant const& variant : variants()) {
        {
            Using const use(variant);
            EXPECT_EQ(&limbs::kernels(), variant.kernels) << variant.name;
        }
        EXPECT_EQ(&limbs::kernels(), own);
    }
}

/// A variant of which each kernel leaves its number and does nothing else.
int asked = 0;
limbs::Kernels const asking = {
    [](Limb*, Limb const*, std::size_t, Limb) noexcept -> Limb { return asked = 3, 0; },
    [](Limb*, Limb const*, std::size_t, Limb) noexcept -> Limb { return asked = 4, 0; },
    [](Limb*, Limb const*, std::size_t, Limb const*, std::size_t) noexcept { asked = 5; },
    [](Limb*, Limb const*, std::size_t) noexcept { asked = 6; },
    [](Limb*, Limb*, Limb const*, std::size_t, Limb) noexcept { asked = 7; }};

// All variants give the same results, so that only one that does not shows who is asked.
TEST(LimbVariants, TheOneInUseIsAskedForAllThatHasVariants) {
    Using const use({"asking", &asking});
    Limbs out(6);
    Limbs const a{1, 0, 0};
    limbs::multiplyLimb(out.data(), a.data(), 3, 1);
    EXPECT_EQ(asked, 3);
    limbs::addMultiply(out.data(), a.data(), 3, 1);
    EXPECT_EQ(asked, 4);
    limbs::multiply(out.data(), a.data(), 3, a.data(), 3, nullptr);
    EXPECT_EQ(asked, 5);
    limbs::square(out.data(), a.data(), 3, nullptr);
    EXPECT_EQ(asked, 6);
    Limbs const divisor{1, 1, topBit};
    Limb quotient = 0;
    limbs::divideNormalized(&quotient, out.data(), 4, divisor.data(), 3);
    EXPECT_EQ(asked, 4);
    Limbs const odd{3, 0, 1};
    Limbs result(9);
    Limbs scratch(limbs::powerScratch(3, 0));
    limbs::power(result.data(), result.data() + 3, result.data() + 6, a.data(), a.data(), 0,
                 odd.data(), 3, scratch.data());
    EXPECT_EQ(asked, 7);
}

}  // namespace
