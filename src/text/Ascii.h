// Digits, letters, case and white space by plain ASCII ranges, for loops over many bytes, whatever
// locale an application sets.
#pragma once

namespace qel::internal {

constexpr bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

constexpr bool isLowerCase(char c) noexcept {
    return c >= 'a' && c <= 'z';
}

constexpr bool isUpperCase(char c) noexcept {
    return c >= 'A' && c <= 'Z';
}

constexpr char upperCase(char c) noexcept {
    return isLowerCase(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr char lowerCase(char c) noexcept {
    return isUpperCase(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

/// What the C library's isspace accepts in its "C" locale.
constexpr bool isWhiteSpace(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

}  // namespace qel::internal
