// Byte by byte, as the system's own comparison goes.
#ifdef __APPLE__

#include "FoldedComparison.h"

#include "Ascii.h"

#include <limits>

namespace qel::internal {

int compareFolded(char const* a, char const* b) noexcept {
    return compareFolded(a, b, std::numeric_limits<std::size_t>::max());
}

int compareFolded(char const* a, char const* b, std::size_t n) noexcept {
    for (; n > 0; ++a, ++b, --n) {
        auto const left = static_cast<unsigned char>(lowerCase(*a));
        auto const right = static_cast<unsigned char>(lowerCase(*b));
        if (left != right || left == 0)
            return left - right;
    }
    return 0;
}

}  // namespace qel::internal

#endif
