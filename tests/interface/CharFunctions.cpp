#include "CharFunctions.h"

namespace interface_test {

std::vector<Function> charFunctions() {
    std::vector<Function> all;
    for (auto const& group : {characterFunctions(), searchFunctions(), comparisonFunctions(),
                              rawCopyFunctions(), editingFunctions(), replacingFunctions(),
                              numberReadingFunctions(), numberWritingFunctions()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

}  // namespace interface_test
