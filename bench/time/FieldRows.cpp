// Calendar fields of a date, and their texts, beside localtime_r and strftime.
#include "Instants.h"

namespace qel::bench {
namespace {

/// Field by field beside the member of tm, whose offset is `base`.
void addFieldRow(Row const& row, unsigned int (Date::*get)() const noexcept, int std::tm::*member,
                 int base = 0) {
    addRows(
        row, noSize, inside, [get](auto& x) { return (x.date.*get)(); },
        Peer{"localtime_r", [member, base](auto& x) {
                 return static_cast<unsigned int>(brokenDown(x.count).*member + base);
             }});
}

void addFieldRows() {
    addFieldRow({"GetMinutes", {"Date::GetMinutes()"}}, &Date::GetMinutes, &std::tm::tm_min);
    addFieldRow({"GetHours", {"Date::GetHours()"}}, &Date::GetHours, &std::tm::tm_hour);
    addFieldRow({"GetDayOfWeek", {"Date::GetDayOfWeek()"}}, &Date::GetDayOfWeek, &std::tm::tm_wday);
    addFieldRow({"GetDay", {"Date::GetDay()"}},
                static_cast<unsigned int (Date::*)() const noexcept>(&Date::GetDay),
                &std::tm::tm_mday);
    addFieldRow({"GetMonth", {"Date::GetMonth()"}},
                static_cast<unsigned int (Date::*)() const noexcept>(&Date::GetMonth),
                &std::tm::tm_mon, 1);
    addFieldRow({"GetYear", {"Date::GetYear()"}},
                static_cast<unsigned int (Date::*)() const noexcept>(&Date::GetYear),
                &std::tm::tm_year, 1900);
}

/// Outside the C library's range ours has the offset of 1971 all year round.
void addFarRow(Row const& row, Make<Instant> make) {
    addRows(
        row, noSize, make, [](auto& x) { return Incomparable{x.date.GetDay()}; },
        Peer{"localtime_r", [](auto& x) { return Incomparable{brokenDown(x.count).tm_mday}; }});
}

void addTextRow(Row const& row, Make<Instant> make) {
    addRows(
        row, noSize, make,
        [](auto& x) { return x.date.ConvertToString(true, true, true, true, false); },
        Peer{"strftime",
             [](auto& x) { return formatted(brokenDown(x.count), "%a - %d/%m/%Y - %Hh%Mm%Ss"); }});
}

void addFarTextRow(Row const& row, Make<Instant> make) {
    addRows(
        row, noSize, make,
        [](auto& x) { return Incomparable{x.date.ConvertToString(true, true, true, true, false)}; },
        Peer{"strftime", [](auto& x) {
                 return Incomparable{formatted(brokenDown(x.count), "%a - %d/%m/%Y - %Hh%Mm%Ss")};
             }});
}

void addTextRows() {
    addTextRow({"text", {"Date::ConvertToString(bool, bool, bool, bool, bool)"}}, inside);
    addFarTextRow({"text before 1970"}, before);
    addFarTextRow({"text after 2037"}, after);
    addRows(
        {"GetDDMMYYYY", {"Date::GetDDMMYYYY(char const*)"}}, noSize, inside,
        [](auto& x) { return x.date.GetDDMMYYYY("/"); },
        Peer{"strftime", [](auto& x) { return formatted(brokenDown(x.count), "%d/%m/%Y"); }});
    addRows(
        {"GetDayOfWeekName", {"Date::GetDayOfWeekName()"}}, noSize, inside,
        [](auto& x) { return x.date.GetDayOfWeekName(); },
        Peer{"strftime", [](auto& x) { return formatted(brokenDown(x.count), "%a"); }});
}

[[maybe_unused]] bool const registered = [] {
    addFieldRows();
    addFarRow({"GetDay before 1970"}, before);
    addFarRow({"GetDay after 2037"}, after);
    addTextRows();
    return true;
}();

}  // namespace
}  // namespace qel::bench
