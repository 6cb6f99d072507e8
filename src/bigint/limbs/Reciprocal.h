// Quotients by a limb or two from their reciprocal (Moeller and Granlund, "Improved division by
// invariant integers", 2011).
#pragma once

#include "Limbs.h"

namespace qel::limbs {

constexpr Limb high(DoubleLimb x) noexcept {
    return static_cast<Limb>(x >> bitsPerLimb);
}

constexpr Limb low(DoubleLimb x) noexcept {
    return static_cast<Limb>(x);
}

constexpr DoubleLimb join(Limb top, Limb bottom) noexcept {
    return (DoubleLimb{top} << bitsPerLimb) | bottom;
}

/// (2^128 - 1) / d - 2^64 for a d with its top bit set.
constexpr Limb reciprocal(Limb d) noexcept {
    return low(~DoubleLimb{0} / d);
}

struct ShortQuotient {
    Limb quotient;
    Limb remainder;
};

/// top:bottom / d for top < d, with d's reciprocal (Algorithm 4).
constexpr ShortQuotient divideTwoByOne(Limb top, Limb bottom, Limb d, Limb inverse) noexcept {
    DoubleLimb const estimate = DoubleLimb{inverse} * top + join(top, bottom);
    Limb quotient = high(estimate) + 1;
    Limb remainder = bottom - quotient * d;
    // As likely as not, so without a branch.
    Limb const tooHigh = 0 - static_cast<Limb>(remainder > low(estimate));
    quotient += tooHigh;
    remainder += tooHigh & d;
    if (remainder >= d) [[unlikely]] {
        ++quotient;
        remainder -= d;
    }
    return {quotient, remainder};
}

/// The reciprocal of two limbs, (2^192 - 1) / d - 2^64, for a d1 with its top bit
/// set (Algorithm 6).
constexpr Limb reciprocalOfTwo(Limb d1, Limb d0) noexcept {
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
constexpr Limb divideThreeByTwo(Limb u2, Limb u1, Limb u0, DoubleLimb d, Limb inverse,
                                DoubleLimb& rest) noexcept {
    DoubleLimb const estimate = DoubleLimb{inverse} * u2 + join(u2, u1);
    Limb quotient = high(estimate);
    Limb const r1 = u1 - quotient * high(d);
    rest = join(r1, u0) - DoubleLimb{low(d)} * quotient - d;
    // One too large as often as not: no branch.
    Limb const mask = high(rest) >= low(estimate) ? ~Limb{0} : 0;
    quotient += mask + 1;
    rest += join(high(d) & mask, low(d) & mask);
    if (rest >= d) {
        ++quotient;
        rest -= d;
    }
    return quotient;
}

}  // namespace qel::limbs
