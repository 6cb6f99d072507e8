// From calendar fields to the count: the C library for 1971 to 2037, our calendar for the rest.
#include "Zones.h"
#include "model/PlainCalendar.h"
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <ctime>
#include <ostream>
#include <random>

namespace {

using qel::Date;
using FieldsToDateInZone = InZone;

struct Fields {
    unsigned int year = 2012;
    unsigned int month = 1;
    unsigned int day = 1;
    unsigned int hour = 0;
    unsigned int minute = 0;
    unsigned int second = 0;
    unsigned int millisecond = 0;
};

std::ostream& operator<<(std::ostream& out, Fields const& f) {
    return out << f.year << ',' << f.month << ',' << f.day << ',' << f.hour << ',' << f.minute
               << ',' << f.second << ',' << f.millisecond;
}

long long countOf(Fields const& f) {
    return Date(f.year, f.month, f.day, f.hour, f.minute, f.second, f.millisecond)
        .GetMillisecondsSinceEpoch();
}

long long farModel(Fields const& f) {
    return model::countFromFields(f.year, f.month, f.day, f.hour, f.minute, f.second,
                                  f.millisecond);
}

long long nearModel(Fields const& f) {
    return model::countFromLocalFields(f.year, f.month, f.day, f.hour, f.minute, f.second,
                                       f.millisecond);
}

constexpr unsigned int negative(int value) {
    return static_cast<unsigned int>(value);
}

TEST(FieldsToDate, FarYearsAreReadAsUtcInEveryZone) {
    EXPECT_EQ(countOf({1970}), 0);
    EXPECT_EQ(countOf({2040}), 2208988800000);
    EXPECT_EQ(countOf({1900}), -2208988800000);
    EXPECT_EQ(countOf({100, 1, 1, 12}), -59011416000000);
    EXPECT_EQ(countOf({2038}), 2145916800000);
    EXPECT_EQ(countOf({1970, 12, 31, 23, 59, 59, 999}), 31535999999);
}

TEST_F(FieldsToDateInZone, TheYears1971And2037AreLocal) {
    EXPECT_EQ(countOf({1971}), (31536000LL - zone.on1971_s) * 1000);
    Fields const lastSecond = {2037, 12, 31, 23, 59, 59, 999};
    EXPECT_EQ(countOf(lastSecond), nearModel(lastSecond));
}

TEST_F(FieldsToDateInZone, November2012IsLocal) {
    EXPECT_EQ(countOf({2012, 11, 21, 12}), 1353499200000 - zone.inNovember2012_s * 1000LL);
}

TEST_F(FieldsToDateInZone, DaylightSavingInSummer2012IsTheZones) {
    EXPECT_EQ(countOf({2012, 7, 1, 12}), 1341144000000 - zone.inJuly2012_s * 1000LL);
}

TEST(FieldsToDate, NearYearsFollowTheCLibraryForFieldsInAndOutOfRange) {
    std::mt19937 engine(1971);
    auto const random = [&engine] { return static_cast<unsigned int>(engine()); };
    auto const below = [&random](unsigned int bound) { return random() % bound; };
    for (int i = 0; i < 20000; ++i) {
        Fields const usual = {1971 + below(67), 1 + below(12), 1 + below(31), below(24),
                              below(60),        below(60),     below(1000)};
        ASSERT_EQ(countOf(usual), nearModel(usual)) << usual;
        Fields const odd = {1971 + below(67), below(40),     below(500), below(2000),
                            below(100000),    below(100000), random()};
        ASSERT_EQ(countOf(odd), nearModel(odd)) << odd;
    }
}

TEST(FieldsToDate, NearYearsStoreHugeFieldsAsSignedOnes) {
    for (Fields const& fields : {
             Fields{2012, 2, 1, 0, 0, negative(-1)},
             Fields{2012, 2, negative(-30)},
             Fields{2012, negative(-11)},
             Fields{2012, INT_MAX},
             Fields{2012, 0x80000000U},
             Fields{2012, 0x80000001U},
             Fields{2037, UINT_MAX, UINT_MAX, UINT_MAX, UINT_MAX, UINT_MAX, UINT_MAX},
         })
        EXPECT_EQ(countOf(fields), nearModel(fields)) << fields;
    EXPECT_EQ(countOf({2012, 2, 1, 0, 0, negative(-1)}), countOf({2012, 1, 31, 23, 59, 59}));
}

TEST(FieldsToDate, NearYearsCarryADayOutOfTheMonth) {
    EXPECT_EQ(Date(2012, 2, 30, 12, 0, 0, 0), Date(2012, 3, 1, 12, 0, 0, 0));
    EXPECT_EQ(Date(2012, 4, 31, 12, 0, 0, 0), Date(2012, 5, 1, 12, 0, 0, 0));
    EXPECT_EQ(Date(2012, 5, 1, 24, 0, 0, 0), Date(2012, 5, 2, 0, 0, 0, 0));
    EXPECT_EQ(Date(2012, 0, 5, 12, 0, 0, 0), Date(2011, 12, 5, 12, 0, 0, 0));
}

TEST(FieldsToDate, ANearYearCarriedBeforeTheEpochIsTheEpochWithoutMilliseconds) {
    EXPECT_EQ(countOf({1971, 1, negative(-400), 0, 0, 0, 999}), 0);
    EXPECT_EQ(countOf({1971, 0x80000001U, 1, 0, 0, 0, 999}), 0);
}

TEST(FieldsToDate, NearYearsCarriedToTheSecondsAroundTheEpochAreCutOffThere) {
    for (int second = -30 * 3600; second <= 30 * 3600; ++second) {
        Fields const fields = {1971, 1, negative(-364), 0, 0, negative(second), 999};
        ASSERT_EQ(countOf(fields), nearModel(fields)) << fields;
    }
}

TEST(FieldsToDate, MillisecondsAreNotLimited) {
    EXPECT_EQ(countOf({2012, 1, 1, 0, 0, 0, 1500}), countOf({2012, 1, 1, 0, 0, 1, 500}));
    EXPECT_EQ(countOf({2012, 1, 1, 0, 0, 0, UINT_MAX}), countOf({2012}) + UINT_MAX);
    EXPECT_EQ(countOf({2040, 1, 1, 0, 0, 0, UINT_MAX}), 2208988800000 + UINT_MAX);
}

TEST(FieldsToDate, FarYearsAgreeWithTheCivilCalendarOnEveryDayOfTenThousandYears) {
    using namespace std::chrono;
    sys_days const end = year(10000) / January / 1;
    for (sys_days day = year(1) / January / 1; day < end; day += days(1)) {
        year_month_day const civil(day);
        int const fullYear = static_cast<int>(civil.year());
        if (fullYear >= 1971 && fullYear <= 2037)
            continue;
        Fields const fields = {static_cast<unsigned int>(fullYear),
                               static_cast<unsigned int>(civil.month()),
                               static_cast<unsigned int>(civil.day()),
                               23,
                               58,
                               57,
                               456};
        ASSERT_EQ(countOf(fields), day.time_since_epoch().count() * 86400000LL + 86337456)
            << fields;
    }
}

TEST(FieldsToDate, FarYearsCarryDaysAndAFewMonths) {
    EXPECT_EQ(countOf({2040, 2, 30}), countOf({2040, 3, 1}));
    EXPECT_EQ(countOf({2041, 2, 30}), countOf({2041, 3, 2}));
    EXPECT_EQ(countOf({2040, 3, 0}), countOf({2040, 2, 29}));
    EXPECT_EQ(countOf({2040, 0, 31}), countOf({2039, 12, 31}));
    EXPECT_EQ(countOf({2040, 13, 31}), countOf({2041, 1, 31}));
    EXPECT_EQ(countOf({2040, 14, 28}), countOf({2041, 2, 28}));
    EXPECT_EQ(countOf({2040, 1, 1, 25, 61, 61}), countOf({2040, 1, 2, 2, 2, 1}));
}

TEST(FieldsToDate, AMonthOf15InAFarYearGivesAMeaninglessDate) {
    EXPECT_EQ(countOf({2100, 15, 1}), farModel({2100, 15, 1}));
    EXPECT_LT(countOf({2100, 15, 1}), countOf({2100, 14, 1}));
}

TEST(FieldsToDate, FarYearsTakeTheSecondsOfTheDayModulo32Bits) {
    EXPECT_EQ(countOf({2040, 1, 1, 2000000}), 2208988800000 + (7200000000 - 4294967296) * 1000);
    EXPECT_EQ(countOf({2040, 1, 1, 0, 0, UINT_MAX}), 2208988800000 + 4294967295000);
}

TEST(FieldsToDate, FarYearsFollowThePlainStepsForEveryBitPattern) {
    std::mt19937 engine(2038);
    auto const random = [&engine] { return static_cast<unsigned int>(engine()); };
    for (int i = 0; i < 200000; ++i) {
        Fields const fields = {random(), random() % 20, random(), random(),
                               random(), random(),      random()};
        if (fields.year >= 1971 && fields.year <= 2037)
            continue;
        ASSERT_EQ(countOf(fields), farModel(fields)) << fields;
        Fields const small = {random() % 12000 + 2038, random(), random() % 40, random() % 30};
        ASSERT_EQ(countOf(small), farModel(small)) << small;
    }
}

}  // namespace
