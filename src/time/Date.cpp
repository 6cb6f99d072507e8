// The value: its construction from fields, and what is read from the count alone.
#include "qel/Date.h"

#include "CivilCalendar.h"

#include <ctime>

namespace qel {

namespace {

constexpr long long msPerSecond = 1000;
constexpr double daysPerMs = 1.1574074074074074e-08;  // the double nearest to 1 / 86400000

constexpr unsigned int firstLocalYear = 1971;
constexpr unsigned int lastLocalYear = 2037;

/// Values beyond the signed range are stored as the bit patterns that they are.
constexpr int fieldValue(unsigned int value) noexcept {
    return static_cast<int>(value);
}

/// 0 for what the C library cannot express, and for everything before the epoch. Fields as far
/// off as 2^31 months still give less than 2^63 ms.
long long countFromLocalTime(std::tm fields, unsigned int millisecond) noexcept {
    long long const count = std::mktime(&fields) * msPerSecond;
    return count < 0 ? 0 : count + millisecond;
}

}  // namespace

Date::Date(unsigned int year, unsigned int month, unsigned int day, unsigned int hour,
           unsigned int minute, unsigned int second, unsigned int millisecond) noexcept {
    if (year >= firstLocalYear && year <= lastLocalYear) {
        std::tm fields = {};
        fields.tm_year = fieldValue(year - 1900);
        fields.tm_mon = fieldValue(month - 1);
        fields.tm_mday = fieldValue(day);
        fields.tm_hour = fieldValue(hour);
        fields.tm_min = fieldValue(minute);
        fields.tm_sec = fieldValue(second);
        fields.tm_isdst = -1;
        msSinceEpoch = countFromLocalTime(fields, millisecond);
    } else {
        long long const days = internal::julianDayNumber(year, month, day);
        unsigned int const secondOfDay = hour * 3600 + second + minute * 60;
        long long const seconds =
            days * internal::secondsPerDay + secondOfDay - internal::secondsFromDayZeroToEpoch;
        msSinceEpoch = seconds * msPerSecond + millisecond;
    }
}

unsigned int Date::GetSeconds() const noexcept {
    long long const second = msSinceEpoch / msPerSecond % 60;
    return static_cast<unsigned int>(msSinceEpoch < -999 ? second - 60 : second);
}

unsigned int Date::GetMilliSeconds() const noexcept {
    long long const millisecond = msSinceEpoch % msPerSecond;
    return static_cast<unsigned int>(msSinceEpoch < 0 ? millisecond - msPerSecond : millisecond);
}

long long Date::GetNumberOfDaysBetween(Date const& first, Date const& second) noexcept {
    Date difference = first;
    difference -= asUnsigned(second.msSinceEpoch);
    // Beyond 285,000 years a double has no room for a millisecond above whole days.
    double const days = static_cast<double>(difference.msSinceEpoch) * daysPerMs;
    auto const wholeDays = static_cast<long long>(days);  // toward zero, below 2^37
    return static_cast<double>(wholeDays) < days ? wholeDays + 1 : wholeDays;
}

}  // namespace qel
