// Comparing two strings, and the raw copies into a caller's buffer.
#include "qel/CharFunctions.h"

#include <cstring>
#include <strings.h>

namespace qel {

int CharFunctions::Compare(char const* a, char const* b) noexcept {
    return std::strcmp(a, b);
}

int CharFunctions::Compare(char const* a, char const* b, unsigned int n) noexcept {
    return a == nullptr || b == nullptr ? -1 : std::strncmp(a, b, n);
}

int CharFunctions::CompareIgnoreCase(char const* a, char const* b) noexcept {
    return a == nullptr || b == nullptr ? -1 : strcasecmp(a, b);
}

bool CharFunctions::AreEqual(char const* a, char const* b) noexcept {
    return Compare(a, b) == 0;
}

bool CharFunctions::AreEqualIgnoreCase(char const* a, char const* b) noexcept {
    return CompareIgnoreCase(a, b) == 0;
}

// The caller guarantees the room: neither knows a bound.
// NOLINTBEGIN(clang-analyzer-security.insecureAPI.strcpy)
void CharFunctions::Copy(char* destination, char const* source) noexcept {
    std::strcpy(destination, source);
}

void CharFunctions::Copy(char* destination, char const* source, unsigned int n) noexcept {
    std::strncpy(destination, source, n);
}

void CharFunctions::Append(char* destination, char const* source) noexcept {
    std::strcat(destination, source);
}
// NOLINTEND(clang-analyzer-security.insecureAPI.strcpy)

}  // namespace qel
