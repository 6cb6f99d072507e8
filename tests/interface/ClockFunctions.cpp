// The current time. Only what is the same at every moment becomes a result; the rest is compared
// with the system's clocks, or with the same field of a date between two readings.
#include "DateFunctions.h"
#include "Expectations.h"
#include "model/PlainDateText.h"

#include "qel/Date.h"

#include <ctime>

namespace interface_test {

namespace {

using qel::Date;

/// What a function of the current time gave, at an instant that lay between two readings which
/// have the same value.
template <typename Value>
struct Reading {
    Value value;
    Date instant;
};

/// The field of the current date and the date's own: equal, unless the field changes meanwhile;
/// then once more.
template <typename Current, typename Field>
auto readCurrent(Current current, Field field) {
    using Value = decltype(current());
    for (;;) {
        Date const before = Date::GetCurrentDate();
        Value const value = current();
        Date const after = Date::GetCurrentDate();
        if (field(before) == field(after)) {
            EXPECT_EQ(value, field(before));
            return Reading<Value>{value, before};
        }
    }
}

std::tm utc(Date const& date) {
    std::time_t const seconds = static_cast<std::time_t>(date.GetMillisecondsSinceEpoch() / 1000);
    std::tm fields = {};
    gmtime_r(&seconds, &fields);
    return fields;
}

/// Adds whether the field is that of UTC: in zones of the right offset it never is.
void addWhetherUtc(Results& results, unsigned int value, int valueInUtc) {
    results.add("in UTC", value == static_cast<unsigned int>(valueInUtc));
}

constexpr long long oneHour_ms = 3600000;

void compareWithWallClock(Results& results) {
    long long const now = Date::GetCurrentSystemTime();
    EXPECT_GE(Date::GetCurrentSystemTime(), now);
    // The clocks may drift apart; a wrong unit or epoch is far beyond this.
    EXPECT_NEAR(static_cast<double>(now), static_cast<double>(std::time(nullptr)) * 1000,
                oneHour_ms);
    EXPECT_GT(lastMSCounterValue, 0U);
    results.add("");
}

void writeCurrentDate(Results& results) {
    for (unsigned int bits = 0; bits < 32; ++bits) {
        auto const flag = [bits](unsigned int i) { return (bits >> i & 1) != 0; };
        auto const text = [&flag](Date const& date) {
            return model::dateText(date, {flag(0), flag(1), flag(2), flag(3), flag(4)});
        };
        readCurrent(
            [&flag] { return Date::GetCurrentDate(flag(0), flag(1), flag(2), flag(3), flag(4)); },
            text);
    }
    results.add("");
}

std::vector<Function> clockReadings() {
    return {
        {"Date::GetMillisecondsSinceStartup()",
         [](Results& results) {
             unsigned int const first = Date::GetMillisecondsSinceStartup();
             unsigned int const steps = Date::GetMillisecondsSinceStartup() - first;
             EXPECT_LT(steps, oneHour_ms);
             results.add("");
         }},
        {"Date::GetCurrentSystemTime()", compareWithWallClock},
        {"Date::GetCurrentDate()",
         [](Results& results) {
             readCurrent([] { return Date::GetCurrentDate().GetDay(); },
                         [](Date const& date) { return date.GetDay(); });
             results.add("");
         }},
        {"Date::GetCurrentDate(bool, bool, bool, bool, bool)", writeCurrentDate},
        {"Date::GetCurrentMilliSeconds()",
         [](Results& results) {
             readCurrent(Date::GetCurrentMilliSeconds,
                         [](Date const& date) { return date.GetMilliSeconds(); });
             results.add("");
         }},
        {"Date::GetCurrentSeconds()",
         [](Results& results) {
             readCurrent(Date::GetCurrentSeconds,
                         [](Date const& date) { return date.GetSeconds(); });
             results.add("");
         }},
    };
}

}  // namespace

std::vector<Function> clockFunctions() {
    std::set<State> const followed = {State::timeZone};
    std::vector<Function> all = clockReadings();
    std::vector<Function> const fields = {
        {"Date::GetCurrentMinutes()",
         [](Results& results) {
             auto const now = readCurrent(Date::GetCurrentMinutes,
                                          [](Date const& date) { return date.GetMinutes(); });
             addWhetherUtc(results, now.value, utc(now.instant).tm_min);
         },
         followed},
        {"Date::GetCurrentHours()",
         [](Results& results) {
             auto const now = readCurrent(Date::GetCurrentHours,
                                          [](Date const& date) { return date.GetHours(); });
             addWhetherUtc(results, now.value, utc(now.instant).tm_hour);
         },
         followed},
        {"Date::GetCurrentDayOfWeek()",
         [](Results& results) {
             auto const now = readCurrent(Date::GetCurrentDayOfWeek,
                                          [](Date const& date) { return date.GetDayOfWeek(); });
             addWhetherUtc(results, now.value, utc(now.instant).tm_wday);
         },
         followed},
        {"Date::GetCurrentDayOfWeekName()",
         [](Results& results) {
             auto const now = readCurrent(Date::GetCurrentDayOfWeekName,
                                          [](Date const& date) { return date.GetDayOfWeekName(); });
             static constexpr std::array<char const*, 7> names = {"Sun", "Mon", "Tue", "Wed",
                                                                  "Thu", "Fri", "Sat"};
             auto const day = static_cast<std::size_t>(utc(now.instant).tm_wday);
             results.add("in UTC", now.value == names.at(day));
         },
         followed},
        {"Date::GetCurrentDay()",
         [](Results& results) {
             auto const now =
                 readCurrent(Date::GetCurrentDay, [](Date const& date) { return date.GetDay(); });
             addWhetherUtc(results, now.value, utc(now.instant).tm_mday);
         },
         followed},
        // On most days the month and the year are the same in all zones: what these follow is seen
        // in the dates that they are compared with.
        {"Date::GetCurrentMonth()",
         [](Results& results) {
             readCurrent(Date::GetCurrentMonth, [](Date const& date) { return date.GetMonth(); });
             results.add("");
         }},
        {"Date::GetCurrentYear()",
         [](Results& results) {
             readCurrent(Date::GetCurrentYear, [](Date const& date) { return date.GetYear(); });
             results.add("");
         }},
        {"Date::GetLastDayOfCurrentYear()",
         [](Results& results) {
             auto const lastDay = [](Date const& date) {
                 return Date(date.GetYear(), 12, 31, 12, 0, 0, 0);
             };
             auto const now = readCurrent(Date::GetLastDayOfCurrentYear, lastDay);
             // In UTC, when local noon is.
             results.add("", now.value.GetMillisecondsSinceEpoch() % 86400000);
         },
         followed},
    };
    all.insert(all.end(), fields.begin(), fields.end());
    return all;
}

}  // namespace interface_test
