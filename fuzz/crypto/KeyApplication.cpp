// Keys applied to values, against the plain ones.
#include "Expect.h"
#include "Input.h"

#include "bigint/Twins.h"
#include "model/PlainKeys.h"
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    std::string const exponent = hexDigits(input, 10);
    std::string const modulus = hexDigits(input, 20);
    std::string const digits = hexDigits(input, 60);
    if (plainNumber(modulus).isOne())
        return 0;
    bool const isNegative = input.flag();

    bigint_test::Twin value;
    value.fast.parseString(digits, 16);
    value.fast.setNegative(isNegative);
    value.plain.parseString(digits, 16);
    value.plain.setNegative(isNegative);
    std::string const key = exponent + ',' + modulus;
    expectEqual(qel::RSAKey(key.c_str()).applyToValue(value.fast),
                plain::Key(key).applyToValue(value.plain), "whether the key applies");
    expectEqual(bigint_test::check(value), std::string(), "result");
    return 0;
}
