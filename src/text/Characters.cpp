// Single characters: classes, case, hexadecimal digits; and the case of whole strings.
// Plain ASCII ranges, so that an application's locale changes nothing.
#include "qel/CharFunctions.h"

#include "HexDigit.h"

#include <algorithm>

namespace qel {

using namespace internal;

bool CharFunctions::IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

bool CharFunctions::IsLetter(char c) noexcept {
    return IsLowerCase(c) || IsUpperCase(c);
}

bool CharFunctions::IsLetterOrDigit(char c) noexcept {
    return IsLetter(c) || IsDigit(c);
}

bool CharFunctions::IsLowerCase(char c) noexcept {
    return c >= 'a' && c <= 'z';
}

bool CharFunctions::IsUpperCase(char c) noexcept {
    return c >= 'A' && c <= 'Z';
}

char CharFunctions::ToUpperCase(char c) noexcept {
    return IsLowerCase(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

char CharFunctions::ToLowerCase(char c) noexcept {
    return IsUpperCase(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string CharFunctions::ToUpperCase(char const* s) noexcept {
    std::string text(s);
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return ToUpperCase(c); });
    return text;
}

std::string CharFunctions::ToLowerCase(char const* s) noexcept {
    std::string text(s);
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return ToLowerCase(c); });
    return text;
}

int CharFunctions::GetHexDigitValue(char c) noexcept {
    return hexDigitValue(c);
}

int CharFunctions::HexaToInt(char high, char low) noexcept {
    int const highValue = GetHexDigitValue(high);
    int const lowValue = GetHexDigitValue(low);
    return highValue < 0 || lowValue < 0 ? -1 : highValue * 16 + lowValue;
}

}  // namespace qel
