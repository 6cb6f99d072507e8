// Long random sequences of operations on the library's integers and on the plain model at once.
#include "TwinSequence.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace {

using namespace bigint_test;

/// Shards of 50,000 steps; QEL_DEEP=n runs n times as many steps in each.
class Differential : public testing::TestWithParam<unsigned> {};

TEST_P(Differential, AgreesWithThePlainModelAfterEveryStep) {
    char const* const deep = std::getenv("QEL_DEEP");
    int const times = deep != nullptr ? std::max(1, std::atoi(deep)) : 1;
    SeededChoices choices(GetParam());
    EXPECT_EQ(Sequence(choices).run(50000 * times), "");
}

INSTANTIATE_TEST_SUITE_P(Shards, Differential, testing::Range(1U, 21U));

}  // namespace
