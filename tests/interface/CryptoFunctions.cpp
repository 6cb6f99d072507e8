#include "CryptoFunctions.h"

namespace interface_test {

std::vector<Function> cryptoFunctions() {
    std::vector<Function> all;
    for (auto const& ofOneKind :
         {randomFunctions(), primeFunctions(), keyFunctions(), streamFunctions()})
        all.insert(all.end(), ofOneKind.begin(), ofOneKind.end());
    return all;
}

}  // namespace interface_test
