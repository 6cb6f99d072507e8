#include "Function.h"

namespace interface_test {

std::vector<Function> publicFunctions() {
    std::vector<Function> all;
    for (auto const& ofOneClass :
         {charFunctions(), dateFunctions(), fileFunctions(), folderFunctions(),
          largeIntegerFunctions(), cryptoFunctions(), versionFunctions()})
        all.insert(all.end(), ofOneClass.begin(), ofOneClass.end());
    return all;
}

}  // namespace interface_test
