// Reductions against halving as many times as there are bits, and powers against squaring and
// multiplying on the plain model.
#include "LimbTables.h"

#include "bigint/limbs/Montgomery.h"
#include "bigint/limbs/Power.h"
#include "bigint/limbs/Thresholds.h"
#include "model/PlainInteger.h"

namespace {

using namespace limb_test;
namespace limbs = qel::limbs;

TEST(LimbNegatedInverse, TimesTheOddLimbIsMinusOne) {
    Operands operands(70);
    for (Limb odd = 1; odd < 512; odd += 2) {
        EXPECT_EQ(odd * limbs::negatedInverse(odd), allOnes) << text(odd);
        EXPECT_EQ((0 - odd) * limbs::negatedInverse(0 - odd), allOnes) << text(0 - odd);
    }
    for (int i = 0; i < 1000; ++i) {
        Limb const odd = operands.limb() | 1;
        EXPECT_EQ(odd * limbs::negatedInverse(odd), allOnes) << text(odd);
    }
}

// --- reductions ---------------------------------------------------------------------------------

/// t / 2^(64 count) modulo the odd modulus, for t < modulus * 2^(64 count): halves t that often,
/// after adding the modulus where t is odd. What is left is below twice the modulus.
Limbs reduced(Limbs t, Limbs const& modulus) {
    std::size_t const count = modulus.size();
    for (std::size_t i = 0; i < 64 * count; ++i) {
        if (t[0] % 2 != 0)
            t = sum(t, modulus);
        for (std::size_t j = 0; j < t.size(); ++j)
            t[j] = (t[j] >> 1) | (j + 1 < t.size() ? t[j + 1] << 63 : 0);
        t.resize(2 * count);
    }
    t.resize(count + 1);
    if (!less(t, with(modulus, 0))) {
        Limbs const wide = with(modulus, 0);
        limbs::subtract(t.data(), t.data(), wide.data(), wide.size());
    }
    t.resize(count);
    return t;
}

void expectReduced(Limbs const& t, Limbs const& modulus) {
    Limbs const expected = reduced(t, modulus);
    std::size_t const count = modulus.size();
    Limb const inverse = limbs::negatedInverse(modulus[0]);
    for (Variant const& variant : variants()) {
        Fenced out(count);
        Fenced used(t);
        variant.kernels->reduce(out.data(), used.data(), modulus.data(), count, inverse);
        ASSERT_TRUE(out.holds(expected)) << variant.name << input("t", t, "modulus", modulus);
        ASSERT_TRUE(used.intact()) << variant.name << input("t", t, "modulus", modulus);
        Fenced inT(t);
        variant.kernels->reduce(inT.data(), inT.data(), modulus.data(), count, inverse);
        Limbs low = inT.values();
        low.resize(count);
        ASSERT_EQ(low, expected) << variant.name << " in place"
                                 << input("t", t, "modulus", modulus);
        ASSERT_TRUE(inT.intact());
    }
}

/// The number below: a - 1 for a > 0.
Limbs before(Limbs a) {
    limbs::subtractLimb(a.data(), a.data(), a.size(), 1);
    return a;
}

/// a, or the largest number below the modulus if a is not below it.
Limbs atMost(Limbs const& a, Limbs const& modulus) {
    return less(a, modulus) ? a : before(modulus);
}

/// Any t below modulus * 2^(64 count), which is to say that its upper half is below the modulus.
Limbs dividend(Operands& operands, Pattern pattern, Limbs const& modulus) {
    Limbs t = operands.make(pattern, modulus.size());
    Limbs const high = atMost(operands.make(pattern, modulus.size()), modulus);
    t.insert(t.end(), high.begin(), high.end());
    return t;
}

/// Odd moduli of all patterns, with a top limb that is not zero.
template <typename Check>
void onModuli(unsigned seed, std::vector<std::size_t> const& lengths, Check check) {
    onOperands(seed, lengths, [&](Limbs modulus) {
        modulus[0] |= modulus.size() == 1 ? 3 : 1;
        if (modulus.back() == 0)
            modulus.back() = 1;
        check(modulus);
    });
}

TEST(LimbReduce, IsTheQuotientByAPowerOfTwoModuloTheModulus) {
    Operands operands(71);
    onModuli(72, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 15, 16, 17, 23, 24, 25, 33, 40, 64},
             [&](Limbs const& modulus) {
                 Pattern const some[] = {Pattern::uniform, Pattern::ones,
                                         patterns[operands.below(std::size(patterns))]};
                 for (Pattern const pattern : some)
                     expectReduced(dividend(operands, pattern, modulus), modulus);
             });
}

TEST(LimbReduce, OfShortModuliTakesAllPatterns) {
    Operands operands(73);
    for (unsigned seed = 74; seed < 84; ++seed) {
        onModuli(seed, {1, 2, 3, 4}, [&](Limbs const& modulus) {
            for (Pattern const pattern : patterns)
                expectReduced(dividend(operands, pattern, modulus), modulus);
        });
    }
}

// t = modulus * 2^(64 count) - 1 is the largest; t = k * modulus comes out as 0, from a sum that is
// the modulus itself unless k is 0; the modulus 2^(64 count) - 1 carries out of the sum.
TEST(LimbReduce, OfTheLargestAndOfMultiplesOfTheModulus) {
    onModuli(90, {1, 2, 3, 8, 9, 20}, [](Limbs const& modulus) {
        std::size_t const count = modulus.size();
        Limbs largest(count, allOnes);
        Limbs const high = before(modulus);
        largest.insert(largest.end(), high.begin(), high.end());
        expectReduced(largest, modulus);
        for (Limb const k : {Limb{0}, Limb{1}, Limb{2}, allOnes}) {
            Limbs multiple = product(modulus, {k});
            multiple.resize(2 * count);
            expectReduced(multiple, modulus);
        }
        Limbs square = product(high, high);
        expectReduced(square, modulus);
    });
}

void expectReducedByHalves(Limbs const& t, Limbs const& modulus) {
    std::size_t const count = modulus.size();
    Limb const inverse = limbs::negatedInverse(modulus[0]);
    Limbs expected(count);
    Limbs used = t;
    limbs::portableKernels.reduce(expected.data(), used.data(), modulus.data(), count, inverse);
    Fenced out(count);
    Fenced inT(t);
    Fenced scratch(limbs::reduceByHalvesScratch(count));
    limbs::reduceByHalves(out.data(), inT.data(), modulus.data(), count, inverse, scratch.data());
    ASSERT_TRUE(out.holds(expected)) << input("t", t, "modulus", modulus);
    ASSERT_TRUE(inT.intact() && scratch.intact()) << input("t", t, "modulus", modulus);
}

// The largest t and multiples of the modulus carry through all limbs.
TEST(LimbReduceByHalves, AgreesWithReductionsRowByRow) {
    Operands operands(75);
    std::vector<std::size_t> lengths = {2, 3, 5};
    for (std::size_t const split : {limbs::reduceSplit, 2 * limbs::reduceSplit})
        lengths.insert(lengths.end(), {split - 1, split, split + 1});
    lengths.push_back(4 * limbs::reduceSplit + 3);
    onModuli(76, lengths, [&](Limbs const& modulus) {
        for (Pattern const pattern : patterns)
            expectReducedByHalves(dividend(operands, pattern, modulus), modulus);
        Limbs largest(modulus.size(), allOnes);
        Limbs const high = before(modulus);
        largest.insert(largest.end(), high.begin(), high.end());
        expectReducedByHalves(largest, modulus);
        for (Limb const k : {Limb{0}, Limb{1}, allOnes}) {
            Limbs multiple = product(modulus, {k});
            multiple.resize(2 * modulus.size());
            expectReducedByHalves(multiple, modulus);
        }
    });
}

// --- powers -------------------------------------------------------------------------------------

plain::LargeInteger plainOf(Limbs const& a) {
    plain::LargeInteger out;
    Halves const words = halves(a);
    for (std::size_t i = words.size(); i-- > 0;)
        out.setBitRangeAsInt(static_cast<int>(32 * i), 32, words[i]);
    return plain::LargeInteger(out);
}

Limbs limbsOf(plain::LargeInteger const& a, std::size_t count) {
    Halves words(2 * count);
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = static_cast<std::uint32_t>(a.getBitRangeAsInt(static_cast<int>(32 * i), 32));
    return joined(words);
}

struct Power {
    Limbs result;
    Limbs lower;
    Limbs highest;
};

bool bitOf(Limbs const& e, long long i) {
    return ((e[static_cast<std::size_t>(i / 64)] >> (i % 64)) & 1) != 0;
}

long long topOf(Limbs const& e) {
    long long top = static_cast<long long>(64 * e.size()) - 1;
    while (!bitOf(e, top))
        --top;
    return top;
}

/// From the lowest bit up, a product for each bit that is set.
Power plainPower(Limbs const& base, Limbs const& e, Limbs const& modulus) {
    std::size_t const count = modulus.size();
    plain::LargeInteger const m = plainOf(modulus);
    plain::LargeInteger current = plainOf(base);
    plain::LargeInteger lower(1);
    for (long long i = 0; i < topOf(e); ++i) {
        if (bitOf(e, i))
            lower = lower * current % m;
        current = current * current % m;
    }
    return {limbsOf(lower * current % m, count), limbsOf(lower, count), limbsOf(current, count)};
}

void expectPower(Limbs const& base, Limbs const& e, Limbs const& modulus) {
    Power const expected = plainPower(base, e, modulus);
    std::size_t const count = modulus.size();
    for (Variant const& variant : variants()) {
        Using const use(variant);
        Fenced result(count);
        Fenced lower(count);
        Fenced highest(count);
        Fenced scratch(limbs::powerScratch(count, topOf(e)));
        limbs::power(result.data(), lower.data(), highest.data(), base.data(), e.data(), topOf(e),
                     modulus.data(), count, scratch.data());
        std::string const inputs = variant.name + input("base", base, "e", e, "modulus", modulus);
        ASSERT_TRUE(result.holds(expected.result)) << "result, " << inputs;
        ASSERT_TRUE(lower.holds(expected.lower)) << "lower, " << inputs;
        ASSERT_TRUE(highest.holds(expected.highest)) << "highest, " << inputs;
        ASSERT_TRUE(scratch.intact()) << inputs;
    }
}

/// 2^bit.
Limbs oneBit(long long bit) {
    Limbs e(static_cast<std::size_t>(bit / 64) + 1);
    e.back() = Limb{1} << (bit % 64);
    return e;
}

/// 2^(top + 1) - 1.
Limbs allBits(long long top) {
    Limbs e(static_cast<std::size_t>(top / 64) + 1, allOnes);
    e.back() = allOnes >> (63 - top % 64);
    return e;
}

/// A number below the modulus, whose top limb is not zero.
Limbs anyBelow(Operands& operands, Limbs const& modulus) {
    Limbs a = operands.make(Pattern::uniform, modulus.size());
    a.back() %= modulus.back();
    return a;
}

/// Both sides of each bit length at which windows get wider, and the shortest exponents.
constexpr long long tops[] = {0,  1,  2,  3,  5,   22,  23,  24,  25,  63,  64, 65,
                              78, 79, 80, 81, 238, 239, 240, 241, 766, 767, 768};

TEST(LimbPower, OfOneBitAndOfAllBitsAtEachWindowWidth) {
    Operands operands(100);
    for (long long const top : tops) {
        for (Limbs const& modulus :
             {Limbs{3}, Limbs{topBit - 1}, Limbs{allOnes}, Limbs{1, topBit}, Limbs{allOnes, 1},
              Limbs{allOnes, allOnes}, Limbs{1, 0, topBit}, Limbs{allOnes, 5, 1}}) {
            for (Limbs const& e : {oneBit(top), allBits(top)}) {
                expectPower(anyBelow(operands, modulus), e, modulus);
                expectPower(before(modulus), e, modulus);
            }
        }
        if (HasFailure())
            return;
    }
}

TEST(LimbPower, OfAnyExponentAtEachWindowWidth) {
    Operands operands(101);
    for (long long const top : tops) {
        for (Pattern const pattern : patterns) {
            Limbs e = oneBit(top);
            Limbs const lower = operands.make(pattern, e.size());
            Limbs const mask = allBits(top);
            for (std::size_t i = 0; i < e.size(); ++i)
                e[i] |= lower[i] & mask[i];
            Limbs modulus{operands.limb() | 1, operands.limb() | topBit};
            expectPower(anyBelow(operands, modulus), e, modulus);
            modulus.push_back(1 + operands.below(100));
            expectPower(anyBelow(operands, modulus), e, modulus);
        }
        if (HasFailure())
            return;
    }
}

// Up to two limbs they are computed in registers.
TEST(LimbPower, OfNumbersOfAllPatternsModuloShortOnes) {
    Operands operands(106);
    onModuli(107, {1, 2, 3}, [&](Limbs const& modulus) {
        for (Pattern const pattern : patterns) {
            Limbs const base = atMost(operands.make(pattern, modulus.size()), modulus);
            for (Limb const e : {1U, 2U, 3U, 5U, 0x10001U})
                expectPower(base, {e}, modulus);
        }
    });
}

// One window alone fills one bucket; the others must be joined as if they were 1.
TEST(LimbPower, OfEachSingleDigitBelowTheHighestBit) {
    Limbs const modulus{0x123456789ABCDEF1};
    for (long long const top : {10LL, 30LL, 100LL, 300LL, 800LL}) {
        for (Limb digit = 1; digit < 64; ++digit) {
            Limbs e = oneBit(top);
            e[0] |= digit << 4 & (allBits(top)[0] >> 1);
            expectPower({0xFEDCBA987654321}, e, modulus);
        }
        if (HasFailure())
            return;
    }
}

// Windows that end below the highest bit, at it, and that it cuts short.
TEST(LimbPower, OfOneWindowAtEachDistanceFromTheHighestBit) {
    Limbs const modulus{0x123456789ABCDEF1};
    for (long long const top : {20LL, 30LL, 100LL, 300LL, 800LL}) {
        for (long long distance = 1; distance < 9; ++distance) {
            Limbs const high = oneBit(top);
            Limbs low = oneBit(top - distance);
            low.resize(high.size());
            Limbs const runToTheTop = before(sum(high, high));
            Limbs all(high.size());
            limbs::subtract(all.data(), runToTheTop.data(), before(low).data(), high.size());
            Limbs two = high;
            for (std::size_t i = 0; i < two.size(); ++i)
                two[i] |= low[i];
            expectPower({0xFEDCBA987654321}, two, modulus);
            expectPower({0xFEDCBA987654321}, all, modulus);
        }
    }
}

TEST(LimbPower, OfZeroOneAndMinusOne) {
    onModuli(102, {1, 2, 5}, [](Limbs const& modulus) {
        Limbs one(modulus.size());
        one[0] = 1;
        for (Limbs const& base : {Limbs(modulus.size()), one, before(modulus)}) {
            for (Limb const e : {1U, 2U, 3U, 4U, 5U, 12U, 0xFFFFFFU, 0x1000000U, 0x1000001U})
                expectPower(base, {e}, modulus);
        }
    });
}

TEST(LimbPower, ModuloNumbersOfEachLengthWithTheirTopBitSetAndClear) {
    Operands operands(103);
    for (std::size_t const count : rowLengths()) {
        Limbs modulus = operands.make(Pattern::uniform, count);
        modulus[0] |= 1;
        for (int const shift : {0, 1, 63}) {
            modulus.back() = (modulus.back() | topBit) >> shift;
            for (Limb const lowest : {modulus[0] | 1, modulus[0] & ~Limb{1}}) {
                modulus[0] = lowest;
                if (modulus.back() != 0)
                    expectPower(anyBelow(operands, modulus), {0b1'0110'1110'1001}, modulus);
            }
        }
        if (HasFailure())
            return;
    }
}

TEST(LimbPower, ModuloNumbersWhoseProductsAreTakenByHalves) {
    Operands operands(104);
    onModuli(105,
             {limbs::halvesMultiply - 1, limbs::halvesMultiply, limbs::halvesMultiply + 1,
              limbs::halvesSquare - 1, limbs::halvesSquare, limbs::halvesSquare + 1,
              2 * limbs::halvesSquare},
             [&](Limbs modulus) {
                 expectPower(anyBelow(operands, modulus), {0b1'0110'1111}, modulus);
                 modulus[0] -= 1;
                 expectPower(anyBelow(operands, modulus), {0b1'0110'1111}, modulus);
             });
}

TEST(LimbPower, ModuloNumbersWhoseProductsAreReducedByHalves) {
    Operands operands(108);
    for (std::size_t const count :
         {limbs::reduceSplit - 1, limbs::reduceSplit, limbs::reduceSplit + 1}) {
        Limbs modulus = operands.make(Pattern::uniform, count);
        modulus.back() |= 1;
        for (Limb const lowest : {modulus[0] | 1, modulus[0] & ~Limb{1}}) {
            modulus[0] = lowest;
            expectPower(anyBelow(operands, modulus), {0b1011}, modulus);
        }
    }
}

}  // namespace
