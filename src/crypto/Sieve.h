// The sieve of Eratosthenes on a LargeInteger as a bit set: a set bit i means that i is 0 or
// composite, a clear one that it is 1 or prime.
#pragma once

#include "qel/LargeInteger.h"

namespace qel {

/// Makes room for the bits 0 to `limit` and raises the cached bound to `limit`, so that searches
/// for clear bits cover the whole range.
void reserveBits(LargeInteger& bits, int limit) noexcept;

/// Sieves the numbers below `limit`; may extend a smaller sieve.
void sievePrimes(LargeInteger& composites, int limit) noexcept;

}  // namespace qel
