#include "Sieve.h"

namespace qel {

void reserveBits(LargeInteger& bits, int limit) noexcept {
    bits.setBit(limit);
    bits.clearBit(limit);
}

void sievePrimes(LargeInteger& composites, int limit) noexcept {
    reserveBits(composites, limit);
    composites.setBit(0);
    for (int p = 2; p <= limit / 2; p = composites.findNextClearBit(p + 1)) {
        for (long long multiple = 2LL * p; multiple < limit; multiple += p)
            composites.setBit(static_cast<int>(multiple));
    }
}

}  // namespace qel
