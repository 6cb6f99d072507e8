// Hexadecimal text beside snprintf, from_chars and the loop over a table of digits.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <charconv>
#include <cstdio>
#include <cstring>

namespace qel::bench {
namespace {

std::string hexByPrintf(char const* s) {
    std::string hex;
    for (; *s != '\0'; ++s) {
        char digits[12];
        std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned int>(*s));
        hex += digits;
    }
    return hex;
}

/// Of bytes from 16 to 127, which have two digits.
std::string hexByTable(char const* s) {
    constexpr char const* digits = "0123456789abcdef";
    std::string hex;
    hex.reserve(2 * std::strlen(s));
    for (; *s != '\0'; ++s) {
        hex += digits[static_cast<unsigned char>(*s) >> 4];
        hex += digits[*s & 15];
    }
    return hex;
}

std::string bytesByFromChars(char const* hex) {
    std::size_t const length = std::strlen(hex);
    std::string bytes(length / 2, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        unsigned char value = 0;
        if (std::from_chars(hex + 2 * i, hex + 2 * i + 2, value, 16).ptr != hex + 2 * i + 2)
            return "";
        bytes[i] = static_cast<char>(value);
    }
    return bytes;
}

[[maybe_unused]] bool const registered = [] {
    addRows(
        {"AsciiToHexaString", {"CharFunctions::AsciiToHexaString(char const*, bool)"}}, textSizes,
        texts, [](auto& x) { return CharFunctions::AsciiToHexaString(x.s(), false); },
        Peer{"snprintf", [](auto& x) { return hexByPrintf(x.s()); }},
        Peer{"loop", [](auto& x) { return hexByTable(x.s()); }});
    addRows(
        {"HexaStringToAscii", {"CharFunctions::HexaStringToAscii(char const*)"}}, textSizes,
        hexTexts, [](auto& x) { return CharFunctions::HexaStringToAscii(x.s()); },
        Peer{"from_chars", [](auto& x) { return bytesByFromChars(x.s()); }});
    return true;
}();

}  // namespace
}  // namespace qel::bench
