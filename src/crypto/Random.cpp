// The generator: x' = x * 0x5DEECE66D + 11 modulo 2^48, outputs from the top bits.
#include "qel/Random.h"

#include "qel/LargeInteger.h"

#include "../bigint/Representation.h"

namespace qel {

using namespace internal;

/// Fills limbs as two words each. The state stands in the upper 48 bits, where the carries out
/// of it are lost; it takes two steps at once, beside which the step between them costs no time.
void Random::fillLimbs(LargeInteger& value, long long firstLimb, long long count) noexcept {
    constexpr int unused = 16;
    constexpr Limb upperWord = ~Limb{0} << bitsPerWord;
    constexpr Limb one = increment << unused;
    constexpr Limb two = one * multiplier + one;
    Limb state = static_cast<Limb>(seed) << unused;
    Limb* out = Representation::writableLimbs(value) + firstLimb;
    for (Limb* const end = out + count; out != end; ++out) {
        Limb const lower = state * multiplier + one;
        state = state * (multiplier * multiplier) + two;
        *out = (state & upperWord) | (lower >> bitsPerWord);
    }
    seed = static_cast<long long>(state >> unused);
}

void Random::fillBitsRandomly(LargeInteger& value, int firstBit, int bitCount) noexcept {
    long long pos = firstBit;
    long long left = bitCount;
    // Raises the bound to the top of the range at once: clearing a bit above it would be ignored.
    value.setBit(checkedPosition(pos + left - 1));

    for (; left > 0 && pos % bitsPerWord != 0; ++pos, --left)
        value.setBit(static_cast<int>(pos), nextBool());
    while (left >= bitsPerWord) {
        bool const isLimb = pos >= 0 && pos % limbs::bitsPerLimb == 0 && left >= limbs::bitsPerLimb;
        long long const filled = isLimb ? left - left % limbs::bitsPerLimb : bitsPerWord;
        if (isLimb)
            fillLimbs(value, pos / limbs::bitsPerLimb, filled / limbs::bitsPerLimb);
        else
            value.setBitRangeAsInt(static_cast<int>(pos), bitsPerWord,
                                   static_cast<unsigned int>(nextInt()));
        pos += filled;
        left -= filled;
    }
    // Downward from the top, against the order of the leading bits: this fixes the sequence.
    for (; left > 0; --left)
        value.setBit(static_cast<int>(pos + left - 1), nextBool());
}

}  // namespace qel
