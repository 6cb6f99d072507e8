// Greatest common divisors and inverses on the ground floor. Operands are built from the quotients
// that Euclid's algorithm finds in them, backwards from their gcd; an inverse is multiplied back.
#include "LimbTables.h"

#include "bigint/limbs/Gcd.h"

#include <numeric>
#include <utility>

namespace {

using namespace limb_test;
namespace limbs = qel::limbs;

Limbs trimmed(Limbs a) {
    a.resize(std::max<std::size_t>(limbs::significant(a.data(), a.size()), 1));
    return a;
}

/// larger > smaller, whose gcd is g: each quotient makes the pair (q larger + smaller, larger).
struct Pair {
    Limbs larger;
    Limbs smaller{0};
};

/// With quotients from `draw` until the larger number has at least `count` limbs.
template <typename Draw>
Pair build(Limbs const& g, std::size_t count, Draw draw) {
    Pair pair{g};
    while (pair.larger.size() < count) {
        Limbs next = trimmed(sum(product(pair.larger, trimmed(draw())), pair.smaller));
        pair.smaller = std::exchange(pair.larger, next);
    }
    return pair;
}

/// What makes quotients: small ones, all ones, whole limbs and several limbs.
std::vector<Limbs (*)(Operands&)> const& draws() {
    static std::vector<Limbs (*)(Operands&)> const all{
        [](Operands&) { return Limbs{1}; },
        [](Operands& operands) { return Limbs{1 + operands.below(4)}; },
        [](Operands& operands) { return Limbs{(operands.limb() >> operands.below(63)) | 1}; },
        [](Operands& operands) { return Limbs{operands.limb() | topBit}; },
        [](Operands& operands) {
            Limbs quotient = operands.any(1 + operands.below(4));
            quotient.back() |= 1;
            return quotient;
        }};
    return all;
}

limbs::DoubleLimb pairOf(Limbs const& a) {
    return limbs::DoubleLimb{a.size() > 1 ? a[1] : 0} << 64 | a[0];
}

/// In all ways that there are for this length.
void expectGcd(Limbs const& a, Limbs const& b, Limbs expected) {
    std::size_t const count = std::max(a.size(), b.size());
    Limbs x = a;
    Limbs y = b;
    x.resize(count);
    y.resize(count);
    expected.resize(count);
    Fenced inX(x);
    Fenced inY(y);
    Fenced out(count);
    Fenced scratch(limbs::gcdScratch(count));
    limbs::gcd(out.data(), inX.data(), inY.data(), count, scratch.data());
    ASSERT_TRUE(out.holds(expected)) << input("a", a, "b", b);
    ASSERT_TRUE(inX.intact() && inY.intact() && scratch.intact()) << input("a", a, "b", b);
    if (count <= 2) {
        ASSERT_EQ(limbs::gcdOfPairs(pairOf(a), pairOf(b)), pairOf(expected))
            << input("a", a, "b", b);
    }
    if (count < 2)
        return;
    Fenced aloneX(x);
    Fenced aloneY(y);
    Fenced alone(count);
    limbs::gcdAlone(alone.data(), aloneX.data(), aloneY.data(), count, scratch.data());
    ASSERT_TRUE(alone.holds(expected)) << input("a", a, "b", b);
    ASSERT_TRUE(aloneX.intact() && aloneY.intact() && scratch.intact()) << input("a", a, "b", b);
}

TEST(LimbGcd, IsWhatTheOperandsWereBuiltFrom) {
    Operands operands(1);
    for (std::size_t const gcdCount : {1U, 2U, 5U}) {
        for (auto const draw : draws()) {
            for (std::size_t count = gcdCount; count <= 24; ++count) {
                Limbs g = operands.any(gcdCount);
                g.back() |= 1;
                Pair const pair = build(g, count, [&] { return draw(operands); });
                expectGcd(pair.larger, pair.smaller, g);
                expectGcd(pair.smaller, pair.larger, g);
            }
        }
        if (HasFailure())
            return;
    }
}

TEST(LimbGcd, OfANumberAndZeroOneOrItselfIsTheNumberOrOne) {
    onOperands(2, {1, 2, 3, 9}, [](Limbs const& a) {
        expectGcd(a, Limbs(a.size()), a);
        expectGcd(Limbs(a.size()), a, a);
        expectGcd(a, a, a);
        expectGcd(a, {1}, {1});
    });
}

// Where the lower limbs are equal the difference has none, and its negation carries into the upper
// one; a - b is then 2^64 times what is left.
TEST(LimbGcd, OfTwoLimbsWhoseLowerOnesAreEqual) {
    for (Limb const lower : {Limb{1}, Limb{15}, allOnes}) {
        for (Limb const upper : {Limb{1}, Limb{2}, Limb{6}, topBit}) {
            expectGcd({lower, 0}, {lower, upper}, {std::gcd(lower, upper)});
            expectGcd({lower, upper}, {lower, 0}, {std::gcd(lower, upper)});
        }
    }
    // Their difference is 3 * 2^64, and 2^64 is 1 modulo 3.
    expectGcd({5, 7}, {5, 10}, {3});
    expectGcd({5, 11}, {5, 8}, {1});
    expectGcd({0, 12}, {0, 18}, {0, 6});
}

TEST(LimbGcd, OfTwoLimbsTakesOutTheZerosAtTheEnd) {
    for (int i = 0; i < 128; ++i) {
        for (int j = 0; j < 128; ++j) {
            limbs::DoubleLimb const one = 1;
            ASSERT_EQ(limbs::gcdOfPairs(one << i, one << j), one << std::min(i, j));
            ASSERT_EQ(limbs::gcdOfPairs((one << 127) | (one << i), one << j),
                      one << std::min(i, j));
        }
    }
}

/// v * inverse - 1 is a multiple of m.
void expectInverse(Limbs const& value, Limbs const& m) {
    std::size_t const count = m.size();
    Limbs v = value;
    v.resize(count);
    Fenced inV(v);
    Fenced inM(m);
    Fenced out(count);
    Fenced scratch(limbs::inverseScratch(count));
    ASSERT_TRUE(limbs::inverse(out.data(), inV.data(), inM.data(), count, scratch.data()))
        << input("v", value, "m", m);
    ASSERT_TRUE(out.intact() && inV.intact() && inM.intact() && scratch.intact())
        << input("v", value, "m", m);
    Limbs const inverse = out.values();
    ASSERT_TRUE(less(inverse, m)) << input("v", value, "m", m);
    Limbs back = product(inverse, v);
    limbs::subtractLimb(back.data(), back.data(), back.size(), 1);
    // m shifted down from the top of the product, bit by bit.
    for (std::size_t bit = 64 * count + 1; bit-- > 0;) {
        Limbs shifted(2 * count + 1);
        std::copy(m.begin(), m.end(), shifted.begin() + static_cast<std::ptrdiff_t>(bit / 64));
        if (bit % 64 != 0)
            limbs::shiftLeft(shifted.data(), shifted.data(), shifted.size(),
                             static_cast<int>(bit % 64));
        Limbs rest = with(back, 0);
        if (!less(rest, shifted))
            limbs::subtract(rest.data(), rest.data(), shifted.data(), rest.size());
        rest.pop_back();
        back = rest;
    }
    ASSERT_EQ(back, Limbs(2 * count)) << input("v", value, "m", m, "inverse", inverse);
}

TEST(LimbInverse, TimesTheValueIsOneModuloTheModulus) {
    Operands operands(3);
    for (auto const draw : draws()) {
        for (std::size_t count = 1; count <= 14; ++count) {
            Pair const pair = build({1}, count, [&] { return draw(operands); });
            if (pair.smaller.size() > 1 || pair.smaller[0] > 1)
                expectInverse(pair.smaller, pair.larger);
            if (HasFailure())
                return;
        }
    }
}

/// A single limb is inverted in a way of its own. Modulo v the modulus is 1 or v - 1, the ends of
/// the range, or the Fibonacci number below, with which Euclid's algorithm takes longest.
TEST(LimbInverse, OfOneLimbModuloNumbersOfEachLength) {
    Operands operands(4);
    for (std::size_t count = 2; count <= 10; ++count) {
        for (int bits = 2; bits <= 64; bits += bits < 60 ? 3 : 1) {
            Limb const v = (operands.limb() | topBit | 1) >> (64 - bits);
            Limbs const quotient = with(operands.any(count - 1), 1 + operands.below(2));
            for (Limb const rest : {Limb{1}, v - 1})
                expectInverse({v}, trimmed(sum(product(quotient, {v}), {rest})));
            if (HasFailure())
                return;
        }
    }
    Pair pair{{2}, {1}};
    while (pair.larger[0] < topBit)
        pair = {{pair.larger[0] + pair.smaller[0]}, pair.larger};
    for (std::size_t count = 2; count <= 10; ++count) {
        Limbs const quotient = with(operands.any(count - 1), 1);
        expectInverse(pair.larger, trimmed(sum(product(quotient, pair.larger), pair.smaller)));
    }
}

void expectNoInverse(Limbs v, Limbs m) {
    std::size_t const count = m.size();
    v.resize(count);
    Limbs out(count);
    Limbs scratch(limbs::inverseScratch(count));
    Limbs const value = v;
    Limbs const modulus = m;
    ASSERT_FALSE(limbs::inverse(out.data(), v.data(), m.data(), count, scratch.data()))
        << input("v", value, "m", modulus);
}

TEST(LimbInverse, IsRefusedWhereThereIsACommonFactor) {
    Operands operands(5);
    expectNoInverse({6}, {9});
    expectNoInverse({3}, {9});
    expectNoInverse({15}, {0, 5});
    for (auto const draw : draws()) {
        for (std::size_t count = 2; count <= 9; ++count) {
            for (Limbs const& g : {Limbs{3}, Limbs{allOnes}, Limbs{1, 1}}) {
                Pair const pair = build(g, count, [&] { return draw(operands); });
                if (pair.smaller != Limbs{0})
                    expectNoInverse(pair.smaller, pair.larger);
            }
        }
    }
}

}  // namespace
