// The rows of LargeInteger, by what the functions are about.
#pragma once

#include "Function.h"

#include <vector>

namespace interface_test {

[[nodiscard]] std::vector<Function> storageFunctions();
[[nodiscard]] std::vector<Function> bitFunctions();
[[nodiscard]] std::vector<Function> arithmeticFunctions();
[[nodiscard]] std::vector<Function> divisionFunctions();
[[nodiscard]] std::vector<Function> numberTextFunctions();

}  // namespace interface_test
