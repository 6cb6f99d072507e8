// Building new text: joining, cutting, padding, reversing, trimming.
#include "qel/CharFunctions.h"

#include <algorithm>
#include <string_view>

namespace qel {

namespace {

/// What the C library's isspace accepts, whatever locale an application sets.
constexpr std::string_view whiteSpace = " \t\n\v\f\r";

std::string_view withoutLeadingSpaces(std::string_view text) noexcept {
    text.remove_prefix(std::min(text.find_first_not_of(whiteSpace), text.size()));
    return text;
}

std::string_view withoutTrailingSpaces(std::string_view text) noexcept {
    // Where all is white space, the no-position value plus one is 0.
    return text.substr(0, text.find_last_not_of(whiteSpace) + 1);
}

/// How many bytes a padded `s` has more than `s`.
std::size_t padding(std::string const& s, unsigned int width) noexcept {
    auto const length = static_cast<unsigned int>(s.size());
    return length < width ? width - length : 0;
}

}  // namespace

std::string CharFunctions::Concatenate(char const* a, char const* b) noexcept {
    return std::string(a).append(b);
}

std::string CharFunctions::SubStr(char const* s, unsigned int start, unsigned int count) noexcept {
    return std::string(std::string_view(s).substr(start, count));
}

std::string CharFunctions::PadLeftWith(char const* s, unsigned int width, char fill) noexcept {
    std::string text(s);
    return text.insert(0, padding(text, width), fill);
}

std::string CharFunctions::PadWith(char const* s, unsigned int width, char fill) noexcept {
    std::string text(s);
    return text.append(padding(text, width), fill);
}

std::string CharFunctions::Reverse(char const* s) noexcept {
    std::string_view const text(s);
    return {text.rbegin(), text.rend()};
}

std::string CharFunctions::RemoveLeadingSpaces(char const* s) noexcept {
    return std::string(withoutLeadingSpaces(s));
}

std::string CharFunctions::RemoveTrailingSpaces(char const* s) noexcept {
    return std::string(withoutTrailingSpaces(s));
}

std::string CharFunctions::RemoveLeadingAndTrailingSpaces(char const* s) noexcept {
    return std::string(withoutTrailingSpaces(withoutLeadingSpaces(s)));
}

}  // namespace qel
