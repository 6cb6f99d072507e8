// The one conversion behind all calendar fields and text forms.
#pragma once

#include <ctime>

namespace qel::internal {

/// Local time of a count of milliseconds since the epoch. Only the nine standard fields count;
/// the day of the year is -1 outside the C library's range.
[[nodiscard]] std::tm ConvertMillisecondsToLocalTime(long long msSinceEpoch) noexcept;

}  // namespace qel::internal
