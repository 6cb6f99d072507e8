// The verdict on one number: trial division for small ones, Miller-Rabin (Rabin, "Probabilistic
// algorithm for testing primality", 1980) with fixed witnesses for the rest.
#include "qel/PrimesNumber.h"

#include "../bigint/EndProcess.h"
#include "Sieve.h"

#include <climits>

namespace qel {

namespace {

/// 2 * 3 * 5 * 7 * 11 * 13 * 17 * 19 * 23.
constexpr int smallPrimesProduct = 223092870;

/// Numbers whose highest bit is this or lower are judged by trial division.
constexpr int smallHighestBit = 10;
/// How many low bits trial division looks at. One less than the numbers may have: 1024 to 2047
/// are judged by their value minus 1024, as callers have come to rely on.
constexpr int smallBits = 10;

bool passesTrialDivision(int value) noexcept {
    for (int divisor = value / 2 - 1; divisor >= 2; --divisor) {
        if (value % divisor == 0)
            return false;
    }
    return true;
}

/// The composites up to a multiple of 256, far enough for `witnessCount` odd primes.
LargeInteger witnessSieve(int witnessCount) noexcept {
    constexpr int growth = 256;
    LargeInteger composites;
    int limit = 0;
    int primesAndOne = 0;
    do {
        if (limit > INT_MAX - growth)
            endProcessTooWide();
        limit += growth;
        sievePrimes(composites, limit);
        primesAndOne = limit - composites.countNumberOfSetBits();
    } while (witnessCount + 1LL >= primesAndOne);
    return composites;
}

/// n - 1 = oddPart * 2^twos, the numbers that every witness is tested with.
struct MillerRabin {
    explicit MillerRabin(LargeInteger const& candidate) noexcept
        : n(candidate), minusOne(n - LargeInteger(1)), twos(minusOne.findNextSetBit(0)),
          oddPart(minusOne >> twos) {}

    [[nodiscard]] bool passes(int witness) const noexcept {
        LargeInteger y(witness);
        y.exponentModulo(oddPart, n);
        if (y.isOne() || y == minusOne)
            return true;
        // One squaring more than the textbook has; it could only matter for a composite with
        // witness^(n-1) = -1 (mod n).
        for (int squarings = 0; squarings < twos && y != minusOne; ++squarings)
            y.exponentModulo(LargeInteger(2), n);
        return y == minusOne;
    }

    LargeInteger const& n;
    LargeInteger minusOne;
    int twos;
    LargeInteger oddPart;
};

}  // namespace

bool PrimesNumber::isProbablyPrime(LargeInteger const& n, int witnessCount) noexcept {
    if (n[0] == 0)
        return false;
    if (n.getHighestBit() <= smallHighestBit)
        return passesTrialDivision(n.getBitRangeAsInt(0, smallBits));
    if (!n.findGreatestCommonDivisor(LargeInteger(smallPrimesProduct)).isOne())
        return false;

    MillerRabin const test(n);
    LargeInteger const sieve = witnessSieve(witnessCount);
    int witness = 2;
    for (int i = 0; i < witnessCount; ++i) {
        witness = sieve.findNextClearBit(witness + 1);
        if (!test.passes(witness))
            return false;
    }
    return true;
}

}  // namespace qel
