// The hexadecimal text of a byte string, unpadded and with extended signs, and the bytes that a
// text of padded pairs denotes. Single digits are in Characters.cpp.
#include "qel/CharFunctions.h"

#include "HexDigit.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qel {

using namespace internal;

namespace {

constexpr std::size_t mostDigits = 8;

/// What a byte becomes as a signed integer of 32 bits.
struct ByteText {
    std::array<char, mostDigits> digits = {};
    std::uint8_t length = 0;
};

using ByteTexts = std::array<ByteText, 256>;

constexpr ByteTexts byteTexts(std::string_view digits) noexcept {
    ByteTexts texts;
    for (unsigned int byte = 0; byte < texts.size(); ++byte) {
        std::uint32_t const value = byte < 128 ? byte : byte | 0xFFFFFF00;
        ByteText& text = texts[byte];
        text.length = static_cast<std::uint8_t>(hexLength(value));
        writeHex(value, text.digits.data(), text.length, digits);
    }
    return texts;
}

constexpr ByteTexts lowerCaseTexts = byteTexts(lowerCaseHexDigits);
constexpr ByteTexts upperCaseTexts = byteTexts(upperCaseHexDigits);

/// As many bytes as are written to a buffer before it is appended to the result.
constexpr std::size_t partSize = 64;

void appendPart(std::string& text, std::string_view part, ByteTexts const& texts) noexcept {
    std::array<char, partSize * mostDigits> digits;
    char* end = digits.data();
    // All eight digits are written, without a branch; those that do not count are overwritten.
    for (char const c : part) {
        ByteText const& byte = texts[static_cast<unsigned char>(c)];
        std::memcpy(end, byte.digits.data(), mostDigits);
        end += byte.length;
    }
    text.append(digits.data(), end);
}

}  // namespace

std::string CharFunctions::AsciiToHexaString(char const* s, bool upperCase) noexcept {
    std::string_view const bytes(s);
    std::string text;
    text.reserve(2 * bytes.size());
    for (std::size_t i = 0; i < bytes.size(); i += partSize)
        appendPart(text, bytes.substr(i, partSize), upperCase ? upperCaseTexts : lowerCaseTexts);
    return text;
}

std::string CharFunctions::HexaStringToAscii(char const* hex) noexcept {
    std::size_t const length = std::strlen(hex);
    if (length % 2 != 0)
        return {};
    std::string bytes(length / 2, '\0');
    for (char& byte : bytes) {
        int const value = hexPairValue(hex[0], hex[1]);
        if (value < 0)
            return {};
        byte = static_cast<char>(value);
        hex += 2;
    }
    return bytes;
}

}  // namespace qel
