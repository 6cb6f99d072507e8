// The rows of CharFunctions, a group of its header each.
#pragma once

#include "Function.h"

namespace interface_test {

[[nodiscard]] std::vector<Function> characterFunctions();
[[nodiscard]] std::vector<Function> searchFunctions();
[[nodiscard]] std::vector<Function> comparisonFunctions();
[[nodiscard]] std::vector<Function> rawCopyFunctions();
[[nodiscard]] std::vector<Function> editingFunctions();
[[nodiscard]] std::vector<Function> replacingFunctions();
[[nodiscard]] std::vector<Function> numberReadingFunctions();
[[nodiscard]] std::vector<Function> numberWritingFunctions();

}  // namespace interface_test
