// Comparisons, and questions about sign and size.
#ifndef QEL_BENCH_BIGINT_COMPARISONROWS_H
#define QEL_BENCH_BIGINT_COMPARISONROWS_H

#include "Rows.h"

namespace qel::bench {

template <typename Library>
void registerOrderRows() {
    using Value = typename Library::Value;
    auto const less = [](auto&, auto& x) { return x.a < x.b; };
    addRow<Library>({"a < b", {"LargeInteger::operator<(LargeInteger const&)"}}, allSizes, pairs,
                    less);
    addRow<Library>({"a < b, close"}, allSizes, closePairs, less);
    addRow<Library>({"a <= b, close", {"LargeInteger::operator<=(LargeInteger const&)"}}, allSizes,
                    closePairs, [](auto&, auto& x) { return x.a <= x.b; });
    addRow<Library>({"a > b, close", {"LargeInteger::operator>(LargeInteger const&)"}}, allSizes,
                    closePairs, [](auto&, auto& x) { return x.a > x.b; });
    addRow<Library>({"a >= b, close", {"LargeInteger::operator>=(LargeInteger const&)"}}, allSizes,
                    closePairs, [](auto&, auto& x) { return x.a >= x.b; });
    addRow<Library>({"compare, close", {"LargeInteger::compare(LargeInteger const&)"}}, allSizes,
                    closePairs,
                    [](auto& library, auto& x) { return Order{library.compare(x.a, x.b)}; });
    if constexpr (requires(Value const& v) { Library::compareAbsolute(v, v); })
        addRow<Library>(
            {"compareAbsolute, close", {"LargeInteger::compareAbsolute(LargeInteger const&)"}},
            allSizes, closePairs,
            [](auto& library, auto& x) { return Order{library.compareAbsolute(x.a, x.b)}; });
}

template <typename Library>
void registerComparisonRows() {
    auto const equal = [](auto&, auto& x) { return x.a == x.b; };
    addRow<Library>({"a == b", {"LargeInteger::operator==(LargeInteger const&)"}}, allSizes, pairs,
                    equal);
    addRow<Library>({"a == b, equal"}, allSizes, equalPairs, equal);
    addRow<Library>({"a != b, equal", {"LargeInteger::operator!=(LargeInteger const&)"}}, allSizes,
                    equalPairs, [](auto&, auto& x) { return x.a != x.b; });
    registerOrderRows<Library>();
}

template <typename Library>
void registerSignRows() {
    using Value = typename Library::Value;
    addRow<Library>({"isZero", {"LargeInteger::isZero()"}}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.isZero(x.a); });
    addRow<Library>({"isOne", {"LargeInteger::isOne()"}}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.isOne(x.a); });
    addRow<Library>({"isNegative", {"LargeInteger::isNegative()"}}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.isNegative(x.a); });
    addRow<Library>(
        {"negate", {"LargeInteger::negate()"}}, allSizes, pairs,
        [](auto& library, auto& x) -> auto& {
            library.negate(x.a);
            return x.a;
        });
    if constexpr (requires(Value & v) { Library::setNegative(v, true); })
        addRow<Library>(
            {"setNegative", {"LargeInteger::setNegative(bool)"}}, allSizes, pairs,
            [](auto& library, auto& x) -> auto& {
                library.setNegative(x.a, x.position % 2 == 0);
                return x.a;
            });
    addRow<Library>({"-a", {"LargeInteger::operator-()"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(-x.a); });
}

}  // namespace qel::bench

#endif
