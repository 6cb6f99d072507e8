#include "DateFunctions.h"

namespace interface_test {

std::vector<Function> dateFunctions() {
    std::vector<Function> all;
    for (auto const& group :
         {dateConstructionFunctions(), dateArithmeticFunctions(), dateComparisonFunctions(),
          dateFieldFunctions(), dateTextFunctions(), clockFunctions()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

}  // namespace interface_test
