#include "Function.h"

namespace interface_test {

std::vector<Function> dateFunctions() {
    return {};
}

}  // namespace interface_test
