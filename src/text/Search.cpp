// What a string holds: emptiness, length, counts, positions, prefixes and suffixes.
#include "qel/CharFunctions.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace qel {

namespace {

constexpr auto booleanWords =
    std::to_array<std::string_view>({"True", "true", "TRUE", "False", "false", "FALSE", "0", "1"});

/// The no-position value of a search becomes -1.
int asIndex(std::size_t position) noexcept {
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

}  // namespace

bool CharFunctions::IsEmpty(char const* s) noexcept {
    return *s == '\0';
}

unsigned int CharFunctions::Length(char const* s) noexcept {
    return static_cast<unsigned int>(std::strlen(s));
}

bool CharFunctions::StartsWithDigit(char const* s) noexcept {
    return s != nullptr && IsDigit(*s);
}

bool CharFunctions::ContainsExtendedAsciiCharacters(char const* s) noexcept {
    std::string_view const text(s);
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) >= 128; });
}

unsigned int CharFunctions::CountOccurence(char const* s, char c) noexcept {
    if (s == nullptr)
        return 0;
    std::string_view const text(s);
    return static_cast<unsigned int>(std::count(text.begin(), text.end(), c));
}

bool CharFunctions::IsBoolean(char const* s) noexcept {
    return std::find(booleanWords.begin(), booleanWords.end(), s) != booleanWords.end();
}

int CharFunctions::IndexOfFirstOccurence(char const* s, char const* set) noexcept {
    return asIndex(std::string_view(s).find_first_of(set));
}

int CharFunctions::IndexOfLastOccurence(char const* s, char const* set) noexcept {
    return asIndex(std::string_view(s).find_last_of(set));
}

bool CharFunctions::Contains(char const* s, char const* part) noexcept {
    return part != nullptr && !IsEmpty(part) && std::strstr(s, part) != nullptr;
}

bool CharFunctions::StartsWith(char const* s, char const* prefix) noexcept {
    return prefix != nullptr && std::strncmp(s, prefix, std::strlen(prefix)) == 0;
}

bool CharFunctions::EndsWith(char const* s, char const* suffix) noexcept {
    if (suffix == nullptr)
        return false;
    // For an empty text both sides are the largest size: it ends with everything, as File needs.
    std::string_view const text(s);
    return text.find_last_of(suffix) == text.length() - 1;
}

bool CharFunctions::StartsWithIgnoreCase(char const* s, char const* prefix) noexcept {
    return StartsWith(ToLowerCase(s).c_str(), ToLowerCase(prefix).c_str());
}

bool CharFunctions::EndsWithIgnoreCase(char const* s, char const* suffix) noexcept {
    return EndsWith(ToLowerCase(s).c_str(), ToLowerCase(suffix).c_str());
}

}  // namespace qel
