// Building new text: joining, cutting, padding, reversing, trimming.
#include "qel/CharFunctions.h"

#include "Ascii.h"
#include "Joined.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qel {

namespace {

using internal::isWhiteSpace;

char const* withoutLeadingSpaces(char const* s) noexcept {
    while (isWhiteSpace(*s))
        ++s;
    return s;
}

std::string_view withoutTrailingSpaces(std::string_view text) noexcept {
    while (!text.empty() && isWhiteSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// How many bytes a padded `text` has more than `text`.
std::size_t padding(std::string_view text, unsigned int width) noexcept {
    auto const length = static_cast<unsigned int>(text.size());
    return length < width ? width - length : 0;
}

std::uint64_t reversedWordAt(char const* bytes) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return __builtin_bswap64(word);
}

/// Swaps words from both ends, and bytes once two words would overlap.
void reverse(char* begin, char* end) noexcept {
    constexpr std::ptrdiff_t wordSize = sizeof(std::uint64_t);
    while (end - begin >= 2 * wordSize) {
        end -= wordSize;
        std::uint64_t const newLast = reversedWordAt(begin);
        std::uint64_t const newFirst = reversedWordAt(end);
        std::memcpy(begin, &newFirst, sizeof newFirst);
        std::memcpy(end, &newLast, sizeof newLast);
        begin += wordSize;
    }
    std::reverse(begin, end);
}

}  // namespace

std::string CharFunctions::Concatenate(char const* a, char const* b) noexcept {
    return internal::joined(a, b);
}

std::string CharFunctions::SubStr(char const* s, unsigned int start, unsigned int count) noexcept {
    return std::string(std::string_view(s).substr(start, count));
}

std::string CharFunctions::PadLeftWith(char const* s, unsigned int width, char fill) noexcept {
    std::string_view const text(s);
    std::size_t const added = padding(text, width);
    std::string padded;
    padded.reserve(added + text.size());
    padded.append(added, fill).append(text);
    return padded;
}

std::string CharFunctions::PadWith(char const* s, unsigned int width, char fill) noexcept {
    std::string_view const text(s);
    std::size_t const added = padding(text, width);
    std::string padded;
    padded.reserve(text.size() + added);
    padded.append(text).append(added, fill);
    return padded;
}

std::string CharFunctions::Reverse(char const* s) noexcept {
    std::string text(s);
    reverse(text.data(), text.data() + text.size());
    return text;
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
