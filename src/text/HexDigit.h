// Hexadecimal digits, read and written; for tables that are made while compiling as well.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace qel::internal {

/// 0 to 15, -1 for what is no digit.
constexpr int hexDigitValue(char c) noexcept {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

/// The same for every byte, for texts of many digits.
inline constexpr auto hexDigitValues = [] {
    std::array<std::int8_t, 256> values = {};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<std::int8_t>(hexDigitValue(static_cast<char>(i)));
    return values;
}();

/// The byte that two digits write, 0 to 255; -1 if either is no digit.
inline int hexPairValue(char high, char low) noexcept {
    int const highValue = hexDigitValues[static_cast<unsigned char>(high)];
    int const lowValue = hexDigitValues[static_cast<unsigned char>(low)];
    return (highValue | lowValue) < 0 ? -1 : highValue * 16 + lowValue;
}

using HexDigits = std::array<char, 16>;

inline constexpr HexDigits lowerCaseHexDigits = {'0', '1', '2', '3', '4', '5', '6', '7',
                                                 '8', '9', 'a', 'b', 'c', 'd', 'e', 'f'};
inline constexpr HexDigits upperCaseHexDigits = {'0', '1', '2', '3', '4', '5', '6', '7',
                                                 '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};

/// How many digits a number has without leading zeros; 1 for zero.
constexpr std::size_t hexLength(std::uint32_t value) noexcept {
    return (static_cast<std::size_t>(std::bit_width(value | 1)) + 3) / 4;
}

/// Writes the last `length` digits of a number.
constexpr void writeHex(std::uint32_t value, char* out, std::size_t length,
                        HexDigits const& digits) noexcept {
    for (; length > 0; value /= 16)
        out[--length] = digits[value % 16];
}

}  // namespace qel::internal
