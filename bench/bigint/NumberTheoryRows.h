// Greatest common divisors, inverses and powers. All but the powers by small exponents take
// quadratic time or worse.
#ifndef QEL_BENCH_BIGINT_NUMBERTHEORYROWS_H
#define QEL_BENCH_BIGINT_NUMBERTHEORYROWS_H

#include "Rows.h"

namespace qel::bench {

template <typename Library>
void registerNumberTheoryRows() {
    using Value = typename Library::Value;
    addRow<Library>(
        {"findGreatestCommonDivisor", {"LargeInteger::findGreatestCommonDivisor(LargeInteger)"}},
        sizesUpTo(65536), pairs,
        [](auto& library, auto& x) { return library.greatestDivisor(x.a, x.b); });
    if constexpr (requires(Value v) { Library::greatestDivisorInPlace(v, v); })
        addRow<Library>({"simpleGCD", {"LargeInteger::simpleGCD(LargeInteger*, LargeInteger*)"}},
                        sizesUpTo(4096), pairs, [](auto& library, auto& x) {
                            return library.greatestDivisorInPlace(x.a, x.b);
                        });
    auto const inverse = [](auto& library, auto& x) { return library.inverseOf(x.a, x.b); };
    addRow<Library>({"inverseModulo, p - 2 modulo an odd p",
                     {"LargeInteger::inverseModulo(LargeInteger const&)"}},
                    sizesUpTo(65536), oddModuliAndTwoLess, inverse);
    addRow<Library>({"inverseModulo, even modulus"}, sizesUpTo(65536), valuesAndEvenModuli,
                    inverse);
    auto const power = [](auto& library, auto& x) { return library.powerOf(x.a, x.b, x.c); };
    addRow<Library>({"exponentModulo",
                     {"LargeInteger::exponentModulo(LargeInteger const&, LargeInteger const&)"}},
                    sizesUpTo(4096), basesExponentsModuli, power);
    addRow<Library>({"exponentModulo, 65537"}, sizesUpTo(65536), basesAndModuli, power);
}

}  // namespace qel::bench

#endif
