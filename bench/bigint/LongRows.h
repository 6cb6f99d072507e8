// Long products and what rests on them, at the sizes of keys and far beyond. The peers write to
// variables that live through the measurement; our results are new values.
#ifndef QEL_BENCH_BIGINT_LONGROWS_H
#define QEL_BENCH_BIGINT_LONGROWS_H

#include "Rows.h"

namespace qel::bench {

inline std::vector<int> const keySizes = {1024, 2048, 4096};
inline std::vector<int> const productSizes = {1024, 2048, 4096, 131072, 1048576};
inline std::vector<int> const textSizes = {1024, 4096, 131072, 1048576};

template <typename Library>
void registerLongTextRows(std::string const& radixName, int radix, Draw drawTexts) {
    addRow<Library>({radixName + " out"}, textSizes, pairs,
                    [radix](auto& library, auto& x) { return library.toText(x.a, radix); });
    addRow<Library>({radixName + " in"}, textSizes, drawTexts,
                    [radix](auto& library, auto& x) -> decltype(auto) {
                        return library.fromText(x.text, radix);
                    });
}

template <typename Library>
void registerLongRows() {
    addRow<Library>(
        {"power"}, keySizes, basesExponentsModuli,
        [](auto& library, auto& x) -> decltype(auto) { return library.power(x.a, x.b, x.c); });
    addRow<Library>(
        {"multiply"}, productSizes, pairs,
        [](auto& library, auto& x) -> decltype(auto) { return library.multiply(x.a, x.b); });
    addRow<Library>({"square"}, productSizes, pairs,
                    [](auto& library, auto& x) -> decltype(auto) { return library.square(x.a); });
    addRow<Library>(
        {"divide"}, productSizes, dividendsAndDivisors,
        [](auto& library, auto& x) -> decltype(auto) { return library.divide(x.a, x.b); });
    addRow<Library>({"gcd"}, keySizes, pairs,
                    [](auto& library, auto& x) -> decltype(auto) { return library.gcd(x.a, x.b); });
    auto const inverse = [](auto& library, auto& x) -> decltype(auto) {
        return library.inverse(x.a, x.b);
    };
    addRow<Library>({"inverse of 65537"}, keySizes, smallValuesAndEvenModuli, inverse);
    addRow<Library>({"inverse"}, keySizes, valuesAndEvenModuli, inverse);
    registerLongTextRows<Library>("decimal", 10, texts<10>);
    registerLongTextRows<Library>("hexadecimal", 16, texts<16>);
}

}  // namespace qel::bench

#endif
