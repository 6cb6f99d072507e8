// Where one algorithm takes over from another, in limbs. Measured on processors with mulx and adx;
// a wrong value costs time and nothing else.
#pragma once

#include <cstddef>

namespace qel::limbs {

/// From these lengths on, products are taken by halves and by thirds.
inline constexpr std::size_t halvesMultiply = 24;
inline constexpr std::size_t halvesSquare = 48;
inline constexpr std::size_t thirdsMultiply = 144;
inline constexpr std::size_t thirdsSquare = 232;
/// From this length of the shorter operand on, products are taken by transforms.
inline constexpr std::size_t transformMultiply = 3400;
inline constexpr std::size_t transformSquare = 3400;

/// Quotients by one limb of fewer limbs are taken without the divisor's reciprocal. Older
/// processors would like it lower: 2.
inline constexpr std::size_t divideLimbReciprocal = 9;
/// Those of so many limbs are taken in two halves side by side. At least 2.
inline constexpr std::size_t divideLimbSplit = 10;
/// Remainders by one limb of so many limbs are folded. At least 2.
inline constexpr std::size_t remainderFold = 4;

/// Quotients of fewer limbs are taken digit by digit. At least 2.
inline constexpr std::size_t divideSplit = 20;
/// From so many digits and limbs of the divisor on, quotients are taken by a reciprocal.
inline constexpr std::size_t divideReciprocal = 4500;
/// Reciprocals of so many limbs are refined by Newton's iteration; shorter ones are quotients.
/// At least 3, and at most divideReciprocal.
inline constexpr std::size_t reciprocalNewton = 2000;

/// Montgomery reductions of fewer limbs are taken row by row. At least 2.
inline constexpr std::size_t reduceSplit = 160;

/// Decimal text of more groups of 19 digits than this is split. At least 6.
inline constexpr std::size_t decimalOutSplit = 32;
inline constexpr std::size_t decimalInSplit = 80;

}  // namespace qel::limbs
