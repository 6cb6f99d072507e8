// Construction, copies, assignment, exchange, and what holds the storage.
#ifndef QEL_BENCH_BIGINT_LIFETIMEROWS_H
#define QEL_BENCH_BIGINT_LIFETIMEROWS_H

#include "Rows.h"

#include <utility>

namespace qel::bench {

template <typename Library>
void registerConstructionRows() {
    using Value = typename Library::Value;
    std::vector<int> const oneWord = {64};
    addRow<Library>({"construct", {"LargeInteger::LargeInteger()"}}, oneWord, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(); });
    if constexpr (requires { Library::ofInt(1); })
        addRow<Library>({"construct from int", {"LargeInteger::LargeInteger(int)"}}, oneWord, pairs,
                        [](auto& library, auto& x) { return library.ofInt(-x.position); });
    if constexpr (requires { Library::ofLongLong(1LL); })
        addRow<Library>({"construct from long long", {"LargeInteger::LargeInteger(long long)"}},
                        oneWord, pairs, [](auto& library, auto& x) {
                            return library.ofLongLong(x.position * 0x123456789ABCDELL);
                        });
    addRow<Library>({"construct from unsigned", {"LargeInteger::LargeInteger(unsigned int)"}},
                    oneWord, pairs, [](auto& library, auto& x) {
                        return library.ofUnsigned(static_cast<unsigned int>(x.position));
                    });
    if constexpr (requires(Value const& v) { Library::low31Bits(v); })
        addRow<Library>({"toInteger", {"LargeInteger::toInteger()"}}, oneWord, pairs,
                        [](auto& library, auto& x) { return library.low31Bits(x.a); });
}

template <typename Library>
void registerLifetimeRows() {
    using Value = typename Library::Value;
    registerConstructionRows<Library>();
    addRow<Library>({"copy", {"LargeInteger::LargeInteger(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a); });
    addRow<Library>(
        {"assign", {"LargeInteger::operator=(LargeInteger const&)"}}, allSizes, pairs,
        [](auto&, auto& x) -> auto& { return x.c = x.a; });
    if constexpr (Library::movesValues)
        addRow<Library>(
            {"move there and back",
             {"LargeInteger::LargeInteger(LargeInteger&&)",
              "LargeInteger::operator=(LargeInteger&&)"}},
            allSizes, pairs, [](auto&, auto& x) -> auto& {
                auto moved = std::move(x.a);
                benchmark::DoNotOptimize(moved);
                return x.a = std::move(moved);
            });
    addRow<Library>(
        {"swapWith", {"LargeInteger::swapWith(LargeInteger&)"}}, allSizes, pairs,
        [](auto& library, auto& x) -> auto& {
            library.swapValues(x.a, x.b);
            return x.a;
        });
    addRow<Library>({"copy and clear", {"LargeInteger::clear()"}}, allSizes, pairs,
                    [](auto& library, auto& x) {
                        auto copy = x.a;
                        library.clear(copy);
                        return copy;
                    });
    if constexpr (requires(Value & v) { Library::reserve(v, 1); })
        addRow<Library>({"ensureSize", {"LargeInteger::ensureSize(int)"}}, allSizes, pairs,
                        [](auto& library, auto& x) {
                            decltype(x.a) value;
                            library.reserve(value, x.bits);
                            return value;
                        });
}

}  // namespace qel::bench

#endif
