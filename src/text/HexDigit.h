// Hexadecimal digits, read and written; for tables that are made while compiling as well.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

namespace qel::internal {

inline constexpr std::string_view lowerCaseHexDigits = "0123456789abcdef";
inline constexpr std::string_view upperCaseHexDigits = "0123456789ABCDEF";

inline constexpr auto hexDigitValues = [] {
    std::array<std::int8_t, 256> values = {};
    values.fill(-1);
    for (std::int8_t value = 0; value < 16; ++value) {
        for (std::string_view const digits : {lowerCaseHexDigits, upperCaseHexDigits})
            values[static_cast<unsigned char>(digits[static_cast<std::size_t>(value)])] = value;
    }
    return values;
}();

/// 0 to 15, -1 for what is no digit.
constexpr int hexDigitValue(char c) noexcept {
    return hexDigitValues[static_cast<unsigned char>(c)];
}

/// The byte that two digits write, 0 to 255; -1 if either is no digit.
constexpr int hexPairValue(char high, char low) noexcept {
    int const highValue = hexDigitValue(high);
    int const lowValue = hexDigitValue(low);
    return (highValue | lowValue) < 0 ? -1 : highValue * 16 + lowValue;
}

/// How many digits a number has without leading zeros; 1 for zero.
constexpr std::size_t hexLength(std::uint32_t value) noexcept {
    return (static_cast<std::size_t>(std::bit_width(value | 1)) + 3) / 4;
}

/// Writes the last `length` digits of a number.
constexpr void writeHex(std::uint32_t value, char* out, std::size_t length,
                        std::string_view digits) noexcept {
    for (; length > 0; value /= 16)
        out[--length] = digits[value % 16];
}

}  // namespace qel::internal
