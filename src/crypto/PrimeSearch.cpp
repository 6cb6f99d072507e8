// The search for a probable prime: a start drawn from the seeds, then blocks of odd numbers above
// it, each screened by small divisors before its survivors are tested one by one.
#include "qel/PrimesNumber.h"

#include "qel/Random.h"

#include "../bigint/Words.h"
#include "Sieve.h"

#include <algorithm>

namespace qel {

namespace {

constexpr int screeningLimit = 15000;

LargeInteger startingValue(int bitCount, int const* seeds, int seedCount) noexcept {
    LargeInteger start;
    for (int i = seedCount - 1; i >= 0; --i) {
        LargeInteger fill;
        Random(seeds[i]).fillBitsRandomly(fill, 0, bitCount);
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

LargeInteger PrimesNumber::createProbablePrime(int bitCount, int witnessCount, int const* seeds,
                                               int seedCount) noexcept {
    LargeInteger composites;
    sievePrimes(composites, screeningLimit);
    LargeInteger base = startingValue(bitCount, seeds, seedCount);
    int const length = checkedPosition(blockLength(bitCount));
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

}  // namespace qel
