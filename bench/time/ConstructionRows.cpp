// Dates from fields and from texts beside mktime and strptime.
#include "Instants.h"

#include <chrono>
#include <cstdio>

namespace qel::bench {
namespace {

unsigned int natural(int v) {
    return static_cast<unsigned int>(v);
}

long long countOf(std::tm const& f) {
    return Date(natural(f.tm_year + 1900), natural(f.tm_mon + 1), natural(f.tm_mday),
                natural(f.tm_hour), natural(f.tm_min), natural(f.tm_sec), 250)
        .GetMillisecondsSinceEpoch();
}

long long countByMktime(std::tm fields) {
    fields.tm_isdst = -1;
    return std::mktime(&fields) * 1000LL + 250;
}

long long countByTimegm(std::tm fields) {
    return timegm(&fields) * 1000LL + 250;
}

long long countByChrono(std::tm const& f) {
    using namespace std::chrono;
    sys_days const day = year(f.tm_year + 1900) / month(natural(f.tm_mon + 1))
                         / std::chrono::day(natural(f.tm_mday));
    return milliseconds(day.time_since_epoch() + hours(f.tm_hour) + minutes(f.tm_min)
                        + seconds(f.tm_sec))
               .count()
           + 250;
}

/// Outside the C library's range fields are those of UTC, for ours too.
void addFarRow(Row const& row, Make<Instant> make) {
    addRows(
        row, noSize, make, [](auto& x) { return countOf(x.fields); },
        Peer{"timegm", [](auto& x) { return countByTimegm(x.fields); }},
        Peer{"chrono", [](auto& x) { return countByChrono(x.fields); }});
}

long long noonByStrptime(char const* text) {
    std::tm fields = {};
    strptime(text, "%d/%m/%Y", &fields);
    fields.tm_hour = 12;
    fields.tm_isdst = -1;
    return std::mktime(&fields) * 1000LL;
}

[[maybe_unused]] bool const registered = [] {
    addRows(
        {"date from fields",
         {"Date::Date(unsigned int, unsigned int, unsigned int, unsigned int, unsigned int, "
          "unsigned int, unsigned int)"}},
        noSize, inside, [](auto& x) { return countOf(x.fields); },
        Peer{"mktime", [](auto& x) { return countByMktime(x.fields); }});
    addFarRow({"date from fields before 1970"}, before);
    addFarRow({"date from fields after 2037"}, after);
    addRows(
        {"date from text", {"Date::Date(char const*)"}}, noSize, inside,
        [](auto& x) { return Date(x.text.c_str()).GetMillisecondsSinceEpoch(); },
        Peer{"strptime", [](auto& x) { return noonByStrptime(x.text.c_str()); }});
    return true;
}();

}  // namespace
}  // namespace qel::bench
