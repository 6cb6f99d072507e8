// Numbers from text: what counts as one, and its value. The value is defined by its floating-point
// operations in their order; all of them are rounded one by one.
#include "qel/CharFunctions.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace qel {

namespace {

/// Behind the prefix of hexadecimal text; null when there is none.
char const* behindHexPrefix(char const* s) noexcept {
    return s[0] == '0' && s[1] == 'x' ? s + 2 : nullptr;
}

bool isHexNumber(char const* s) noexcept {
    char const* digits = behindHexPrefix(s);
    if (digits == nullptr)
        return false;
    while (CharFunctions::GetHexDigitValue(*digits) >= 0)
        ++digits;
    return *digits == '\0';
}

/// What was seen of the mantissa, or of the exponent.
struct SeenPart {
    bool sign = false;
    bool point = false;
    bool digit = false;
};

/// Sets a flag that must not be set yet.
bool setOnce(bool& flag) noexcept {
    bool const first = !flag;
    flag = true;
    return first;
}

bool isDecimalNumber(std::string_view text) noexcept {
    SeenPart seen;
    bool exponentSeen = false;
    for (char const c : text) {
        if (CharFunctions::IsDigit(c)) {
            seen.digit = true;
        } else if (c == '+' || c == '-') {
            if (!setOnce(seen.sign))
                return false;
        } else if (c == '.') {
            if (!setOnce(seen.point))
                return false;
        } else if (c == 'e' || c == 'E') {
            if (!seen.digit || !setOnce(exponentSeen))
                return false;
            seen = {};
        } else {
            return false;
        }
    }
    return seen.digit;
}

bool isWholeWithin(double v, double lowest, double highest) noexcept {
    // Infinities and NaN fail the comparisons; what is left fits the conversion.
    return v >= lowest && v <= highest && static_cast<double>(static_cast<std::int64_t>(v)) == v;
}

template <typename Integer>
bool isWhole(char const* s) noexcept {
    using Limits = std::numeric_limits<Integer>;
    return CharFunctions::IsNumber(s)
           && isWholeWithin(CharFunctions::AsciiToDouble(s), Limits::min(), Limits::max());
}

/// a * b + c with both operations rounded: a compiler may fuse them into one, in the way and on the
/// machine that it likes, but not across a volatile object, whose value is that of its type.
double roundedProductPlus(double a, double b, double c) noexcept {
    double const volatile product = a * b;
    return product + c;
}

double hexValue(char const* s) noexcept {
    double value = 0.0;
    for (int digit; (digit = CharFunctions::GetHexDigitValue(*s)) >= 0; ++s)
        value = roundedProductPlus(value, 16.0, digit);
    return value;
}

/// The mantissa, or the exponent, as read so far.
struct Part {
    double sign = 1.0;
    double value = 0.0;
    double scale = 0.1;
    bool inFraction = false;

    void add(int digit) noexcept {
        if (inFraction) {
            value = roundedProductPlus(digit, scale, value);
            scale = scale * 0.1;
        } else {
            value = roundedProductPlus(value, 10.0, digit);
        }
    }

    /// Takes a sign, a point or a digit; false for any other byte.
    bool take(char c) noexcept {
        if (CharFunctions::IsDigit(c)) {
            add(c - '0');
        } else if (c == '.') {
            inFraction = true;
        } else if (c == '-') {
            sign = -1.0;
        } else if (c == '+') {
            sign = 1.0;
        } else {
            return false;
        }
        return true;
    }

    [[nodiscard]] double signedValue() const noexcept { return value * sign; }
};

/// The base is hidden from the compiler: Clang would call __exp10 on macOS instead, which may round
/// differently.
double powerOfTen(double exponent) noexcept {
    double const volatile ten = 10.0;
    return std::pow(ten, exponent);
}

double decimalValue(char const* s) noexcept {
    Part mantissa;
    while (mantissa.take(*s))
        ++s;
    if (*s != 'e' && *s != 'E')
        return mantissa.signedValue();
    Part exponent;
    ++s;
    while (exponent.take(*s))
        ++s;
    return mantissa.signedValue() * powerOfTen(exponent.signedValue());
}

/// Beyond the range of a float, the rounding of binary floating point gives infinity.
float rounded(double v) noexcept {
    static_assert(std::numeric_limits<float>::is_iec559);
    return static_cast<float>(v);
}

}  // namespace

bool CharFunctions::IsNumber(char const* s) noexcept {
    return isHexNumber(s) || isDecimalNumber(s);
}

bool CharFunctions::IsInt(char const* s) noexcept {
    return isWhole<int>(s);
}

bool CharFunctions::IsUnsignedInt(char const* s) noexcept {
    return isWhole<unsigned int>(s);
}

double CharFunctions::AsciiToDouble(char const* s) noexcept {
    char const* const hexDigits = behindHexPrefix(s);
    return hexDigits != nullptr ? hexValue(hexDigits) : decimalValue(s);
}

float CharFunctions::AsciiToFloat(char const* s) noexcept {
    return rounded(AsciiToDouble(s));
}

// These three are the C library's functions, silence about errors included.
// NOLINTBEGIN(cert-err34-c)
double CharFunctions::GetDoubleValue(char const* s) noexcept {
    return std::atof(s);
}

float CharFunctions::GetFloatValue(char const* s) noexcept {
    return rounded(std::atof(s));
}

int CharFunctions::GetIntValue(char const* s) noexcept {
    return std::atoi(s);
}
// NOLINTEND(cert-err34-c)

}  // namespace qel
