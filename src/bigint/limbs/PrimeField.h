// Arithmetic modulo the three primes of the transforms. Numbers stay below 4p < 2^64 and are fully
// reduced only at the end; products by prepared factors are Shoup's.
#pragma once

#include "Limbs.h"

#include <new>

namespace qel::limbs {

/// A factor with the quotient factor * 2^64 / p, rounded down.
struct Factor {
    Limb value;
    Limb quotient;
};

/// Factors, not set yet, in the place of twice as many limbs.
inline Factor* factorsIn(Limb* place, std::size_t count) noexcept {
    static_assert(sizeof(Factor) == 2 * sizeof(Limb) && alignof(Factor) == alignof(Limb));
    return new (place) Factor[count];
}

/// Primes of the form 2^62 - k * 2^32 + 1, and an element of order 2^32.
struct Prime {
    Limb p;
    Limb root;
};

inline constexpr Prime primes[] = {{0x3fffffee00000001, 0xf6ad935336aad2},
                                   {0x3fffffb400000001, 0x2efbcbd1f80b862f},
                                   {0x3fffffa000000001, 0x2e0d2163d8fd7ce1}};

/// Arithmetic modulo primes[which].
template <int which>
struct Field {
    static constexpr Limb p = primes[which].p;
    static constexpr int orderBits = 32;
    /// 2^128 / p - 4 * 2^64, as 2^64 / p is a little above 4.
    static constexpr Limb reciprocal = static_cast<Limb>(~DoubleLimb{0} / p);

    static constexpr Limb inverseOfP() noexcept {
        Limb inverse = p;  // to 3 bits
        for (int bits = 3; bits < bitsPerLimb; bits *= 2)
            inverse *= 2 - p * inverse;
        return inverse;
    }

    /// x or x - bound, for an x < 2 * bound.
    static constexpr Limb reduce(Limb x, Limb bound) noexcept { return x >= bound ? x - bound : x; }

    /// x * factor, below 2p, for any x: the quotient x * factor / p is met or missed by one.
    static constexpr Limb multiply(Limb x, Factor factor) noexcept {
        return x * factor.value - upperLimb(DoubleLimb{x} * factor.quotient) * p;
    }

    /// For a value < p. The first quotient is short by at most one: `reciprocal` is by less than 1
    /// and value < 2^62.
    static constexpr Factor factor(Limb value) noexcept {
        Limb const quotient = 4 * value + upperLimb(DoubleLimb{value} * reciprocal);
        Limb const rest = 0 - quotient * p;
        return {value, rest >= p ? quotient + 1 : quotient};
    }

    /// x / 2^64 (Montgomery), below 2p for an x < p * 2^64.
    static constexpr Limb shrink(DoubleLimb x) noexcept {
        Limb const multiple = static_cast<Limb>(x) * inverseOfP();
        return upperLimb(x) + p - upperLimb(DoubleLimb{multiple} * p);
    }

    static constexpr Limb product(Limb a, Limb b) noexcept {
        return static_cast<Limb>(DoubleLimb{a} * b % p);
    }

    static constexpr Limb power(Limb base, Limb exponent) noexcept {
        Limb result = 1;
        for (; exponent != 0; exponent /= 2, base = product(base, base)) {
            if (exponent % 2 != 0)
                result = product(result, base);
        }
        return result;
    }

    static constexpr Factor inverse(Limb value) noexcept { return factor(power(value % p, p - 2)); }
};

}  // namespace qel::limbs
