// How the dates are drawn.
#include "Instants.h"

#include <random>

namespace qel::bench {
namespace {

constexpr long long day_ms = 86400000;
constexpr long long year_ms = 365 * day_ms;

std::vector<Instant> instantsBetween(long long first, long long last) {
    std::mt19937_64 random(1);
    std::uniform_int_distribution<long long> draw(first, last);
    std::vector<Instant> table;
    for (std::size_t i = 0; i < tableSize; ++i) {
        long long const count = draw(random);
        std::tm const fields = brokenDown(count);
        table.push_back({count, Date(count), fields, formatted(fields, "%d/%m/%Y")});
    }
    return table;
}

}  // namespace

std::vector<Instant> inside(int) {
    return instantsBetween(2 * year_ms, 67 * year_ms);
}

std::vector<Instant> before(int) {
    return instantsBetween(-500 * year_ms, -2 * year_ms);
}

std::vector<Instant> after(int) {
    return instantsBetween(70 * year_ms, 500 * year_ms);
}

std::tm brokenDown(long long count) {
    std::time_t const seconds = static_cast<std::time_t>(count / 1000);
    std::tm fields;
    localtime_r(&seconds, &fields);
    return fields;
}

std::string formatted(std::tm const& fields, char const* format) {
    char buffer[80];
    return {buffer, std::strftime(buffer, sizeof buffer, format, &fields)};
}

}  // namespace qel::bench
