// What a string holds: emptiness, length, counts, positions, prefixes and suffixes.
#include "qel/CharFunctions.h"

#include "Ascii.h"
#include "Blocks.h"
#include "FoldedComparison.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstring>
#include <string_view>

#include <string.h>

namespace qel {

using namespace internal;

namespace {

constexpr auto booleanWords =
    std::to_array<std::string_view>({"True", "true", "TRUE", "False", "false", "FALSE", "0", "1"});

/// Sets of up to so many members are searched for in blocks.
constexpr std::size_t fewMembers = 8;

/// The position behind the last byte that is in `set`; 0 when there is none.
std::size_t behindLastOf(std::string_view text, std::string_view set) noexcept {
    auto const index = [](char c) { return static_cast<unsigned char>(c); };
    std::bitset<256> members;
    for (char const c : set)
        members[index(c)] = true;
    std::size_t end = text.size();
    while (end > 0 && !members[index(text[end - 1])])
        --end;
    return end;
}

/// Not zero at the places where one of `count` blocks has a member of `set`.
template <std::size_t count>
Block membersIn(char const* blocks, char const* set) noexcept {
    Block hits = {};
    for (; *set != '\0'; ++set) {
        for (std::size_t i = 0; i < count; ++i)
            hits |= blockAt(blocks + i * blockSize) == repeated(*set);
    }
    return hits;
}

/// The same in blocks, at least one of which the text fills: the last that is looked at may have
/// bytes that were passed already.
std::size_t behindLastOfFew(std::string_view text, char const* set) noexcept {
    constexpr std::size_t step = 4 * blockSize;
    std::size_t end = text.size();
    while (end >= step && !any(membersIn<4>(text.data() + end - step, set)))
        end -= step;
    while (end > 0) {
        end -= std::min(end, blockSize);
        Block const hits = membersIn<1>(text.data() + end, set);
        if (any(hits))
            return end + lastHit(hits) + 1;
    }
    return 0;
}

/// So many that the hits at one place of a block still fit in a byte.
constexpr std::size_t countedTogether = 255 * blockSize;

/// How often `c`, which is not zero, occurs in up to 4080 bytes.
std::size_t countIn(std::string_view text, char c) noexcept {
    Block hits = {};
    // A hit is a byte of ones, which is -1.
    for (; text.size() >= blockSize; text.remove_prefix(blockSize))
        hits -= static_cast<Block>(blockAt(text.data()) == repeated(c));
    std::size_t const inRest = static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
    return sumOfBytes(hits) + inRest;
}

/// An empty text ends with everything, as File needs.
template <typename Fold>
bool endsWith(char const* s, char const* suffix, Fold fold) noexcept {
    std::size_t const length = std::strlen(s);
    if (length == 0)
        return true;
    char const last = fold(s[length - 1]);
    while (*suffix != '\0' && fold(*suffix) != last)
        ++suffix;
    return *suffix != '\0';
}

}  // namespace

unsigned int CharFunctions::Length(char const* s) noexcept {
    return static_cast<unsigned int>(std::strlen(s));
}

bool CharFunctions::ContainsExtendedAsciiCharacters(char const* s) noexcept {
    std::size_t const length = std::strlen(s);
    Block bits = {};
    std::size_t i = 0;
    for (; length - i >= blockSize; i += blockSize)
        bits |= blockAt(s + i);
    bits |= blockAt(s + i, length - i);
    return any(bits & repeated('\x80'));
}

unsigned int CharFunctions::CountOccurence(char const* s, char c) noexcept {
    if (s == nullptr || c == '\0')
        return 0;
    std::size_t const length = std::strlen(s);
    std::size_t count = 0;
    for (std::size_t i = 0; i < length; i += countedTogether)
        count += countIn({s + i, std::min(length - i, countedTogether)}, c);
    return static_cast<unsigned int>(count);
}

bool CharFunctions::IsBoolean(char const* s) noexcept {
    constexpr std::size_t longest = 5;
    std::string_view const word(s, strnlen(s, longest + 1));
    return std::find(booleanWords.begin(), booleanWords.end(), word) != booleanWords.end();
}

int CharFunctions::IndexOfFirstOccurence(char const* s, char const* set) noexcept {
    char const* const found = std::strpbrk(s, set);
    return found == nullptr ? -1 : static_cast<int>(found - s);
}

int CharFunctions::IndexOfLastOccurence(char const* s, char const* set) noexcept {
    std::string_view const text(s);
    bool const byBlocks = text.size() >= blockSize && strnlen(set, fewMembers + 1) <= fewMembers;
    std::size_t const end = byBlocks ? behindLastOfFew(text, set) : behindLastOf(text, set);
    return static_cast<int>(end) - 1;
}

bool CharFunctions::Contains(char const* s, char const* part) noexcept {
    return part != nullptr && !IsEmpty(part) && std::strstr(s, part) != nullptr;
}

bool CharFunctions::StartsWith(char const* s, char const* prefix) noexcept {
    return prefix != nullptr && std::strncmp(s, prefix, std::strlen(prefix)) == 0;
}

bool CharFunctions::EndsWith(char const* s, char const* suffix) noexcept {
    return suffix != nullptr && endsWith(s, suffix, [](char c) { return c; });
}

bool CharFunctions::StartsWithIgnoreCase(char const* s, char const* prefix) noexcept {
    return compareFolded(s, prefix, std::strlen(prefix)) == 0;
}

bool CharFunctions::EndsWithIgnoreCase(char const* s, char const* suffix) noexcept {
    return endsWith(s, suffix, [](char c) { return lowerCase(c); });
}

}  // namespace qel
