// New texts from parts of others.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace qel::bench {
namespace {

constexpr char const* whiteSpace = " \t\n\v\f\r";

unsigned int paddedWidth(Texts const& x) {
    return static_cast<unsigned int>(x.text.size()) * 2;
}

void addJoiningRows() {
    addRows(
        {"Concatenate", {"CharFunctions::Concatenate(char const*, char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::Concatenate(x.s(), x.copy.c_str()); },
        Peer{"string +", [](auto& x) { return std::string(x.s()) + x.copy.c_str(); }});
    addRows(
        {"SubStr", {"CharFunctions::SubStr(char const*, unsigned int, unsigned int)"}}, textSizes,
        texts,
        [](auto& x) {
            auto const quarter = static_cast<unsigned int>(x.text.size() / 4);
            return CharFunctions::SubStr(x.s(), quarter, 2 * quarter);
        },
        Peer{"substr", [](auto& x) {
                 std::size_t const quarter = x.text.size() / 4;
                 return std::string(std::string_view(x.s()).substr(quarter, 2 * quarter));
             }});
    addRows(
        {"PadLeftWith", {"CharFunctions::PadLeftWith(char const*, unsigned int, char)"}}, textSizes,
        texts, [](auto& x) { return CharFunctions::PadLeftWith(x.s(), paddedWidth(x), '.'); },
        Peer{"string +", [](auto& x) {
                 return std::string(paddedWidth(x) - std::strlen(x.s()), '.') + x.s();
             }});
    addRows(
        {"PadWith", {"CharFunctions::PadWith(char const*, unsigned int, char)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::PadWith(x.s(), paddedWidth(x), '.'); },
        Peer{"resize", [](auto& x) {
                 std::string text(x.s());
                 text.resize(paddedWidth(x), '.');
                 return text;
             }});
    addRows(
        {"Reverse", {"CharFunctions::Reverse(char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::Reverse(x.s()); },
        Peer{"reverse", [](auto& x) {
                 std::string text(x.s());
                 std::reverse(text.begin(), text.end());
                 return text;
             }});
}

std::string_view withoutLeading(std::string_view s) {
    s.remove_prefix(std::min(s.find_first_not_of(whiteSpace), s.size()));
    return s;
}

std::string_view withoutTrailing(std::string_view s) {
    return s.substr(0, s.find_last_not_of(whiteSpace) + 1);
}

void addTrimmingRows() {
    addRows(
        {"RemoveLeadingSpaces", {"CharFunctions::RemoveLeadingSpaces(char const*)"}}, textSizes,
        textsInSpaces, [](auto& x) { return CharFunctions::RemoveLeadingSpaces(x.s()); },
        Peer{"find_first_not_of", [](auto& x) { return std::string(withoutLeading(x.s())); }});
    addRows(
        {"RemoveTrailingSpaces", {"CharFunctions::RemoveTrailingSpaces(char const*)"}}, textSizes,
        textsInSpaces, [](auto& x) { return CharFunctions::RemoveTrailingSpaces(x.s()); },
        Peer{"find_last_not_of", [](auto& x) { return std::string(withoutTrailing(x.s())); }});
    addRows(
        {"RemoveLeadingAndTrailingSpaces",
         {"CharFunctions::RemoveLeadingAndTrailingSpaces(char const*)"}},
        textSizes, textsInSpaces,
        [](auto& x) { return CharFunctions::RemoveLeadingAndTrailingSpaces(x.s()); },
        Peer{"find_not_of",
             [](auto& x) { return std::string(withoutTrailing(withoutLeading(x.s()))); }});
}

[[maybe_unused]] bool const registered = (addJoiningRows(), addTrimmingRows(), true);

}  // namespace
}  // namespace qel::bench
