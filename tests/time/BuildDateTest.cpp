// The compiler's build-date text, to day-month-year text and back.
#include "Zones.h"
#include "qel/Date.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using qel::Date;
using BuildDateInZone = InZone;

char const* const monthNames[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

TEST(BuildDate, IsReadAsEightDigits) {
    EXPECT_EQ(Date::DATEMacroToDDMMYYYY("Nov 21 2012"), "21112012");
}

TEST(BuildDate, ASpaceBeforeTheDayBecomesAZero) {
    EXPECT_EQ(Date::DATEMacroToDDMMYYYY("Nov  1 2012"), "01112012");
}

TEST(BuildDate, EveryMonthIsKnownInBothDirections) {
    for (unsigned int month = 1; month <= 12; ++month) {
        std::string const buildDate = std::string(monthNames[month - 1]) + " 15 2012";
        std::string const digits = std::to_string(15002012 + month * 10000);
        EXPECT_EQ(Date::DATEMacroToDDMMYYYY(buildDate.c_str()), digits);
        EXPECT_EQ(Date::DDMMYYYYToDATEMacro(digits.c_str()), buildDate);
    }
}

TEST(BuildDate, TheCompilersOwnIsRead) {
    std::string const digits = Date::DATEMacroToDDMMYYYY(__DATE__);
    EXPECT_TRUE(Date::IsValidDate(digits.c_str())) << __DATE__;
}

TEST(BuildDate, WhatHasNotTheFormGivesNothing) {
    for (char const* const text : {"", "Nov 21 12", "Nov 21 20123", "Nov-21 2012", "Nov 21-2012",
                                   "nov 21 2012", "NOV 21 2012", "Nvo 21 2012", "    21 2012"})
        EXPECT_EQ(Date::DATEMacroToDDMMYYYY(text), "") << text;
    EXPECT_EQ(Date::DATEMacroToDDMMYYYY(nullptr), "");
}

TEST(BuildDate, DayAndYearAreCopiedUnseen) {
    EXPECT_EQ(Date::DATEMacroToDDMMYYYY("Nov xy abcd"), "xy11abcd");
    EXPECT_EQ(Date::DATEMacroToDDMMYYYY("Nov    2012"), "0 112012");
}

TEST(BuildDate, IsWrittenWithAZeroBeforeTheDay) {
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("21/11/2012"), "Nov 21 2012");
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("01/11/2012"), "Nov 01 2012");
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("09112012"), "Nov 09 2012");
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("10112012"), "Nov 10 2012");
}

TEST(BuildDate, AnImpossibleDayIsCarried) {
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("31/02/2012"), "Mar 02 2012");
}

TEST(BuildDate, TextThatIsNoDateGivesNothing) {
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro(nullptr), "");
    for (char const* const text : {"", "21/11/0099", "21-11-2012", "00/11/2012", "21/13/2012"})
        EXPECT_EQ(Date::DDMMYYYYToDATEMacro(text), "") << text;
}

// Noon in UTC is already the next day where local time was 12 hours ahead or more.
TEST_F(BuildDateInZone, AFarDateIsWrittenAsItIsInTheOffsetOf1971) {
    bool const isNextDay = zone.on1971_s >= 12 * 3600;
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("31/12/2040"), isNextDay ? "Jan 01 2041" : "Dec 31 2040");
    EXPECT_EQ(Date::DDMMYYYYToDATEMacro("15/06/0345"), isNextDay ? "Jun 16 345" : "Jun 15 345");
}

}  // namespace
