// Comparing two strings, and the raw copies into a caller's buffer.
#include "qel/CharFunctions.h"

#include "FoldedComparison.h"

#include <cstring>

#include <string.h>

namespace qel {

int CharFunctions::Compare(char const* a, char const* b) noexcept {
    return std::strcmp(a, b);
}

int CharFunctions::Compare(char const* a, char const* b, unsigned int n) noexcept {
    return a == nullptr || b == nullptr ? -1 : std::strncmp(a, b, n);
}

int CharFunctions::CompareIgnoreCase(char const* a, char const* b) noexcept {
    return a == nullptr || b == nullptr ? -1 : internal::compareFolded(a, b);
}

bool CharFunctions::AreEqual(char const* a, char const* b) noexcept {
    return Compare(a, b) == 0;
}

bool CharFunctions::AreEqualIgnoreCase(char const* a, char const* b) noexcept {
    return CompareIgnoreCase(a, b) == 0;
}

// The caller guarantees the room. All bytes are read before one is written, so that the two may
// overlap.

void CharFunctions::Copy(char* destination, char const* source) noexcept {
    std::memmove(destination, source, std::strlen(source) + 1);
}

void CharFunctions::Copy(char* destination, char const* source, unsigned int n) noexcept {
    std::size_t const length = strnlen(source, n);
    std::memmove(destination, source, length);
    if (length < n)
        std::memset(destination + length, 0, n - length);
}

void CharFunctions::Append(char* destination, char const* source) noexcept {
    Copy(destination + std::strlen(destination), source);
}

}  // namespace qel
