// Quotients by one limb and by many: quotient * divisor + remainder is the dividend and the
// remainder is below the divisor, which no other pair has.
#include "LimbTables.h"

namespace {

using namespace limb_test;
namespace limbs = qel::limbs;

// --- by one limb --------------------------------------------------------------------------------

void expectQuotientByLimb(Limbs const& a, Limb divisor) {
    Fenced out(a.size());
    Fenced inA(a);
    Limb const rest = limbs::divideLimb(out.data(), a.data(), a.size(), divisor);
    Limb const restInA = limbs::divideLimb(inA.data(), inA.data(), a.size(), divisor);
    ASSERT_LT(rest, divisor) << input("a", a, "divisor", divisor);
    ASSERT_EQ(restInA, rest) << input("a", a, "divisor", divisor);
    ASSERT_EQ(limbs::remainderLimb(a.data(), a.size(), divisor), rest)
        << input("a", a, "divisor", divisor);
    Limbs const back = sum(product(out.values(), {divisor}), {rest});
    ASSERT_EQ(back, with(with(a, 0), 0)) << input("a", a, "divisor", divisor);
    ASSERT_TRUE(out.intact());
    ASSERT_TRUE(inA.holds(out.values())) << input("a", a, "divisor", divisor);
}

TEST(LimbDivideLimb, IsTheQuotientAndTheRemainderAlsoInPlace) {
    Operands operands(50);
    onOperands(51, rowLengths(), [&](Limbs const& a) {
        for (Limb const divisor : edgeLimbs) {
            if (divisor != 0)
                expectQuotientByLimb(a, divisor);
        }
        expectQuotientByLimb(a, operands.limb() | 1);
    });
}

TEST(LimbDivideLimb, TakesDivisorsOfEachLength) {
    Operands operands(52);
    for (int bits = 0; bits < 64; ++bits) {
        for (Pattern const pattern : patterns) {
            for (std::size_t const count : {2U, 9U, 19U}) {
                Limbs const a = operands.make(pattern, count);
                expectQuotientByLimb(a, Limb{1} << bits);
                expectQuotientByLimb(a, (topBit | operands.limb()) >> bits);
                expectQuotientByLimb(a, allOnes >> bits);
            }
        }
    }
}

// On both sides of where a reciprocal, halves side by side and folded remainders take over, of
// blocks of eight limbs, and of the powers that are reduced: 2^60.
TEST(LimbDivideLimb, TakesAllLengthsByDivisorsThatAreFoldedAndLargerOnes) {
    Operands operands(54);
    constexpr Limb folded = Limb{1} << 60;
    for (std::size_t count = 1; count <= 50; ++count) {
        for (Pattern const pattern : patterns) {
            Limbs const a = operands.make(pattern, count);
            for (Limb const divisor :
                 {Limb{3}, Limb{10}, Limb{127}, (Limb{1} << 30) - 1, folded - 1, folded + 1,
                  (operands.limb() >> 4) | 1, operands.limb() | topBit})
                expectQuotientByLimb(a, divisor);
        }
        if (HasFailure())
            return;
    }
}

// Backwards: the digits that are hard to guess are those with remainders at either end.
TEST(LimbDivideLimb, FindsDigitsWithTheSmallestAndLargestRemainders) {
    Operands operands(53);
    for (int i = 0; i < 2000; ++i) {
        Limb const divisor = i % 2 == 0 ? operands.limb() | 1 : topBit + operands.below(1 << 20);
        Limbs const quotient = operands.any(3);
        for (Limb const rest : {Limb{0}, Limb{1} % divisor, divisor / 2, divisor - 1}) {
            Limbs a = sum(product(quotient, {divisor}), {rest});
            a.pop_back();
            expectQuotientByLimb(a, divisor);
        }
        if (HasFailure())
            return;
    }
}

// --- by two limbs -------------------------------------------------------------------------------

void expectQuotientByTwo(Limbs const& a, Limbs const& divisor) {
    Fenced out(a.size() - 1);
    Fenced rest(2);
    Fenced inA(a);
    limbs::divideTwoLimbs(out.data(), rest.data(), a.data(), a.size(), divisor.data());
    ASSERT_TRUE(out.intact() && rest.intact()) << input("a", a, "divisor", divisor);
    ASSERT_TRUE(less(rest.values(), divisor)) << input("a", a, "divisor", divisor);
    Limbs const back = sum(product(out.values(), divisor), rest.values());
    ASSERT_EQ(back, with(with(a, 0), 0)) << input("a", a, "divisor", divisor);
    limbs::divideTwoLimbs(inA.data(), rest.data(), inA.data(), a.size(), divisor.data());
    ASSERT_TRUE(inA.holds(with(out.values(), a.back()))) << input("a", a, "divisor", divisor);
}

TEST(LimbDivideTwoLimbs, IsTheQuotientAndTheRemainderForDivisorsOfEachLength) {
    Operands operands(55);
    for (int bits = 0; bits < 64; ++bits) {
        Limb const upper = (topBit | operands.limb()) >> bits;
        for (std::size_t const count : {2U, 3U, 4U, 9U}) {
            for (Pattern const pattern : patterns) {
                Limbs const a = operands.make(pattern, count);
                expectQuotientByTwo(a, {operands.limb(), upper});
                expectQuotientByTwo(a, {0, Limb{1} << bits});
                expectQuotientByTwo(a, {allOnes, allOnes >> bits});
            }
        }
        if (HasFailure())
            return;
    }
}

// Backwards: remainders at either end, with a first digit of 0 or 1 and with larger ones.
TEST(LimbDivideTwoLimbs, FindsDigitsWithTheSmallestAndLargestRemainders) {
    Operands operands(56);
    for (int i = 0; i < 3000; ++i) {
        Limbs divisor = operands.any(2);
        divisor[1] = i % 2 == 0 ? divisor[1] | topBit : (divisor[1] >> operands.below(64)) | 1;
        Limbs quotient = operands.any(3);
        quotient[2] = i % 3 == 0 ? operands.below(2) : quotient[2];
        Limbs largest = divisor;
        limbs::subtractLimb(largest.data(), largest.data(), 2, 1);
        for (Limbs const& rest : {Limbs{0, 0}, Limbs{1, 0}, largest}) {
            Limbs a = sum(product(quotient, divisor), rest);
            a.pop_back();
            expectQuotientByTwo(a, divisor);
        }
        if (HasFailure())
            return;
    }
}

// --- by many limbs ------------------------------------------------------------------------------

/// Divides a by the divisor in each variant.
void expectQuotient(Limbs const& a, Limbs const& divisor, Limbs const& quotient,
                    Limbs const& remainder) {
    Limbs rest = remainder;
    rest.resize(a.size());
    for (Variant const& variant : variants()) {
        Using const use(variant);
        Fenced out(quotient.size());
        Fenced inA(a);
        limbs::divideNormalized(out.data(), inA.data(), a.size(), divisor.data(), divisor.size());
        ASSERT_TRUE(out.holds(quotient)) << variant.name << input("a", a, "divisor", divisor);
        ASSERT_TRUE(inA.holds(rest)) << variant.name << input("a", a, "divisor", divisor);
    }
}

/// Builds the dividend of a quotient, and divides it again.
void expectBack(Limbs const& quotient, Limbs const& divisor, Limbs const& remainder) {
    ASSERT_TRUE(less(remainder, divisor)) << input("r", remainder, "divisor", divisor);
    Limbs a = sum(product(quotient, divisor), remainder);
    ASSERT_EQ(a.back(), 0U);
    a.pop_back();
    expectQuotient(a, divisor, quotient, remainder);
}

/// Divides all quotients of these lengths back, with remainders 0, 1, divisor - 1 and any.
void expectBackOfAll(unsigned seed, Limbs const& divisor) {
    Operands operands(seed);
    std::size_t const count = divisor.size();
    Limbs one(count);
    one[0] = 1;
    Limbs largest(count);
    limbs::subtract(largest.data(), divisor.data(), one.data(), count);
    for (std::size_t const length : {1U, 2U, 3U, 8U, 9U}) {
        for (Pattern const pattern : patterns) {
            Limbs any = operands.any(count);
            any.back() &= topBit - 1;
            for (Limbs const& remainder : {Limbs(count), one, largest, any})
                expectBack(operands.make(pattern, length), divisor, remainder);
        }
    }
}

std::vector<std::size_t> divisorLengths() {
    std::vector<std::size_t> lengths = rowLengths();
    lengths.erase(lengths.begin());
    return lengths;
}

TEST(LimbDivide, FindsTheQuotientThatWasMultiplied) {
    onOperands(60, divisorLengths(), [](Limbs divisor) {
        divisor.back() |= topBit;
        expectBackOfAll(61, divisor);
    });
}

TEST(LimbDivide, TakesTheSmallestAndTheLargestDivisors) {
    for (std::size_t const count : {2U, 3U, 4U, 9U, 17U}) {
        Limbs const smallest = with(Limbs(count - 1), topBit);
        Limbs second = smallest;
        second[0] = 1;
        for (Limbs const& divisor : {smallest, second, with(Limbs(count - 1, allOnes), topBit),
                                     with(Limbs(count - 1), allOnes), Limbs(count, allOnes)})
            expectBackOfAll(62, divisor);
    }
}

TEST(LimbDivide, OfADividendAsLongAsTheDivisorLeavesItAsTheRemainder) {
    expectQuotient({7, 8, topBit}, {8, 8, topBit}, {}, {7, 8, topBit});
}

TEST(LimbDivide, OfZeroIsZero) {
    expectQuotient(Limbs(9), {5, 4, topBit + 3}, Limbs(6), Limbs(3));
}

// The top two limbs of the partial remainder are those of the divisor, which three limbs by two
// cannot take. With d = 2^127 and D = 2^64 d + x the dividend 2^64 (D - 1) has the top limbs
// 2^63, 0, x - 1, and is (2^64 - 1) D + D - 2^64.
TEST(LimbDivide, WhereTheTopLimbsAreTheDivisorsTheDigitIsTheLargest) {
    Limb const x = 9;
    expectQuotient({0, x - 1, 0, topBit}, {x, 0, topBit}, {allOnes}, {x, allOnes, topBit - 1});
    // Again at each digit: 2^(64 n) (D - 1) = (2^(64 n) - 1) D + D - 2^(64 n), here for n = 2.
    expectQuotient({0, 0, x - 1, 0, topBit}, {x, 0, topBit}, {allOnes, allOnes},
                   {x, 0, topBit - 1});
    Operands operands(63);
    for (std::size_t const count : {3U, 4U, 8U, 11U, 40U}) {
        for (int i = 0; i < 50; ++i) {
            Limbs divisor = operands.any(count);
            divisor.back() |= topBit;
            divisor[count - 3] |= 1;
            // After the upper digits D less a little is left, and two of the largest follow.
            Limbs remainder = divisor;
            remainder[count - 3] -= 1;
            Limbs quotient = operands.any(4);
            quotient[0] = allOnes;
            quotient[1] = allOnes;
            expectBack(quotient, divisor, remainder);
        }
    }
}

// Three limbs by two are exact for the top limbs alone: 3 * 2^127 by d = 2^127 is 3, rest 0. The
// lower limb of D = 2^64 d + 2^64 - 1 times 3 is then more than what is left, so that the digit is
// one too large: 3 * 2^191 = 2 D + 2^191 - 2 (2^64 - 1).
TEST(LimbDivide, WhereTheLowerLimbsTakeMoreThanIsLeftTheDivisorIsAddedBack) {
    Limbs const divisor{allOnes, 0, topBit};
    expectQuotient({0, 0, topBit, 1}, divisor, {2}, {2, allOnes - 1, topBit - 1});
    // Twice over: (2^64 - 2) (2^64 + 1) D + D - 1 has (2^64 - 1) D - d - 1 on top, whose three
    // limbs are (2^64 - 1) d + 2^63 - 2 or so; (2^64 - 1) D - 1 follows.
    expectBack({allOnes - 1, allOnes - 1}, divisor, {allOnes - 1, 0, topBit});
    // D = 2^(64 n) d + 2^(64 n) - 1: (q + 1) D - 1 is above (q + 1) d, but its quotient is q.
    Operands operands(64);
    for (std::size_t const count : {3U, 4U, 5U, 9U, 10U, 11U, 17U, 40U}) {
        Limbs longer(count, allOnes);
        longer[count - 2] = 0;
        longer[count - 1] = topBit;
        Limbs largest = longer;
        largest[0] -= 1;
        for (Limb const digit : {Limb{0}, Limb{1}, Limb{2}, topBit, allOnes - 2, allOnes - 1}) {
            expectBack({digit}, longer, largest);
            expectBack({operands.limb(), digit, operands.limb()}, longer, largest);
        }
    }
}

// Random divisors hit none of the rare corrections of a digit; near both ends of the top limbs'
// ranges they are common.
TEST(LimbDivide, CorrectsDigitsForDivisorsAtTheEndsOfTheRange) {
    Operands operands(65);
    constexpr Limb tops[] = {topBit, topBit + 1, topBit + 2, allOnes - 2, allOnes - 1, allOnes};
    for (Limb const d1 : tops) {
        for (Limb const d0 : edgeLimbs) {
            for (std::size_t const count : {2U, 3U, 5U}) {
                Limbs divisor = operands.any(count);
                divisor[count - 1] = d1;
                divisor[count - 2] = d0;
                expectBackOfAll(66, divisor);
            }
        }
        if (HasFailure())
            return;
    }
}

}  // namespace
