#include "Function.h"

namespace interface_test {

std::vector<Function> fileFunctions() {
    return {};
}

}  // namespace interface_test
