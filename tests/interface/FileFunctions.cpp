#include "FileFunctions.h"

namespace interface_test {

std::vector<Function> fileFunctions() {
    std::vector<Function> all;
    for (auto const& group : {fileNameFunctions(), fileQueryFunctions(), fileContentFunctions()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

}  // namespace interface_test
