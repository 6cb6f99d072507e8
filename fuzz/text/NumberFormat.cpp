// Text from any number against the C library's.
#include "Expect.h"
#include "Input.h"

#include "qel/CharFunctions.h"

#include <bit>
#include <cstdio>
#include <string>

using namespace fuzz;
using qel::CharFunctions;

namespace {

constexpr char const* formats[] = {"%f",    "%e",    "%g",    "%a",      "%.0f",    "%.1f", "%8.3f",
                                   "%-9g",  "%+.2e", "%020f", "%.60f",   "%100.3f", "%#g",  "% f",
                                   "%.70g", "%G",    "%E",    "v = %f;", "%%%g%%"};
constexpr int formatCount = sizeof formats / sizeof formats[0];

template <typename Number>
std::string printed(char const* format, Number v) {
    char text[1024];
    int const length = std::snprintf(text, sizeof text, format, v);
    return {text, static_cast<std::size_t>(length)};
}

/// What is written into a buffer that it exactly fits.
template <typename Number, typename... Format>
void checkBuffer(void (*write)(Number, char*, Format...), Number v, std::string const& expected,
                 Format... format) {
    std::string buffer(expected.size() + 1, '#');
    write(v, buffer.data(), format...);
    expectEqual(buffer, expected + '\0', "text in a buffer");
}

void checkIntegers(int v, long wide) {
    std::string const digits = printed("%d", v);
    expectEqual(CharFunctions::Int2String(v), digits, "int");
    checkBuffer(CharFunctions::Int2Char, v, digits);
    auto const bits = static_cast<unsigned int>(v);
    expectEqual(CharFunctions::UnsignedInt2String(bits), digits, "unsigned int, signed");
    checkBuffer(CharFunctions::UnsignedInt2Char, bits, digits);
    expectEqual(CharFunctions::Int2Hexa(v, false), printed("%x", bits), "hexadecimal");
    expectEqual(CharFunctions::Int2Hexa(v, true), printed("%X", bits), "hexadecimal capitals");
    expectEqual(CharFunctions::Long2String(wide), printed("%ld", wide), "long");
    checkBuffer(CharFunctions::Long2Char, wide, printed("%ld", wide));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    auto const wide = input.number<std::int64_t>();
    checkIntegers(static_cast<int>(wide), wide);

    char const* const format = formats[input.below(formatCount)];
    double const v = std::bit_cast<double>(wide);
    std::string const expected = printed(format, v);
    expectEqual(CharFunctions::Float2String(v, format), expected, "double");
    checkBuffer<double, char const*>(CharFunctions::Float2Char, v, expected, format);
    float const narrow = std::bit_cast<float>(static_cast<std::int32_t>(wide));
    expectEqual(CharFunctions::Float2String(narrow, format),
                printed(format, static_cast<double>(narrow)), "float");
    return 0;
}
