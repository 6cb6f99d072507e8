// From a count to local calendar fields: by the C library from 1970-01-02 to the end of 2037,
// in UTC, and by our own calendar before and after.
#include "DateFields.h"

#include "CivilCalendar.h"
#include "qel/Date.h"

namespace qel {

namespace {

using internal::ConvertMillisecondsToLocalTime;

constexpr long long libraryBegin_s = 86400;     // 1970-01-02T00:00:00Z
constexpr long long libraryEnd_s = 2145916800;  // 2038-01-01T00:00:00Z
constexpr long long year1971_s = 31536000;      // 1971-01-01T00:00:00Z

/// How far local time was ahead of UTC on 1 January 1971, daylight saving of that day included. Not
/// kept: mktime sees a change of TZ, or of the system's zone, which nothing that is kept here
/// would.
int offsetOf1971_s() noexcept {
    Date const localMidnight(1971, 1, 1, 0, 0, 0, 0);
    return static_cast<int>(year1971_s - localMidnight.GetMillisecondsSinceEpoch() / 1000);
}

}  // namespace

std::tm internal::ConvertMillisecondsToLocalTime(long long msSinceEpoch) noexcept {
    long long const seconds = msSinceEpoch / 1000;
    if (seconds < libraryBegin_s || seconds >= libraryEnd_s)
        return breakDownCivilTime(seconds + offsetOf1971_s() + secondsFromDayZeroToEpoch);
    static_assert(sizeof(std::time_t) == sizeof(long long));
    std::time_t const time = static_cast<std::time_t>(seconds);
    std::tm fields = {};  // what a failure leaves
    localtime_r(&time, &fields);
    return fields;
}

unsigned int Date::GetMinutes() const noexcept {
    return static_cast<unsigned int>(ConvertMillisecondsToLocalTime(msSinceEpoch).tm_min);
}

unsigned int Date::GetHours() const noexcept {
    return static_cast<unsigned int>(ConvertMillisecondsToLocalTime(msSinceEpoch).tm_hour);
}

unsigned int Date::GetDayOfWeek() const noexcept {
    return static_cast<unsigned int>(ConvertMillisecondsToLocalTime(msSinceEpoch).tm_wday);
}

unsigned int Date::GetDay() const noexcept {
    return static_cast<unsigned int>(ConvertMillisecondsToLocalTime(msSinceEpoch).tm_mday);
}

unsigned int Date::GetMonth() const noexcept {
    return static_cast<unsigned int>(ConvertMillisecondsToLocalTime(msSinceEpoch).tm_mon + 1);
}

unsigned int Date::GetYear() const noexcept {
    return static_cast<unsigned int>(ConvertMillisecondsToLocalTime(msSinceEpoch).tm_year + 1900);
}

}  // namespace qel
