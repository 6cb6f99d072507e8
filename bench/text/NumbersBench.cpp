// AsciiToDouble against strtod, and Int2String against std::to_string, over tables of numbers as
// texts hold them. Figures are for one number.
#include "qel/CharFunctions.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t tableSize = 1024;

std::vector<int> integersBelow(int limit) {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> draw(-limit, limit);
    std::vector<int> table(tableSize);
    for (int& v : table)
        v = draw(random);
    return table;
}

std::vector<std::string> texts(char const* format) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> draw(-1000.0, 1000.0);
    std::vector<std::string> table(tableSize);
    for (std::string& text : table)
        text = qel::CharFunctions::Float2String(draw(random), format);
    return table;
}

template <typename Table, typename Function>
void forEach(benchmark::State& state, Table const& table, Function call) {
    for (auto _ : state) {
        for (auto const& element : table)
            benchmark::DoNotOptimize(call(element));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(table.size()));
}

void asciiToDouble(benchmark::State& state, char const* format) {
    forEach(state, texts(format),
            [](auto const& text) { return qel::CharFunctions::AsciiToDouble(text.c_str()); });
}

void stringToDouble(benchmark::State& state, char const* format) {
    forEach(state, texts(format),
            [](auto const& text) { return std::strtod(text.c_str(), nullptr); });
}

void int2String(benchmark::State& state, int limit) {
    forEach(state, integersBelow(limit), qel::CharFunctions::Int2String);
}

void standardToString(benchmark::State& state, int limit) {
    forEach(state, integersBelow(limit), [](int v) { return std::to_string(v); });
}

BENCHMARK_CAPTURE(asciiToDouble, whole, "%.0f")->Name("qel/number from text, whole");
BENCHMARK_CAPTURE(stringToDouble, whole, "%.0f")->Name("strtod/number from text, whole");
BENCHMARK_CAPTURE(asciiToDouble, twoDecimals, "%.2f")->Name("qel/number from text, twoDecimals");
BENCHMARK_CAPTURE(stringToDouble, twoDecimals, "%.2f")
    ->Name("strtod/number from text, twoDecimals");
BENCHMARK_CAPTURE(asciiToDouble, exponent, "%.6e")->Name("qel/number from text, exponent");
BENCHMARK_CAPTURE(stringToDouble, exponent, "%.6e")->Name("strtod/number from text, exponent");
BENCHMARK_CAPTURE(asciiToDouble, allDigits, "%.17g")->Name("qel/number from text, allDigits");
BENCHMARK_CAPTURE(stringToDouble, allDigits, "%.17g")->Name("strtod/number from text, allDigits");

BENCHMARK_CAPTURE(int2String, small, 99)->Name("qel/integer to text, small");
BENCHMARK_CAPTURE(standardToString, small, 99)->Name("to_string/integer to text, small");
BENCHMARK_CAPTURE(int2String, medium, 99999)->Name("qel/integer to text, medium");
BENCHMARK_CAPTURE(standardToString, medium, 99999)->Name("to_string/integer to text, medium");
BENCHMARK_CAPTURE(int2String, large, 2147483647)->Name("qel/integer to text, large");
BENCHMARK_CAPTURE(standardToString, large, 2147483647)->Name("to_string/integer to text, large");

}  // namespace
