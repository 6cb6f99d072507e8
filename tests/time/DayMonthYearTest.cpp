// Reading day-month-year text.
#include "qel/Date.h"

#include "qel/CharFunctions.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using qel::Date;

struct Row {
    char const* text;
    int day;
    int month;
    int year;
    bool isValid;
};

/// GoogleTest's own way prints every byte, those that are set by nobody too.
void PrintTo(Row const& row, std::ostream* out) {
    *out << row.text;
}

class DayMonthYear : public testing::TestWithParam<Row> {};

TEST_P(DayMonthYear, ReadsTheFieldsAndJudgesThem) {
    Row const& row = GetParam();
    SCOPED_TRACE(row.text);
    EXPECT_EQ(Date::GetDay(row.text), row.day);
    EXPECT_EQ(Date::GetMonth(row.text), row.month);
    EXPECT_EQ(Date::GetYear(row.text), row.year);
    EXPECT_EQ(Date::IsValidDate(row.text), row.isValid);
}

INSTANTIATE_TEST_SUITE_P(EightCharactersOrTenWithTwoSlashesOfEitherKind, DayMonthYear,
                         testing::Values(Row{"21112012", 21, 11, 2012, true},
                                         Row{"21/11/2012", 21, 11, 2012, true},
                                         Row{"21\\11\\2012", 21, 11, 2012, true},
                                         Row{"21/11\\2012", 21, 11, 2012, true}));
INSTANTIATE_TEST_SUITE_P(TheSlashesMayStandAnywhere, DayMonthYear,
                         testing::Values(Row{"//21112012", 21, 11, 2012, true},
                                         Row{"21112012\\\\", 21, 11, 2012, true},
                                         Row{"2/1112/012", 21, 11, 2012, true}));
INSTANTIATE_TEST_SUITE_P(
    OtherSeparatorsAndLengthsAreRefused, DayMonthYear,
    testing::Values(Row{"21-11-2012", -1, -1, -1, false}, Row{"1/11/2012", -1, -1, -1, false},
                    Row{"", -1, -1, -1, false}, Row{"2111201", -1, -1, -1, false},
                    Row{"211120123", -1, -1, -1, false}, Row{"2111/2012", -1, -1, -1, false},
                    Row{"/21/11/2012", -1, -1, -1, false}, Row{"2111201234", -1, -1, -1, false},
                    Row{"///1112012", -1, -1, -1, false}, Row{"/211112012", -1, -1, -1, false},
                    Row{"21/11/20123", -1, -1, -1, false}));
INSTANTIATE_TEST_SUITE_P(EightCharactersAreReadByPositionSlashesIncluded, DayMonthYear,
                         testing::Values(Row{"21/11/12", 21, -1, -1, false},
                                         Row{"21\\11\\12", 21, -1, -1, false}));
INSTANTIATE_TEST_SUITE_P(
    FieldsThatAreNoNumbersAreRefusedOneByOne, DayMonthYear,
    testing::Values(Row{"ab/11/2012", -1, 11, 2012, false}, Row{"21/ab/2012", 21, -1, 2012, false},
                    Row{"21/11/abcd", 21, 11, -1, false}, Row{"2./11/2012", 2, 11, 2012, true},
                    Row{"+5/-0/0x1f", 5, 0, 0, false}, Row{".0/0x/1e2.", 0, 0, 1, false},
                    Row{"5-/-1/-0.0", -1, -1, 0, false}, Row{"1./1e/+.5e", 1, -1, -1, false},
                    Row{"5./11/2012", 5, 11, 2012, true}));
INSTANTIATE_TEST_SUITE_P(
    ValidMeansDay1To31Month1To12AndYearFrom100, DayMonthYear,
    testing::Values(Row{"00/11/2012", 0, 11, 2012, false}, Row{"01/11/2012", 1, 11, 2012, true},
                    Row{"31/11/2012", 31, 11, 2012, true}, Row{"32/11/2012", 32, 11, 2012, false},
                    Row{"21/00/2012", 21, 0, 2012, false}, Row{"21/01/2012", 21, 1, 2012, true},
                    Row{"21/12/2012", 21, 12, 2012, true}, Row{"21/13/2012", 21, 13, 2012, false},
                    Row{"21/11/0099", 21, 11, 99, false}, Row{"21/11/0100", 21, 11, 100, true},
                    Row{"21/11/9999", 21, 11, 9999, true}));
INSTANTIATE_TEST_SUITE_P(TheLengthOfTheMonthIsNotLookedAt, DayMonthYear,
                         testing::Values(Row{"31/02/2012", 31, 2, 2012, true},
                                         Row{"29/02/2011", 29, 2, 2011, true}));

TEST(DayMonthYearField, OfTwoCharactersIsWhatIsUnsignedIntAndGetIntValueReadOfIt) {
    std::string text = "..112012";
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            text[0] = static_cast<char>(first);
            text[1] = static_cast<char>(second);
            std::string const field = text.substr(0, 2);
            int const expected = qel::CharFunctions::IsUnsignedInt(field.c_str())
                                     ? qel::CharFunctions::GetIntValue(field.c_str())
                                     : -1;
            ASSERT_EQ(Date::GetDay(text.c_str()), expected) << field;
        }
    }
}

TEST(DateFromText, IsNoonOfTheDay) {
    EXPECT_EQ(Date("21/11/2012"), Date(2012, 11, 21, 12, 0, 0, 0));
    EXPECT_EQ(Date("21112040").GetMillisecondsSinceEpoch(), 2237112000000);
    EXPECT_EQ(Date("01/01/0100").GetMillisecondsSinceEpoch(), -59011416000000);
}

TEST(DateFromText, AnImpossibleDayIsCarried) {
    EXPECT_EQ(Date("31/02/2012"), Date(2012, 3, 2, 12, 0, 0, 0));
    EXPECT_EQ(Date("31/02/2041"), Date(2041, 3, 3, 12, 0, 0, 0));
}

TEST(DateFromText, TextThatIsNoDateGivesTheEpoch) {
    for (char const* const text : {"", "21-11-2012", "00/11/2012", "21/13/2012", "21/11/0099"})
        EXPECT_EQ(Date(text), Date()) << text;
}

}  // namespace
