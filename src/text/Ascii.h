// Digits, letters and case by plain ASCII ranges, for loops over many bytes.
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

}  // namespace qel::internal
