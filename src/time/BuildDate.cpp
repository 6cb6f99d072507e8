// The text that the compiler's __DATE__ gives, "Nov 21 2012", to day-month-year text and back.
#include "qel/Date.h"

#include "DateFields.h"
#include "qel/CharFunctions.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace qel {

namespace {

constexpr auto monthNames = std::to_array<std::string_view>(
    {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"});

constexpr unsigned int buildDateLength = 11;

std::string twoDigits(int value) noexcept {
    std::string const digits = CharFunctions::Int2String(value);
    return value <= 9 ? '0' + digits : digits;
}

}  // namespace

std::string Date::DATEMacroToDDMMYYYY(char const* text) noexcept {
    if (text == nullptr || CharFunctions::Length(text) != buildDateLength || text[3] != ' '
        || text[6] != ' ')
        return {};
    std::string_view const whole(text, buildDateLength);
    auto const month = std::find(monthNames.begin(), monthNames.end(), whole.substr(0, 3));
    if (month == monthNames.end())
        return {};
    std::string result(whole.substr(4, 2));
    if (result[0] == ' ')
        result[0] = '0';
    result += twoDigits(static_cast<int>(month - monthNames.begin()) + 1);
    result += whole.substr(7);
    return result;
}

std::string Date::DDMMYYYYToDATEMacro(char const* text) noexcept {
    if (text == nullptr)
        return {};
    // A date that can be read is noon of some day, which is never the epoch.
    Date const noon(text);
    if (noon == Date())
        return {};
    std::tm const fields = internal::ConvertMillisecondsToLocalTime(noon.msSinceEpoch);
    auto const month = static_cast<std::size_t>(fields.tm_mon);
    if (month >= monthNames.size())
        return {};
    std::string result(monthNames[month]);
    result.append(1, ' ').append(twoDigits(fields.tm_mday)).append(1, ' ');
    return result += CharFunctions::Int2String(fields.tm_year + 1900);
}

}  // namespace qel
