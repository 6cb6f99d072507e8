// The rows of File and Folder, in groups.
#pragma once

#include "Function.h"

namespace interface_test {

[[nodiscard]] std::vector<Function> fileNameFunctions();
[[nodiscard]] std::vector<Function> fileQueryFunctions();
[[nodiscard]] std::vector<Function> fileContentFunctions();
[[nodiscard]] std::vector<Function> folderPathFunctions();

}  // namespace interface_test
