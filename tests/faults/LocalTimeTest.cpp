// A conversion to local time that fails leaves fields of zero, but for those that it has written:
// no name is looked up where there is none.
#include "FailingCalls.h"

#include "qel/Date.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

using qel::Date;

constexpr long long noon = 1353499200000;  // 2012-11-21T12:00:00Z

template <typename Operation>
auto withoutLocalTime(Operation operation) {
    faults::failCall(1, EOVERFLOW);
    auto const result = operation();
    EXPECT_EQ(faults::stopCalls(), std::vector<std::string>{"localtime_r"});
    return result;
}

TEST(LocalTimeFails, AndOtherFieldsAreZero) {
    Date const date(noon);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetDay(); }), 0U);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetMonth(); }), 13U);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetYear(); }), 1900U);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetHours(); }), 0U);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetMinutes(); }), 0U);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetDayOfWeek(); }), 0U);
}

TEST(LocalTimeFails, AndTextsHoldWhatIsThere) {
    Date const date(noon);
    EXPECT_EQ(withoutLocalTime([&] { return date.GetDayOfWeekName(); }), "Sun");
    EXPECT_EQ(withoutLocalTime([&] { return date.GetDDMMYYYY("/"); }), "00/13/1900");
    EXPECT_EQ(withoutLocalTime([&] { return date.ConvertToString(true, true, false, true, true); }),
              "Sun_00-13-1900_00h00m");
}

TEST(LocalTimeFails, AndAMonthWithoutANameGivesTheEmptyText) {
    EXPECT_EQ(withoutLocalTime([] { return Date::DDMMYYYYToDATEMacro("21/11/2012"); }), "");
}

}  // namespace
