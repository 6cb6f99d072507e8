// The rows of Date, a group of its header each.
#pragma once

#include "Function.h"

namespace interface_test {

[[nodiscard]] std::vector<Function> dateConstructionFunctions();
[[nodiscard]] std::vector<Function> dateArithmeticFunctions();
[[nodiscard]] std::vector<Function> dateComparisonFunctions();
[[nodiscard]] std::vector<Function> dateFieldFunctions();
[[nodiscard]] std::vector<Function> dateTextFunctions();
[[nodiscard]] std::vector<Function> clockFunctions();

}  // namespace interface_test
