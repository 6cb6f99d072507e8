#include "Function.h"

namespace interface_test {

std::vector<Function> charFunctions() {
    return {};
}

}  // namespace interface_test
