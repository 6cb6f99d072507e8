// Our primality test and keys as the rows call them.
#ifndef QEL_BENCH_CRYPTO_OWNARITHMETIC_H
#define QEL_BENCH_CRYPTO_OWNARITHMETIC_H

#include "../bigint/Own.h"
#include "KnownKeys.h"

#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"

namespace qel::bench {

struct OwnKeys {
    using Key = RSAKey;

    LargeInteger apply(Arguments<LargeInteger> const& x) {
        LargeInteger value = x.a;
        benchmark::DoNotOptimize(applied.find(*this, x).applyToValue(value));
        return value;
    }
    static std::string textOf(Key const& key) { return key.toString(); }
    static Key keyOf(std::string const& text) { return Key(text.c_str()); }

    KnownKeys<Key> applied;
};

struct OwnFunctions {
    static bool isProbablyPrime(LargeInteger const& n) {
        return PrimesNumber::isProbablyPrime(n, 30);
    }
    static LargeInteger bestCommonDivisor(LargeInteger const& a, LargeInteger const& b) {
        return RSAKey::findBestCommonDivisor(a, b);
    }
};

using OwnArithmetic = WithKeys<Own, OwnKeys, OwnFunctions>;

}  // namespace qel::bench

#endif
