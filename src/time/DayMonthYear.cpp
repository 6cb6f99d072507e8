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

int readField(char const* text, unsigned int start, unsigned int count) noexcept {
    std::string const working = withoutSeparators(text);
    if (working.length() != lengthWithout)
        return -1;
    std::string const field = CharFunctions::SubStr(working.c_str(), start, count);
    bool const isReadable = CharFunctions::IsUnsignedInt(field.c_str());
    return isReadable ? CharFunctions::GetIntValue(field.c_str()) : -1;
}

}  // namespace

int Date::GetDay(char const* text) noexcept {
    return readField(text, 0, 2);
}

int Date::GetMonth(char const* text) noexcept {
    return readField(text, 2, 2);
}

int Date::GetYear(char const* text) noexcept {
    return readField(text, 4, 4);
}

bool Date::IsValidDate(char const* text) noexcept {
    int const day = GetDay(text);
    int const month = GetMonth(text);
    return day >= 1 && day <= 31 && month >= 1 && month <= 12 && GetYear(text) >= smallestYear;
}

Date::Date(char const* text) noexcept {
    if (!IsValidDate(text))
        return;
    *this =
        Date(static_cast<unsigned int>(GetYear(text)), static_cast<unsigned int>(GetMonth(text)),
             static_cast<unsigned int>(GetDay(text)), 12, 0, 0, 0);
}

}  // namespace qel
