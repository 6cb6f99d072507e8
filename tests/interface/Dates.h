// Dates at the ends of the count, and of the range in which the C library breaks it down.
#pragma once

#include "Arguments.h"

#include <string>
#include <vector>

namespace interface_test {

[[nodiscard]] std::vector<long long> const& extremeCounts();

/// Day-month-year texts, and what nearly is one.
[[nodiscard]] std::vector<std::string> const& dateTexts();

}  // namespace interface_test
