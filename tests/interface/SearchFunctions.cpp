// What a text holds. Where null is documented it is passed too.
#include "CharFunctions.h"
#include "Expectations.h"
#include "model/PlainTextFunctions.h"

#include "qel/CharFunctions.h"

namespace interface_test {

namespace {

using qel::CharFunctions;

char const* const none = nullptr;

bool hasHighByte(std::string const& s) {
    for (char const c : s) {
        if (static_cast<unsigned char>(c) >= 128)
            return true;
    }
    return false;
}

bool startsWithDigit(std::string const& s) {
    return !s.empty() && s[0] >= '0' && s[0] <= '9';
}

/// No text contains, starts with or ends with null.
void expectFalseForNull(Results& results, bool (*function)(char const*, char const*) noexcept) {
    for (std::string const& s : texts())
        expectResult(results, function(s.c_str(), nullptr), false, s, none);
}

std::vector<Function> functionsOfOneText() {
    return {
        {"CharFunctions::IsEmpty(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::IsEmpty,
                         [](std::string const& s) { return s.empty(); });
         }},
        {"CharFunctions::Length(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::Length,
                         [](std::string const& s) { return static_cast<unsigned int>(s.size()); });
         }},
        {"CharFunctions::StartsWithDigit(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::StartsWithDigit, startsWithDigit);
             expectResult(results, CharFunctions::StartsWithDigit(nullptr), false, none);
         }},
        {"CharFunctions::ContainsExtendedAsciiCharacters(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::ContainsExtendedAsciiCharacters, hasHighByte);
         }},
        {"CharFunctions::CountOccurence(char const*, char)",
         [](Results& results) {
             for (char const c : allCharacters) {
                 auto const byte = static_cast<unsigned char>(c);
                 for (std::string const& s : texts())
                     expectResult(results, CharFunctions::CountOccurence(s.c_str(), c),
                                  model::count(s, c), s, byte);
                 expectResult(results, CharFunctions::CountOccurence(nullptr, c), 0U, none, byte);
             }
         }},
        {"CharFunctions::IsBoolean(char const*)",
         [](Results& results) {
             forEachText(results, CharFunctions::IsBoolean, model::isBoolean);
             for (std::string const word :
                  {"True", "TRUE", "tRUE", "False", "false", "FALSE", "0", "1", "01"})
                 expectResult(results, CharFunctions::IsBoolean(word.c_str()),
                              model::isBoolean(word), word);
         }},
    };
}

}  // namespace

std::vector<Function> searchFunctions() {
    std::vector<Function> all = functionsOfOneText();
    std::vector<Function> const ofTwo = {
        {"CharFunctions::IndexOfFirstOccurence(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::IndexOfFirstOccurence, model::indexOfFirst);
         }},
        {"CharFunctions::IndexOfLastOccurence(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::IndexOfLastOccurence, model::indexOfLast);
         }},
        {"CharFunctions::Contains(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::Contains, model::contains);
             expectFalseForNull(results, CharFunctions::Contains);
         }},
        {"CharFunctions::StartsWith(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::StartsWith, model::startsWith);
             expectFalseForNull(results, CharFunctions::StartsWith);
         }},
        {"CharFunctions::EndsWith(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::EndsWith, model::endsWith);
             expectFalseForNull(results, CharFunctions::EndsWith);
         }},
        {"CharFunctions::StartsWithIgnoreCase(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::StartsWithIgnoreCase,
                         [](std::string const& s, std::string const& prefix) {
                             return model::startsWith(model::lowerCase(s),
                                                      model::lowerCase(prefix));
                         });
         }},
        {"CharFunctions::EndsWithIgnoreCase(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::EndsWithIgnoreCase,
                         [](std::string const& s, std::string const& suffix) {
                             return model::endsWith(model::lowerCase(s), model::lowerCase(suffix));
                         });
         }},
    };
    all.insert(all.end(), ofTwo.begin(), ofTwo.end());
    return all;
}

}  // namespace interface_test
