// However doubles are rounded, a number from text has the value of its plain steps under that mode.
#include "text/LongNumbers.h"

#include <cfenv>

namespace {

using namespace number_text;

TEST(RoundingMode, IsThatOfEachStepOfALongNumber) {
    std::mt19937 random(2);
    for (int const mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        ASSERT_EQ(std::fesetround(mode), 0);
        for (int i = 0; i < 2000 && !testing::Test::HasFailure(); ++i)
            expectPlainValue(randomLongNumber(random));
        std::fesetround(FE_TONEAREST);
    }
}

}  // namespace
