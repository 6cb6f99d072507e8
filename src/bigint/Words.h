// Bit positions of a magnitude. They are computed in 64 bits, so that sums of ints near the ends of
// their range stay exact.
#pragma once

#include "EndProcess.h"

#include <climits>
#include <cstdint>

namespace qel::internal {

// Bit positions are ints, their sums and products long longs.
static_assert(INT_MAX == 0x7fffffff && sizeof(long long) == 8);

inline constexpr int bitsPerWord = 32;

/// The index of the word that holds bit `position`; -1 for position -1.
constexpr int wordIndex(long long position) noexcept {
    return static_cast<int>(position >> 5);
}

/// Ends the process for a position that no int can index.
inline void requireIndex(long long position) noexcept {
    if (position > INT_MAX)
        endProcessTooWide();
}

/// A position or a count of bits as the int that the interface speaks of; -1 for every position
/// below 0.
inline int checkedPosition(long long position) noexcept {
    requireIndex(position);
    return position < 0 ? -1 : static_cast<int>(position);
}

}  // namespace qel::internal
