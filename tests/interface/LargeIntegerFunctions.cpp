#include "LargeIntegerFunctions.h"

namespace interface_test {

std::vector<Function> largeIntegerFunctions() {
    std::vector<Function> all;
    for (auto const& ofOneKind : {storageFunctions(), bitFunctions(), arithmeticFunctions(),
                                  divisionFunctions(), numberTextFunctions()})
        all.insert(all.end(), ofOneKind.begin(), ofOneKind.end());
    return all;
}

}  // namespace interface_test
