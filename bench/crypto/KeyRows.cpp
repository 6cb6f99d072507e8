#include "KeyRows.h"

#include "OwnKeys.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <map>

namespace qel::bench {

namespace {

std::vector<KeyTexts> createAll(int bits, CreateKeys const& create) {
    std::vector<KeyTexts> keys;
    for (SeedTable const& seeds : seedTablesFor(bits))
        keys.push_back(create(bits, seeds));
    return keys;
}

std::vector<KeyTexts> const& expectedKeys(int bits) {
    static std::map<int, std::vector<KeyTexts>> known;
    auto const [place, isNew] = known.try_emplace(bits);
    if (isNew)
        place->second = createAll(bits, createOwnKeys);
    return place->second;
}

void measure(benchmark::State& state, CreateKeys const& create) {
    int const bits = static_cast<int>(state.range(0));
    std::vector<KeyTexts> keys;
    for (auto _ : state)
        keys = createAll(bits, create);
    if (keys != expectedKeys(bits))
        state.SkipWithError("the keys are not createKeyPair's");
    state.SetLabel("RSAKey::createKeyPair(RSAKey&, RSAKey&, int, int const*, int)");
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(keys.size()));
}

}  // namespace

std::vector<int> keyWidthsUpTo(int widest) {
    return {std::begin(keyWidths),
            std::upper_bound(std::begin(keyWidths), std::end(keyWidths), widest)};
}

void registerKeyRows(std::string const& library, std::vector<int> const& widths,
                     CreateKeys const& create) {
    auto* row = benchmark::RegisterBenchmark(
        (library + keyRow).c_str(), [create](benchmark::State& state) { measure(state, create); });
    for (int const bits : widths)
        row->Arg(bits);
}

}  // namespace qel::bench
