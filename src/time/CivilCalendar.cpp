// The Julian Day Number of a date and back, by the usual integer formulas: years begin in March,
// so that the leap day is the last of its year, and are counted from 1 March 4801 BC. The ranges
// given in the margin are those of the days since.
#include "CivilCalendar.h"

namespace qel::internal {

namespace {

/// The low 32 bits as a signed number: how an `int` wraps around.
constexpr int wrapped(long long value) noexcept {
    return static_cast<int>(value);
}

void setDate(std::tm& fields, int julianDay) noexcept {
    int const century = wrapped(4LL * julianDay + 128179) / 146097;
    int const dayOfCentury = wrapped(julianDay + 32044LL - 146097 * century / 4);  // [0, 36524]
    int const year = wrapped(4LL * dayOfCentury + 3) / 1461;                       // [0, 99]
    int const dayOfYear = wrapped(dayOfCentury - 1461LL * year / 4);               // [0, 365]
    int const month = wrapped(5LL * dayOfYear + 2) / 153;                          // [0, 11]
    fields.tm_mday = wrapped(dayOfYear - wrapped(153LL * month + 2) / 5 + 1LL);
    fields.tm_mon = month + 2 - 12 * (month / 10);
    fields.tm_year = 100 * century + year + month / 10 - 6700;
    fields.tm_wday = wrapped(julianDay + 1LL) % 7;
}

void setTime(std::tm& fields, int secondOfDay) noexcept {
    fields.tm_hour = secondOfDay / 3600;
    fields.tm_min = secondOfDay % 3600 / 60;
    fields.tm_sec = secondOfDay % 60;
}

}  // namespace

int julianDayNumber(unsigned int year, unsigned int month, unsigned int day) noexcept {
    unsigned int const isBeforeMarch = (14 - month) / 12;  // 1 for months 0 to 2, 0 for 3 to 14
    unsigned int const daysBeforeMonth = (153 * (12 * isBeforeMarch + month - 1) - 304) / 5;
    int const marchYear = wrapped(static_cast<long long>(year) + 4800 - isBeforeMarch);
    return wrapped(static_cast<long long>(day) + daysBeforeMonth + 365LL * marchYear + marchYear / 4
                   - marchYear / 100 + marchYear / 400 - 32045);
}

std::tm breakDownCivilTime(long long secondsSinceDayZero) noexcept {
    int const julianDay = wrapped(secondsSinceDayZero / secondsPerDay);
    std::tm fields = {};
    setDate(fields, julianDay);
    setTime(fields, wrapped(secondsSinceDayZero - secondsPerDay * julianDay));
    fields.tm_yday = -1;
    fields.tm_isdst = -1;
    return fields;
}

}  // namespace qel::internal
