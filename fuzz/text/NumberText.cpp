// Numbers from any text against the plain steps, values to the bit.
#include "Expect.h"
#include "Input.h"

#include "model/PlainDecimal.h"
#include "qel/CharFunctions.h"

#include <bit>
#include <climits>
#include <cstdlib>

using namespace fuzz;
using qel::CharFunctions;

namespace {

/// All values that are not a number count as one.
std::uint64_t bitsOf(double v) {
    return v != v ? 1 : std::bit_cast<std::uint64_t>(v);
}

/// Beyond the range of a float there is infinity.
std::uint64_t bitsOfRounded(double v) {
    return bitsOf(static_cast<double>(static_cast<float>(v)));
}

void checkGetters(std::string const& text) {
    char const* const s = text.c_str();
    double const value = std::strtod(s, nullptr);
    expectEqual(bitsOf(CharFunctions::GetDoubleValue(s)), bitsOf(value), "double");
    expectEqual(bitsOf(static_cast<double>(CharFunctions::GetFloatValue(s))), bitsOfRounded(value),
                "float");
    long const whole = std::strtol(s, nullptr, 10);
    if (whole >= INT_MIN && whole <= INT_MAX)
        expectEqual(CharFunctions::GetIntValue(s), whole, "int");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    std::string const text = input.text();
    char const* const s = text.c_str();
    expectEqual(CharFunctions::IsNumber(s), model::isNumber(text), "number");
    expectEqual(CharFunctions::IsInt(s), model::isWholeNumber(text, INT_MIN, INT_MAX), "integer");
    expectEqual(CharFunctions::IsUnsignedInt(s), model::isWholeNumber(text, 0, UINT_MAX),
                "unsigned integer");
    expectEqual(bitsOf(CharFunctions::AsciiToDouble(s)), bitsOf(model::value(text)), "value");
    expectEqual(bitsOf(static_cast<double>(CharFunctions::AsciiToFloat(s))),
                bitsOfRounded(model::value(text)), "value as a float");
    checkGetters(text);
    return 0;
}
