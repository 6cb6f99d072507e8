// Products modulo an odd number of one limb or two, in registers (Montgomery, 1985).
#pragma once

#include "Montgomery.h"
#include "Reciprocal.h"

#include <bit>

namespace qel::limbs {

/// The halves of a product.
template <typename Number>
struct WideProduct {
    Number high;
    Number low;
};

inline WideProduct<Limb> wideProduct(Limb a, Limb b) noexcept {
    DoubleLimb const product = DoubleLimb{a} * b;
    return {high(product), low(product)};
}

inline WideProduct<DoubleLimb> wideProduct(DoubleLimb a, DoubleLimb b) noexcept {
    DoubleLimb const lowest = DoubleLimb{low(a)} * low(b);
    DoubleLimb const first = DoubleLimb{high(a)} * low(b);
    DoubleLimb const second = DoubleLimb{low(a)} * high(b);
    DoubleLimb const middle = DoubleLimb{high(lowest)} + low(first) + low(second);
    return {DoubleLimb{high(a)} * high(b) + high(first) + high(second) + high(middle),
            join(low(middle), low(lowest))};
}

template <typename Number>
inline constexpr std::size_t limbsOf = sizeof(Number) / sizeof(Limb);

template <typename Number>
Number load(Limb const* a) noexcept {
    if constexpr (limbsOf<Number> == 1)
        return a[0];
    else
        return join(a[1], a[0]);
}

template <typename Number>
void store(Limb* out, Number a) noexcept {
    out[0] = static_cast<Limb>(a);
    if constexpr (limbsOf<Number> == 2)
        out[1] = high(a);
}

/// The number of the lowest bit set.
inline int lowestBit(Limb a) noexcept {
    return std::countr_zero(a);
}
inline int lowestBit(DoubleLimb a) noexcept {
    return low(a) != 0 ? lowestBit(low(a)) : bitsPerLimb + lowestBit(high(a));
}
/// The number of the highest.
inline int highestBit(Limb a) noexcept {
    return bitsPerLimb - 1 - std::countl_zero(a);
}
inline int highestBit(DoubleLimb a) noexcept {
    return high(a) != 0 ? bitsPerLimb + highestBit(high(a)) : highestBit(low(a));
}

/// a * 2^64 mod n, for a < n.
inline Limb timesRadix(Limb a, Limb n) noexcept {
    return static_cast<Limb>((DoubleLimb{a} << bitsPerLimb) % n);
}

/// a * 2^128 mod n, for a < n and an n above 2^64.
inline DoubleLimb timesRadix(DoubleLimb a, DoubleLimb n) noexcept {
    int const shift = std::countl_zero(high(n));
    DoubleLimb const divisor = n << shift;
    Limb const inverse = reciprocalOfTwo(high(divisor), low(divisor));
    DoubleLimb rest = a << shift;
    for (int i = 0; i < 2; ++i)
        divideThreeByTwo(high(rest), low(rest), 0, divisor, inverse, rest);
    return rest >> shift;
}

/// A Number is a Limb or a DoubleLimb above 2^64, of w bits; x is represented by x * 2^w mod n.
template <typename Number>
class ShortMontgomery {
  public:
    explicit ShortMontgomery(Number odd) noexcept
        : n(odd), inverse(0 - Number{negatedInverse(static_cast<Limb>(odd))}) {
        if constexpr (limbsOf<Number> == 2)
            inverse *= 2 - n * inverse;
    }

    /// a b / 2^w. With q = a b / n modulo 2^w the lower halves of a b and q n agree, and the
    /// difference of the upper ones is above -n and below n.
    [[nodiscard]] Number multiply(Number a, Number b) const noexcept {
        WideProduct<Number> const product = wideProduct(a, b);
        Number const subtrahend = wideProduct(product.low * inverse, n).high;
        Number const difference = product.high - subtrahend;
        return product.high < subtrahend ? difference + n : difference;
    }
    [[nodiscard]] Number enter(Number a) const noexcept { return timesRadix(a, n); }
    [[nodiscard]] Number leave(Number a) const noexcept { return multiply(a, 1); }

  private:
    Number n;
    Number inverse;
};

}  // namespace qel::limbs
