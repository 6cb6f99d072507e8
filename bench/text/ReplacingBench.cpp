// Replace against the loop that everyone writes with find and replace, from 1 KB to 1 MB: with few
// and many occurrences, and with texts and parts that nearly match everywhere. Where the loop is
// quadratic it is measured up to 64 KB only.
#include "qel/CharFunctions.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>

namespace {

constexpr int smallest = 1 << 10;
constexpr int largest = 1 << 20;
constexpr int largestForTheLoop = 1 << 16;

struct Case {
    std::string text;
    std::string old;
    std::string replacement;
};

std::string letters(std::size_t size) {
    std::mt19937 random(1);
    std::string text(size, ' ');
    for (char& c : text)
        c = static_cast<char>('a' + random() % 26);
    return text;
}

/// Random lower-case letters with `word` at every `distance` bytes.
std::string sprinkled(std::size_t size, std::size_t distance, std::string const& word) {
    std::string text = letters(size);
    for (std::size_t i = distance / 2; i + word.size() <= size; i += distance)
        text.replace(i, word.size(), word);
    return text;
}

Case few(std::size_t size) {
    return {sprinkled(size, size / 4, "[needle]"), "[needle]", "<pin>"};
}

Case fewLetters(std::size_t size) {
    return {sprinkled(size, size / 4, "needle"), "needle", "pin"};
}

Case manySameLength(std::size_t size) {
    return {sprinkled(size, 6, " "), " ", "_"};
}

Case manyShrinking(std::size_t size) {
    return {sprinkled(size, 12, "&amp;"), "&amp;", "+"};
}

Case manyGrowing(std::size_t size) {
    return {sprinkled(size, 12, "&"), "&", "+amp;"};
}

Case doubledLetters(std::size_t size) {
    return {std::string(size, 'a'), "aa", "a"};
}

/// Every place of the text matches half of the part before it fails.
Case longPartThatNearlyMatches(std::size_t size) {
    std::size_t const half = size / 8;
    return {std::string(size, 'a'), std::string(half, 'a') + 'b' + std::string(half, 'a'), "c"};
}

void replace(benchmark::State& state, Case (*make)(std::size_t)) {
    Case const c = make(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            qel::CharFunctions::Replace(c.text.c_str(), c.old.c_str(), c.replacement.c_str()));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

std::string loopOverFind(char const* s, std::string const& old, std::string const& replacement) {
    std::string text(s);
    for (std::size_t i = 0; (i = text.find(old, i)) != std::string::npos; i += replacement.size())
        text.replace(i, old.size(), replacement);
    return text;
}

/// Replaces what replacements bring about too, as Replace does.
std::string loopUntilNothingIsFound(char const* s, std::string const& old,
                                    std::string const& replacement) {
    std::string text(s);
    while (text.find(old) != std::string::npos)
        text = loopOverFind(text.c_str(), old, replacement);
    return text;
}

using Loop = std::string (*)(char const*, std::string const&, std::string const&);

void loop(benchmark::State& state, Case (*make)(std::size_t), Loop replaceAll = loopOverFind) {
    Case const c = make(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(replaceAll(c.text.c_str(), c.old, c.replacement));
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void toTheLargest(benchmark::internal::Benchmark* b) {
    b->RangeMultiplier(32)->Range(smallest, largest)->Complexity(benchmark::oN);
}

void toTheLargestForTheLoop(benchmark::internal::Benchmark* b) {
    b->RangeMultiplier(8)->Range(smallest, largestForTheLoop)->Complexity();
}

BENCHMARK_CAPTURE(replace, few, few)->Name("qel/replace, few")->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, few, few)->Name("loop/replace, few")->Apply(toTheLargest);
BENCHMARK_CAPTURE(replace, fewLetters, fewLetters)
    ->Name("qel/replace, fewLetters")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, fewLetters, fewLetters)
    ->Name("loop/replace, fewLetters")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(replace, manySameLength, manySameLength)
    ->Name("qel/replace, manySameLength")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, manySameLength, manySameLength)
    ->Name("loop/replace, manySameLength")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(replace, manyShrinking, manyShrinking)
    ->Name("qel/replace, manyShrinking")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, manyShrinking, manyShrinking)
    ->Name("loop/replace, manyShrinking")
    ->Apply(toTheLargestForTheLoop);
BENCHMARK_CAPTURE(replace, manyGrowing, manyGrowing)
    ->Name("qel/replace, manyGrowing")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, manyGrowing, manyGrowing)
    ->Name("loop/replace, manyGrowing")
    ->Apply(toTheLargestForTheLoop);
BENCHMARK_CAPTURE(replace, doubledLetters, doubledLetters)
    ->Name("qel/replace, doubledLetters")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, doubledLetters, doubledLetters, loopUntilNothingIsFound)
    ->Apply(toTheLargestForTheLoop);
BENCHMARK_CAPTURE(replace, nearlyMatching, longPartThatNearlyMatches)
    ->Name("qel/replace, nearlyMatching")
    ->Apply(toTheLargest);
BENCHMARK_CAPTURE(loop, nearlyMatching, longPartThatNearlyMatches)
    ->Name("loop/replace, nearlyMatching")
    ->Apply(toTheLargestForTheLoop);

}  // namespace
