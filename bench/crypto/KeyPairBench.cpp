// createKeyPair: one iteration creates the key pairs of all seed tables.
#include "SeedTables.h"

#include "qel/RSAKey.h"

#include <benchmark/benchmark.h>

namespace {

void createKeyPairs(benchmark::State& state) {
    int const bits = static_cast<int>(state.range(0));
    for (auto _ : state) {
        for (qel::bench::SeedTable const& seeds : qel::bench::seedTables) {
            qel::RSAKey first, second;
            qel::RSAKey::createKeyPair(first, second, bits, seeds.data(),
                                       static_cast<int>(seeds.size()));
            benchmark::DoNotOptimize(second);
        }
    }
}

[[maybe_unused]] auto const registered = [] {
    auto* row = benchmark::RegisterBenchmark("qel/create key pairs", createKeyPairs);
    for (int const bits : qel::bench::keyWidths)
        row->Arg(bits);
    return row;
}();

}  // namespace
