// Where one algorithm takes over from another, in limbs. Measured on processors with mulx and adx;
// a wrong value costs time and nothing else.
#pragma once

#include <cstddef>

namespace qel::limbs {

inline constexpr std::size_t karatsubaMultiply = 28;
inline constexpr std::size_t karatsubaSquare = 44;

/// Decimal text of more groups of 19 digits than this is split. At least 2.
inline constexpr std::size_t decimalOutSplit = 24;
inline constexpr std::size_t decimalInSplit = 48;

}  // namespace qel::limbs
