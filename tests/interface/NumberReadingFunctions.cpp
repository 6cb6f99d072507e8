// Numbers from text. The models run in the same rounding mode and, where they are the C library's,
// in the same locale.
#include "CharFunctions.h"
#include "Expectations.h"
#include "model/PlainDecimal.h"

#include "qel/CharFunctions.h"

#include <climits>
#include <cstdlib>

namespace interface_test {

namespace {

using qel::CharFunctions;

template <typename Call, typename Model>
void forEachNumber(Results& results, Call call, Model model) {
    forEachText(results, call, model);
    for (std::string const& s : numberTexts())
        expectResult(results, call(s.c_str()), model(s), s);
}

/// What an int has no room for is left to the C library, and so to chance.
bool fitsAnInt(std::string const& s) {
    long long const value = std::strtoll(s.c_str(), nullptr, 10);
    return value >= INT_MIN && value <= INT_MAX;
}

float rounded(double v) {
    double const volatile value = v;
    return static_cast<float>(value);
}

}  // namespace

std::vector<Function> numberReadingFunctions() {
    return {
        {"CharFunctions::IsNumber(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::IsNumber, model::isNumber);
         }},
        {"CharFunctions::IsInt(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::IsInt, [](std::string const& s) {
                 return model::isWholeNumber(s, INT_MIN, INT_MAX);
             });
         },
         {State::roundingMode}},
        {"CharFunctions::IsUnsignedInt(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::IsUnsignedInt, [](std::string const& s) {
                 return model::isWholeNumber(s, 0, UINT_MAX);
             });
         },
         {State::roundingMode}},
        {"CharFunctions::AsciiToDouble(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::AsciiToDouble, model::value);
         },
         {State::roundingMode}},
        {"CharFunctions::AsciiToFloat(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::AsciiToFloat,
                           [](std::string const& s) { return rounded(model::value(s)); });
         },
         {State::roundingMode}},
        {"CharFunctions::GetDoubleValue(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::GetDoubleValue,
                           [](std::string const& s) { return std::strtod(s.c_str(), nullptr); });
         },
         {State::cLocale, State::roundingMode}},
        {"CharFunctions::GetFloatValue(char const*)",
         [](Results& results) {
             forEachNumber(results, CharFunctions::GetFloatValue, [](std::string const& s) {
                 return rounded(std::strtod(s.c_str(), nullptr));
             });
         },
         {State::cLocale, State::roundingMode}},
        {"CharFunctions::GetIntValue(char const*)",
         [](Results& results) {
             for (auto const& table : {texts(), numberTexts()}) {
                 for (std::string const& s : table) {
                     if (fitsAnInt(s))
                         expectResult(results, CharFunctions::GetIntValue(s.c_str()),
                                      static_cast<int>(std::strtol(s.c_str(), nullptr, 10)), s);
                 }
             }
         }},
    };
}

}  // namespace interface_test
