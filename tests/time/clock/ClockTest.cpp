// The rules of the clock, on scripted clocks of the system. The clock keeps its state until the
// process ends, so every test runs its steps in a process of their own.
#include "ScriptedClocks.h"
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using qel::Date;

/// 21 November 2012, 12:00 UTC.
constexpr long long noon_s = 1353499200;
constexpr long long noon_ms = noon_s * 1000;

constexpr unsigned int largestCounter = 0xFFFFFFFF;

/// Runs `steps` in a process whose clock nobody has read yet, with a script that starts at 0.
template <typename Steps>
void withFreshClock(Steps steps) {
    auto const runAndLeave = [&steps] {
        script = {};
        steps();
        std::exit(testing::Test::HasFailure() ? 1 : 0);
    };
    EXPECT_EXIT(runAndLeave(), testing::ExitedWithCode(0), "");
}

void setWallClock(long long milliseconds) {
    script.wallClock = {milliseconds / 1000, static_cast<int>(milliseconds % 1000 * 1000)};
}

long long timeAtCounter(unsigned long long counter) {
    script.startup_us = counter * 1000;
    return Date::GetCurrentSystemTime();
}

unsigned long long recordedAfter(unsigned long long previous, unsigned int counter) {
    lastMSCounterValue = previous;
    static_cast<void>(timeAtCounter(counter));
    return lastMSCounterValue;
}

TEST(Clock, TheCounterIsTheMicrosecondsInMillisecondsModulo32Bits) {
    struct Row {
        unsigned long long microseconds;
        unsigned int counter;
    };
    for (Row const& row : {
             Row{0, 0},
             Row{999, 0},
             Row{1000, 1},
             Row{4294967295999, largestCounter},
             Row{4294967296000, 0},
             Row{4294967297000, 1},
             Row{0x7FFFFFFFFFFFFFFF, 2783138807},
         }) {
        script.startup_us = row.microseconds;
        EXPECT_EQ(Date::GetMillisecondsSinceStartup(), row.counter) << row.microseconds;
    }
}

TEST(Clock, TheMicrosecondsAreDividedAsASignedNumber) {
    script.startup_us = 0xFFFFFFFFFFFFFFFF;
    EXPECT_EQ(Date::GetMillisecondsSinceStartup(), 0U);
    script.startup_us = static_cast<unsigned long long>(-1000LL);
    EXPECT_EQ(Date::GetMillisecondsSinceStartup(), largestCounter);
}

TEST(Clock, TheFirstCallTakesTheWallClocksTime) {
    withFreshClock([] {
        setWallClock(noon_ms + 250);
        EXPECT_EQ(timeAtCounter(5000), noon_ms + 250);
        EXPECT_EQ(script.wallClockReads, 1);
    });
}

TEST(Clock, TheWallClocksMicrosecondsAreTruncated) {
    withFreshClock([] {
        script.wallClock = {noon_s, 1999};
        EXPECT_EQ(timeAtCounter(5000), noon_ms + 1);
    });
}

TEST(Clock, AdvancesWithTheCounterWithoutTheWallClock) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        EXPECT_EQ(timeAtCounter(6000), noon_ms + 1000);
        EXPECT_EQ(timeAtCounter(4000000000), noon_ms + 3999995000);
        EXPECT_EQ(script.wallClockReads, 1);
    });
}

TEST(Clock, AWallClockSetBackBetweenCallsChangesNothing) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        setWallClock(noon_ms - 3600000);
        EXPECT_EQ(timeAtCounter(6000), noon_ms + 1000);
    });
}

TEST(Clock, AStepBackOf10MillisecondsGivesASmallerTime) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        setWallClock(noon_ms + 777);
        EXPECT_EQ(timeAtCounter(4990), noon_ms - 10);
        EXPECT_EQ(script.wallClockReads, 1);
    });
}

TEST(Clock, AStepBackOf11MillisecondsSynchronises) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        setWallClock(noon_ms + 777);
        EXPECT_EQ(timeAtCounter(4989), noon_ms + 777);
        EXPECT_EQ(script.wallClockReads, 2);
    });
}

TEST(Clock, StepsBackAreMeasuredFromThePreviousCallAndDoNotAddUp) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        EXPECT_EQ(timeAtCounter(4990), noon_ms - 10);
        EXPECT_EQ(timeAtCounter(4980), noon_ms - 20);
        EXPECT_EQ(script.wallClockReads, 1);
    });
}

TEST(Clock, TheWrapOfTheCounterSynchronises) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(largestCounter - 1), noon_ms);
        setWallClock(noon_ms + 90000);
        EXPECT_EQ(timeAtCounter(4294967296 + 3), noon_ms + 90000);
        EXPECT_EQ(script.wallClockReads, 2);
    });
}

TEST(Clock, AfterAReadingBelow10EveryStepBackSynchronises) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(9), noon_ms);
        setWallClock(noon_ms + 777);
        EXPECT_EQ(timeAtCounter(8), noon_ms + 777);
        EXPECT_EQ(timeAtCounter(8), noon_ms + 777);
        EXPECT_EQ(script.wallClockReads, 2);
    });
}

TEST(Clock, AfterAReadingOf10NoStepBackSynchronises) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(10), noon_ms);
        EXPECT_EQ(timeAtCounter(0), noon_ms - 10);
        EXPECT_EQ(script.wallClockReads, 1);
    });
}

TEST(Clock, AFirstReadingOfTheLargestCounterDoesNotSynchronise) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(largestCounter), 4294967295);
        EXPECT_EQ(script.wallClockReads, 0);
        EXPECT_EQ(timeAtCounter(largestCounter - 1), noon_ms);
        EXPECT_EQ(script.wallClockReads, 1);
    });
}

TEST(Clock, AnyReadingBelowTheLargestCounterSynchronisesAfterIt) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        EXPECT_EQ(timeAtCounter(largestCounter), noon_ms + 4294962295);
        setWallClock(noon_ms + 777);
        EXPECT_EQ(timeAtCounter(largestCounter - 1), noon_ms + 777);
    });
}

TEST(Clock, TheRecordStartsAt0AndFollowsTheCounterUpward) {
    withFreshClock([] {
        EXPECT_EQ(lastMSCounterValue, 0U);
        EXPECT_EQ(timeAtCounter(5000), 0);
        EXPECT_EQ(lastMSCounterValue, 5000U);
        EXPECT_EQ(timeAtCounter(6000), 1000);
        EXPECT_EQ(lastMSCounterValue, 6000U);
    });
}

TEST(Clock, TheRecordStaysWhenTheCounterLiesBackBy1000MillisecondsOrLess) {
    withFreshClock([] {
        EXPECT_EQ(recordedAfter(5000, 5001), 5001U);
        EXPECT_EQ(recordedAfter(5000, 5000), 5000U);
        EXPECT_EQ(recordedAfter(5000, 4999), 5000U);
        EXPECT_EQ(recordedAfter(5000, 4000), 5000U);
        EXPECT_EQ(recordedAfter(5000, 3999), 3999U);
        EXPECT_EQ(recordedAfter(5000, 0), 0U);
    });
}

TEST(Clock, ARecordBelow1000FollowsEveryStepBack) {
    withFreshClock([] {
        EXPECT_EQ(recordedAfter(999, 998), 998U);
        EXPECT_EQ(recordedAfter(1, 0), 0U);
        EXPECT_EQ(recordedAfter(1000, 999), 1000U);
        EXPECT_EQ(recordedAfter(1000, 0), 1000U);
    });
}

TEST(Clock, ARecordThatAnApplicationSetBeyondTheCounterIsComparedIn64Bits) {
    withFreshClock([] {
        EXPECT_EQ(recordedAfter(4294967296 + 500, largestCounter), 4294967296 + 500U);
        EXPECT_EQ(recordedAfter(4294967296 + 1000, largestCounter), largestCounter);
        EXPECT_EQ(recordedAfter(0xFFFFFFFFFFFFFFFF, 5), 5U);
    });
}

TEST(Clock, TheCurrentFieldsAreThoseOfTheCurrentDate) {
    withFreshClock([] {
        setWallClock(noon_ms + 345678);
        EXPECT_EQ(timeAtCounter(5000), noon_ms + 345678);
        Date const now(noon_ms + 345678);
        EXPECT_EQ(Date::GetCurrentDate(), now);
        EXPECT_EQ(Date::GetCurrentMilliSeconds(), 678U);
        EXPECT_EQ(Date::GetCurrentSeconds(), 45U);
        EXPECT_EQ(Date::GetCurrentMinutes(), now.GetMinutes());
        EXPECT_EQ(Date::GetCurrentHours(), now.GetHours());
        EXPECT_EQ(Date::GetCurrentDayOfWeek(), now.GetDayOfWeek());
        EXPECT_EQ(Date::GetCurrentDayOfWeekName(), now.GetDayOfWeekName());
        EXPECT_EQ(Date::GetCurrentDay(), now.GetDay());
        EXPECT_EQ(Date::GetCurrentMonth(), now.GetMonth());
        EXPECT_EQ(Date::GetCurrentYear(), now.GetYear());
    });
}

TEST(Clock, TheCurrentDateAsTextTakesTheFlagsInOrder) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(timeAtCounter(5000), noon_ms);
        for (unsigned int bits = 0; bits < 32; ++bits) {
            auto const flag = [bits](unsigned int place) { return (bits >> place & 1) != 0; };
            EXPECT_EQ(Date::GetCurrentDate(flag(0), flag(1), flag(2), flag(3), flag(4)),
                      Date(noon_ms).ConvertToString(flag(0), flag(1), flag(2), flag(3), flag(4)));
        }
    });
}

/// How often `read` looks at the counter.
template <typename Read>
int counterReadsOf(Read read) {
    int const before = script.startupReads;
    static_cast<void>(read());
    return script.startupReads - before;
}

TEST(Clock, EverythingCurrentReadsTheClockOnce) {
    withFreshClock([] {
        EXPECT_EQ(counterReadsOf([] { return Date::GetCurrentDate(); }), 1);
        EXPECT_EQ(counterReadsOf([] { return Date::GetCurrentDate(true, true, true, true, true); }),
                  1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentSystemTime), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentMilliSeconds), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentSeconds), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentMinutes), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentHours), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentDayOfWeek), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentDayOfWeekName), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentDay), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentMonth), 1);
        EXPECT_EQ(counterReadsOf(Date::GetCurrentYear), 1);
        EXPECT_EQ(counterReadsOf(Date::GetLastDayOfCurrentYear), 1);
    });
}

TEST(Clock, TheLastDayOfTheYearIsNoonOf31December) {
    withFreshClock([] {
        setWallClock(noon_ms);
        EXPECT_EQ(Date::GetLastDayOfCurrentYear(), Date(2012, 12, 31, 12, 0, 0, 0));
    });
}

}  // namespace
