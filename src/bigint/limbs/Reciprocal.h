// Quotients by a limb from its reciprocal (Moeller and Granlund, "Improved division by invariant
// integers", 2011).
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

}  // namespace qel::limbs
