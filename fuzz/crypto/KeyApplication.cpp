// Keys applied to values, against the documented steps with the plain integers: digits in base
// modulus, each raised, in reverse.
#include "Expect.h"
#include "Input.h"

#include "model/PlainInteger.h"
#include "qel/RSAKey.h"

using namespace fuzz;

namespace {

std::string hexDigits(Input& input, int most) {
    std::string digits;
    for (int count = input.below(most + 1); count > 0; --count)
        digits += "0123456789abcdef"[input.below(16)];
    return digits;
}

plain::LargeInteger plainNumber(std::string const& digits) {
    plain::LargeInteger number;
    number.parseString(digits, 16);
    return number;
}

plain::LargeInteger plainlyApplied(plain::LargeInteger value, plain::LargeInteger const& exponent,
                                   plain::LargeInteger const& modulus) {
    plain::LargeInteger result;
    while (!value.isZero()) {
        plain::LargeInteger digit = value % modulus;
        value /= modulus;
        digit.exponentModulo(exponent, modulus);
        result = result * modulus + digit;
    }
    return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    std::string const exponent = hexDigits(input, 10);
    std::string const modulus = hexDigits(input, 20);
    std::string const digits = hexDigits(input, 60);
    if (plainNumber(modulus).isOne())
        return 0;
    bool const isPositive = !plainNumber(digits).isZero() && !input.flag();
    bool const isApplied =
        isPositive && !plainNumber(exponent).isZero() && !plainNumber(modulus).isZero();

    qel::LargeInteger value;
    value.parseString(digits, 16);
    value.setNegative(!isPositive);
    qel::RSAKey const key((exponent + ',' + modulus).c_str());
    expectEqual(key.applyToValue(value), isApplied, "whether the key applies");
    std::string const expected =
        isApplied ? plainlyApplied(plainNumber(digits), plainNumber(exponent), plainNumber(modulus))
                        .toString(16)
                  : "";
    expectEqual(value.toString(16), expected, "result");
    return 0;
}
