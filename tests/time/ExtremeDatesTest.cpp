// Dates at both ends of the 64-bit range and around all powers of two: every getter and text, and
// arithmetic that wraps around. The calendar is that of the plain steps, in this process's zone.
#include "qel/Date.h"

#include "Zones.h"
#include "model/PlainCalendar.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using qel::Date;
using ExtremeDates = InZone;

/// Counts near both ends, and near every power of two and its negative.
std::vector<long long> extremeCounts() {
    std::vector<long long> counts;
    for (int i = 0; i < 2000; ++i) {
        counts.push_back(LLONG_MAX - i);
        counts.push_back(LLONG_MIN + i);
    }
    for (int i = 0; i < 2000; ++i) {
        counts.push_back(LLONG_MAX - i * 43200000LL * 17);
        counts.push_back(LLONG_MIN + i * 43200000LL * 17);
    }
    for (int bit = 0; bit < 63; ++bit) {
        for (int near = -2; near <= 2; ++near) {
            counts.push_back((1LL << bit) + near);
            counts.push_back(-(1LL << bit) + near);
        }
    }
    return counts;
}

constexpr bool isOfTheLibrary(long long count) {
    return count / 1000 >= 86400 && count / 1000 < 2145916800;
}

std::string number(int field) {
    auto const value = static_cast<unsigned int>(field);
    std::string const digits = std::to_string(value);
    return value <= 9 ? '0' + digits : digits;
}

TEST_F(ExtremeDates, GettersFollowThePlainSteps) {
    for (long long const count : extremeCounts()) {
        if (isOfTheLibrary(count))
            continue;
        Date const date(count);
        std::tm const fields = model::breakDown(count / 1000 + zone.on1971_s + 210866803200);
        auto const pattern = [](int value) { return static_cast<unsigned int>(value); };
        ASSERT_EQ(date.GetYear(), pattern(fields.tm_year) + 1900) << count;
        ASSERT_EQ(date.GetMonth(), pattern(fields.tm_mon) + 1) << count;
        ASSERT_EQ(date.GetDay(), pattern(fields.tm_mday)) << count;
        ASSERT_EQ(date.GetHours(), pattern(fields.tm_hour)) << count;
        ASSERT_EQ(date.GetMinutes(), pattern(fields.tm_min)) << count;
        ASSERT_EQ(date.GetDayOfWeek(), pattern(fields.tm_wday)) << count;
        ASSERT_EQ(date.GetMillisecondsSinceEpoch(), count);
    }
}

TEST_F(ExtremeDates, SecondsAndMillisecondsFollowTheCount) {
    for (long long const count : extremeCounts()) {
        long long const s = count / 1000;
        long long const second = count >= -999 ? s - 60 * (s / 60) : s - 60 * (count / 60000) - 60;
        long long const millisecond = count >= 0 ? count % 1000 : count % 1000 - 1000;
        ASSERT_EQ(Date(count).GetSeconds(), static_cast<unsigned int>(second)) << count;
        ASSERT_EQ(Date(count).GetMilliSeconds(), static_cast<unsigned int>(millisecond)) << count;
    }
}

TEST_F(ExtremeDates, TextsArePutTogetherFromTheFields) {
    static constexpr char const* names[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (long long const count : extremeCounts()) {
        if (isOfTheLibrary(count))
            continue;
        Date const date(count);
        std::tm const f = model::breakDown(count / 1000 + zone.on1971_s + 210866803200);
        std::string const name = names[static_cast<unsigned int>(f.tm_wday) % 7];
        std::string const day = number(f.tm_mday);
        std::string const month = number(static_cast<int>(static_cast<unsigned>(f.tm_mon) + 1));
        std::string const year = std::to_string(static_cast<unsigned int>(f.tm_year) + 1900U);
        std::string const seconds = number(static_cast<int>(date.GetSeconds()));
        ASSERT_EQ(date.ConvertToString(true, true, true, true, false),
                  name + " - " + day + '/' + month + '/' + year + " - " + number(f.tm_hour) + 'h'
                      + number(f.tm_min) + 'm' + seconds + 's')
            << count;
        ASSERT_EQ(date.GetDDMMYYYY("."), day + '.' + month + '.' + year) << count;
        ASSERT_EQ(date.GetDayOfWeekName(), name) << count;
    }
}

TEST_F(ExtremeDates, SumsWrapAround) {
    struct {
        void (Date::*add)(long long);
        std::uint64_t unit;
    } const rows[] = {{&Date::AddSeconds, 1000},
                      {&Date::AddMinutes, 60000},
                      {&Date::AddHours, 3600000},
                      {&Date::AddDays, 86400000}};
    std::vector<long long> const amounts = {
        LLONG_MIN, LLONG_MIN + 1,        LLONG_MIN / 1000, -1,       0,
        1,         LLONG_MAX / 86400000, LLONG_MAX - 1,    LLONG_MAX};
    for (long long const count : {LLONG_MIN, LLONG_MIN + 1, -1LL, 0LL, 1LL, LLONG_MAX}) {
        auto const start = static_cast<std::uint64_t>(count);
        for (long long const amount : amounts) {
            auto const n = static_cast<std::uint64_t>(amount);
            for (auto const& row : rows) {
                Date date(count);
                (date.*row.add)(amount);
                EXPECT_EQ(date.GetMillisecondsSinceEpoch(),
                          static_cast<long long>(start + n * row.unit))
                    << count << ' ' << amount << " of " << row.unit;
            }
            Date sum(count);
            EXPECT_EQ((sum += n).GetMillisecondsSinceEpoch(), static_cast<long long>(start + n));
            EXPECT_EQ((sum -= n).GetMillisecondsSinceEpoch(), count);
        }
    }
}

TEST_F(ExtremeDates, DaysBetweenTheEndsAreThoseOfTheWrappedDifference) {
    Date const last(LLONG_MAX);
    Date const first(LLONG_MIN);
    EXPECT_EQ(Date::GetNumberOfDaysBetween(last, first), 0);  // -1 ms
    EXPECT_EQ(Date::GetNumberOfDaysBetween(first, last), 1);  // 1 ms
    EXPECT_EQ(Date::GetNumberOfDaysBetween(last, Date()), 106751991168);
    EXPECT_EQ(Date::GetNumberOfDaysBetween(first, Date()), -106751991167);
    EXPECT_TRUE(first < last && last > first && first != last && first <= first);
}

TEST_F(ExtremeDates, FieldsOfEveryPatternGiveTheCountOfThePlainSteps) {
    std::vector<unsigned int> const patterns = {0,           1,           99,          4294962495U,
                                                0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFEU, UINT_MAX};
    for (unsigned int const year : patterns) {
        for (unsigned int const month : patterns) {
            for (unsigned int const rest : patterns) {
                Date const date(year, month, rest, rest, rest, rest, rest);
                ASSERT_EQ(date.GetMillisecondsSinceEpoch(),
                          model::countFromFields(year, month, rest, rest, rest, rest, rest))
                    << year << ' ' << month << ' ' << rest;
            }
        }
    }
}

TEST_F(ExtremeDates, NearYearsWithFarFieldsNeverGoBeforeTheEpoch) {
    std::vector<unsigned int> const patterns = {0, 0x7FFFFFFFU, 0x80000000U, UINT_MAX};
    for (unsigned int const year : {1971U, 2037U}) {
        for (unsigned int const far : patterns) {
            for (Date const& date :
                 {Date(year, far, 1, 0, 0, 0, 0), Date(year, 1, far, 0, 0, 0, 0),
                  Date(year, 1, 1, far, 0, 0, 0), Date(year, 1, 1, 0, far, 0, 0),
                  Date(year, 1, 1, 0, 0, far, 0), Date(year, far, far, far, far, far, far)})
                ASSERT_GE(date.GetMillisecondsSinceEpoch(), 0) << year << ' ' << far;
        }
    }
}

}  // namespace
