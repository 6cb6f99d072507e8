// The clock on the real clocks of the system; its rules are tested on scripted ones.
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

using qel::Date;

long long wallClock_ms() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

TEST(SystemClocks, TheCurrentTimeIsTheWallClocks) {
    constexpr long long tolerance_ms = 2000;  // a wall clock being adjusted, or a busy machine
    EXPECT_NEAR(static_cast<double>(Date::GetCurrentSystemTime() - wallClock_ms()), 0.0,
                static_cast<double>(tolerance_ms));
    long long const current = Date::GetCurrentDate().GetMillisecondsSinceEpoch();
    EXPECT_NEAR(static_cast<double>(current - wallClock_ms()), 0.0,
                static_cast<double>(tolerance_ms));
}

TEST(SystemClocks, TheCounterAdvancesInMilliseconds) {
    auto const before = std::chrono::steady_clock::now();
    unsigned int const first = Date::GetMillisecondsSinceStartup();
    std::this_thread::sleep_for(std::chrono::milliseconds(1030));  // across the end of a second
    unsigned int const elapsed = Date::GetMillisecondsSinceStartup() - first;
    auto const atMost = std::chrono::steady_clock::now() - before;
    EXPECT_GE(elapsed, 1029U);
    EXPECT_LE(std::chrono::milliseconds(elapsed), atMost + std::chrono::milliseconds(1));
}

TEST(SystemClocks, TheCurrentTimeAdvancesWithTheCounter) {
    long long const first = Date::GetCurrentSystemTime();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_GE(Date::GetCurrentSystemTime() - first, 19);
    EXPECT_GE(lastMSCounterValue, 20U);
}

}  // namespace
