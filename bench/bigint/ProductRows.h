// Products, quotients and remainders.
#ifndef QEL_BENCH_BIGINT_PRODUCTROWS_H
#define QEL_BENCH_BIGINT_PRODUCTROWS_H

#include "Rows.h"

namespace qel::bench {

template <typename Library>
void registerProductRows() {
    addRow<Library>({"a * b", {"LargeInteger::operator*(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a * x.b); });
    addRow<Library>(
        {"a *= b", {"LargeInteger::operator*=(LargeInteger const&)"}}, allSizes, pairs,
        [](auto&, auto& x) -> auto& {
            x.c = x.a;
            return x.c *= x.b;
        });
    addRow<Library>({"a * a"}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a * x.a); });
    addRow<Library>({"a * 10"}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a * 10); });
}

template <typename Library>
void registerDivisionRows() {
    addRow<Library>({"a / b", {"LargeInteger::operator/(LargeInteger const&)"}}, allSizes,
                    dividendsAndDivisors, [](auto&, auto& x) { return decltype(x.a)(x.a / x.b); });
    addRow<Library>({"a % b", {"LargeInteger::operator%(LargeInteger const&)"}}, allSizes,
                    dividendsAndDivisors, [](auto&, auto& x) { return decltype(x.a)(x.a % x.b); });
    addRow<Library>(
        {"a /= b", {"LargeInteger::operator/=(LargeInteger const&)"}}, allSizes,
        dividendsAndDivisors, [](auto&, auto& x) -> auto& {
            x.c = x.a;
            return x.c /= x.b;
        });
    addRow<Library>(
        {"a %= b", {"LargeInteger::operator%=(LargeInteger const&)"}}, allSizes,
        dividendsAndDivisors, [](auto&, auto& x) -> auto& {
            x.c = x.a;
            return x.c %= x.b;
        });
    addRow<Library>({"divideBy", {"LargeInteger::divideBy(LargeInteger const&, LargeInteger&)"}},
                    allSizes, dividendsAndDivisors,
                    [](auto& library, auto& x) { return library.quotientAndRemainder(x.a, x.b); });
    addRow<Library>({"a / 10"}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a / 10); });
    addRow<Library>({"a % 10"}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a % 10); });
}

}  // namespace qel::bench

#endif
