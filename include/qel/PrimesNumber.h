/// @file
/// Probable primes.
#ifndef QEL_PRIMESNUMBER_H
#define QEL_PRIMESNUMBER_H

#include "qel/LargeInteger.h"

namespace qel {

/// Tests for, and the reproducible search of, probable primes. Both functions are pure: they keep
/// nothing between calls and may be called from several threads at once.
class PrimesNumber {
  public:
    /// There are no instances: both functions are static.
    PrimesNumber() = delete;

    /// True for a probable prime, where `n` is odd and 2048 or more: every even
    /// number is refused, 2 included; 1 passes; and a value from 1024 to 2047 gets the verdict
    /// of that value minus 1024, since values below 2048 are judged by trial division of their low
    /// ten bits.
    ///
    /// The test is Miller-Rabin with the first `witnessCount` odd primes 3, 5, 7, 11, ... as
    /// witnesses; each costs one modular power. A composite passes only if it fools all of them.
    ///
    /// From 2048 on, a value with a factor from 3 to 23 is refused before any witness; with a
    /// `witnessCount` of zero or less every other odd value passes. A witness equal to the number
    /// fails: the prime 2053 passes 308 witnesses and not 309.
    /// @pre `n` is not negative; otherwise the call can run for ever.
    [[nodiscard]] static bool isProbablyPrime(LargeInteger const& n, int witnessCount) noexcept;

    /// Searches upward from a start that the seeds determine; the same arguments give the same
    /// prime, in whatever order the seeds stand, and a seed that stands there twice counts for
    /// nothing.
    ///
    /// The result is not the next prime: the 2048 numbers or more just above the start are never
    /// searched. Candidates that certain small numbers other than themselves divide (3 and 2p + 1,
    /// for the primes p below 15000) are left out, the others tested in ascending order.
    /// @param bitCount the width of the start, whose top bit is forced. The search may leave the
    ///     width behind: the result can have more bits, always so up to 12 bits. A negative
    ///     `bitCount` gives zero; one of 671088640 or more ends the process.
    /// @param witnessCount as for isProbablyPrime; each costs a modular power.
    /// @param seeds `seedCount` integers; may be null when `seedCount` is 0.
    /// @param seedCount 0 or more; a negative count draws nothing, as 0 does.
    /// @return the prime; zero when the start has outgrown `bitCount` bits before a block of
    ///     candidates is searched.
    [[nodiscard]] static LargeInteger createProbablePrime(int bitCount, int witnessCount,
                                                          int const* seeds, int seedCount) noexcept;
};

}  // namespace qel

#endif
