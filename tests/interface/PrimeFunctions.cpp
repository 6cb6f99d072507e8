// Verdicts and searches, against the plain ones.
#include "CryptoFunctions.h"
#include "IntegerRows.h"
#include "Seeds.h"

#include "model/PlainPrimes.h"
#include "qel/PrimesNumber.h"

namespace interface_test {

namespace {

using qel::LargeInteger;
using qel::PrimesNumber;

bool verdict(LargeInteger const& n, int witnessCount) {
    return PrimesNumber::isProbablyPrime(n, witnessCount);
}

bool verdict(plain::LargeInteger const& n, int witnessCount) {
    LargeInteger same;
    same.parseString(n.toString(16), 16);
    return plain::isProbablyPrime(same, witnessCount);
}

/// Besides the values that all take: both sides of the limits of trial division, pseudoprimes of
/// one and three witnesses, a prime that is among the witnesses itself, wider primes, and products
/// of theirs.
Operands const& candidates() {
    static Operands const operands = [] {
        Operands list = manyOperands();
        for (char const* digits :
             {"3", "7", "9", "-7", "401", "409", "7ff", "801", "805", "20d1", "bfa17cc7",
              "7fffffff", "1fffffffffffffff", "7fffffffffffffffffffffffffffffff",
              "3fffffff00000001", "ffffffffffffffe1fffffffffffffff"}) {
            list.push_back({twinOf(digits)});
            list.push_back({twinOf(digits), 700, 40});
        }
        return list;
    }();
    return operands;
}

/// Left out: a negative number from -2048 down, with which the call can run for ever; and more than
/// 33 witnesses of a prime, which a count of 2^31 keeps busy for hours. (Below 2^12 it ends when
/// the prime is its own witness.)
bool isQuick(LargeInteger const& n, int witnessCount) {
    if (n.isNegative() && n.getHighestBit() >= 11)
        return false;
    return witnessCount <= 33 || n.getHighestBit() < 12 || !plain::isProbablyPrime(n, 33);
}

void searchFor(Results& results, int bitCount, int witnessCount, Seeds const& seeds) {
    LargeInteger const prime =
        PrimesNumber::createProbablePrime(bitCount, witnessCount, seeds.first, seeds.count);
    LargeInteger const expected =
        plain::createProbablePrime(bitCount, witnessCount, seeds.first, seeds.count);
    EXPECT_EQ(prime, expected) << bitCount << " bits, " << witnessCount << " witnesses, "
                               << seeds.count << " seeds";
    EXPECT_EQ(bigint_test::representation(prime), bigint_test::representation(expected))
        << bitCount;
    results.add("", bitCount, witnessCount, seeds.count, prime);
}

/// Left out: widths of which a search takes minutes; and more than 33 witnesses, by which a prime
/// keeps the search busy for hours: the search of one bit ends, since all primes from 2049 to 4095
/// are refused when they are their own witnesses.
void search(Results& results) {
    for (int const bitCount : extremeInts) {
        if (bitCount > 33)
            continue;
        for (int const witnessCount : extremeInts) {
            if (witnessCount <= 33 || bitCount < 0 || (bitCount == 1 && witnessCount == INT_MAX))
                searchFor(results, bitCount, witnessCount, allSeeds());
        }
        for (Seeds const& seeds : seedLists())
            searchFor(results, bitCount, 1, seeds);
    }
    for (Seeds const& seeds : seedLists())
        searchFor(results, 64, 1, seeds);
}

}  // namespace

std::vector<Function> primeFunctions() {
    return {
        unaryOf<candidates, int>(
            "PrimesNumber::isProbablyPrime(LargeInteger const&, int)",
            [](auto const& n, int witnessCount) { return verdict(n, witnessCount); },
            [](auto const& n, int witnessCount) { return isQuick(n, witnessCount); }),
        {"PrimesNumber::createProbablePrime(int, int, int const*, int)", search},
    };
}

}  // namespace interface_test
