// Text from numbers. Integers are written without the C library, and so without a locale.
#include "qel/CharFunctions.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <limits>

namespace qel {

namespace {

template <int base, typename Integer>
std::string digitsOf(Integer v) noexcept {
    // Room for the sign and all digits; those of an int fit into a string without an allocation.
    std::string text(std::numeric_limits<Integer>::digits10 + 2, '\0');
    char* const begin = text.data();
    char* const end = std::to_chars(begin, begin + text.size(), v, base).ptr;
    text.resize(static_cast<std::size_t>(end - begin));
    return text;
}

}  // namespace

std::string CharFunctions::Int2String(int v) noexcept {
    return digitsOf<10>(v);
}

void CharFunctions::Int2Char(int v, char* out) noexcept {
    Copy(out, Int2String(v).c_str());
}

std::string CharFunctions::UnsignedInt2String(unsigned int v) noexcept {
    return Int2String(static_cast<int>(v));
}

void CharFunctions::UnsignedInt2Char(unsigned int v, char* out) noexcept {
    Copy(out, UnsignedInt2String(v).c_str());
}

std::string CharFunctions::Long2String(long v) noexcept {
    return digitsOf<10>(v);
}

void CharFunctions::Long2Char(long v, char* out) noexcept {
    Copy(out, Long2String(v).c_str());
}

std::string CharFunctions::Int2Hexa(int v, bool upperCase) noexcept {
    std::string const digits = digitsOf<16>(static_cast<unsigned int>(v));
    return upperCase ? ToUpperCase(digits.c_str()) : digits;
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
