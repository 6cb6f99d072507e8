// A date written as text, from one breakdown of the date.
#include "qel/Date.h"

#include "DateFields.h"

#include <array>
#include <charconv>

namespace qel {

namespace {

constexpr auto dayNames =
    std::to_array<char const*>({"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"});

/// The day of the week counts as unsigned, so that a negative one has a name too.
char const* dayName(std::tm const& fields) noexcept {
    return dayNames[static_cast<unsigned int>(fields.tm_wday) % dayNames.size()];
}

void appendNumber(std::string& text, unsigned int value) {
    std::array<char, 10> digits;
    text.append(digits.data(), std::to_chars(digits.data(), digits.end(), value).ptr);
}

/// Fields are written as unsigned numbers; in far dates they are negative and so have ten digits.
void appendField(std::string& text, int field) {
    auto const value = static_cast<unsigned int>(field);
    if (value <= 9)
        text += '0';
    appendNumber(text, value);
}

void appendYear(std::string& text, std::tm const& fields) {
    appendNumber(text, static_cast<unsigned int>(fields.tm_year + 1900));
}

void appendDate(std::string& text, std::tm const& fields, bool withDayName, bool compact) {
    char const separator = compact ? '-' : '/';
    char const* const groupEnd = compact ? "_" : " - ";
    if (withDayName)
        text.append(dayName(fields)).append(groupEnd);
    appendField(text, fields.tm_mday);
    text += separator;
    appendField(text, fields.tm_mon + 1);
    text += separator;
    appendYear(text, fields);
    text += groupEnd;
}

/// Enough for a date of ordinary fields, so that the text grows once.
constexpr std::size_t usualLength = 31;

}  // namespace

std::string Date::GetDayOfWeekName() const noexcept {
    return dayName(internal::ConvertMillisecondsToLocalTime(msSinceEpoch));
}

std::string Date::ConvertToString(bool withDate, bool withTime, bool withSeconds, bool withDayName,
                                  bool compact) const noexcept {
    std::string text;
    if (!withDate && !withTime)
        return text;
    std::tm const fields = internal::ConvertMillisecondsToLocalTime(msSinceEpoch);
    text.reserve(usualLength);
    if (withDate)
        appendDate(text, fields, withDayName, compact);
    if (withTime) {
        appendField(text, fields.tm_hour);
        text += 'h';
        appendField(text, fields.tm_min);
        text += 'm';
        if (withSeconds) {
            appendField(text, static_cast<int>(GetSeconds()));
            text += 's';
        }
    }
    return text;
}

std::string Date::GetDDMMYYYY(char const* separator) const noexcept {
    std::tm const fields = internal::ConvertMillisecondsToLocalTime(msSinceEpoch);
    std::string text;
    appendField(text, fields.tm_mday);
    if (separator == nullptr)
        return text;
    text += separator;
    appendField(text, fields.tm_mon + 1);
    text += separator;
    appendYear(text, fields);
    return text;
}

}  // namespace qel
