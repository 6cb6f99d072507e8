// Questions about a whole text, and its case.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string_view>

namespace qel::bench {
namespace {

std::vector<std::string> booleans(int) {
    std::vector<std::string> const words = {"True",  "true", "TRUE", "False", "false", "FALSE",
                                            "0",     "1",    "yes",  "no",    "2",     "falsch",
                                            "truth", "TrUe", "",     "10"};
    std::vector<std::string> table;
    for (std::size_t i = 0; i < tableSize; ++i)
        table.push_back(words[7 * i * i % 16 ^ i % 16]);
    return table;
}

bool isOneOf(std::string_view text) {
    constexpr std::string_view words[] = {"True",  "true",  "TRUE", "False",
                                          "false", "FALSE", "0",    "1"};
    return std::find(std::begin(words), std::end(words), text) != std::end(words);
}

void addQuestionRows() {
    addRows(
        {"IsEmpty", {"CharFunctions::IsEmpty(char const*)"}}, noSize, booleans,
        [](auto& x) { return CharFunctions::IsEmpty(x.c_str()); },
        Peer{"first byte", [](auto& x) { return *x.c_str() == '\0'; }});
    addRows(
        {"StartsWithDigit", {"CharFunctions::StartsWithDigit(char const*)"}}, noSize, booleans,
        [](auto& x) { return CharFunctions::StartsWithDigit(x.c_str()); },
        Peer{"isdigit",
             [](auto& x) { return std::isdigit(static_cast<unsigned char>(*x.c_str())) != 0; }});
    addRows(
        {"IsBoolean", {"CharFunctions::IsBoolean(char const*)"}}, noSize, booleans,
        [](auto& x) { return CharFunctions::IsBoolean(x.c_str()); },
        Peer{"find", [](auto& x) { return isOneOf(x.c_str()); }});
}

void addScanningRows() {
    addRows(
        {"Length", {"CharFunctions::Length(char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::Length(x.s()); },
        Peer{"strlen", [](auto& x) { return static_cast<unsigned int>(std::strlen(x.s())); }});
    addRows(
        {"ContainsExtendedAsciiCharacters",
         {"CharFunctions::ContainsExtendedAsciiCharacters(char const*)"}},
        textSizes, texts,
        [](auto& x) { return CharFunctions::ContainsExtendedAsciiCharacters(x.s()); },
        Peer{"any_of", [](auto& x) {
                 std::string_view const s(x.s());
                 return std::any_of(s.begin(), s.end(), [](char c) { return c < 0; });
             }});
    addRows(
        {"CountOccurence", {"CharFunctions::CountOccurence(char const*, char)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::CountOccurence(x.s(), 'e'); },
        Peer{"count", [](auto& x) {
                 std::string_view const s(x.s());
                 return static_cast<unsigned int>(std::count(s.begin(), s.end(), 'e'));
             }});
}

template <typename Convert>
std::string converted(char const* s, Convert convert) {
    std::string text(s);
    std::transform(text.begin(), text.end(), text.begin(), convert);
    return text;
}

void addCaseRows() {
    addRows(
        {"ToUpperCase", {"CharFunctions::ToUpperCase(char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::ToUpperCase(x.s()); },
        Peer{"toupper",
             [](auto& x) {
                 return converted(
                     x.s(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
             }},
        Peer{"loop of ASCII", [](auto& x) {
                 return converted(x.s(), [](char c) {
                     return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
                 });
             }});
    addRows(
        {"ToLowerCase", {"CharFunctions::ToLowerCase(char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::ToLowerCase(x.s()); },
        Peer{"tolower",
             [](auto& x) {
                 return converted(
                     x.s(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
             }},
        Peer{"loop of ASCII", [](auto& x) {
                 return converted(x.s(), [](char c) {
                     return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
                 });
             }});
}

[[maybe_unused]] bool const registered =
    (addQuestionRows(), addScanningRows(), addCaseRows(), true);

}  // namespace
}  // namespace qel::bench
