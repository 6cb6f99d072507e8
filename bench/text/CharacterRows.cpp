// One character beside the C library's classification.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <cctype>
#include <charconv>

namespace qel::bench {
namespace {

struct Characters {
    char c;
    char next;
};

std::vector<Characters> characters(int) {
    std::string const text = texts(256).front().text;
    std::vector<Characters> table;
    for (std::size_t i = 0; i < 256; ++i)
        table.push_back({text[i], text[(i + 1) % 256]});
    return table;
}

std::vector<Characters> hexCharacters(int) {
    std::string const text = hexTexts(256).front().text;
    std::vector<Characters> table;
    for (std::size_t i = 0; i < 256; ++i)
        table.push_back({text[i], text[(i + 1) % 256]});
    return table;
}

/// The C library takes bytes as unsigned ones.
int byte(char c) {
    return static_cast<unsigned char>(c);
}

int fromChars(char const* first, char const* last) {
    int value = -1;
    std::from_chars(first, last, value, 16);
    return value;
}

void addClassRows() {
    addRows(
        {"IsDigit", {"CharFunctions::IsDigit(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::IsDigit(x.c); },
        Peer{"isdigit", [](auto& x) { return std::isdigit(byte(x.c)) != 0; }});
    addRows(
        {"IsLetter", {"CharFunctions::IsLetter(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::IsLetter(x.c); },
        Peer{"isalpha", [](auto& x) { return std::isalpha(byte(x.c)) != 0; }});
    addRows(
        {"IsLetterOrDigit", {"CharFunctions::IsLetterOrDigit(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::IsLetterOrDigit(x.c); },
        Peer{"isalnum", [](auto& x) { return std::isalnum(byte(x.c)) != 0; }});
    addRows(
        {"IsLowerCase", {"CharFunctions::IsLowerCase(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::IsLowerCase(x.c); },
        Peer{"islower", [](auto& x) { return std::islower(byte(x.c)) != 0; }});
    addRows(
        {"IsUpperCase", {"CharFunctions::IsUpperCase(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::IsUpperCase(x.c); },
        Peer{"isupper", [](auto& x) { return std::isupper(byte(x.c)) != 0; }});
}

void addConversionRows() {
    addRows(
        {"ToUpperCase of a character", {"CharFunctions::ToUpperCase(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::ToUpperCase(x.c); },
        Peer{"toupper", [](auto& x) { return static_cast<char>(std::toupper(byte(x.c))); }});
    addRows(
        {"ToLowerCase of a character", {"CharFunctions::ToLowerCase(char)"}}, noSize, characters,
        [](auto& x) { return CharFunctions::ToLowerCase(x.c); },
        Peer{"tolower", [](auto& x) { return static_cast<char>(std::tolower(byte(x.c))); }});
    addRows(
        {"GetHexDigitValue", {"CharFunctions::GetHexDigitValue(char)"}}, noSize, hexCharacters,
        [](auto& x) { return CharFunctions::GetHexDigitValue(x.c); },
        Peer{"from_chars", [](auto& x) { return fromChars(&x.c, &x.c + 1); }});
    addRows(
        {"HexaToInt", {"CharFunctions::HexaToInt(char, char)"}}, noSize, hexCharacters,
        [](auto& x) { return CharFunctions::HexaToInt(x.c, x.next); },
        Peer{"from_chars", [](auto& x) {
                 char const digits[] = {x.c, x.next};
                 return fromChars(digits, digits + 2);
             }});
}

[[maybe_unused]] bool const registered = (addClassRows(), addConversionRows(), true);

}  // namespace
}  // namespace qel::bench
