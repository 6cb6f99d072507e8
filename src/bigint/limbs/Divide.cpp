// Quotients: by one limb, and schoolbook long division (Knuth 4.3.1, Algorithm D) with quotient
// digits from a reciprocal (Reciprocal.h).
#include "Kernels.h"
#include "Reciprocal.h"

#include <algorithm>
#include <bit>

namespace qel::limbs {

namespace {

void complement(Limb* a, std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i)
        a[i] = ~a[i];
}

void storePair(Limb* a, DoubleLimb pair) noexcept {
    a[0] = ~low(pair);
    a[1] = ~high(pair);
}

DoubleLimb loadPair(Limb const* a) noexcept {
    return join(~a[1], ~a[0]);
}

}  // namespace

Limb divideLimb(Limb* quotient, Limb const* a, std::size_t count, Limb divisor) noexcept {
    int const shift = std::countl_zero(divisor);
    Limb const d = divisor << shift;
    Limb const inverse = reciprocal(d);
    Limb rest = shift == 0 ? 0 : a[count - 1] >> (bitsPerLimb - shift);
    for (std::size_t i = count; i-- > 0;) {
        Limb const below = i == 0 || shift == 0 ? 0 : a[i - 1] >> (bitsPerLimb - shift);
        ShortQuotient const digit = divideTwoByOne(rest, (a[i] << shift) | below, d, inverse);
        quotient[i] = digit.quotient;
        rest = digit.remainder;
    }
    return rest >> shift;
}

// The partial remainder is kept complemented, since ~(~u + q d) = u - q d: its rows then are
// additions, which have the faster kernel. A carry out of them is the borrow. Its top two limbs are
// kept in `top` between digits.
void divideNormalized(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                      std::size_t count) noexcept {
    auto const addRow = kernels().addMultiply;
    DoubleLimb const d = join(divisor[count - 1], divisor[count - 2]);
    Limb const inverse = reciprocalOfTwo(high(d), low(d));
    complement(a, aCount);
    DoubleLimb top = loadPair(a + aCount - 2);
    for (std::size_t j = aCount - count; j-- > 0;) {
        // D3: the digit from `top` and the limb below, u[count - 2].
        Limb* const u = a + j;
        Limb digit = ~Limb{0};
        if (top >= d) {
            // They are equal, and the digit is 2^64 - 1: the quotient is above
            // 2^64 d / (d + 1) >= 2^64 - 1, as d + 1 > 2^64.
            storePair(u + count - 1, top);
            addRow(u, divisor, count, digit);
            top = loadPair(u + count - 2);
        } else {
            digit = divideThreeByTwo(high(top), low(top), ~u[count - 2], d, inverse, top);
            // D4 on the lower limbs; the top two are known but for the borrow from below.
            Limb const borrow = count == 2 ? 0 : addRow(u, divisor, count - 2, digit);
            bool const tooLarge = top < borrow;
            top -= borrow;
            if (tooLarge) {
                storePair(u + count - 2, top);
                subtract(u, u, divisor, count);
                top = loadPair(u + count - 2);
                --digit;
            }
        }
        quotient[j] = digit;
    }
    storePair(a + count - 2, top);
    complement(a, count);
    std::fill(a + count, a + aCount, Limb{0});
}

}  // namespace qel::limbs
