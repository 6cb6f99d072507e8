// Searches in texts.
#include "Texts.h"

#include "qel/CharFunctions.h"

#include <cctype>
#include <cstring>
#include <string_view>
#include <strings.h>

namespace qel::bench {
namespace {

constexpr char const* set = "#[;]!";
constexpr char const* part = "[x]";

int indexOf(std::size_t position) {
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

void addSetRows() {
    addRows(
        {"IndexOfFirstOccurence",
         {"CharFunctions::IndexOfFirstOccurence(char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::IndexOfFirstOccurence(x.s(), set); },
        Peer{"strpbrk",
             [](auto& x) {
                 char const* const found = std::strpbrk(x.s(), set);
                 return found == nullptr ? -1 : static_cast<int>(found - x.s());
             }},
        Peer{"find_first_of",
             [](auto& x) { return indexOf(std::string_view(x.s()).find_first_of(set)); }});
    addRows(
        {"IndexOfLastOccurence", {"CharFunctions::IndexOfLastOccurence(char const*, char const*)"}},
        textSizes, textsWithMarks,
        [](auto& x) { return CharFunctions::IndexOfLastOccurence(x.s(), set); },
        Peer{"find_last_of",
             [](auto& x) { return indexOf(std::string_view(x.s()).find_last_of(set)); }});
    addRows(
        {"EndsWith", {"CharFunctions::EndsWith(char const*, char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::EndsWith(x.s(), "aeiou"); },
        Peer{"strchr", [](auto& x) {
                 return std::strchr("aeiou", x.s()[std::strlen(x.s()) - 1]) != nullptr;
             }});
    addRows(
        {"EndsWithIgnoreCase", {"CharFunctions::EndsWithIgnoreCase(char const*, char const*)"}},
        textSizes, texts, [](auto& x) { return CharFunctions::EndsWithIgnoreCase(x.s(), "aeiou"); },
        Peer{"strchr", [](auto& x) {
                 int const last = static_cast<unsigned char>(x.s()[std::strlen(x.s()) - 1]);
                 return std::strchr("aeiou", std::tolower(last)) != nullptr;
             }});
}

void addPartRows() {
    addRows(
        {"Contains", {"CharFunctions::Contains(char const*, char const*)"}}, textSizes,
        textsWithMarks, [](auto& x) { return CharFunctions::Contains(x.s(), part); },
        Peer{"strstr", [](auto& x) { return std::strstr(x.s(), part) != nullptr; }},
        Peer{"find",
             [](auto& x) { return std::string_view(x.s()).find(part) != std::string_view::npos; }});
    addRows(
        {"StartsWith", {"CharFunctions::StartsWith(char const*, char const*)"}}, textSizes, texts,
        [](auto& x) { return CharFunctions::StartsWith(x.s(), x.copy.c_str()); },
        Peer{"strncmp",
             [](auto& x) {
                 return std::strncmp(x.s(), x.copy.c_str(), std::strlen(x.copy.c_str())) == 0;
             }},
        Peer{"starts_with",
             [](auto& x) { return std::string_view(x.s()).starts_with(x.copy.c_str()); }});
    addRows(
        {"StartsWithIgnoreCase", {"CharFunctions::StartsWithIgnoreCase(char const*, char const*)"}},
        textSizes, texts,
        [](auto& x) { return CharFunctions::StartsWithIgnoreCase(x.s(), x.otherCase.c_str()); },
        Peer{"strncasecmp", [](auto& x) {
                 char const* const prefix = x.otherCase.c_str();
                 return strncasecmp(x.s(), prefix, std::strlen(prefix)) == 0;
             }});
}

[[maybe_unused]] bool const registered = (addSetRows(), addPartRows(), true);

}  // namespace
}  // namespace qel::bench
