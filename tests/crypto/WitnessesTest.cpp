// The first of several numbers that passes with every witness, on every path.
#include "KernelVariants.h"

#include "crypto/Witnesses.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

using namespace limb_test;
using qel::internal::indexOfPassing;
using qel::internal::numbersAtOnce;
using qel::internal::passingProves;
using qel::internal::witnessScratch;
using qel::limbs::Limb;
using Number = std::array<Limb, 2>;

/// Number k is p (2p - 1) for a prime p, and a strong probable prime to the first k odd primes but
/// not to the one after; the last is a prime.
constexpr std::array<Number, 6> numbers{{{0x0000026600002e05, 8},
                                         {0x00007cd601e70017, 8},
                                         {0x00015e960f00f3ff, 8},
                                         {0x000a1f3933a030fb, 8},
                                         {0x000185f612902c43, 8},
                                         {0x0000000000000003, 8}}};

/// Of the numbers from `first` on, and before `end`.
int firstPassing(std::size_t first, std::size_t end, int witnessCount) {
    std::vector<Limb const*> candidates;
    for (std::size_t i = first; i < end; ++i)
        candidates.push_back(numbers[i].data());
    std::vector<Limb> scratch(witnessScratch(2));
    return indexOfPassing(candidates, 2, witnessCount, scratch.data());
}

TEST(Witnesses, RefuseWhatPassesWithTheFirstOnesOnly) {
    for (Variant const& variant : paths()) {
        Using const use(variant);
        for (int witnessCount = 0; witnessCount <= 5; ++witnessCount)
            EXPECT_EQ(firstPassing(0, 6, witnessCount), witnessCount) << variant.name;
        for (int witnessCount : {6, 30})
            EXPECT_EQ(firstPassing(0, 6, witnessCount), 5) << variant.name << witnessCount;
    }
}

TEST(Witnesses, FindNothingWhereNoneIsPrime) {
    for (Variant const& variant : paths()) {
        Using const use(variant);
        for (int witnessCount : {5, 6, 8, 9, 10, 17})
            EXPECT_EQ(firstPassing(0, 5, witnessCount), -1) << variant.name << witnessCount;
    }
}

TEST(Witnesses, TakeEightNumbersAtOnceFrom2To800LimbsWhereThatPays) {
    for (Variant const& variant : paths()) {
        Using const use(variant);
        std::size_t const most = variant.lanes->pays ? 8 : 1;
        EXPECT_EQ(numbersAtOnce(1), 1U) << variant.name;
        EXPECT_EQ(numbersAtOnce(2), most) << variant.name;
        EXPECT_EQ(numbersAtOnce(800), most) << variant.name;
        EXPECT_EQ(numbersAtOnce(801), 1U) << variant.name;
    }
}

TEST(Witnesses, FindTheFirstOfSeveral) {
    for (Variant const& variant : paths()) {
        Using const use(variant);
        EXPECT_EQ(firstPassing(3, 6, 2), 0) << variant.name;
        EXPECT_EQ(firstPassing(2, 6, 4), 2) << variant.name;
    }
}

// 3825123056546413051 is the least number that is no prime and passes with 2 to 23, and it passes
// with 29 and 31 too; 2053 is the 309th odd prime.
TEST(Witnesses, OfOneLimbBelowAZeroOneGiveTheVerdictsOfAllOfThem) {
    Number const fool{3825123056546413051, 0};
    Number const prime{(Limb{1} << 61) - 1, 0};
    Number const witness{2053, 0};
    auto const index = [&](std::initializer_list<Number const*> from, int witnessCount) {
        std::vector<Limb const*> candidates;
        for (Number const* number : from)
            candidates.push_back(number->data());
        std::vector<Limb> scratch(witnessScratch(2));
        return indexOfPassing(candidates, 2, witnessCount, scratch.data());
    };
    for (Variant const& variant : paths()) {
        Using const use(variant);
        EXPECT_EQ(index({&fool, &prime}, 10), 0) << variant.name;
        for (int witnessCount : {11, 12, 13, 308, 309, 400})
            EXPECT_EQ(index({&fool, &prime}, witnessCount), 1) << variant.name << witnessCount;
        EXPECT_EQ(index({&witness}, 308), 0) << variant.name;
        EXPECT_EQ(index({&witness}, 309), -1) << variant.name;
    }
}

TEST(Witnesses, ProveNumbersOfOneLimbWhenTwelveOrMoreArePassed) {
    for (Number const& number : {Number{3825123056546413051, 0}, Number{~Limb{0}, 0}}) {
        for (int const witnessCount : {12, 30, 308})
            EXPECT_TRUE(passingProves(number.data(), 2, witnessCount)) << witnessCount;
        for (int const witnessCount : {-1, 0, 11, 309, 1000})
            EXPECT_FALSE(passingProves(number.data(), 2, witnessCount)) << witnessCount;
    }
    EXPECT_FALSE(passingProves(Number{1, 1}.data(), 2, 30));
}

}  // namespace
