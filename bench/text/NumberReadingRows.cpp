// Numbers from text beside the C library's functions and from_chars.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

namespace qel::bench {
namespace {

template <typename Draw>
std::vector<std::string> drawNumbers(char const* format, Draw draw) {
    std::mt19937 random(1);
    std::vector<std::string> table;
    for (std::size_t i = 0; i < tableSize; ++i) {
        char text[60];
        std::snprintf(text, sizeof text, format, draw(random));
        table.emplace_back(text);
    }
    return table;
}

std::vector<std::string> reals(char const* format) {
    return drawNumbers(format, [](auto& random) {
        return std::uniform_real_distribution<double>(-1000.0, 1000.0)(random);
    });
}

std::vector<std::string> wholeReals(int) {
    return reals("%.0f");
}
std::vector<std::string> twoDecimals(int) {
    return reals("%.2f");
}
std::vector<std::string> exponents(int) {
    return reals("%.6e");
}
std::vector<std::string> allDigits(int) {
    return reals("%.17g");
}
std::vector<std::string> integers(int) {
    return drawNumbers("%d", [](auto& random) {
        return std::uniform_int_distribution<int>(-99999, 99999)(random);
    });
}
std::vector<std::string> naturals(int) {
    return drawNumbers(
        "%d", [](auto& random) { return std::uniform_int_distribution<int>(0, 99999)(random); });
}

template <typename Number>
Number fromChars(std::string const& text) {
    Number value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// Another rounding than ours in the last place.
double stringToDouble(std::string const& text) {
    return std::strtod(text.c_str(), nullptr);
}

template <typename Number>
bool isWhollyRead(char const* s) {
    Number value = 0;
    char const* const end = s + std::strlen(s);
    auto const [stop, error] = std::from_chars(s, end, value);
    return stop == end && error == std::errc();
}

bool isDoubleToTheEnd(char const* s) {
    char* end = nullptr;
    std::strtod(s, &end);
    return end != s && *end == '\0';
}

template <typename Integer>
bool isIntegerToTheEnd(char const* s) {
    char* end = nullptr;
    long const value = std::strtol(s, &end, 10);
    return end != s && *end == '\0' && value >= std::numeric_limits<Integer>::min()
           && value <= static_cast<long>(std::numeric_limits<Integer>::max());
}

void addRecognitionRows() {
    addRows(
        {"IsNumber", {"CharFunctions::IsNumber(char const*)"}}, noSize, twoDecimals,
        [](auto& x) { return CharFunctions::IsNumber(x.c_str()); },
        Peer{"strtod", [](auto& x) { return isDoubleToTheEnd(x.c_str()); }},
        Peer{"from_chars", [](auto& x) { return isWhollyRead<double>(x.c_str()); }});
    addRows(
        {"IsInt", {"CharFunctions::IsInt(char const*)"}}, noSize, integers,
        [](auto& x) { return CharFunctions::IsInt(x.c_str()); },
        Peer{"strtol", [](auto& x) { return isIntegerToTheEnd<int>(x.c_str()); }},
        Peer{"from_chars", [](auto& x) { return isWhollyRead<int>(x.c_str()); }});
    addRows(
        {"IsUnsignedInt", {"CharFunctions::IsUnsignedInt(char const*)"}}, noSize, naturals,
        [](auto& x) { return CharFunctions::IsUnsignedInt(x.c_str()); },
        Peer{"strtol", [](auto& x) { return isIntegerToTheEnd<unsigned int>(x.c_str()); }},
        Peer{"from_chars", [](auto& x) { return isWhollyRead<unsigned int>(x.c_str()); }});
}

/// Ours rounds each decimal, so results differ in the last places.
void addDoubleRow(Row const& row, Make<std::string> make) {
    addRows(
        row, noSize, make,
        [](auto& x) { return Incomparable{CharFunctions::AsciiToDouble(x.c_str())}; },
        Peer{"strtod", [](auto& x) { return Incomparable{stringToDouble(x)}; }},
        Peer{"from_chars", [](auto& x) { return Incomparable{fromChars<double>(x)}; }});
}

void addReadingRows() {
    addDoubleRow({"number from text, whole", {"CharFunctions::AsciiToDouble(char const*)"}},
                 wholeReals);
    addDoubleRow({"number from text, twoDecimals"}, twoDecimals);
    addDoubleRow({"number from text, exponent"}, exponents);
    addDoubleRow({"number from text, allDigits"}, allDigits);
    addRows(
        {"AsciiToFloat", {"CharFunctions::AsciiToFloat(char const*)"}}, noSize, twoDecimals,
        [](auto& x) { return Incomparable{CharFunctions::AsciiToFloat(x.c_str())}; },
        Peer{"strtof", [](auto& x) { return Incomparable{std::strtof(x.c_str(), nullptr)}; }},
        Peer{"from_chars", [](auto& x) { return Incomparable{fromChars<float>(x)}; }});
    addRows(
        {"GetDoubleValue", {"CharFunctions::GetDoubleValue(char const*)"}}, noSize, twoDecimals,
        [](auto& x) { return CharFunctions::GetDoubleValue(x.c_str()); },
        Peer{"atof", [](auto& x) { return std::atof(x.c_str()); }});
    addRows(
        {"GetFloatValue", {"CharFunctions::GetFloatValue(char const*)"}}, noSize, twoDecimals,
        [](auto& x) { return CharFunctions::GetFloatValue(x.c_str()); },
        Peer{"atof", [](auto& x) { return static_cast<float>(std::atof(x.c_str())); }});
    addRows(
        {"GetIntValue", {"CharFunctions::GetIntValue(char const*)"}}, noSize, integers,
        [](auto& x) { return CharFunctions::GetIntValue(x.c_str()); },
        Peer{"atoi", [](auto& x) { return std::atoi(x.c_str()); }});
}

[[maybe_unused]] bool const registered = (addRecognitionRows(), addReadingRows(), true);

}  // namespace
}  // namespace qel::bench
