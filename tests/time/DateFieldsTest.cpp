// From the count to local calendar fields: the C library within its range, our calendar with the
// offset of 1971 outside it.
#include "time/DateFields.h"
#include "Zones.h"
#include "model/PlainCalendar.h"
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <ctime>
#include <random>
#include <tuple>

namespace {

using qel::Date;
using qel::internal::ConvertMillisecondsToLocalTime;
using DateFieldsInZone = InZone;

constexpr long long libraryBegin = 86400000;     // 1970-01-02
constexpr long long libraryEnd = 2145916800000;  // 2038-01-01

auto listOf(std::tm const& f) {
    return std::tuple(f.tm_year, f.tm_mon, f.tm_mday, f.tm_hour, f.tm_min, f.tm_sec, f.tm_wday,
                      f.tm_yday, f.tm_isdst);
}

auto fieldsOf(long long count) {
    return listOf(ConvertMillisecondsToLocalTime(count));
}

auto libraryFieldsOf(long long count) {
    std::time_t const seconds = static_cast<std::time_t>(count / 1000);
    std::tm fields = {};
    localtime_r(&seconds, &fields);
    return listOf(fields);
}

bool isFromLibrary(long long count) {
    return ConvertMillisecondsToLocalTime(count).tm_yday != -1;
}

/// Through the getters alone.
auto gottenFrom(Date const& date) {
    return std::tuple(date.GetYear(), date.GetMonth(), date.GetDay(), date.GetHours(),
                      date.GetMinutes(), date.GetDayOfWeek());
}

auto gottenFrom(std::tm const& fields) {
    auto const asGotten = [](int field) { return static_cast<unsigned int>(field); };
    return std::tuple(asGotten(fields.tm_year + 1900), asGotten(fields.tm_mon + 1),
                      asGotten(fields.tm_mday), asGotten(fields.tm_hour), asGotten(fields.tm_min),
                      asGotten(fields.tm_wday));
}

/// The same from the standard library's civil calendar, for a local time in seconds.
auto civilFieldsOf(long long local_s) {
    using namespace std::chrono;
    sys_days const day = floor<days>(sys_seconds(seconds(local_s)));
    year_month_day const civil(day);
    auto const second = static_cast<unsigned int>(local_s - day.time_since_epoch().count() * 86400);
    return std::tuple(static_cast<unsigned int>(static_cast<int>(civil.year())),
                      static_cast<unsigned int>(civil.month()),
                      static_cast<unsigned int>(civil.day()), second / 3600, second / 60 % 60,
                      weekday(day).c_encoding());
}

TEST(DateFields, TheCLibraryServesFrom2January1970ToTheEndOf2037) {
    EXPECT_FALSE(isFromLibrary(libraryBegin - 1));
    EXPECT_TRUE(isFromLibrary(libraryBegin));
    EXPECT_TRUE(isFromLibrary(libraryEnd - 1));
    EXPECT_FALSE(isFromLibrary(libraryEnd));
    EXPECT_FALSE(isFromLibrary(-libraryBegin));
}

TEST(DateFields, WithinItsRangeEveryFieldIsTheCLibrarys) {
    std::mt19937_64 random(1970);
    for (int i = 0; i < 50000; ++i) {
        auto const span = static_cast<unsigned long long>(libraryEnd - libraryBegin);
        long long const count = libraryBegin + static_cast<long long>(random() % span);
        ASSERT_EQ(fieldsOf(count), libraryFieldsOf(count)) << count;
    }
}

TEST(DateFields, EachGetterReadsItsOwnFieldOfTheConversion) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 3000; ++i) {
        long long const count = static_cast<long long>(random()) >> (random() % 40);
        ASSERT_EQ(gottenFrom(Date(count)), gottenFrom(ConvertMillisecondsToLocalTime(count)))
            << count;
    }
}

TEST_F(DateFieldsInZone, November2012IsLocal) {
    EXPECT_EQ(gottenFrom(Date(1353499200000)), civilFieldsOf(1353499200 + zone.inNovember2012_s));
}

TEST_F(DateFieldsInZone, July2012HasDaylightSaving) {
    EXPECT_EQ(gottenFrom(Date(1341144000000)), civilFieldsOf(1341144000 + zone.inJuly2012_s));
}

TEST(DateFields, FieldsOfNearYearsComeBackInEveryZone) {
    Date const date(2012, 11, 21, 12, 0, 0, 0);
    EXPECT_EQ(gottenFrom(date), std::tuple(2012U, 11U, 21U, 12U, 0U, 3U));
}

TEST_F(DateFieldsInZone, TheEpochAndItsFirstDayHaveTheOffsetOf1971) {
    EXPECT_EQ(gottenFrom(Date()), civilFieldsOf(zone.on1971_s));
    EXPECT_EQ(gottenFrom(Date(libraryBegin - 1)), civilFieldsOf(86399 + zone.on1971_s));
}

TEST_F(DateFieldsInZone, AFarDateIsBuiltInUtcAndReadBackMovedByTheOffsetOf1971) {
    Date const date(2040, 1, 1, 0, 0, 0, 0);
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), 2208988800000);
    EXPECT_EQ(gottenFrom(date), civilFieldsOf(2208988800 + zone.on1971_s));
    EXPECT_EQ(date.GetDayOfWeek(), zone.on1971_s >= 0 ? 0U : 6U);
    EXPECT_EQ(date.GetDay(), zone.on1971_s >= 0 ? 1U : 31U);
}

TEST_F(DateFieldsInZone, FarSummersHaveNoDaylightSavingOfTheirOwn) {
    EXPECT_EQ(gottenFrom(Date(2040, 7, 1, 12, 0, 0, 0)), civilFieldsOf(2224756800 + zone.on1971_s));
    EXPECT_EQ(gottenFrom(Date(1950, 7, 1, 12, 0, 0, 0)), civilFieldsOf(-615470400 + zone.on1971_s));
}

TEST_F(DateFieldsInZone, ADateLaterIn1970IsBuiltInUtcAndReadBackInLocalTime) {
    Date const date(1970, 6, 1, 12, 0, 0, 0);
    EXPECT_EQ(date.GetMillisecondsSinceEpoch(), 13089600000);
    EXPECT_EQ(gottenFrom(date), civilFieldsOf(13089600 + zone.inJune1970_s));
}

TEST_F(DateFieldsInZone, FarDatesAgreeWithTheCivilCalendarFromYear1To9999) {
    std::mt19937 random(9999);
    long long const firstSecond = -62135596800;  // year 1
    long long const end = 253402300800;          // year 10000
    for (long long s = firstSecond; s < end;
         s += 86400 * 29 + static_cast<long long>(random() % 86400)) {
        bool const isFromCivilCalendar = s < libraryBegin / 1000 || s >= libraryEnd / 1000;
        if (isFromCivilCalendar) {
            ASSERT_EQ(gottenFrom(Date(s * 1000)), civilFieldsOf(s + zone.on1971_s)) << s;
        }
    }
}

TEST_F(DateFieldsInZone, SecondsAreThoseOfTheCountEvenWhereLocalTimeHasOthers) {
    int const localSecond = (zone.on1971_s % 60 + 60) % 60;  // 30 in Monrovia
    EXPECT_EQ(ConvertMillisecondsToLocalTime(0).tm_sec, localSecond);
    EXPECT_EQ(Date().GetSeconds(), 0U);
}

TEST(DateFields, CountsBeforeTheEpochAreTruncatedTowardIt) {
    EXPECT_EQ(fieldsOf(-1), fieldsOf(0));
    EXPECT_EQ(fieldsOf(-999), fieldsOf(0));
    EXPECT_NE(fieldsOf(-1000), fieldsOf(0));
    EXPECT_EQ(fieldsOf(-1999), fieldsOf(-1000));
    EXPECT_EQ(fieldsOf(-86400999), fieldsOf(-86400000));
}

TEST_F(DateFieldsInZone, BeforeJulianDay0TheTimeOfDayIsNegativeAndGottenAsUnsignedPattern) {
    long long const dayZero = -210866803200 - zone.on1971_s;
    EXPECT_EQ(Date(dayZero * 1000).GetHours(), 0U);
    Date const before((dayZero - 3660) * 1000);
    EXPECT_EQ(gottenFrom(before), std::tuple(4294962583U, 11U, 24U, UINT_MAX, UINT_MAX, 1U));
    Date const dayBefore((dayZero - 2 * 86400) * 1000);
    EXPECT_EQ(gottenFrom(dayBefore), std::tuple(4294962583U, 11U, 22U, 0U, 0U, UINT_MAX));
}

TEST_F(DateFieldsInZone, EveryCountFollowsThePlainSteps) {
    std::mt19937_64 random(64);
    auto const check = [this](long long count) {
        long long const s = count / 1000;
        if (s >= libraryBegin / 1000 && s < libraryEnd / 1000)
            return;
        ASSERT_EQ(fieldsOf(count), listOf(model::breakDown(s + zone.on1971_s + 210866803200)))
            << count;
    };
    check(LLONG_MIN);
    check(LLONG_MAX);
    for (int i = 0; i < 20000; ++i)
        check(static_cast<long long>(random()) >> (random() % 40));
}

}  // namespace
