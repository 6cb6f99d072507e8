// Quotients: by one limb, and schoolbook long division (Knuth 4.3.1, Algorithm D) with quotient
// digits from a reciprocal (Reciprocal.h, and the algorithms for two limbs of the same article).
#include "Kernels.h"
#include "Reciprocal.h"

#include <bit>

namespace qel::limbs {

namespace {

/// The reciprocal of two limbs, (2^192 - 1) / d - 2^64 (Algorithm 6).
Limb reciprocalOfTwo(Limb d1, Limb d0) noexcept {
    Limb inverse = reciprocal(d1);
    Limb p = d1 * inverse + d0;
    if (p < d0) {
        --inverse;
        if (p >= d1) {
            --inverse;
            p -= d1;
        }
        p -= d1;
    }
    DoubleLimb const t = DoubleLimb{inverse} * d0;
    p += high(t);
    if (p < high(t)) {
        --inverse;
        if (join(p, low(t)) >= join(d1, d0))
            --inverse;
    }
    return inverse;
}

/// Three limbs by two, for u2:u1 < d; the remainder stays in `rest` (Algorithm 5).
Limb divideThreeByTwo(Limb u2, Limb u1, Limb u0, DoubleLimb d, Limb inverse,
                      DoubleLimb& rest) noexcept {
    DoubleLimb const estimate = DoubleLimb{inverse} * u2 + join(u2, u1);
    Limb quotient = high(estimate);
    Limb const r1 = u1 - quotient * high(d);
    rest = join(r1, u0) - DoubleLimb{low(d)} * quotient - d;
    ++quotient;
    if (high(rest) >= low(estimate)) {
        --quotient;
        rest += d;
    }
    if (rest >= d) {
        ++quotient;
        rest -= d;
    }
    return quotient;
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
// additions, which have the faster kernel. A carry out of them is the borrow.
void divideNormalized(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                      std::size_t count) noexcept {
    auto const addRow = kernels().addMultiply;
    DoubleLimb const d = join(divisor[count - 1], divisor[count - 2]);
    Limb const inverse = reciprocalOfTwo(high(d), low(d));
    for (std::size_t i = 0; i < aCount; ++i)
        a[i] = ~a[i];
    for (std::size_t j = aCount - count; j-- > 0;) {
        // D3: the digit from the top three limbs u2:u1:u0 at j + count.
        Limb* const u = a + j;
        Limb const u2 = ~u[count];
        Limb const u1 = ~u[count - 1];
        Limb digit = ~Limb{0};
        if (join(u2, u1) >= d) {
            // u2:u1 = d, and the digit is 2^64 - 1: the quotient is above
            // 2^64 d / (d + 1) >= 2^64 - 1, as d + 1 > 2^64.
            addRow(u, divisor, count, digit);
        } else {
            DoubleLimb rest = 0;
            digit = divideThreeByTwo(u2, u1, ~u[count - 2], d, inverse, rest);
            // D4 on the lower limbs; the top two are known but for the borrow from below.
            Limb const borrow = count == 2 ? 0 : addRow(u, divisor, count - 2, digit);
            bool const tooLarge = rest < borrow;
            rest -= borrow;
            u[count - 1] = ~high(rest);
            u[count - 2] = ~low(rest);
            if (tooLarge) {
                subtract(u, u, divisor, count);
                --digit;
            }
        }
        u[count] = ~Limb{0};
        quotient[j] = digit;
    }
    for (std::size_t i = 0; i < aCount; ++i)
        a[i] = ~a[i];
}

}  // namespace qel::limbs
