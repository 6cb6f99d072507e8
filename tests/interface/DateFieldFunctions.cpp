// The fields of a date: from the count alone, or by the C library and the plain calendar.
#include "DateFunctions.h"
#include "Dates.h"
#include "Expectations.h"
#include "model/PlainCalendar.h"

#include "qel/Date.h"

namespace interface_test {

namespace {

using qel::Date;

std::tm localFields(long long count) {
    std::time_t const seconds = static_cast<std::time_t>(count / 1000);
    if (seconds >= 86400 && seconds < 2145916800) {
        std::tm fields = {};
        localtime_r(&seconds, &fields);
        return fields;
    }
    long long const offset = 31536000 - model::countFromLocalFields(1971, 1, 1, 0, 0, 0, 0) / 1000;
    return model::breakDown(seconds + offset + 210866803200);
}

void forEachDate(Results& results, unsigned int (Date::*get)() const noexcept,
                 int (*expected)(std::tm const&)) {
    for (long long const count : extremeCounts())
        expectResult(results, (Date(count).*get)(),
                     static_cast<unsigned int>(expected(localFields(count))), count);
}

}  // namespace

std::vector<Function> dateFieldFunctions() {
    std::set<State> const followed = {State::timeZone};
    return {
        {"Date::GetSeconds()",
         [](Results& results) {
             for (long long const count : extremeCounts()) {
                 long long const s = count / 1000;
                 long long const expected =
                     count >= -999 ? s - 60 * (s / 60) : s - 60 * (count / 60000) - 60;
                 expectResult(results, Date(count).GetSeconds(),
                              static_cast<unsigned int>(expected), count);
             }
         }},
        {"Date::GetMilliSeconds()",
         [](Results& results) {
             for (long long const count : extremeCounts()) {
                 long long const expected = count >= 0 ? count % 1000 : count % 1000 - 1000;
                 expectResult(results, Date(count).GetMilliSeconds(),
                              static_cast<unsigned int>(expected), count);
             }
         }},
        {"Date::GetMinutes()",
         [](Results& results) {
             forEachDate(results, &Date::GetMinutes, [](std::tm const& t) { return t.tm_min; });
         },
         followed},
        {"Date::GetHours()",
         [](Results& results) {
             forEachDate(results, &Date::GetHours, [](std::tm const& t) { return t.tm_hour; });
         },
         followed},
        {"Date::GetDayOfWeek()",
         [](Results& results) {
             forEachDate(results, &Date::GetDayOfWeek, [](std::tm const& t) { return t.tm_wday; });
         },
         followed},
        {"Date::GetDay()",
         [](Results& results) {
             forEachDate(results, &Date::GetDay, [](std::tm const& t) { return t.tm_mday; });
         },
         followed},
        {"Date::GetMonth()",
         [](Results& results) {
             forEachDate(results, &Date::GetMonth, [](std::tm const& t) { return t.tm_mon + 1; });
         },
         followed},
        {"Date::GetYear()",
         [](Results& results) {
             forEachDate(results, &Date::GetYear,
                         [](std::tm const& t) { return t.tm_year + 1900; });
         },
         followed},
    };
}

}  // namespace interface_test
