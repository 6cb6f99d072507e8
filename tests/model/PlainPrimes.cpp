#include "PlainPrimes.h"

#include "qel/Random.h"

#include <algorithm>
#include <vector>

namespace plain {

using qel::LargeInteger;
using qel::Random;

namespace {

/// Makes room for the bits 0 to `limit` and raises the cached bound to `limit`.
void reserveBits(LargeInteger& bits, int limit) noexcept {
    bits.setBit(limit);
    bits.clearBit(limit);
}

/// Sets the bits of 0 and of the composites below `limit`.
void sievePrimes(LargeInteger& composites, int limit) noexcept {
    reserveBits(composites, limit);
    composites.setBit(0);
    for (int p = 2; p <= limit / 2; p = composites.findNextClearBit(p + 1)) {
        for (long long multiple = 2LL * p; multiple < limit; multiple += p)
            composites.setBit(static_cast<int>(multiple));
    }
}

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

/// The odd primes in ascending order.
int oddPrime(int index) noexcept {
    static std::vector<int> primes;
    for (int n = primes.empty() ? 3 : primes.back() + 2; static_cast<int>(primes.size()) <= index;
         n += 2) {
        if (std::none_of(primes.begin(), primes.end(), [n](int p) { return n % p == 0; }))
            primes.push_back(n);
    }
    return primes[static_cast<std::size_t>(index)];
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

constexpr int screeningLimit = 15000;

LargeInteger startingValue(int bitCount, int const* seeds, int seedCount) noexcept {
    LargeInteger start;
    for (int i = seedCount; i > 0; --i) {
        LargeInteger fill;
        Random(seeds[i - 1]).fillBitsRandomly(fill, 0, bitCount);
        start ^= fill;
    }
    if (bitCount > 0)
        start.setBit(bitCount - 1);
    start.clearBit(0);
    return start;
}

/// How many odd numbers a block holds.
long long blockLength(int bitCount) noexcept {
    return std::max(1024LL, bitCount / 20 * 64LL);
}

/// The index in the block of the first odd multiple of q above the base; a multiple that is q
/// itself does not count. Index i stands for base + 2i + 1.
long long firstStruckIndex(LargeInteger const& base, int q) noexcept {
    LargeInteger quotient(base);
    LargeInteger remainder;
    quotient.divideBy(LargeInteger(q), remainder);
    long long distance = q - remainder.toInteger();
    if (quotient.isZero())
        distance += q;
    return distance % 2 != 0 ? (distance - 1) / 2 : (distance + q - 1) / 2;
}

/// The block of `length` odd numbers above the even base, with a set bit for each that has a
/// divisor 2p + 1, where p is 1 or a prime below the limit.
///
/// Twice a prime plus one, not the primes themselves: 13, 17, 19 and 29 never strike. The set of
/// candidates that reach the test, and with it the prime that is found, rests on this.
LargeInteger struckCandidates(LargeInteger const& base, LargeInteger const& composites,
                              int length) noexcept {
    LargeInteger struck;
    reserveBits(struck, length);
    for (int p = composites.findNextClearBit(0); p < screeningLimit;
         p = composites.findNextClearBit(p + 1)) {
        int const q = 2 * p + 1;
        for (long long i = firstStruckIndex(base, q); i < length; i += q)
            struck.setBit(static_cast<int>(i));
    }
    return struck;
}

}  // namespace

bool isProbablyPrime(LargeInteger const& n, int witnessCount) noexcept {
    if (n[0] == 0)
        return false;
    if (n.getHighestBit() <= smallHighestBit)
        return passesTrialDivision(n.getBitRangeAsInt(0, smallBits));
    if (!n.findGreatestCommonDivisor(LargeInteger(smallPrimesProduct)).isOne())
        return false;

    MillerRabin const test(n);
    for (int i = 0; i < witnessCount; ++i) {
        if (!test.passes(oddPrime(i)))
            return false;
    }
    return true;
}

LargeInteger createProbablePrime(int bitCount, int witnessCount, int const* seeds,
                                 int seedCount) noexcept {
    LargeInteger composites;
    sievePrimes(composites, screeningLimit);
    LargeInteger base = startingValue(bitCount, seeds, seedCount);
    int const length = static_cast<int>(blockLength(bitCount));
    while (base.getHighestBit() < bitCount) {
        // Before the first block too: the stretch just above the start is never searched.
        base += LargeInteger(2LL * length);
        LargeInteger const struck = struckCandidates(base, composites, length);
        for (int i = 0; i < length; ++i) {
            if (struck[i] != 0)
                continue;
            LargeInteger const candidate = base + LargeInteger(2U * static_cast<unsigned>(i) + 1U);
            if (isProbablyPrime(candidate, witnessCount))
                return LargeInteger(candidate);
        }
    }
    return LargeInteger();
}

}  // namespace plain
