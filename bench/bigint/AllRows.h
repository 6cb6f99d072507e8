// Which rows a library takes part in.
#ifndef QEL_BENCH_BIGINT_ALLROWS_H
#define QEL_BENCH_BIGINT_ALLROWS_H

#include "BitRows.h"
#include "BitwiseRows.h"
#include "ComparisonRows.h"
#include "LifetimeRows.h"
#include "LongRows.h"
#include "NumberTheoryRows.h"
#include "ProductRows.h"
#include "SumRows.h"
#include "TextRows.h"

namespace qel::bench {

template <typename Library>
void registerAllRows() {
    using Value = typename Library::Value;
    registerLongRows<Library>();
    registerLifetimeRows<Library>();
    registerComparisonRows<Library>();
    registerSignRows<Library>();
    registerBitRows<Library>();
    if constexpr (requires(Value const& v) { Value(v & v); })
        registerBitwiseRows<Library>();
    registerSumRows<Library>();
    if constexpr (requires(Value & v) { Value(v++); })
        registerPostfixRows<Library>();
    registerShiftRows<Library>();
    registerProductRows<Library>();
    registerDivisionRows<Library>();
    registerNumberTheoryRows<Library>();
    if constexpr (Library::writesRadix(2))
        registerRadixRows<Library, 2>("binary");
    if constexpr (Library::writesRadix(8))
        registerRadixRows<Library, 8>("octal");
    registerRadixRows<Library, 10>("decimal");
    registerRadixRows<Library, 16>("hexadecimal");
    if constexpr (requires(std::ostream & out, Value const& v) { Library::write(out, v); })
        registerStreamRow<Library>();
}

}  // namespace qel::bench

#endif
