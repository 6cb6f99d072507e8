// Single characters: the models are the ranges of ASCII.
#include "CharFunctions.h"
#include "Expectations.h"
#include "model/PlainTextFunctions.h"

#include "qel/CharFunctions.h"

namespace interface_test {

namespace {

using qel::CharFunctions;

bool isIn(char c, char first, char last) {
    return c >= first && c <= last;
}

bool isLetter(char c) {
    return isIn(c, 'a', 'z') || isIn(c, 'A', 'Z');
}

bool isDigit(char c) {
    return isIn(c, '0', '9');
}

int byteOf(char high, char low) {
    int const highValue = model::hexDigit(high);
    int const lowValue = model::hexDigit(low);
    return highValue < 0 || lowValue < 0 ? -1 : 16 * highValue + lowValue;
}

}  // namespace

std::vector<Function> characterFunctions() {
    return {
        {"CharFunctions::IsDigit(char)",
         [](Results& results) { forEachCharacter(results, CharFunctions::IsDigit, isDigit); }},
        {"CharFunctions::IsLetter(char)",
         [](Results& results) { forEachCharacter(results, CharFunctions::IsLetter, isLetter); }},
        {"CharFunctions::IsLetterOrDigit(char)",
         [](Results& results) {
             forEachCharacter(results, CharFunctions::IsLetterOrDigit,
                              [](char c) { return isLetter(c) || isDigit(c); });
         }},
        {"CharFunctions::IsLowerCase(char)",
         [](Results& results) {
             forEachCharacter(results, CharFunctions::IsLowerCase,
                              [](char c) { return isIn(c, 'a', 'z'); });
         }},
        {"CharFunctions::IsUpperCase(char)",
         [](Results& results) {
             forEachCharacter(results, CharFunctions::IsUpperCase,
                              [](char c) { return isIn(c, 'A', 'Z'); });
         }},
        {"CharFunctions::ToUpperCase(char)",
         [](Results& results) {
             forEachCharacter(
                 results, [](char c) { return CharFunctions::ToUpperCase(c); },
                 [](char c) { return model::upperCase(c); });
         }},
        {"CharFunctions::ToLowerCase(char)",
         [](Results& results) {
             forEachCharacter(
                 results, [](char c) { return CharFunctions::ToLowerCase(c); },
                 [](char c) { return model::lowerCase(c); });
         }},
        {"CharFunctions::GetHexDigitValue(char)",
         [](Results& results) {
             forEachCharacter(results, CharFunctions::GetHexDigitValue, model::hexDigit);
         }},
        {"CharFunctions::HexaToInt(char, char)",
         [](Results& results) {
             for (char const high : allCharacters) {
                 // A line for each pair of the 65536 would tell no more.
                 std::string values;
                 for (char const low : allCharacters) {
                     int const value = CharFunctions::HexaToInt(high, low);
                     ASSERT_EQ(value, byteOf(high, low)) << +high << ' ' << +low;
                     values += std::to_string(value) + ' ';
                 }
                 results.add("", static_cast<unsigned char>(high), values);
             }
         }},
        {"CharFunctions::ToUpperCase(char const*)",
         [](Results& results) {
             forEachText(
                 results, [](char const* s) { return CharFunctions::ToUpperCase(s); },
                 [](std::string const& s) { return model::upperCase(s); });
         }},
        {"CharFunctions::ToLowerCase(char const*)",
         [](Results& results) {
             forEachText(
                 results, [](char const* s) { return CharFunctions::ToLowerCase(s); },
                 [](std::string const& s) { return model::lowerCase(s); });
         }},
    };
}

}  // namespace interface_test
