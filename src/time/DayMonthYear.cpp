// Reading day-month-year text: "21112012", or ten characters with two slashes or backslashes.
#include "qel/Date.h"

#include "qel/CharFunctions.h"

namespace qel {

namespace {

constexpr unsigned int lengthWithSeparators = 10;
constexpr unsigned int lengthWithout = 8;

constexpr int smallestYear = 100;

/// A text of any other length keeps its separators.
std::string withoutSeparators(char const* text) noexcept {
    if (CharFunctions::Length(text) != lengthWithSeparators)
        return text;
    std::string const withoutSlashes = CharFunctions::RemoveAllOccurence(text, "/");
    return CharFunctions::RemoveAllOccurence(withoutSlashes.c_str(), "\\");
}

/// The fields as numbers, -1 for one that is none.
struct DayMonthYear {
    int day = -1;
    int month = -1;
    int year = -1;

    /// Days of the month are not counted: 31 February is valid.
    [[nodiscard]] bool isValid() const noexcept {
        return day >= 1 && day <= 31 && month >= 1 && month <= 12 && year >= smallestYear;
    }
};

int readField(std::string const& field) noexcept {
    return CharFunctions::IsUnsignedInt(field.c_str()) ? CharFunctions::GetIntValue(field.c_str())
                                                       : -1;
}

DayMonthYear read(char const* text) noexcept {
    std::string const working = withoutSeparators(text);
    if (working.length() != lengthWithout)
        return {};
    return {readField(working.substr(0, 2)), readField(working.substr(2, 2)),
            readField(working.substr(4, 4))};
}

}  // namespace

int Date::GetDay(char const* text) noexcept {
    return read(text).day;
}

int Date::GetMonth(char const* text) noexcept {
    return read(text).month;
}

int Date::GetYear(char const* text) noexcept {
    return read(text).year;
}

bool Date::IsValidDate(char const* text) noexcept {
    return read(text).isValid();
}

Date::Date(char const* text) noexcept {
    DayMonthYear const fields = read(text);
    if (fields.isValid())
        *this =
            Date(static_cast<unsigned int>(fields.year), static_cast<unsigned int>(fields.month),
                 static_cast<unsigned int>(fields.day), 12, 0, 0, 0);
}

}  // namespace qel
