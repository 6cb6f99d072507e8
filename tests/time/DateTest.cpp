// The value: count, arithmetic, comparison, and what is read from the count alone.
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <random>
#include <type_traits>

namespace {

using qel::Date;

constexpr long long msPerDay = 86400000;

static_assert(std::is_trivially_copyable_v<Date>);
static_assert(std::is_standard_layout_v<Date>);
static_assert(sizeof(Date) == sizeof(long long));
static_assert(Date().GetMillisecondsSinceEpoch() == 0);
static_assert(noexcept(Date("")) && noexcept(Date(2012U, 1U, 1U, 0U, 0U, 0U, 0U)));

long long countAfter(Date date, void (Date::*add)(long long) noexcept, long long n) {
    (date.*add)(n);
    return date.GetMillisecondsSinceEpoch();
}

/// Random counts of every magnitude, the ends of the range first.
template <typename Check>
void forManyCounts(Check check) {
    for (long long const count : {LLONG_MIN, LLONG_MIN + 1, -1LL, 0LL, 1LL, LLONG_MAX})
        check(count);
    std::mt19937_64 random(20121121);
    for (int i = 0; i < 20000; ++i) {
        auto const bits = static_cast<long long>(random());
        check(bits >> (random() % 64));
    }
}

TEST(Date, DefaultIsTheEpochAndNotTheCurrentTime) {
    EXPECT_EQ(Date().GetMillisecondsSinceEpoch(), 0);
}

TEST(Date, StoresEveryCountUnchanged) {
    forManyCounts([](long long count) {
        Date const date(count);
        Date assigned;
        EXPECT_EQ(&(assigned = date), &assigned);
        EXPECT_EQ(date.GetMillisecondsSinceEpoch(), count);
        EXPECT_EQ(assigned.GetMillisecondsSinceEpoch(), count);
        EXPECT_EQ(Date(date).GetMillisecondsSinceEpoch(), count);
    });
}

TEST(Date, AddsAndSubtractsUnsignedAmountsAndReturnsItself) {
    Date date(500);
    EXPECT_EQ(&(date += 1500), &date);
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), 2000);
    EXPECT_EQ(&(date -= 2001), &date);
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), -1);
}

TEST(Date, IsReckonedWithWhileCompiling) {
    constexpr Date date = [] {
        Date moved(500);
        moved += 1500;
        moved -= 1;
        moved.AddSeconds(-2);
        moved.AddMinutes(1);
        moved.AddHours(-1);
        moved.AddDays(1);
        return moved;
    }();
    static_assert(date == Date(86400000 - 3600000 + 60000 - 1));
}

TEST(Date, SubtractingOneFromTheEpochGivesMinusOne) {
    Date date;
    date -= 1;
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), -1);
}

TEST(Date, AdditionAndSubtractionWrapAroundAtBothEnds) {
    Date last(LLONG_MAX);
    last += 1;
    EXPECT_EQ(last.GetMillisecondsSinceEpoch(), LLONG_MIN);
    last -= 1;
    EXPECT_EQ(last.GetMillisecondsSinceEpoch(), LLONG_MAX);
    Date date(7);
    date += ULLONG_MAX;
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), 6);
    date -= ULLONG_MAX;
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), 7);
}

TEST(Date, AddsSecondsMinutesHoursAndDaysInBothDirections) {
    Date const date(5);
    EXPECT_EQ(countAfter(date, &Date::AddSeconds, 3), 3005);
    EXPECT_EQ(countAfter(date, &Date::AddSeconds, -3), -2995);
    EXPECT_EQ(countAfter(date, &Date::AddMinutes, 2), 120005);
    EXPECT_EQ(countAfter(date, &Date::AddMinutes, -2), -119995);
    EXPECT_EQ(countAfter(date, &Date::AddHours, 2), 7200005);
    EXPECT_EQ(countAfter(date, &Date::AddHours, -2), -7199995);
    EXPECT_EQ(countAfter(date, &Date::AddDays, 2), 172800005);
    EXPECT_EQ(countAfter(Date(), &Date::AddDays, -1), -msPerDay);
}

TEST(Date, AddingFarTooMuchWrapsAround) {
    EXPECT_EQ(countAfter(Date(), &Date::AddSeconds, LLONG_MAX), -1000);
    EXPECT_EQ(countAfter(Date(), &Date::AddSeconds, LLONG_MIN), 0);
    EXPECT_EQ(countAfter(Date(), &Date::AddMinutes, LLONG_MAX), -60000);
    EXPECT_EQ(countAfter(Date(), &Date::AddHours, LLONG_MAX), -3600000);
    EXPECT_EQ(countAfter(Date(), &Date::AddDays, LLONG_MAX), -msPerDay);
    EXPECT_EQ(countAfter(Date(LLONG_MAX), &Date::AddDays, 1), LLONG_MIN + msPerDay - 1);
}

TEST(Date, ComparesByTheSignedCount) {
    forManyCounts([](long long count) {
        for (long long const other : {count, -1LL, 0LL, LLONG_MIN, LLONG_MAX}) {
            EXPECT_EQ(Date(count) == Date(other), count == other);
            EXPECT_EQ(Date(count) != Date(other), count != other);
            EXPECT_EQ(Date(count) < Date(other), count < other);
            EXPECT_EQ(Date(count) > Date(other), count > other);
            EXPECT_EQ(Date(count) <= Date(other), count <= other);
            EXPECT_EQ(Date(count) >= Date(other), count >= other);
        }
    });
}

TEST(Date, SecondsAndMillisecondsOfNegativeCountsAreUnsignedPatterns) {
    struct Row {
        long long count;
        unsigned int seconds;
        unsigned int milliseconds;
    };
    for (Row const& row : {
             Row{0, 0, 0},
             Row{999, 0, 999},
             Row{61500, 1, 500},
             Row{59999, 59, 999},
             Row{60000, 0, 0},
             Row{-1, 0, 4294966295},
             Row{-500, 0, 4294965796},
             Row{-999, 0, 4294965297},
             Row{-1000, 4294967235, 4294966296},
             Row{-1001, 4294967235, 4294966295},
             Row{-59999, 4294967177, 4294965297},
             Row{-60000, 4294967236, 4294966296},
         }) {
        EXPECT_EQ(Date(row.count).GetSeconds(), row.seconds) << row.count;
        EXPECT_EQ(Date(row.count).GetMilliSeconds(), row.milliseconds) << row.count;
    }
}

TEST(Date, SecondsAndMillisecondsFollowTheirFormulasForEveryCount) {
    forManyCounts([](long long count) {
        long long const s = count / 1000;
        long long const second = s - 60 * (count / 60000) - (count < -999 ? 60 : 0);
        long long const millisecond = count - 1000 * s - (count < 0 ? 1000 : 0);
        EXPECT_EQ(Date(count).GetSeconds(), static_cast<unsigned int>(second)) << count;
        EXPECT_EQ(Date(count).GetMilliSeconds(), static_cast<unsigned int>(millisecond)) << count;
    });
}

TEST(Date, DaysBetweenCountAPartOfADayUpwardForEitherSign) {
    struct Row {
        long long difference;
        long long days;
    };
    for (Row const& row : {
             Row{1, 1},
             Row{0, 0},
             Row{-1, 0},
             Row{msPerDay - 1, 1},
             Row{msPerDay, 1},
             Row{msPerDay + 1, 2},
             Row{-msPerDay + 1, 0},
             Row{-msPerDay, -1},
             Row{-msPerDay - 1, -1},
             Row{-2 * msPerDay, -2},
         }) {
        Date const second(1353499200000);
        Date const first(1353499200000 + row.difference);
        EXPECT_EQ(Date::GetNumberOfDaysBetween(first, second), row.days) << row.difference;
    }
}

TEST(Date, WholeDaysBetweenAreExactForTenThousandYears) {
    for (long long days = -3700000; days <= 3700000; ++days)
        ASSERT_EQ(Date::GetNumberOfDaysBetween(Date(days * msPerDay), Date()), days);
}

TEST(Date, DaysBetweenLoseAMillisecondOverVeryLongTimes) {
    constexpr long long days = 104252640;
    EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(days * msPerDay + 1), Date()), days);
    EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(days / 2 * msPerDay + 1), Date()), days / 2 + 1);
}

TEST(Date, DaysBetweenTheEndsOfTheRangeTakeTheDifferenceThatWrappedAround) {
    EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(LLONG_MAX), Date(LLONG_MIN)), 0);
    EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(LLONG_MIN), Date(LLONG_MAX)), 1);
    EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(LLONG_MAX), Date()), 106751991168);
    EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(LLONG_MIN), Date()), -106751991167);
}

TEST(Date, DaysBetweenAreTheProductWithTheNearestDoubleForEveryCount) {
    forManyCounts([](long long count) {
        double const days = std::ceil(static_cast<double>(count) * 1.1574074074074074e-08);
        EXPECT_EQ(Date::GetNumberOfDaysBetween(Date(count), Date()), static_cast<long long>(days))
            << count;
    });
}

}  // namespace
