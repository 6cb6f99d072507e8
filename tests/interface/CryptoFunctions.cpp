#include "Function.h"

namespace interface_test {

std::vector<Function> cryptoFunctions() {
    return {};
}

}  // namespace interface_test
