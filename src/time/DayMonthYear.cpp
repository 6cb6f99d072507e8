// Reading day-month-year text: "21112012", or ten characters with two slashes or backslashes.
#include "qel/Date.h"

#include "qel/CharFunctions.h"

#include <charconv>
#include <string>

#include <string.h>

namespace qel {

namespace {

constexpr std::size_t lengthWithSeparators = 10;
constexpr std::size_t lengthWithout = 8;

constexpr std::size_t dayPosition = 0;
constexpr std::size_t monthPosition = 2;
constexpr std::size_t yearPosition = 4;

constexpr int smallestYear = 100;

/// The eight characters of the fields; none where there are more or fewer. A text of eight keeps
/// what slashes it has.
std::string charactersOf(char const* text) noexcept {
    std::string characters(text, strnlen(text, lengthWithSeparators + 1));
    if (characters.length() == lengthWithSeparators)
        std::erase_if(characters, [](char c) { return c == '/' || c == '\\'; });
    if (characters.length() != lengthWithout)
        characters.clear();
    return characters;
}

/// The number that the C library's atoi reads; -1 for what is no whole number from 0 on. Such a
/// field has a minus sign only in front of a zero.
int readField(std::string const& characters, std::size_t position) noexcept {
    if (characters.empty())
        return -1;
    std::string const field(characters, position, position == yearPosition ? 4 : 2);
    char const* const begin = field.data() + (field.front() == '+' ? 1 : 0);
    char const* const end = field.data() + field.length();
    unsigned int value = 0;
    auto const [stop, error] = std::from_chars(begin, end, value);
    bool const isAllDigits = error == std::errc() && stop == end;
    return isAllDigits || CharFunctions::IsUnsignedInt(field.c_str()) ? static_cast<int>(value)
                                                                      : -1;
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

DayMonthYear read(char const* text) noexcept {
    std::string const characters = charactersOf(text);
    return {readField(characters, dayPosition), readField(characters, monthPosition),
            readField(characters, yearPosition)};
}

}  // namespace

int Date::GetDay(char const* text) noexcept {
    return readField(charactersOf(text), dayPosition);
}

int Date::GetMonth(char const* text) noexcept {
    return readField(charactersOf(text), monthPosition);
}

int Date::GetYear(char const* text) noexcept {
    return readField(charactersOf(text), yearPosition);
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
