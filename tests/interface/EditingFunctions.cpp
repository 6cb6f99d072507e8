// Building new text from one or two texts, and hexadecimal text.
#include "Arguments.h"
#include "CharFunctions.h"
#include "Expectations.h"
#include "model/PlainTextFunctions.h"

#include "qel/CharFunctions.h"

namespace interface_test {

namespace {

using qel::CharFunctions;

/// A wider text would take gigabytes.
constexpr unsigned int widest = 65535;

std::string padding(std::string const& s, unsigned int width, char fill) {
    return std::string(s.size() < width ? width - s.size() : 0, fill);
}

/// Every width with two fills, and every fill with one width.
template <typename Call, typename Model>
void pad(Results& results, Call call, Model model) {
    for (std::string const& s : texts()) {
        for (unsigned int const width : extremeUnsigned) {
            for (char const fill : {'0', '\xE9'}) {
                if (width <= widest)
                    expectResult(results, call(s.c_str(), width, fill), model(s, width, fill), s,
                                 width, fill);
            }
        }
    }
    for (char const fill : allCharacters)
        expectResult(results, call("ab", 33, fill), model("ab", 33, fill), fill);
}

/// The same for the texts and numbers of both tables.
void readHexText(Results& results, std::string const& hex) {
    expectResult(results, CharFunctions::HexaStringToAscii(hex.c_str()), model::bytesOfHexText(hex),
                 hex);
}

std::vector<Function> hexTextFunctions() {
    return {
        {"CharFunctions::AsciiToHexaString(char const*, bool)",
         [](Results& results) {
             for (std::string const& s : texts()) {
                 for (bool const upperCase : {false, true})
                     expectResult(results, CharFunctions::AsciiToHexaString(s.c_str(), upperCase),
                                  model::hexText(s, upperCase), s, upperCase);
             }
         }},
        {"CharFunctions::HexaStringToAscii(char const*)",
         [](Results& results) {
             for (std::string const& s : texts()) {
                 readHexText(results, s);
                 readHexText(results, model::hexText(s, true));
             }
             for (char const c : allCharacters)
                 readHexText(results, std::string("4") + c);
         }},
    };
}

}  // namespace

std::vector<Function> editingFunctions() {
    std::vector<Function> all = {
        {"CharFunctions::Concatenate(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::Concatenate,
                         [](std::string const& a, std::string const& b) { return a + b; });
         }},
        {"CharFunctions::SubStr(char const*, unsigned int, unsigned int)",
         [](Results& results) {
             for (std::string const& s : texts()) {
                 for (unsigned int const start : extremeUnsigned) {
                     // One beyond the end ends the process.
                     if (start > s.size())
                         continue;
                     for (unsigned int const count : extremeUnsigned)
                         expectResult(results, CharFunctions::SubStr(s.c_str(), start, count),
                                      s.substr(start, count), s, start, count);
                 }
                 auto const length = static_cast<unsigned int>(s.size());
                 expectResult(results, CharFunctions::SubStr(s.c_str(), length, 1), "", s, length);
             }
         }},
        {"CharFunctions::PadLeftWith(char const*, unsigned int, char)",
         [](Results& results) {
             pad(results, CharFunctions::PadLeftWith,
                 [](std::string const& s, unsigned int width, char fill) {
                     return padding(s, width, fill) + s;
                 });
         }},
        {"CharFunctions::PadWith(char const*, unsigned int, char)",
         [](Results& results) {
             pad(results, CharFunctions::PadWith,
                 [](std::string const& s, unsigned int width, char fill) {
                     return s + padding(s, width, fill);
                 });
         }},
        {"CharFunctions::Reverse(char const*)",
         [](Results& results) { forEachText(results, CharFunctions::Reverse, model::reverse); }},
        {"CharFunctions::RemoveLeadingSpaces(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::RemoveLeadingSpaces, model::trimLeft);
         }},
        {"CharFunctions::RemoveTrailingSpaces(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::RemoveTrailingSpaces, model::trimRight);
         }},
        {"CharFunctions::RemoveLeadingAndTrailingSpaces(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::RemoveLeadingAndTrailingSpaces,
                         [](std::string const& s) { return model::trimLeft(model::trimRight(s)); });
         }},
    };
    std::vector<Function> const hexText = hexTextFunctions();
    all.insert(all.end(), hexText.begin(), hexText.end());
    return all;
}

}  // namespace interface_test
