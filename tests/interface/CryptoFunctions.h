// The rows of the generator, the primes, the keys and the stream operator.
#pragma once

#include "Function.h"

#include <vector>

namespace interface_test {

[[nodiscard]] std::vector<Function> randomFunctions();
[[nodiscard]] std::vector<Function> primeFunctions();
[[nodiscard]] std::vector<Function> keyFunctions();
[[nodiscard]] std::vector<Function> streamFunctions();

}  // namespace interface_test
