// Texts of dates as documented, taken literally, each field from its own getter; and day-month-year
// and build-date text, read and written.
#pragma once

#include "PlainDecimal.h"
#include "PlainTextFunctions.h"

#include "qel/Date.h"

#include <climits>
#include <cstdlib>
#include <locale>
#include <sstream>
#include <string>

namespace model {

struct DateTextFlags {
    bool withDate;
    bool withTime;
    bool withSeconds;
    bool withDayName;
    bool compact;
};

inline std::string padded(unsigned int value) {
    return value <= 9 ? '0' + std::to_string(value) : std::to_string(value);
}

inline std::string dateText(qel::Date const& date, DateTextFlags const& f) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    if (f.withDate) {
        if (f.withDayName)
            out << date.GetDayOfWeekName() << (f.compact ? "_" : " - ");
        out << padded(date.GetDay()) << (f.compact ? "-" : "/");
        out << padded(date.GetMonth()) << (f.compact ? "-" : "/");
        out << date.GetYear() << (f.compact ? "_" : " - ");
    }
    if (f.withTime) {
        out << padded(date.GetHours()) << 'h' << padded(date.GetMinutes()) << 'm';
        if (f.withSeconds)
            out << padded(date.GetSeconds()) << 's';
    }
    return out.str();
}

// --- day-month-year text -----------------------------------------------------------------------

struct DayMonthYear {
    int day;
    int month;
    int year;
};

/// -1 for what is no number.
inline int dateField(std::string const& digits) {
    return isWholeNumber(digits, 0, UINT_MAX) ? std::atoi(digits.c_str()) : -1;
}

/// -1 for all three where the text has neither form.
inline DayMonthYear dayMonthYear(std::string const& text) {
    std::string digits;
    for (char const c : text) {
        if (text.size() != 10 || (c != '/' && c != '\\'))
            digits += c;
    }
    if (digits.size() != 8)
        return {-1, -1, -1};
    return {dateField(digits.substr(0, 2)), dateField(digits.substr(2, 2)),
            dateField(digits.substr(4))};
}

inline bool isValidDate(std::string const& text) {
    DayMonthYear const date = dayMonthYear(text);
    return date.day >= 1 && date.day <= 31 && date.month >= 1 && date.month <= 12
           && date.year >= 100;
}

inline qel::Date dateOf(std::string const& text) {
    DayMonthYear const date = dayMonthYear(text);
    return isValidDate(text) ? qel::Date(static_cast<unsigned int>(date.year),
                                         static_cast<unsigned int>(date.month),
                                         static_cast<unsigned int>(date.day), 12, 0, 0, 0)
                             : qel::Date();
}

// --- build-date text ---------------------------------------------------------------------------

inline std::string const monthNames = "JanFebMarAprMayJunJulAugSepOctNovDec";

inline std::string readBuildDate(std::string const& text) {
    if (text.size() != 11 || text[3] != ' ' || text[6] != ' ')
        return "";
    for (unsigned int month = 1; month <= 12; ++month) {
        if (text.substr(0, 3) != monthNames.substr(3 * (month - 1), 3))
            continue;
        std::string day = text.substr(4, 2);
        if (day[0] == ' ')
            day[0] = '0';
        return day + padded(month) + text.substr(7);
    }
    return "";
}

inline std::string writeBuildDate(std::string const& dayMonthYearText) {
    if (!isValidDate(dayMonthYearText))
        return "";
    qel::Date const date = dateOf(dayMonthYearText);
    return monthNames.substr(3 * (date.GetMonth() - 1), 3) + ' ' + padded(date.GetDay()) + ' '
           + std::to_string(date.GetYear());
}

}  // namespace model
