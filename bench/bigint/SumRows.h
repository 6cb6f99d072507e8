// Sums, differences, steps by one, and shifts.
#ifndef QEL_BENCH_BIGINT_SUMROWS_H
#define QEL_BENCH_BIGINT_SUMROWS_H

#include "Rows.h"

namespace qel::bench {

template <typename Library>
void registerSumRows() {
    addRow<Library>({"a + b", {"LargeInteger::operator+(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a + x.b); });
    addRow<Library>({"a - b", {"LargeInteger::operator-(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a - x.b); });
    addRow<Library>(
        {"a += b and a -= b",
         {"LargeInteger::operator+=(LargeInteger const&)",
          "LargeInteger::operator-=(LargeInteger const&)"}},
        allSizes, pairs, [](auto&, auto& x) -> auto& {
            x.a += x.b;
            return x.a -= x.b;
        });
    addRow<Library>(
        {"++a and --a", {"LargeInteger::operator++()", "LargeInteger::operator--()"}}, allSizes,
        pairs, [](auto&, auto& x) -> auto& {
            ++x.a;
            return --x.a;
        });
}

/// Boost and GMP return the old value too.
template <typename Library>
void registerPostfixRows() {
    addRow<Library>({"a++", {"LargeInteger::operator++(int)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return x.a++; });
    addRow<Library>({"a--", {"LargeInteger::operator--(int)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return x.a--; });
}

template <typename Library>
void registerShiftRows() {
    addRow<Library>({"a << 100", {"LargeInteger::operator<<(int)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a << 100); });
    addRow<Library>({"a >> 33", {"LargeInteger::operator>>(int)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a >> 33); });
    addRow<Library>(
        {"a <<= 100 and a >>= 100",
         {"LargeInteger::operator<<=(int)", "LargeInteger::operator>>=(int)"}},
        allSizes, pairs, [](auto&, auto& x) -> auto& {
            x.a <<= 100;
            return x.a >>= 100;
        });
}

}  // namespace qel::bench

#endif
