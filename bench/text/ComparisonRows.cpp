// Comparisons of equal texts, which look at every byte.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <cstring>
#include <strings.h>

namespace qel::bench {
namespace {

void addExactRows() {
    addRows(
        {"Compare", {"CharFunctions::Compare(char const*, char const*)"}}, textSizes, texts,
        [](auto& x) { return Order{CharFunctions::Compare(x.s(), x.copy.c_str())}; },
        Peer{"strcmp", [](auto& x) { return Order{std::strcmp(x.s(), x.copy.c_str())}; }});
    addRows(
        {"Compare, up to n", {"CharFunctions::Compare(char const*, char const*, unsigned int)"}},
        textSizes, texts,
        [](auto& x) { return Order{CharFunctions::Compare(x.s(), x.copy.c_str(), 100000U)}; },
        Peer{"strncmp",
             [](auto& x) { return Order{std::strncmp(x.s(), x.copy.c_str(), 100000U)}; }});
    addRows(
        {"AreEqual", {"CharFunctions::AreEqual(char const*, char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::AreEqual(x.s(), x.copy.c_str()); },
        Peer{"strcmp", [](auto& x) { return std::strcmp(x.s(), x.copy.c_str()) == 0; }});
}

void addFoldingRows() {
    addRows(
        {"CompareIgnoreCase", {"CharFunctions::CompareIgnoreCase(char const*, char const*)"}},
        textSizes, texts,
        [](auto& x) { return Order{CharFunctions::CompareIgnoreCase(x.s(), x.otherCase.c_str())}; },
        Peer{"strcasecmp", [](auto& x) { return Order{strcasecmp(x.s(), x.otherCase.c_str())}; }});
    addRows(
        {"AreEqualIgnoreCase", {"CharFunctions::AreEqualIgnoreCase(char const*, char const*)"}},
        textSizes, texts,
        [](auto& x) { return CharFunctions::AreEqualIgnoreCase(x.s(), x.otherCase.c_str()); },
        Peer{"strcasecmp", [](auto& x) { return strcasecmp(x.s(), x.otherCase.c_str()) == 0; }});
}

[[maybe_unused]] bool const registered = (addExactRows(), addFoldingRows(), true);

}  // namespace
}  // namespace qel::bench
