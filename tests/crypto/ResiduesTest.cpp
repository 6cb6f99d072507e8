// Remainders by tables of small divisors.
#include "crypto/Residues.h"

#include "crypto/SmallPrimes.h"
#include "qel/LargeInteger.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using namespace qel::internal;
using qel::LargeInteger;
using qel::limbs::Limb;

std::vector<Limb> number(unsigned seed, std::size_t count) {
    std::mt19937_64 random(seed);
    std::vector<Limb> n(count);
    for (Limb& limb : n)
        limb = random();
    return n;
}

constexpr auto table = makeDivisorTable(smallPrimes);

unsigned int plainResidue(std::vector<Limb> const& n, unsigned int divisor) {
    unsigned long long rest = 0;
    for (std::size_t i = 2 * n.size(); i > 0; --i) {
        Limb const half = (n[(i - 1) / 2] >> ((i - 1) % 2 * 32)) & 0xFFFFFFFF;
        rest = ((rest << 32) | half) % divisor;
    }
    return static_cast<unsigned int>(rest);
}

TEST(SmallPrimes, AreAllBelowTwoToTheSixteenthInAscendingOrder) {
    std::size_t found = 0;
    for (unsigned int n = 2; n < smallPrimeLimit; ++n) {
        bool prime = true;
        for (unsigned int d = 2; d * d <= n && prime; ++d)
            prime = n % d != 0;
        if (prime) {
            ASSERT_EQ(smallPrimes[found++], n);
        }
    }
    EXPECT_EQ(found, smallPrimes.size());
}

// As many divisors as fill groups, and groups that go side by side, or not.
TEST(Residues, AreThoseOfEveryDivisorOfTheTable) {
    for (std::size_t const count : {1U, 2U, 3U, 16U, 40U}) {
        std::vector<Limb> const n = number(300, count);
        for (std::size_t const taken : {1U, 3U, 4U, 5U, 15U, 16U, 17U, 31U, 33U, 6542U}) {
            std::vector<std::uint16_t> residues(taken);
            takeResidues(residues, table.divisors, table.groups.data(), n.data(), count);
            for (std::size_t i = 0; i < residues.size(); ++i)
                ASSERT_EQ(residues[i], plainResidue(n, smallPrimes[i])) << count << ' ' << i;
        }
    }
}

TEST(Residues, FollowTheNumberOverDivisorsOnBothSidesOfTheStep) {
    std::vector<std::uint16_t> const divisors = {3, 5, 9, 255, 256, 257, 300, 32769, 65535};
    for (unsigned int const step : {2U, 254U, 255U, 256U, 257U}) {
        std::vector<Limb> n = number(301, 3);
        n[0] &= 0xFFFF'FFFF'0000'0000;
        std::vector<std::uint16_t> residues;
        for (std::uint16_t const divisor : divisors)
            residues.push_back(static_cast<std::uint16_t>(plainResidue(n, divisor)));
        for (int i = 0; i < 1000; ++i) {
            n[0] += step;
            advanceResidues(residues, divisors, step);
            for (std::size_t j = 0; j < divisors.size(); ++j)
                ASSERT_EQ(residues[j], plainResidue(n, divisors[j]))
                    << step << " x " << i + 1 << " mod " << divisors[j];
        }
    }
}

}  // namespace
