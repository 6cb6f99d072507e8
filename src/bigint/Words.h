// Words and bit positions of a magnitude. Positions are computed in 64 bits, so that sums of
// ints near the ends of their range stay exact.
#pragma once

#include "EndProcess.h"

#include <bit>
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

/// The index of the highest set bit of words[0] to words[top], -1 when all are zero.
inline long long highestSetBit(std::uint32_t const* words, int top) noexcept {
    for (int i = top; i >= 0; --i) {
        if (words[i] != 0)
            return static_cast<long long>(i) * bitsPerWord + std::bit_width(words[i]) - 1;
    }
    return -1;
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
