// The feature that macOS names, or does not know.
#include "bigint/limbs/WideRegisters.h"

#include "FakeFrameworks.h"

#include <gtest/gtest.h>

namespace {

bool savedWhen(int status, int value) {
    frameworks = FakeFrameworks();
    frameworks.featureStatus = status;
    frameworks.feature = value;
    bool const saved = qel::limbs::savesWideRegisters();
    EXPECT_EQ(frameworks.calls, std::vector<std::string>{"sysctlbyname hw.optional.avx512f"});
    return saved;
}

TEST(WideRegisters, AreSavedWhereTheFeatureIsKnownAndOn) {
    EXPECT_TRUE(savedWhen(0, 1));
    EXPECT_FALSE(savedWhen(0, 0));
    EXPECT_FALSE(savedWhen(-1, 1));
}

}  // namespace
