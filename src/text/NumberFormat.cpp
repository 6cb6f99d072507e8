// Text from numbers. Integers are written without the C library, and so without a locale.
#include "qel/CharFunctions.h"

#include "HexDigit.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

namespace qel {

using namespace internal;

namespace {

/// The caller guarantees the room, for a sign and all digits.
template <typename Integer>
void write(Integer v, char* out) noexcept {
    constexpr std::size_t longest = std::numeric_limits<Integer>::digits10 + 2;
    *std::to_chars(out, out + longest, v).ptr = '\0';
}

}  // namespace

std::string CharFunctions::Int2String(int v) noexcept {
    return std::to_string(v);
}

void CharFunctions::Int2Char(int v, char* out) noexcept {
    write(v, out);
}

std::string CharFunctions::UnsignedInt2String(unsigned int v) noexcept {
    return Int2String(static_cast<int>(v));
}

void CharFunctions::UnsignedInt2Char(unsigned int v, char* out) noexcept {
    Int2Char(static_cast<int>(v), out);
}

std::string CharFunctions::Long2String(long v) noexcept {
    return std::to_string(v);
}

void CharFunctions::Long2Char(long v, char* out) noexcept {
    write(v, out);
}

std::string CharFunctions::Int2Hexa(int v, bool upperCase) noexcept {
    auto const value = static_cast<std::uint32_t>(v);
    std::string text(hexLength(value), '0');
    writeHex(value, text.data(), text.size(), upperCase ? upperCaseHexDigits : lowerCaseHexDigits);
    return text;
}

std::string CharFunctions::Float2String(double v, char const* format) noexcept {
    std::array<char, 64> shortText;
    int const printed = std::snprintf(shortText.data(), shortText.size(), format, v);
    if (printed < 0)
        return {};
    auto const length = static_cast<std::size_t>(printed);
    if (length < shortText.size())
        return {shortText.data(), length};
    std::string text(length, '\0');
    (void)std::snprintf(text.data(), length + 1, format, v);
    return text;
}

void CharFunctions::Float2Char(double v, char* out, char const* format) noexcept {
    Copy(out, Float2String(v, format).c_str());
}

std::string CharFunctions::Float2String(float v, char const* format) noexcept {
    return Float2String(static_cast<double>(v), format);
}

void CharFunctions::Float2Char(float v, char* out, char const* format) noexcept {
    Float2Char(static_cast<double>(v), out, format);
}

}  // namespace qel
