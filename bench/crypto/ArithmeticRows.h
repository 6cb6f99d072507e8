// Primality, keys at work and keys as texts, by one library: a class like those of bench/bigint
// that also has the functions called here.
#ifndef QEL_BENCH_CRYPTO_ARITHMETICROWS_H
#define QEL_BENCH_CRYPTO_ARITHMETICROWS_H

#include "../bigint/Rows.h"
#include "CryptoOperands.h"
#include "OwnArithmetic.h"

namespace qel::bench {

template <typename Library, typename Operation>
void addKeyRow(Row const& row, std::vector<int> const& sizes, Draw draw, Operation operation) {
    addRow<Library, OwnArithmetic>(row, sizes, draw, operation);
}

inline std::vector<int> const applyingWidths = {128, 256, 512, 1024, 2048};
inline std::vector<int> const textWidths = {128, 512, 2048};

template <typename Library>
void registerPrimalityRows() {
    auto const test = [](auto& library, auto& x) { return library.isProbablyPrime(x.a); };
    addKeyRow<Library>({"isProbablyPrime, odd numbers and primes in turn",
                        {"PrimesNumber::isProbablyPrime(LargeInteger const&, int)"}},
                       {64, 128, 256, 512}, primesAndOddNumbers, test);
    addKeyRow<Library>({"isProbablyPrime, primes"}, {64, 256, 1024}, primes, test);
    addKeyRow<Library>({"isProbablyPrime, odd numbers"}, {64, 256, 1024, 2048}, oddNumbers, test);
}

template <typename Library>
void registerApplyingRows() {
    auto const apply = [](auto& library, auto& x) { return library.keys.apply(x); };
    addKeyRow<Library>({"applyToValue, small exponent", {"RSAKey::applyToValue(LargeInteger&)"}},
                       applyingWidths, valuesAndPublicKeys, apply);
    addKeyRow<Library>({"applyToValue, large exponent"}, applyingWidths, valuesAndPrivateKeys,
                       apply);
    if constexpr (requires(typename Library::Value v) { Library::bestCommonDivisor(v, v); })
        addKeyRow<Library>({"findBestCommonDivisor",
                            {"RSAKey::findBestCommonDivisor(LargeInteger const&, "
                             "LargeInteger const&)"}},
                           applyingWidths, evenPairs, [](auto& library, auto& x) {
                               return library.bestCommonDivisor(x.a, x.b);
                           });
}

template <typename Library>
void registerKeyTextRows() {
    addKeyRow<Library>(
        {"key from text", {"RSAKey::RSAKey(char const*)"}}, textWidths, valuesAndPrivateKeys,
        [](auto& library, auto& x) { return Incomparable{library.keys.keyOf(x.text)}; });
    addKeyRow<Library>({"key to text", {"RSAKey::toString()"}}, textWidths, valuesAndPrivateKeys,
                       [](auto& library, auto& x) {
                           return library.keys.textOf(library.known.find(library.keys, x));
                       });
    addKeyRow<Library>({"key == key", {"RSAKey::operator==(RSAKey const&)"}}, textWidths,
                       valuesAndPrivateKeys, [](auto& library, auto& x) {
                           return library.known.find(library.keys, x)
                                  == library.others.find(library.keys, x);
                       });
    addKeyRow<Library>({"key != key", {"RSAKey::operator!=(RSAKey const&)"}}, textWidths,
                       valuesAndPrivateKeys, [](auto& library, auto& x) {
                           return library.known.find(library.keys, x)
                                  != library.others.find(library.keys, x);
                       });
    addKeyRow<Library>(
        {"construct a key", {"RSAKey::RSAKey()"}}, {64}, pairs,
        [](auto& library, auto&) { return Incomparable{typename decltype(library.keys)::Key()}; });
}

template <typename Library>
void registerArithmeticRows() {
    registerPrimalityRows<Library>();
    registerApplyingRows<Library>();
    registerKeyTextRows<Library>();
}

}  // namespace qel::bench

#endif
