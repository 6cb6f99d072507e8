// Dates written as text, in local time.
#include "Zones.h"
#include "model/PlainDateText.h"
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>

namespace {

using qel::Date;
using DateTextInZone = InZone;

/// Wednesday.
Date const sample(2012, 11, 21, 9, 5, 7, 0);

using Flags = model::DateTextFlags;

std::string textOf(Date const& date, Flags const& f) {
    return date.ConvertToString(f.withDate, f.withTime, f.withSeconds, f.withDayName, f.compact);
}

TEST(DateText, WritesDateAndTime) {
    EXPECT_EQ(textOf(sample, {true, true, true, true, false}), "Wed - 21/11/2012 - 09h05m07s");
    EXPECT_EQ(textOf(sample, {true, true, true, true, true}), "Wed_21-11-2012_09h05m07s");
    EXPECT_EQ(textOf(sample, {true, true, false, false, false}), "21/11/2012 - 09h05m");
}

TEST(DateText, ADateKeepsItsSeparatorWhenNoTimeFollows) {
    EXPECT_EQ(textOf(sample, {true, false, false, false, false}), "21/11/2012 - ");
    EXPECT_EQ(textOf(sample, {true, false, false, false, true}), "21-11-2012_");
}

TEST(DateText, WritesTheTimeAlone) {
    EXPECT_EQ(textOf(sample, {false, true, true, false, false}), "09h05m07s");
    EXPECT_EQ(textOf(sample, {false, true, true, false, true}), "09h05m07s");
}

TEST(DateText, SecondsNeedTheTimeAndTheDayNameNeedsTheDate) {
    EXPECT_EQ(textOf(sample, {true, false, true, false, false}), "21/11/2012 - ");
    EXPECT_EQ(textOf(sample, {false, true, false, true, false}), "09h05m");
    EXPECT_EQ(textOf(sample, {false, false, true, true, true}), "");
}

TEST(DateText, PutsAZeroBeforeNumbersUpTo9ButNotBeforeTheYear) {
    Date const ninth(2009, 9, 9, 9, 9, 9, 0);
    EXPECT_EQ(textOf(ninth, {true, true, true, false, false}), "09/09/2009 - 09h09m09s");
    Date const tenth(2010, 10, 10, 10, 10, 10, 0);
    EXPECT_EQ(textOf(tenth, {true, true, true, false, false}), "10/10/2010 - 10h10m10s");
}

TEST_F(DateTextInZone, AYearOfThreeDigitsHasThree) {
    Date date(345, 6, 15, 12, 0, 0, 0);
    date.AddSeconds(-zone.on1971_s);
    EXPECT_EQ(textOf(date, {true, false, false, false, true}), "15-06-345_");
    EXPECT_EQ(date.GetDDMMYYYY("/"), "15/06/345");
}

TEST(DateText, EveryCombinationOfFlagsIsTheFieldsInOrder) {
    std::mt19937_64 random(2012);
    for (int i = 0; i < 300; ++i) {
        Date const date(static_cast<long long>(random()) >> (random() % 50));
        for (unsigned int bits = 0; bits < 32; ++bits) {
            Flags const flags = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0,
                                 (bits & 16) != 0};
            ASSERT_EQ(textOf(date, flags), model::dateText(date, flags))
                << date.GetMillisecondsSinceEpoch() << ' ' << bits;
        }
    }
}

TEST(DateText, SecondsBeforeTheEpochAreWrittenAsUnsignedPatterns) {
    std::string const text = textOf(Date(-1000), {false, true, true, false, false});
    EXPECT_EQ(text.substr(text.find('m')), "m4294967235s");
}

TEST(DateText, FieldsBelowZeroOfFarDatesAreWrittenAsUnsignedPatterns) {
    Flags const all = {true, true, true, true, false};
    EXPECT_EQ(textOf(Date(LLONG_MIN), all), model::dateText(Date(LLONG_MIN), all));
    EXPECT_EQ(textOf(Date(LLONG_MAX), all), model::dateText(Date(LLONG_MAX), all));
    EXPECT_GT(textOf(Date(LLONG_MIN), all).size(), 60U);
}

TEST(DateText, NamesTheDaysFromSunday) {
    char const* const names[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (unsigned int day = 0; day < 7; ++day)
        EXPECT_EQ(Date(2012, 11, 18 + day, 12, 0, 0, 0).GetDayOfWeekName(), names[day]);
}

TEST_F(DateTextInZone, ADayOfTheWeekBelowZeroIsNamedByItsUnsignedPatternModulo7) {
    // Local midnight of Julian day -2: the day of the week is -1, and 4294967295 modulo 7 is 3.
    Date const date((-210866803200 - 2 * 86400 - zone.on1971_s) * 1000);
    EXPECT_EQ(date.GetDayOfWeek(), UINT_MAX);
    EXPECT_EQ(date.GetDayOfWeekName(), "Wed");
}

TEST(DateText, DayMonthYearTakesAnySeparator) {
    EXPECT_EQ(sample.GetDDMMYYYY("/"), "21/11/2012");
    EXPECT_EQ(sample.GetDDMMYYYY(""), "21112012");
    EXPECT_EQ(Date(2012, 3, 5, 12, 0, 0, 0).GetDDMMYYYY("."), "05.03.2012");
    EXPECT_EQ(sample.GetDDMMYYYY(" of the month "), "21 of the month 11 of the month 2012");
}

TEST(DateText, ANullSeparatorLeavesTheDayAlone) {
    EXPECT_EQ(sample.GetDDMMYYYY(nullptr), "21");
    EXPECT_EQ(Date(2012, 3, 5, 12, 0, 0, 0).GetDDMMYYYY(nullptr), "05");
}

}  // namespace
