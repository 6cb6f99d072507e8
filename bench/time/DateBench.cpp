// Dates beside the C library's and the standard library's calls for the same work.
#include "qel/Date.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <string>

namespace {

using qel::Date;

constexpr long long sample = 1353499507250;     // 21 November 2012, 12:05:07 UTC
constexpr long long farSample = 2224756807250;  // 1 July 2040, outside the C library's range

constexpr long long step_ms = 86461001;  // a little over a day

/// Counts from `first` on, a day apart, so that no call meets the instant of the one before.
class Counts {
  public:
    explicit Counts(long long start) : first(start) {}
    long long next() { return first + (index++ % 256) * step_ms; }

  private:
    long long first;
    long long index = 0;
};

std::tm brokenDown(long long count) {
    std::time_t const seconds = static_cast<std::time_t>(count / 1000);
    std::tm fields;
    localtime_r(&seconds, &fields);
    return fields;
}

// --- text ----------------------------------------------------------------------------------------

void Text_Strftime(benchmark::State& state) {
    Counts counts(sample);
    for (auto _ : state) {
        std::tm const fields = brokenDown(counts.next());
        char buffer[80];
        std::size_t const length =
            std::strftime(buffer, sizeof buffer, "%a - %d/%m/%Y - %Hh%Mm%Ss", &fields);
        benchmark::DoNotOptimize(std::string(buffer, length));
    }
}
BENCHMARK(Text_Strftime)->Name("strftime/text");

void Text_ConvertToString(benchmark::State& state) {
    Counts counts(sample);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            Date(counts.next()).ConvertToString(true, true, true, true, false));
}
BENCHMARK(Text_ConvertToString)->Name("qel/text");

// --- the current time ----------------------------------------------------------------------------

void Now_SystemClock(benchmark::State& state) {
    for (auto _ : state) {
        auto const now = std::chrono::system_clock::now().time_since_epoch();
        benchmark::DoNotOptimize(std::chrono::duration_cast<std::chrono::milliseconds>(now));
    }
}
BENCHMARK(Now_SystemClock)->Name("system_clock/now");

/// The clock that GetCurrentSystemTime reads too.
void Now_SteadyClock(benchmark::State& state) {
    for (auto _ : state) {
        auto const now = std::chrono::steady_clock::now().time_since_epoch();
        benchmark::DoNotOptimize(std::chrono::duration_cast<std::chrono::milliseconds>(now));
    }
}
BENCHMARK(Now_SteadyClock)->Name("steady_clock/now");

void Now_GetCurrentSystemTime(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(Date::GetCurrentSystemTime());
}
BENCHMARK(Now_GetCurrentSystemTime)->Name("qel/now");

// --- one field -----------------------------------------------------------------------------------

void Field_Localtime(benchmark::State& state) {
    Counts counts(sample);
    for (auto _ : state)
        benchmark::DoNotOptimize(brokenDown(counts.next()).tm_mday);
}
BENCHMARK(Field_Localtime)->Name("localtime_r/field");

void Field_GetDay(benchmark::State& state) {
    Counts counts(sample);
    for (auto _ : state)
        benchmark::DoNotOptimize(Date(counts.next()).GetDay());
}
BENCHMARK(Field_GetDay)->Name("qel/field");

void FarField_Localtime(benchmark::State& state) {
    Counts counts(farSample);
    for (auto _ : state)
        benchmark::DoNotOptimize(brokenDown(counts.next()).tm_mday);
}
BENCHMARK(FarField_Localtime)->Name("localtime_r/far field");

/// Pays one mktime for the offset of 1971.
void FarField_GetDay(benchmark::State& state) {
    Counts counts(farSample);
    for (auto _ : state)
        benchmark::DoNotOptimize(Date(counts.next()).GetDay());
}
BENCHMARK(FarField_GetDay)->Name("qel/far field");

void FarField_Mktime(benchmark::State& state) {
    for (auto _ : state) {
        std::tm fields = {};
        fields.tm_year = 71;
        fields.tm_mday = 1;
        fields.tm_isdst = -1;
        benchmark::DoNotOptimize(std::mktime(&fields));
    }
}
BENCHMARK(FarField_Mktime)->Name("mktime/offset of 1971");

}  // namespace
