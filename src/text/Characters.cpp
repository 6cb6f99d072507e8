// Single characters: classes, case, hexadecimal digits; and the case of whole strings.
// Plain ASCII ranges, so that an application's locale changes nothing.
#include "qel/CharFunctions.h"

#include "Ascii.h"
#include "Blocks.h"
#include "HexDigit.h"

namespace qel {

using namespace internal;

namespace {

/// The two cases of a letter differ in one bit, which is changed in the 26 letters from `first` on.
std::string withOtherCase(std::string text, char first) noexcept {
    constexpr std::uint8_t caseBit = 'a' ^ 'A';
    applyToBlocks(text, [=](Block const& bytes) -> Block {
        Block const isLetter = bytes - repeated(first) < Block{} + 26;
        return bytes ^ (isLetter & (Block{} + caseBit));
    });
    return text;
}

}  // namespace

bool CharFunctions::IsDigit(char c) noexcept {
    return isDigit(c);
}

bool CharFunctions::IsLetter(char c) noexcept {
    return IsLowerCase(c) || IsUpperCase(c);
}

bool CharFunctions::IsLetterOrDigit(char c) noexcept {
    return IsLetter(c) || IsDigit(c);
}

bool CharFunctions::IsLowerCase(char c) noexcept {
    return isLowerCase(c);
}

bool CharFunctions::IsUpperCase(char c) noexcept {
    return isUpperCase(c);
}

char CharFunctions::ToUpperCase(char c) noexcept {
    return upperCase(c);
}

char CharFunctions::ToLowerCase(char c) noexcept {
    return lowerCase(c);
}

std::string CharFunctions::ToUpperCase(char const* s) noexcept {
    return withOtherCase(s, 'a');
}

std::string CharFunctions::ToLowerCase(char const* s) noexcept {
    return withOtherCase(s, 'A');
}

int CharFunctions::GetHexDigitValue(char c) noexcept {
    return hexDigitValue(c);
}

int CharFunctions::HexaToInt(char high, char low) noexcept {
    return hexPairValue(high, low);
}

}  // namespace qel
