// Day-month-year texts and build dates beside sscanf, strptime and strftime.
#include "Instants.h"

#include <cstdio>

namespace qel::bench {
namespace {

struct DayMonthYear {
    int day = -1;
    int month = -1;
    int year = -1;
};

DayMonthYear scanned(char const* text) {
    DayMonthYear fields;
    std::sscanf(text, "%2d/%2d/%4d", &fields.day, &fields.month, &fields.year);
    return fields;
}

std::tm parsed(char const* text, char const* format) {
    std::tm fields = {};
    strptime(text, format, &fields);
    return fields;
}

void addFieldRow(Row const& row, int (*ours)(char const*) noexcept, int DayMonthYear::*scan,
                 int std::tm::*member, int base = 0) {
    addRows(
        row, noSize, inside, [ours](auto& x) { return ours(x.text.c_str()); },
        Peer{"sscanf", [scan](auto& x) { return scanned(x.text.c_str()).*scan; }},
        Peer{"strptime", [member, base](auto& x) {
                 return parsed(x.text.c_str(), "%d/%m/%Y").*member + base;
             }});
}

std::vector<std::string> buildDates(int) {
    std::vector<std::string> table;
    for (Instant const& instant : inside(0))
        table.push_back(formatted(instant.fields, "%b %e %Y"));
    return table;
}

[[maybe_unused]] bool const registered = [] {
    addFieldRow({"GetDay of a text", {"Date::GetDay(char const*)"}}, &Date::GetDay,
                &DayMonthYear::day, &std::tm::tm_mday);
    addFieldRow({"GetMonth of a text", {"Date::GetMonth(char const*)"}}, &Date::GetMonth,
                &DayMonthYear::month, &std::tm::tm_mon, 1);
    addFieldRow({"GetYear of a text", {"Date::GetYear(char const*)"}}, &Date::GetYear,
                &DayMonthYear::year, &std::tm::tm_year, 1900);
    addRows(
        {"IsValidDate", {"Date::IsValidDate(char const*)"}}, noSize, inside,
        [](auto& x) { return Date::IsValidDate(x.text.c_str()); },
        Peer{"strptime", [](auto& x) {
                 std::tm fields = {};
                 return strptime(x.text.c_str(), "%d/%m/%Y", &fields) != nullptr;
             }});
    addRows(
        {"DATEMacroToDDMMYYYY", {"Date::DATEMacroToDDMMYYYY(char const*)"}}, noSize, buildDates,
        [](auto& x) { return Date::DATEMacroToDDMMYYYY(x.c_str()); },
        Peer{"strptime",
             [](auto& x) { return formatted(parsed(x.c_str(), "%b %d %Y"), "%d%m%Y"); }});
    addRows(
        {"DDMMYYYYToDATEMacro", {"Date::DDMMYYYYToDATEMacro(char const*)"}}, noSize, inside,
        [](auto& x) { return Date::DDMMYYYYToDATEMacro(x.text.c_str()); },
        Peer{"strptime",
             [](auto& x) { return formatted(parsed(x.text.c_str(), "%d/%m/%Y"), "%b %d %Y"); }});
    return true;
}();

}  // namespace
}  // namespace qel::bench
