#include "Function.h"

namespace interface_test {

std::vector<Function> largeIntegerFunctions() {
    return {};
}

}  // namespace interface_test
