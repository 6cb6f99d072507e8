// The hexadecimal text of a byte string, unpadded and with extended signs, and the bytes that a
// text of padded pairs denotes. Single digits are in Characters.cpp.
#include "qel/CharFunctions.h"

#include <string_view>

namespace qel {

std::string CharFunctions::AsciiToHexaString(char const* s, bool upperCase) noexcept {
    std::string digits;
    for (char const c : std::string_view(s))
        digits += Int2Hexa(static_cast<signed char>(c), upperCase);
    return digits;
}

std::string CharFunctions::HexaStringToAscii(char const* hex) noexcept {
    std::string_view const digits(hex);
    if (digits.size() % 2 != 0)
        return {};
    std::string bytes;
    bytes.reserve(digits.size() / 2);
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        int const value = HexaToInt(digits[i], digits[i + 1]);
        if (value < 0)
            return {};
        bytes += static_cast<char>(value);
    }
    return bytes;
}

}  // namespace qel
