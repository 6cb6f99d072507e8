// What a hexadecimal digit is, for tables that are made while compiling as well.
#pragma once

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

}  // namespace qel::internal
