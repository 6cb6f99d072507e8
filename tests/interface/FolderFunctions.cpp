#include "Function.h"

namespace interface_test {

std::vector<Function> folderFunctions() {
    return {};
}

}  // namespace interface_test
