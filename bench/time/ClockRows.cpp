// The clock, and the fields of the current date, beside the standard clocks and localtime_r.
#include "Instants.h"

#include <chrono>

namespace qel::bench {
namespace {

struct Nothing {};

std::vector<Nothing> nothing(int) {
    return std::vector<Nothing>(1);
}

template <typename Clock>
long long millisecondsOf() {
    auto const now = Clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

long long realTimeMilliseconds() {
    std::timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

std::tm currentFields() {
    std::time_t const now = std::time(nullptr);
    std::tm fields;
    localtime_r(&now, &fields);
    return fields;
}

void addClockRows() {
    addRows(
        {"now", {"Date::GetCurrentSystemTime()"}}, noSize, nothing,
        [](auto&) { return Incomparable{Date::GetCurrentSystemTime()}; },
        Peer{"system_clock",
             [](auto&) { return Incomparable{millisecondsOf<std::chrono::system_clock>()}; }},
        Peer{"steady_clock",
             [](auto&) { return Incomparable{millisecondsOf<std::chrono::steady_clock>()}; }},
        Peer{"clock_gettime", [](auto&) { return Incomparable{realTimeMilliseconds()}; }});
    addRows(
        {"GetCurrentDate", {"Date::GetCurrentDate()"}}, noSize, nothing,
        [](auto&) { return Incomparable{Date::GetCurrentDate()}; },
        Peer{"system_clock", [](auto&) { return Incomparable{std::chrono::system_clock::now()}; }});
    addRows(
        {"GetMillisecondsSinceStartup", {"Date::GetMillisecondsSinceStartup()"}}, noSize, nothing,
        [](auto&) { return Incomparable{Date::GetMillisecondsSinceStartup()}; },
        Peer{"steady_clock",
             [](auto&) { return Incomparable{millisecondsOf<std::chrono::steady_clock>()}; }});
    addRows(
        {"GetCurrentMilliSeconds", {"Date::GetCurrentMilliSeconds()"}}, noSize, nothing,
        [](auto&) { return Incomparable{Date::GetCurrentMilliSeconds()}; },
        Peer{"system_clock", [](auto&) {
                 return Incomparable{millisecondsOf<std::chrono::system_clock>() % 1000};
             }});
    addRows(
        {"GetCurrentSeconds", {"Date::GetCurrentSeconds()"}}, noSize, nothing,
        [](auto&) { return Incomparable{Date::GetCurrentSeconds()}; },
        Peer{"system_clock", [](auto&) {
                 return Incomparable{millisecondsOf<std::chrono::system_clock>() / 1000 % 60};
             }});
}

void addFieldRow(Row const& row, unsigned int (*ours)() noexcept, int std::tm::*member) {
    addRows(
        row, noSize, nothing, [ours](auto&) { return Incomparable{ours()}; },
        Peer{"localtime_r", [member](auto&) { return Incomparable{currentFields().*member}; }});
}

void addFieldRows() {
    addFieldRow({"GetCurrentMinutes", {"Date::GetCurrentMinutes()"}}, Date::GetCurrentMinutes,
                &std::tm::tm_min);
    addFieldRow({"GetCurrentHours", {"Date::GetCurrentHours()"}}, Date::GetCurrentHours,
                &std::tm::tm_hour);
    addFieldRow({"GetCurrentDayOfWeek", {"Date::GetCurrentDayOfWeek()"}}, Date::GetCurrentDayOfWeek,
                &std::tm::tm_wday);
    addFieldRow({"GetCurrentDay", {"Date::GetCurrentDay()"}}, Date::GetCurrentDay,
                &std::tm::tm_mday);
    addFieldRow({"GetCurrentMonth", {"Date::GetCurrentMonth()"}}, Date::GetCurrentMonth,
                &std::tm::tm_mon);
    addFieldRow({"GetCurrentYear", {"Date::GetCurrentYear()"}}, Date::GetCurrentYear,
                &std::tm::tm_year);
}

long long lastNoonOfTheYear() {
    std::tm fields = currentFields();
    fields.tm_mon = 11;
    fields.tm_mday = 31;
    fields.tm_hour = 12;
    fields.tm_min = fields.tm_sec = 0;
    fields.tm_isdst = -1;
    return std::mktime(&fields) * 1000LL;
}

void addTextRows() {
    addRows(
        {"GetCurrentDate as text", {"Date::GetCurrentDate(bool, bool, bool, bool, bool)"}}, noSize,
        nothing,
        [](auto&) { return Incomparable{Date::GetCurrentDate(true, true, true, true, false)}; },
        Peer{"strftime", [](auto&) {
                 return Incomparable{formatted(currentFields(), "%a - %d/%m/%Y - %Hh%Mm%Ss")};
             }});
    addRows(
        {"GetCurrentDayOfWeekName", {"Date::GetCurrentDayOfWeekName()"}}, noSize, nothing,
        [](auto&) { return Incomparable{Date::GetCurrentDayOfWeekName()}; },
        Peer{"strftime", [](auto&) { return Incomparable{formatted(currentFields(), "%a")}; }});
    addRows(
        {"GetLastDayOfCurrentYear", {"Date::GetLastDayOfCurrentYear()"}}, noSize, nothing,
        [](auto&) { return Date::GetLastDayOfCurrentYear().GetMillisecondsSinceEpoch(); },
        Peer{"mktime", [](auto&) { return lastNoonOfTheYear(); }});
}

[[maybe_unused]] bool const registered = (addClockRows(), addFieldRows(), addTextRows(), true);

}  // namespace
}  // namespace qel::bench
