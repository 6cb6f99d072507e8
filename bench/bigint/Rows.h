// The rows of the table: which operations are measured at which sizes. A library takes part by
// calling registerRows<Library>() with a class like Own. Before a row is measured, its result is
// compared with LargeInteger's.
#ifndef QEL_BENCH_BIGINT_ROWS_H
#define QEL_BENCH_BIGINT_ROWS_H

#include "Operands.h"
#include "Own.h"

#include <benchmark/benchmark.h>

#include <cctype>
#include <string>
#include <vector>

namespace qel::bench {

inline std::vector<int> const keySizes = {1024, 2048, 4096};
inline std::vector<int> const productSizes = {1024, 2048, 4096, 131072, 1048576};
inline std::vector<int> const textSizes = {1024, 4096, 131072, 1048576};

// --- results as text, for the comparison ---------------------------------------------------------

template <typename Library>
std::string shown(typename Library::Value const& value) {
    return Library::hexDigits(value);
}

template <typename Library>
std::string shown(Division<typename Library::Value> const& division) {
    return shown<Library>(division.quotient) + " " + shown<Library>(division.remainder);
}

/// Text as the library writes it: some write capital digits, some a leading zero.
template <typename Library>
std::string shown(std::string text) {
    text.erase(0, text.find_first_not_of('0'));
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// --- one row -------------------------------------------------------------------------------------

template <typename Library>
std::vector<typename Library::Value> inTermsOf(Operands const& operands) {
    std::vector<typename Library::Value> values;
    for (LargeInteger const& operand : operands)
        values.push_back(Library::take(operand));
    return values;
}

/// `prepare` turns the drawn operands into what `operation` takes beside the library.
template <typename Library, typename Prepare, typename Operation>
std::string shownResult(Operands const& operands, Prepare prepare, Operation operation) {
    Library library;
    return shown<Library>(operation(library, prepare(operands)));
}

template <typename Library, typename Prepare, typename Operation>
void measure(benchmark::State& state, Operands const& operands, Prepare prepare,
             Operation operation) {
    Library library;
    auto const prepared = prepare(operands);
    for (auto _ : state)
        benchmark::DoNotOptimize(operation(library, prepared));
}

template <typename Library, typename Operation, typename Prepare, typename PrepareOwn>
void addRow(std::string const& operationName, std::vector<int> const& sizes,
            Operands (*draw)(int bits), Operation operation, Prepare prepare,
            PrepareOwn prepareOwn) {
    for (int const bits : sizes) {
        if (!Library::endsInReasonableTime(operationName, bits))
            continue;
        auto run = [=, checked = false](benchmark::State& state) mutable {
            Operands const operands = draw(bits);
            if (!checked
                && shownResult<Library>(operands, prepare, operation)
                       != shownResult<Own>(operands, prepareOwn, operation))
                return state.SkipWithError("the result is not LargeInteger's");
            checked = true;
            measure<Library>(state, operands, prepare, operation);
        };
        std::string const row = operationName + "/" + std::to_string(bits);
        benchmark::RegisterBenchmark((Library::name + ("/" + row)).c_str(), run);
    }
}

template <typename Library, typename Operation>
void addRow(std::string const& operationName, std::vector<int> const& sizes,
            Operands (*draw)(int bits), Operation operation) {
    addRow<Library>(operationName, sizes, draw, operation, inTermsOf<Library>, inTermsOf<Own>);
}

// --- all rows ------------------------------------------------------------------------------------

template <typename Library>
void addTextRows(std::string const& radixName, int radix) {
    addRow<Library>(radixName + " out", textSizes, one,
                    [radix](auto& library, auto const& x) -> decltype(auto) {
                        return library.toText(x[0], radix);
                    });
    auto const digits = [radix](Operands const& x) { return x[0].toString(radix); };
    addRow<Library>(
        radixName + " in", textSizes, one,
        [radix](auto& library, std::string const& text) -> decltype(auto) {
            return library.fromText(text, radix);
        },
        digits, digits);
}

template <typename Library>
void registerRows() {
    addRow<Library>("power", keySizes, baseExponentModulus,
                    [](auto& library, auto const& x) -> decltype(auto) {
                        return library.power(x[0], x[1], x[2]);
                    });
    addRow<Library>("multiply", productSizes, two,
                    [](auto& library, auto const& x) -> decltype(auto) {
                        return library.multiply(x[0], x[1]);
                    });
    addRow<Library>(
        "square", productSizes, one,
        [](auto& library, auto const& x) -> decltype(auto) { return library.square(x[0]); });
    addRow<Library>(
        "divide", productSizes, dividendAndDivisor,
        [](auto& library, auto const& x) -> decltype(auto) { return library.divide(x[0], x[1]); });
    addRow<Library>("gcd", keySizes, two, [](auto& library, auto const& x) -> decltype(auto) {
        return library.gcd(x[0], x[1]);
    });
    auto const inverse = [](auto& library, auto const& x) -> decltype(auto) {
        return library.inverse(x[0], x[1]);
    };
    addRow<Library>("inverse of 65537", keySizes, smallValueAndEvenModulus, inverse);
    addRow<Library>("inverse", keySizes, valueAndEvenModulus, inverse);
    addTextRows<Library>("decimal", 10);
    addTextRows<Library>("hexadecimal", 16);
}

}  // namespace qel::bench

#endif
