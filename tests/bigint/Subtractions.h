// What the greatest common divisor costs the plain model, which subtracts instead of dividing.
#pragma once

#include "qel/LargeInteger.h"

#include <algorithm>
#include <cstdlib>

namespace bigint_test {

/// How often Euclid's algorithm subtracts where it only subtracts; at most about `limit`. Neither
/// value is negative.
inline int subtractions(qel::LargeInteger a, qel::LargeInteger b, int limit) {
    long long count = 0;
    while (!b.isZero() && count < limit) {
        qel::LargeInteger const quotient = a / b;
        count += quotient.getHighestBit() > 20 ? limit : quotient.toInteger();
        qel::LargeInteger rest = a % b;
        a.swapWith(b);
        b.swapWith(rest);
    }
    return static_cast<int>(std::min<long long>(count, limit));
}

/// How often the plain gcd subtracts once it has left division; at most about `limit`.
inline int subtractionsAfterDivisions(qel::LargeInteger a, qel::LargeInteger b, int limit) {
    while (!b.isZero() && std::abs(a.getHighestBit() - b.getHighestBit()) > 16) {
        qel::LargeInteger rest = a % b;
        a.swapWith(b);
        b.swapWith(rest);
    }
    return subtractions(a, b, limit);
}

}  // namespace bigint_test
