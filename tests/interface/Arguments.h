// Arguments at the ends of their ranges, and next to the sizes of words and limbs.
#pragma once

#include <array>
#include <climits>

namespace interface_test {

inline constexpr std::array<int, 12> extremeInts = {
    INT_MIN, INT_MIN + 1, -65536, -1, 0, 1, 31, 32, 33, 65535, INT_MAX - 1, INT_MAX};

/// The same bit patterns as unsigned numbers.
inline constexpr std::array<unsigned int, extremeInts.size()> extremeUnsigned = [] {
    std::array<unsigned int, extremeInts.size()> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<unsigned int>(extremeInts[i]);
    return values;
}();

}  // namespace interface_test
