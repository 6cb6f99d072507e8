// Text in radix 2, 8, 10 and 16. Zero has no digits: it is the empty text, both ways.
#include "PlainInteger.h"

#include "qel/CharFunctions.h"

#include <algorithm>

namespace plain {

namespace {

/// The bits that one digit stands for; 0 for a radix that is no supported power of two.
constexpr int bitsPerDigit(int radix) noexcept {
    switch (radix) {
    case 2:
        return 1;
    case 8:
        return 3;
    case 16:
        return 4;
    default:
        return 0;
    }
}

}  // namespace

std::string LargeInteger::toString(int radix) const noexcept {
    std::string digits;
    if (bitsPerDigit(radix) > 0)
        digits = digitsByShifting(bitsPerDigit(radix));
    else if (radix == 10)
        digits = digitsByDividing();
    else
        return digits;
    if (isNegative())
        digits.push_back('-');
    std::reverse(digits.begin(), digits.end());
    return digits;
}

/// The digits, lowest first.
std::string LargeInteger::digitsByShifting(int bits) const noexcept {
    static constexpr char table[] = "0123456789abcdef";
    std::string digits;
    for (LargeInteger rest(*this); !rest.isZero(); rest.shiftBits(-bits, 0))
        digits.push_back(table[rest.getBitRangeAsInt(0, bits)]);
    return digits;
}

/// The digits, lowest first.
std::string LargeInteger::digitsByDividing() const noexcept {
    LargeInteger const ten(10);
    std::string digits;
    LargeInteger rest(*this);
    LargeInteger digit;
    while (!rest.isZero()) {
        rest.divideBy(ten, digit);
        digits.push_back(static_cast<char>('0' + digit.getBitRangeAsInt(0, 8)));
    }
    return digits;
}

void LargeInteger::parseString(std::string const& text, int radix) noexcept {
    clear();
    int const bits = bitsPerDigit(radix);
    for (char const* next = text.c_str(); *next != '\0'; ++next) {
        int const digit = qel::CharFunctions::GetHexDigitValue(*next);
        if (digit < 0 || digit >= radix)
            continue;
        if (bits > 0) {
            shiftBits(bits, 0);
            *this += LargeInteger(digit);
        } else if (radix == 10) {
            *this *= LargeInteger(10U);
            *this += LargeInteger(digit);
        }
    }
    negative = !text.empty() && text.front() == '-';
}

}  // namespace plain
