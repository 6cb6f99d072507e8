// And, or, exclusive or.
#ifndef QEL_BENCH_BIGINT_BITWISEROWS_H
#define QEL_BENCH_BIGINT_BITWISEROWS_H

#include "Rows.h"

namespace qel::bench {

template <typename Library>
void registerBitwiseRows() {
    addRow<Library>({"a & b", {"LargeInteger::operator&(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a & x.b); });
    addRow<Library>({"a | b", {"LargeInteger::operator|(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a | x.b); });
    addRow<Library>({"a ^ b", {"LargeInteger::operator^(LargeInteger const&)"}}, allSizes, pairs,
                    [](auto&, auto& x) { return decltype(x.a)(x.a ^ x.b); });
    addRow<Library>(
        {"a &= b", {"LargeInteger::operator&=(LargeInteger const&)"}}, allSizes, pairs,
        [](auto&, auto& x) -> auto& { return x.a &= x.b; });
    addRow<Library>(
        {"a |= b", {"LargeInteger::operator|=(LargeInteger const&)"}}, allSizes, pairs,
        [](auto&, auto& x) -> auto& { return x.a |= x.b; });
    addRow<Library>(
        {"a ^= b", {"LargeInteger::operator^=(LargeInteger const&)"}}, allSizes, pairs,
        [](auto&, auto& x) -> auto& { return x.a ^= x.b; });
}

}  // namespace qel::bench

#endif
