// The generator: x' = x * 0x5DEECE66D + 11 modulo 2^48, outputs from the top bits.
#include "qel/Random.h"

#include "qel/LargeInteger.h"

#include "../bigint/Words.h"

namespace qel {

using namespace internal;

namespace {

constexpr unsigned long long multiplier = 0x5DEECE66DULL;
constexpr unsigned long long increment = 11;
constexpr unsigned long long stateMask = 0xFFFFFFFFFFFFULL;

}  // namespace

Random::Random(long long initialSeed) noexcept : seed(initialSeed) {}

/// Advances the state. The bits above 47 of the result are not part of it, and nobody reads them.
unsigned long long Random::step() noexcept {
    unsigned long long const product =
        static_cast<unsigned long long>(seed) * multiplier + increment;
    seed = static_cast<long long>(product & stateMask);
    return product;
}

int Random::nextInt() noexcept {
    return static_cast<int>(static_cast<unsigned int>(step() >> 16));
}

bool Random::nextBool() noexcept {
    return ((step() >> 47) & 1) != 0;
}

void Random::fillBitsRandomly(LargeInteger& value, int firstBit, int bitCount) noexcept {
    long long pos = firstBit;
    long long left = bitCount;
    // Raises the bound to the top of the range at once: clearing a bit above it would be ignored.
    value.setBit(checkedPosition(pos + left - 1));

    for (; left > 0 && pos % bitsPerWord != 0; ++pos, --left)
        value.setBit(static_cast<int>(pos), nextBool());
    for (; left >= bitsPerWord; pos += bitsPerWord, left -= bitsPerWord)
        value.setBitRangeAsInt(static_cast<int>(pos), bitsPerWord,
                               static_cast<unsigned int>(nextInt()));
    // Downward from the top, against the order of the leading bits: this fixes the sequence.
    for (; left > 0; --left)
        value.setBit(static_cast<int>(pos + left - 1), nextBool());
}

}  // namespace qel
