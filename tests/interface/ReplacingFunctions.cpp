// Replacing and removing; any two or all three of the texts may be the same one.
#include "CharFunctions.h"
#include "Expectations.h"
#include "model/PlainReplacement.h"
#include "model/PlainTextFunctions.h"

#include "qel/CharFunctions.h"

#include <optional>

namespace interface_test {

namespace {

using qel::CharFunctions;

char const* const none = nullptr;

/// No text of the table takes as many steps, unless it goes on for ever.
constexpr std::size_t longestReplacement = 1200;

template <typename Call, typename Model>
void forEachThree(Results& results, Call call, Model model) {
    for (std::string const& s : fewTexts()) {
        for (std::string const& old : fewTexts()) {
            for (std::string const& replacement : fewTexts())
                expectResult(results, call(s.c_str(), old.c_str(), replacement.c_str()),
                             model(s, old, replacement), s, old, replacement);
        }
    }
}

/// What is null replaces nothing.
template <typename Call>
void expectCopiesForNull(Results& results, Call call) {
    for (std::string const& s : fewTexts()) {
        expectResult(results, call(s.c_str(), "a", nullptr), s, s, "a", none);
        expectResult(results, call(s.c_str(), nullptr, "a"), s, s, none, "a");
        expectResult(results, call(s.c_str(), s.c_str(), nullptr), s, s, s, none);
        expectResult(results, call(s.c_str(), nullptr, s.c_str()), s, s, none, s);
        expectResult(results, call(s.c_str(), nullptr, nullptr), s, s, none, none);
    }
}

template <typename Call>
void expectCopiesForNullPart(Results& results, Call call) {
    for (std::string const& s : texts())
        expectResult(results, call(s.c_str(), nullptr), s, s, none);
}

std::string removeAll(std::string const& s, std::string const& part) {
    return part.empty() ? s : model::replace(s, part, "", longestReplacement).value_or("for ever");
}

void replace(Results& results, std::string const& s, std::string const& old,
             std::string const& replacement) {
    std::optional<std::string> const expected =
        old.empty() ? s : model::replace(s, old, replacement, longestReplacement);
    // What brings the old text about for ever takes all memory, or all time.
    if (expected)
        expectResult(results, CharFunctions::Replace(s.c_str(), old.c_str(), replacement.c_str()),
                     *expected, s, old, replacement);
}

}  // namespace

std::vector<Function> replacingFunctions() {
    return {
        {"CharFunctions::Replace(char const*, char const*, char const*)",
         [](Results& results) {
             for (std::string const& s : fewTexts()) {
                 for (std::string const& old : fewTexts()) {
                     for (std::string const& replacement : fewTexts()) {
                         if (!model::contains(replacement, old) || !model::contains(s, old))
                             replace(results, s, old, replacement);
                     }
                 }
             }
             expectCopiesForNull(results, CharFunctions::Replace);
         }},
        {"CharFunctions::ReplaceFirstOccurence(char const*, char const*, char const*)",
         [](Results& results) {
             forEachThree(results, CharFunctions::ReplaceFirstOccurence, model::replaceFirst);
             expectCopiesForNull(results, CharFunctions::ReplaceFirstOccurence);
         }},
        {"CharFunctions::ReplaceLastOccurence(char const*, char const*, char const*)",
         [](Results& results) {
             forEachThree(results, CharFunctions::ReplaceLastOccurence, model::replaceLast);
             expectCopiesForNull(results, CharFunctions::ReplaceLastOccurence);
         }},
        {"CharFunctions::RemoveAllOccurence(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::RemoveAllOccurence, removeAll);
             expectCopiesForNullPart(results, CharFunctions::RemoveAllOccurence);
         }},
        {"CharFunctions::RemoveFirstOccurence(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::RemoveFirstOccurence, model::removeFirst);
             expectCopiesForNullPart(results, CharFunctions::RemoveFirstOccurence);
         }},
        {"CharFunctions::RemoveLastOccurence(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, CharFunctions::RemoveLastOccurence, model::removeLast);
             expectCopiesForNullPart(results, CharFunctions::RemoveLastOccurence);
         }},
    };
}

}  // namespace interface_test
