// Calendar arithmetic over Julian Day Numbers in the proleptic Gregorian calendar, without time
// zones: it serves the dates that the C library is not asked for. Every step is 32 bits wide, wraps
// around and truncates its divisions toward zero, so that far dates come out the same everywhere.
#pragma once

#include <ctime>

namespace qel::internal {

inline constexpr long long secondsPerDay = 86400;
/// From the start of Julian day 0 to 1970-01-01, which is Julian day 2440588.
inline constexpr long long secondsFromDayZeroToEpoch = 2440588 * secondsPerDay;

/// The Julian Day Number of a date, its day not limited to the month. Months are 0, for December
/// of the year before, to 14; others give a meaningless number.
[[nodiscard]] int julianDayNumber(unsigned int year, unsigned int month, unsigned int day) noexcept;

/// The fields of a number of seconds since the start of Julian day 0. The day of the year and the
/// daylight-saving flag are -1, for unknown.
[[nodiscard]] std::tm breakDownCivilTime(long long secondsSinceDayZero) noexcept;

}  // namespace qel::internal
