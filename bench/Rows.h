// One row of a table: what is called, with which arguments, and which public functions it measures.
// Every program of bench measures with what stands here.
//
// A row is measured over a table of arguments taken in turn: what is called with the same ones
// again and again is told by the branch predictor, not by the code. One iteration is one call.
#ifndef QEL_BENCH_ROWS_H
#define QEL_BENCH_ROWS_H

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace qel::bench {

/// A power of two.
inline constexpr std::size_t tableSize = 64;

struct Row {
    std::string name;
    /// As tests/interface/public-functions.awk tells them; bench/covered reads them from the
    /// sources.
    std::vector<std::string> covers = {};
};

inline std::string listOf(std::vector<std::string> const& names) {
    std::string list;
    for (std::string const& name : names)
        list += (list.empty() ? "" : "; ") + name;
    return list;
}

/// The size is the last part of a benchmark's name; 0 is for what has none.
inline std::string benchmarkName(std::string const& library, Row const& row, int size) {
    std::string name = library + "/" + row.name;
    if (size > 0)
        name.append("/").append(std::to_string(size));
    return name;
}

/// Calls `operation` with the elements of `table`, whose number is a power of two.
template <typename Arguments, typename Operation>
void measureInTurn(benchmark::State& state, std::vector<Arguments>& table, Operation& operation) {
    std::size_t const mask = table.size() - 1;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(operation(table[i++ & mask]));
}

/// What `operation` gives for each element of `table`, as texts.
template <typename Arguments, typename Operation, typename Show>
std::vector<std::string> resultsOf(std::vector<Arguments> table, Operation& operation, Show show) {
    std::vector<std::string> results;
    for (Arguments& arguments : table)
        results.push_back(show(operation(arguments)));
    return results;
}

/// Registers library/row/size. `makeTable` gives the arguments, `agrees` says whether the results
/// are ours; it is asked once, before anything is measured.
template <typename MakeTable, typename Operation, typename Agrees>
void registerRow(std::string const& library, Row const& row, int size, MakeTable makeTable,
                 Operation operation, Agrees agrees) {
    auto run = [=, label = listOf(row.covers), checked = false](benchmark::State& state) mutable {
        if (!checked && !agrees())
            return state.SkipWithError("the result is not ours");
        checked = true;
        auto table = makeTable();
        measureInTurn(state, table, operation);
        state.SetLabel(label);
    };
    benchmark::RegisterBenchmark(benchmarkName(library, row, size).c_str(), run);
}

}  // namespace qel::bench

#endif
