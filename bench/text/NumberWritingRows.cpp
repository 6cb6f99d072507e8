// Text from numbers beside snprintf, to_string and to_chars.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <charconv>
#include <cstdio>
#include <random>

namespace qel::bench {
namespace {

template <typename Number>
struct Written {
    Number value;
    char out[60] = {};
};

template <typename Number, typename Draw>
std::vector<Written<Number>> drawNumbers(Draw draw) {
    std::mt19937_64 random(1);
    std::vector<Written<Number>> table;
    for (std::size_t i = 0; i < tableSize; ++i)
        table.push_back({static_cast<Number>(draw(random))});
    return table;
}

template <int limit>
std::vector<Written<int>> integersTo(int) {
    return drawNumbers<int>(std::uniform_int_distribution<int>(-limit, limit));
}
constexpr Make<Written<int>> anyIntegers = integersTo<2147483647>;

std::vector<Written<unsigned int>> naturals(int) {
    return drawNumbers<unsigned int>(std::uniform_int_distribution<int>(0, 2147483647));
}
std::vector<Written<long>> longs(int) {
    return drawNumbers<long>([](auto& random) { return random(); });
}
std::vector<Written<double>> doubles(int) {
    return drawNumbers<double>(std::uniform_real_distribution<double>(-1000.0, 1000.0));
}
std::vector<Written<float>> floats(int) {
    return drawNumbers<float>(std::uniform_real_distribution<double>(-1000.0, 1000.0));
}

template <typename Number>
std::string charsToString(Number value, int radix = 10) {
    char text[40];
    return {text, std::to_chars(text, text + sizeof text, value, radix).ptr};
}

template <typename Number>
char const* charsToBuffer(Written<Number>& x) {
    *std::to_chars(x.out, x.out + sizeof x.out, x.value).ptr = '\0';
    return x.out;
}

template <typename Number>
char const* printed(Written<Number>& x, char const* format) {
    std::snprintf(x.out, sizeof x.out, format, x.value);
    return x.out;
}

template <typename Number>
void addStringRow(Row const& row, Make<Written<Number>> make, std::string (*ours)(Number)) {
    addRows(
        row, noSize, make, [ours](auto& x) { return ours(x.value); },
        Peer{"to_string", [](auto& x) { return std::to_string(x.value); }},
        Peer{"to_chars", [](auto& x) { return charsToString(x.value); }});
}

template <typename Number>
void addBufferRow(Row const& row, Make<Written<Number>> make, char const* format,
                  void (*ours)(Number, char*)) {
    addRows(
        row, noSize, make,
        [ours](auto& x) -> char const* {
            ours(x.value, x.out);
            return x.out;
        },
        Peer{"snprintf", [format](auto& x) { return printed(x, format); }},
        Peer{"to_chars", [](auto& x) { return charsToBuffer(x); }});
}

void addIntegerRows() {
    addStringRow<int>({"integer to text, small", {"CharFunctions::Int2String(int)"}},
                      integersTo<99>, [](int v) { return CharFunctions::Int2String(v); });
    addStringRow<int>({"integer to text, medium"}, integersTo<99999>,
                      [](int v) { return CharFunctions::Int2String(v); });
    addStringRow<int>({"integer to text, large"}, anyIntegers,
                      [](int v) { return CharFunctions::Int2String(v); });
    addStringRow<unsigned int>(
        {"UnsignedInt2String", {"CharFunctions::UnsignedInt2String(unsigned int)"}}, naturals,
        [](unsigned int v) { return CharFunctions::UnsignedInt2String(v); });
    addStringRow<long>({"Long2String", {"CharFunctions::Long2String(long)"}}, longs,
                       [](long v) { return CharFunctions::Long2String(v); });
    addBufferRow<int>({"Int2Char", {"CharFunctions::Int2Char(int, char*)"}}, anyIntegers, "%d",
                      [](int v, char* out) { CharFunctions::Int2Char(v, out); });
    addBufferRow<unsigned int>(
        {"UnsignedInt2Char", {"CharFunctions::UnsignedInt2Char(unsigned int, char*)"}}, naturals,
        "%u", [](unsigned int v, char* out) { CharFunctions::UnsignedInt2Char(v, out); });
    addBufferRow<long>({"Long2Char", {"CharFunctions::Long2Char(long, char*)"}}, longs, "%ld",
                       [](long v, char* out) { CharFunctions::Long2Char(v, out); });
    addRows(
        {"Int2Hexa", {"CharFunctions::Int2Hexa(int, bool)"}}, noSize, anyIntegers,
        [](auto& x) { return CharFunctions::Int2Hexa(x.value, false); },
        Peer{"snprintf", [](auto& x) { return std::string(printed(x, "%x")); }},
        Peer{"to_chars",
             [](auto& x) { return charsToString(static_cast<unsigned int>(x.value), 16); }});
}

template <typename Number>
void addRealRows(Row const& stringRow, Row const& bufferRow, Make<Written<Number>> make) {
    addRows(
        stringRow, noSize, make,
        [](auto& x) { return CharFunctions::Float2String(x.value, "%.3f"); },
        Peer{"snprintf", [](auto& x) {
                 std::snprintf(x.out, sizeof x.out, "%.3f", static_cast<double>(x.value));
                 return std::string(x.out);
             }});
    addRows(
        bufferRow, noSize, make,
        [](auto& x) -> char const* {
            CharFunctions::Float2Char(x.value, x.out, "%.3f");
            return x.out;
        },
        Peer{"snprintf", [](auto& x) -> char const* {
                 std::snprintf(x.out, sizeof x.out, "%.3f", static_cast<double>(x.value));
                 return x.out;
             }});
}

[[maybe_unused]] bool const registered = [] {
    addIntegerRows();
    addRealRows<double>(
        {"Float2String of a double", {"CharFunctions::Float2String(double, char const*)"}},
        {"Float2Char of a double", {"CharFunctions::Float2Char(double, char*, char const*)"}},
        doubles);
    addRealRows<float>(
        {"Float2String of a float", {"CharFunctions::Float2String(float, char const*)"}},
        {"Float2Char of a float", {"CharFunctions::Float2Char(float, char*, char const*)"}},
        floats);
    return true;
}();

}  // namespace
}  // namespace qel::bench
