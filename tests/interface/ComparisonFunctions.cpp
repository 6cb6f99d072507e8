// Comparisons, by bytes as unsigned numbers; texts are compared with themselves too.
#include "Arguments.h"
#include "CharFunctions.h"
#include "Expectations.h"
#include "model/PlainTextFunctions.h"

#include "qel/CharFunctions.h"

namespace interface_test {

namespace {

using qel::CharFunctions;

char const* const none = nullptr;

int signOf(int value) {
    return (value > 0) - (value < 0);
}

/// The lower-cased bytes' difference at the first place where there is one.
int differenceIgnoringCase(std::string const& a, std::string const& b) {
    std::string const left = model::lowerCase(a) + '\0';
    std::string const right = model::lowerCase(b) + '\0';
    std::size_t i = 0;
    while (left[i] == right[i] && left[i] != '\0')
        ++i;
    return static_cast<unsigned char>(left[i]) - static_cast<unsigned char>(right[i]);
}

void compareBytesWithoutTerminator(Results& results) {
    std::vector<char> const a = {'a', 'b', '\xE9'};
    std::vector<char> const b = {'a', 'b', '\xC9'};
    for (unsigned int const n : {0U, 1U, 2U, 3U})
        expectResult(results, signOf(CharFunctions::Compare(a.data(), b.data(), n)), n == 3 ? 1 : 0,
                     "unterminated", n);
}

}  // namespace

std::vector<Function> comparisonFunctions() {
    return {
        {"CharFunctions::Compare(char const*, char const*)",
         [](Results& results) {
             forEachPair(
                 results,
                 [](char const* a, char const* b) { return signOf(CharFunctions::Compare(a, b)); },
                 model::compare);
         }},
        {"CharFunctions::Compare(char const*, char const*, unsigned int)",
         [](Results& results) {
             for (unsigned int const n : extremeUnsigned) {
                 for (std::string const& a : texts()) {
                     for (std::string const& b : texts())
                         expectResult(results,
                                      signOf(CharFunctions::Compare(a.c_str(), b.c_str(), n)),
                                      model::compare(a.substr(0, n), b.substr(0, n)), a, b, n);
                 }
                 expectResult(results, CharFunctions::Compare("a", nullptr, n), -1, none, n);
                 expectResult(results, CharFunctions::Compare(nullptr, "a", n), -1, none, n);
                 expectResult(results, CharFunctions::Compare(nullptr, nullptr, n), -1, none, n);
             }
             compareBytesWithoutTerminator(results);
         }},
        {"CharFunctions::CompareIgnoreCase(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::CompareIgnoreCase, differenceIgnoringCase);
             expectResult(results, CharFunctions::CompareIgnoreCase("a", nullptr), -1, none);
             expectResult(results, CharFunctions::CompareIgnoreCase(nullptr, "a"), -1, none);
             expectResult(results, CharFunctions::CompareIgnoreCase(nullptr, nullptr), -1, none);
         }},
        {"CharFunctions::AreEqual(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::AreEqual,
                         [](std::string const& a, std::string const& b) { return a == b; });
         }},
        {"CharFunctions::AreEqualIgnoreCase(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::AreEqualIgnoreCase,
                         [](std::string const& a, std::string const& b) {
                             return model::lowerCase(a) == model::lowerCase(b);
                         });
             expectResult(results, CharFunctions::AreEqualIgnoreCase("a", nullptr), false, none);
             expectResult(results, CharFunctions::AreEqualIgnoreCase(nullptr, "a"), false, none);
             expectResult(results, CharFunctions::AreEqualIgnoreCase(nullptr, nullptr), false,
                          none);
         }},
    };
}

}  // namespace interface_test
