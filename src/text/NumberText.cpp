// Numbers from text: what counts as one, and its value. The value is defined by its floating-point
// operations in their order; all of them are rounded one by one.
#include "qel/CharFunctions.h"

#include "Ascii.h"
#include "HexDigit.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace qel {

using namespace internal;

namespace {

/// Behind the prefix of hexadecimal text; null when there is none.
char const* behindHexPrefix(char const* s) noexcept {
    return s[0] == '0' && s[1] == 'x' ? s + 2 : nullptr;
}

bool isHexNumber(char const* s) noexcept {
    char const* digits = behindHexPrefix(s);
    while (digits != nullptr && hexDigitValue(*digits) >= 0)
        ++digits;
    return digits != nullptr && *digits == '\0';
}

char const* behindDigits(char const* s) noexcept {
    while (isDigit(*s))
        ++s;
    return s;
}

bool isWholeWithin(double v, double lowest, double highest) noexcept {
    // Infinities and NaN fail the comparisons; what is left fits the conversion.
    return v >= lowest && v <= highest && static_cast<double>(static_cast<std::int64_t>(v)) == v;
}

/// a * b + c with both operations rounded: a compiler may fuse them into one, in the way and on the
/// machine that it likes, but not across a volatile object, whose value is that of its type.
double roundedProductPlus(double a, double b, double c) noexcept {
    double const volatile product = a * b;
    return product + c;
}

/// Below 2^53 the double of every whole number is exact, and so is each step to it, however doubles
/// are rounded.
constexpr std::int64_t exactEnd = std::int64_t{1} << 53;

double hexValue(char const* s) noexcept {
    std::int64_t exact = 0;
    int digit = 0;
    for (; exact < exactEnd / 16 && (digit = hexDigitValue(*s)) >= 0; ++s)
        exact = exact * 16 + digit;
    auto value = static_cast<double>(exact);
    for (; (digit = hexDigitValue(*s)) >= 0; ++s)
        value = roundedProductPlus(value, 16.0, digit);
    return value;
}

/// The value of the digits read so far. Both functions return what is behind the digits at `s`.
struct Value {
    double value = 0.0;
    double scale = 0.1;

    char const* addWhole(char const* s) noexcept {
        constexpr std::int64_t end = exactEnd / 10;
        double sum = value;
        if (sum < static_cast<double>(end)) {
            auto exact = static_cast<std::int64_t>(sum);
            for (; exact < end && isDigit(*s); ++s)
                exact = exact * 10 + (*s - '0');
            sum = static_cast<double>(exact);
        }
        for (; isDigit(*s) && !std::isinf(sum); ++s)
            sum = roundedProductPlus(sum, 10.0, *s - '0');
        value = sum;
        return behindDigits(s);
    }

    char const* addFraction(char const* s) noexcept {
        double sum = value;
        double factor = scale;
        // Once the factor is zero, nothing is added any more.
        for (; isDigit(*s) && factor != 0.0; ++s) {
            sum = roundedProductPlus(*s - '0', factor, sum);
            factor = factor * 0.1;
        }
        value = sum;
        scale = factor;
        return behindDigits(s);
    }
};

/// For texts of which only the form counts.
struct NoValue {
    static char const* addWhole(char const* s) noexcept { return behindDigits(s); }
    static char const* addFraction(char const* s) noexcept { return behindDigits(s); }
};

/// The mantissa, or the exponent.
template <typename Digits>
struct Part {
    Digits digits;
    double sign = 1.0;
    bool signSeen = false;
    bool pointSeen = false;
    bool digitSeen = false;
    bool isRepeated = false;  // a sign or a point

    /// Reads digits, points and signs, and returns what is behind them.
    char const* read(char const* s) noexcept {
        for (;; ++s) {
            char const* const begin = s;
            s = pointSeen ? digits.addFraction(s) : digits.addWhole(s);
            digitSeen = digitSeen || s != begin;
            if (*s == '.') {
                see(pointSeen);
            } else if (*s == '-' || *s == '+') {
                see(signSeen);
                sign = *s == '-' ? -1.0 : 1.0;
            } else {
                return s;
            }
        }
    }

    [[nodiscard]] bool isNumber() const noexcept { return digitSeen && !isRepeated; }
    [[nodiscard]] double value() const noexcept { return digits.value * sign; }

  private:
    void see(bool& flag) noexcept {
        isRepeated = isRepeated || flag;
        flag = true;
    }
};

/// The base is hidden from the compiler: Clang would call __exp10 on macOS instead, which may round
/// differently.
double powerOfTen(double exponent) noexcept {
    double const volatile ten = 10.0;
    return std::pow(ten, exponent);
}

/// Text read as a decimal number, as far as it goes.
template <typename Digits>
class Decimal {
  public:
    explicit Decimal(char const* s) noexcept : end_(mantissa_.read(s)) {
        hasExponent_ = *end_ == 'e' || *end_ == 'E';
        if (hasExponent_)
            end_ = exponent_.read(end_ + 1);
    }

    [[nodiscard]] bool isNumber() const noexcept {
        return *end_ == '\0' && mantissa_.isNumber() && (!hasExponent_ || exponent_.isNumber());
    }

    [[nodiscard]] double value() const noexcept {
        return hasExponent_ ? mantissa_.value() * powerOfTen(exponent_.value()) : mantissa_.value();
    }

  private:
    Part<Digits> mantissa_;
    Part<Digits> exponent_;
    bool hasExponent_ = false;
    char const* end_;
};

template <typename Integer>
bool isWhole(char const* s) noexcept {
    using Limits = std::numeric_limits<Integer>;
    if (char const* const hexDigits = behindHexPrefix(s))
        return isHexNumber(s) && isWholeWithin(hexValue(hexDigits), Limits::min(), Limits::max());
    Decimal<Value> const number(s);
    return number.isNumber() && isWholeWithin(number.value(), Limits::min(), Limits::max());
}

/// Beyond the range of a float, the rounding of binary floating point gives infinity.
float rounded(double v) noexcept {
    static_assert(std::numeric_limits<float>::is_iec559);
    return static_cast<float>(v);
}

}  // namespace

bool CharFunctions::IsNumber(char const* s) noexcept {
    return isHexNumber(s) || Decimal<NoValue>(s).isNumber();
}

bool CharFunctions::IsInt(char const* s) noexcept {
    return isWhole<int>(s);
}

bool CharFunctions::IsUnsignedInt(char const* s) noexcept {
    return isWhole<unsigned int>(s);
}

double CharFunctions::AsciiToDouble(char const* s) noexcept {
    char const* const hexDigits = behindHexPrefix(s);
    return hexDigits != nullptr ? hexValue(hexDigits) : Decimal<Value>(s).value();
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
