// The calendar of far dates: against the standard library's civil calendar where that is right,
// against the plain steps everywhere, and by value where truncation departs from the calendar.
#include "time/CivilCalendar.h"
#include "model/PlainCalendar.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <ostream>
#include <random>
#include <tuple>

namespace {

constexpr long long secondsPerDay = 86400;
constexpr int julianDayOfEpoch = 2440588;

constexpr unsigned int negative(int value) {
    return static_cast<unsigned int>(value);
}

auto listOf(std::tm const& f) {
    return std::tuple(f.tm_year + 1900LL, f.tm_mon + 1LL, f.tm_mday, f.tm_hour, f.tm_min, f.tm_sec,
                      f.tm_wday, f.tm_yday, f.tm_isdst);
}

TEST(CivilCalendar, AgreesWithTheCivilCalendarOnEveryDayOfTenThousandYears) {
    using namespace std::chrono;
    sys_days const end = year(10000) / January / 1;
    for (sys_days day = year(1) / January / 1; day < end; day += days(1)) {
        year_month_day const civil(day);
        int const julianDay = static_cast<int>(day.time_since_epoch().count()) + julianDayOfEpoch;
        int const fullYear = static_cast<int>(civil.year());
        auto const month = static_cast<unsigned int>(civil.month());
        auto const dayOfMonth = static_cast<unsigned int>(civil.day());
        ASSERT_EQ(
            qel::internal::julianDayNumber(static_cast<unsigned int>(fullYear), month, dayOfMonth),
            julianDay);
        std::tm const fields = qel::internal::breakDownCivilTime(julianDay * secondsPerDay + 45296);
        auto const weekday = static_cast<int>(std::chrono::weekday(day).c_encoding());
        ASSERT_EQ(listOf(fields), std::tuple(fullYear, month, static_cast<int>(dayOfMonth), 12, 34,
                                             56, weekday, -1, -1))
            << julianDay;
    }
}

TEST(CivilCalendar, BreaksEverySecondOfADayDown) {
    for (int second = 0; second < secondsPerDay; ++second) {
        std::tm const fields =
            qel::internal::breakDownCivilTime(julianDayOfEpoch * secondsPerDay + second);
        ASSERT_EQ(fields.tm_hour * 3600 + fields.tm_min * 60 + fields.tm_sec, second);
        ASSERT_TRUE(fields.tm_min < 60 && fields.tm_sec < 60) << second;
        ASSERT_EQ(fields.tm_mday, 1) << second;
    }
}

TEST(CivilCalendar, FollowsThePlainStepsForEveryNumber) {
    std::mt19937_64 random(4713);
    for (int i = 0; i < 500000; ++i) {
        // As far as counts of milliseconds reach, and of every magnitude.
        long long const seconds = static_cast<long long>(random()) / 1000 >> (random() % 40);
        ASSERT_EQ(listOf(qel::internal::breakDownCivilTime(seconds)),
                  listOf(model::breakDown(seconds)))
            << seconds;
        auto const year = static_cast<unsigned int>(random());
        auto const month = static_cast<unsigned int>(random() % 20);
        auto const day = static_cast<unsigned int>(random());
        ASSERT_EQ(qel::internal::julianDayNumber(year, month, day),
                  model::julianDayNumber(year, month, day))
            << year << ' ' << month << ' ' << day;
    }
}

struct NumberedDay {
    unsigned int year;
    unsigned int month;
    unsigned int day;
    int number;
};

class NumberOfFarDay : public testing::TestWithParam<NumberedDay> {};

TEST_P(NumberOfFarDay, IsThisOne) {
    NumberedDay const& row = GetParam();
    EXPECT_EQ(qel::internal::julianDayNumber(row.year, row.month, row.day), row.number);
}

// Years below zero are those before 1 BC: right back to March of 4801 BC, as the calendar has it.
INSTANTIATE_TEST_SUITE_P(RightYearsBeforeChrist, NumberOfFarDay,
                         testing::Values(NumberedDay{0, 1, 1, 1721060},
                                         NumberedDay{0, 12, 31, 1721425},
                                         NumberedDay{negative(-1), 3, 1, 1720754},
                                         NumberedDay{negative(-4713), 11, 24, 0},
                                         NumberedDay{negative(-4800), 3, 1, -32044}));
// Truncation drops a leap day there: 29 February 4801 BC has the number of the day after it.
INSTANTIATE_TEST_SUITE_P(YearsBefore4801BcDepartFromTheCalendar, NumberOfFarDay,
                         testing::Values(NumberedDay{negative(-4800), 2, 29, -32044},
                                         NumberedDay{negative(-4801), 3, 1, -32409},
                                         NumberedDay{negative(-4801), 2, 28, -32410},
                                         NumberedDay{negative(-4803), 3, 1, -33139},
                                         NumberedDay{negative(-5000), 7, 1, -104970}));
INSTANTIATE_TEST_SUITE_P(
    OddMonthsAndDays, NumberOfFarDay,
    testing::Values(NumberedDay{2000, 0, 31, 2451544}, NumberedDay{2000, 13, 1, 2451911},
                    NumberedDay{2000, 14, 1, 2451942}, NumberedDay{2000, 15, 1, -1873911865},
                    NumberedDay{2000, UINT_MAX, 1, 2451484}, NumberedDay{2100, 1, 0, 2488069},
                    NumberedDay{2100, 1, UINT_MAX, 2488068}));
INSTANTIATE_TEST_SUITE_P(HugeYearsWrapAround, NumberOfFarDay,
                         testing::Values(NumberedDay{2147478847, 12, 31, -1626750968},
                                         NumberedDay{2147478848, 3, 1, 1626686819},
                                         NumberedDay{2147483648, 1, 1, 1628439924},
                                         NumberedDay{2400000000, 6, 15, -631136728}));

struct BrokenDown {
    long long seconds;
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
    int dayOfWeek;
};

/// GoogleTest's own way prints every byte, those that are set by nobody too.
void PrintTo(BrokenDown const& row, std::ostream* out) {
    *out << row.seconds;
}

class BreakdownOfFarTime : public testing::TestWithParam<BrokenDown> {};

TEST_P(BreakdownOfFarTime, IsThisOne) {
    BrokenDown const& row = GetParam();
    EXPECT_EQ(listOf(qel::internal::breakDownCivilTime(row.seconds)),
              std::tuple(row.year, row.month, row.day, row.hour, row.minute, row.second,
                         row.dayOfWeek, -1, -1));
}

// Before day 0 the day is the one that begins after the instant, and the time of day is negative.
INSTANTIATE_TEST_SUITE_P(AroundDayZero, BreakdownOfFarTime,
                         testing::Values(BrokenDown{43200, -4713, 11, 24, 12, 0, 0, 1},
                                         BrokenDown{0, -4713, 11, 24, 0, 0, 0, 1},
                                         BrokenDown{-1, -4713, 11, 24, 0, 0, -1, 1},
                                         BrokenDown{-3600, -4713, 11, 24, -1, 0, 0, 1},
                                         BrokenDown{-86399, -4713, 11, 24, -23, -59, -59, 1},
                                         BrokenDown{-86400, -4713, 11, 23, 0, 0, 0, 0},
                                         BrokenDown{-86401, -4713, 11, 23, 0, 0, -1, 0}));
// The last day that has a date of the calendar is 1 March 4801 BC; before it days are 0 and less.
INSTANTIATE_TEST_SUITE_P(
    BeforeMarch4801BcDepartsFromTheCalendar, BreakdownOfFarTime,
    testing::Values(BrokenDown{-32044 * secondsPerDay, -4800, 3, 1, 0, 0, 0, -4},
                    BrokenDown{-32045 * secondsPerDay, -4800, 3, 0, 0, 0, 0, -5},
                    BrokenDown{-32045 * secondsPerDay - 1, -4800, 3, 0, 0, 0, -1, -5},
                    BrokenDown{-2768817600, -4800, 3, -1, -12, 0, 0, -6},
                    BrokenDown{-68569 * secondsPerDay, -4900, 3, 0, 0, 0, 0, -3},
                    BrokenDown{-10000000 * secondsPerDay, -32091, -1, 0, 0, 0, 0, -2}));
// Four times the day number leaves 32 bits first, then the day number itself.
INSTANTIATE_TEST_SUITE_P(
    FarDaysWrapAround, BreakdownOfFarTime,
    testing::Values(BrokenDown{46382878108800, 1465102, 10, 18, 0, 0, 0, 6},
                    BrokenDown{46382878195200, -772911, -1403577, 858993486, 0, 0, 0, 0},
                    BrokenDown{185539818499200, 1398784, -2807165, 1717986944, 0, 0, 0, 4},
                    BrokenDown{185539818585600, -1408384, 2807171, -1717986944, 0, 0, 0, 5},
                    BrokenDown{185542587100800, -1408296, 2807167, -1717986922, 0, 0, 0, -2},
                    BrokenDown{185542587187200, -1408296, 2807167, -1717986921, 0, 0, 0, -1},
                    BrokenDown{LLONG_MAX / 1000 + 210866803200, 536482, 1403579, -858993461, 7, 12,
                               55, -2},
                    BrokenDown{LLONG_MIN / 1000 + 210866803200, -532542, -1403577, 858993465, -7,
                               -12, -55, 3}));

}  // namespace
