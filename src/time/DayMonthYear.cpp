// Reading day-month-year text: "21112012", or ten characters with two slashes or backslashes.
#include "qel/Date.h"

#include "qel/CharFunctions.h"

#include <array>
#include <charconv>
#include <cstring>
#include <optional>
#include <string_view>

#include <string.h>

namespace qel {

namespace {

constexpr std::size_t lengthWithSeparators = 10;
constexpr std::size_t lengthWithout = 8;

constexpr int smallestYear = 100;

using Characters = std::array<char, lengthWithout>;

bool isSeparator(char c) noexcept {
    return c == '/' || c == '\\';
}

/// The eight characters of the fields; nothing for any other number of them. A text of eight keeps
/// what separators it has.
std::optional<Characters> charactersOf(char const* text) noexcept {
    std::size_t const length = strnlen(text, lengthWithSeparators + 1);
    if (length != lengthWithout && length != lengthWithSeparators)
        return {};
    Characters characters = {};
    std::size_t count = 0;
    for (char const c : std::string_view(text, length)) {
        if (length == lengthWithSeparators && isSeparator(c))
            continue;
        if (count == characters.size())
            return {};
        characters[count++] = c;
    }
    return count == characters.size() ? std::optional(characters) : std::nullopt;
}

/// A field of at most four characters.
struct Place {
    std::size_t begin;
    std::size_t length;
};

constexpr Place dayPlace = {0, 2};
constexpr Place monthPlace = {2, 2};
constexpr Place yearPlace = {4, 4};

/// The number that the C library's atoi reads; -1 for what is no whole number from 0 on. Such a
/// field has a minus sign only in front of a zero.
int readField(Characters const& characters, Place place) noexcept {
    std::array<char, 5> field = {};
    std::memcpy(field.data(), characters.data() + place.begin, place.length);
    if (!CharFunctions::IsUnsignedInt(field.data()))
        return -1;
    int value = 0;
    std::from_chars(field.data() + (field.front() == '+' ? 1 : 0), field.end(), value);
    return value;
}

int readField(char const* text, Place place) noexcept {
    std::optional<Characters> const characters = charactersOf(text);
    return characters ? readField(*characters, place) : -1;
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
    std::optional<Characters> const characters = charactersOf(text);
    if (!characters)
        return {};
    return {readField(*characters, dayPlace), readField(*characters, monthPlace),
            readField(*characters, yearPlace)};
}

}  // namespace

int Date::GetDay(char const* text) noexcept {
    return readField(text, dayPlace);
}

int Date::GetMonth(char const* text) noexcept {
    return readField(text, monthPlace);
}

int Date::GetYear(char const* text) noexcept {
    return readField(text, yearPlace);
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
