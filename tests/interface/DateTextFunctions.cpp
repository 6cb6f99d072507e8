// Texts of dates, written and read.
#include "DateFunctions.h"
#include "Dates.h"
#include "Expectations.h"
#include "model/PlainDateText.h"

#include "qel/Date.h"

namespace interface_test {

namespace {

using qel::Date;

char const* const none = nullptr;

/// "Sun" to "Sat"; a day of the week below zero counts as unsigned.
std::string dayName(Date const& date) {
    return std::string("SunMonTueWedThuFriSat").substr(3 * (date.GetDayOfWeek() % 7), 3);
}

template <typename Call, typename Model>
void forEachDateText(Results& results, Call call, Model model) {
    for (std::string const& text : dateTexts())
        expectResult(results, call(text.c_str()), model(text), text);
}

void writeWithAllFlags(Results& results) {
    for (long long const count : extremeCounts()) {
        Date const date(count);
        for (unsigned int bits = 0; bits < 32; ++bits) {
            auto const flag = [bits](unsigned int i) { return (bits >> i & 1) != 0; };
            expectResult(results, date.ConvertToString(flag(0), flag(1), flag(2), flag(3), flag(4)),
                         model::dateText(date, {flag(0), flag(1), flag(2), flag(3), flag(4)}),
                         count, bits);
        }
    }
}

std::string dayMonthYear(Date const& date, std::string const& separator) {
    return model::padded(date.GetDay()) + separator + model::padded(date.GetMonth()) + separator
           + std::to_string(date.GetYear());
}

void writeWithSeparators(Results& results) {
    for (long long const count : extremeCounts()) {
        Date const date(count);
        for (std::string const& separator : texts())
            expectResult(results, date.GetDDMMYYYY(separator.c_str()),
                         dayMonthYear(date, separator), count, separator);
        expectResult(results, date.GetDDMMYYYY(nullptr), model::padded(date.GetDay()), count, none);
    }
}

std::vector<Function> readingFunctions() {
    return {
        {"Date::GetDay(char const*)",
         [](Results& results) {
             forEachDateText(
                 results, [](char const* text) { return Date::GetDay(text); },
                 [](std::string const& text) { return model::dayMonthYear(text).day; });
         }},
        {"Date::GetMonth(char const*)",
         [](Results& results) {
             forEachDateText(
                 results, [](char const* text) { return Date::GetMonth(text); },
                 [](std::string const& text) { return model::dayMonthYear(text).month; });
         }},
        {"Date::GetYear(char const*)",
         [](Results& results) {
             forEachDateText(
                 results, [](char const* text) { return Date::GetYear(text); },
                 [](std::string const& text) { return model::dayMonthYear(text).year; });
         },
         // "1.e1" and the like.
         {State::roundingMode}},
        {"Date::IsValidDate(char const*)",
         [](Results& results) { forEachDateText(results, Date::IsValidDate, model::isValidDate); }},
    };
}

}  // namespace

std::vector<Function> dateTextFunctions() {
    std::vector<Function> all = {
        {"Date::GetDayOfWeekName()",
         [](Results& results) {
             for (long long const count : extremeCounts())
                 expectResult(results, Date(count).GetDayOfWeekName(), dayName(Date(count)), count);
         },
         {State::timeZone}},
        {"Date::ConvertToString(bool, bool, bool, bool, bool)",
         writeWithAllFlags,
         {State::timeZone}},
        {"Date::GetDDMMYYYY(char const*)", writeWithSeparators, {State::timeZone}},
        {"Date::DATEMacroToDDMMYYYY(char const*)",
         [](Results& results) {
             forEachDateText(results, Date::DATEMacroToDDMMYYYY, model::readBuildDate);
             for (std::string const text :
                  {"Nov 21 2012", "Nov  1 2012", "nov 21 2012", "NOV 21 2012", "Nov xx yyyy",
                   "Nov\xA0"
                   "21\xA0"
                   "2012",
                   "D\xE9"
                   "c 21 2012"})
                 expectResult(results, Date::DATEMacroToDDMMYYYY(text.c_str()),
                              model::readBuildDate(text), text);
             expectResult(results, Date::DATEMacroToDDMMYYYY(nullptr), "", none);
         }},
        {"Date::DDMMYYYYToDATEMacro(char const*)",
         [](Results& results) {
             forEachDateText(results, Date::DDMMYYYYToDATEMacro, model::writeBuildDate);
             expectResult(results, Date::DDMMYYYYToDATEMacro(nullptr), "", none);
         },
         {State::timeZone}},
    };
    std::vector<Function> const reading = readingFunctions();
    all.insert(all.end(), reading.begin(), reading.end());
    return all;
}

}  // namespace interface_test
