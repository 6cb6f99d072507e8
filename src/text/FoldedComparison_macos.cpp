// Byte by byte, as the system's own comparison goes.
#ifdef __APPLE__

#include "FoldedComparison.h"

#include "qel/CharFunctions.h"

namespace qel::internal {

int compareFolded(char const* a, char const* b) noexcept {
    for (;; ++a, ++b) {
        auto const left = static_cast<unsigned char>(CharFunctions::ToLowerCase(*a));
        auto const right = static_cast<unsigned char>(CharFunctions::ToLowerCase(*b));
        if (left != right || left == 0)
            return left - right;
    }
}

}  // namespace qel::internal

#endif
