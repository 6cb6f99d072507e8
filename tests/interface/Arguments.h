// Arguments at the ends of their ranges, and next to the sizes of words and limbs.
#pragma once

#include <array>
#include <cfloat>
#include <climits>
#include <limits>
#include <type_traits>

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

/// Both ends of `Integer`, of int and of unsigned int, and what lies next to them.
template <typename Integer>
inline constexpr std::array<Integer, extremeInts.size() + 8> extremesOf = [] {
    static_assert(sizeof(Integer) == 8);
    std::array<Integer, extremeInts.size() + 8> values{};
    std::size_t i = 0;
    for (int const value : extremeInts)
        values[i++] = static_cast<Integer>(value);
    constexpr auto lowest = std::numeric_limits<Integer>::min();
    constexpr auto highest = std::numeric_limits<Integer>::max();
    for (Integer const value :
         {lowest, lowest + 1, highest - 1, highest, static_cast<Integer>(INT_MIN) - 1,
          static_cast<Integer>(INT_MAX) + 1, static_cast<Integer>(UINT_MAX),
          static_cast<Integer>(UINT_MAX) + 1})
        values[i++] = value;
    return values;
}();

inline constexpr std::array<double, 14> extremeDoubles = {0.0,
                                                          -0.0,
                                                          1.5,
                                                          0.1,
                                                          -1.0 / 3,
                                                          1234567.875,
                                                          -1e22,
                                                          DBL_MIN,
                                                          DBL_TRUE_MIN,
                                                          DBL_MAX,
                                                          -DBL_MAX,
                                                          std::numeric_limits<double>::infinity(),
                                                          -std::numeric_limits<double>::infinity(),
                                                          std::numeric_limits<double>::quiet_NaN()};

inline constexpr std::array<float, 10> extremeFloats = {0.0F,
                                                        -0.0F,
                                                        1.5F,
                                                        0.1F,
                                                        -1.0F / 3,
                                                        FLT_MIN,
                                                        FLT_TRUE_MIN,
                                                        FLT_MAX,
                                                        std::numeric_limits<float>::infinity(),
                                                        std::numeric_limits<float>::quiet_NaN()};

inline constexpr std::array<long long, 16> extremeWide = {LLONG_MIN,
                                                          LLONG_MIN + 1,
                                                          -(1LL << 48),
                                                          INT_MIN - 1LL,
                                                          INT_MIN,
                                                          -1,
                                                          0,
                                                          1,
                                                          INT_MAX,
                                                          UINT_MAX,
                                                          UINT_MAX + 1LL,
                                                          (1LL << 47) - 1,
                                                          1LL << 47,
                                                          1LL << 48,
                                                          LLONG_MAX - 1,
                                                          LLONG_MAX};

/// A radix: the four that mean something, one between them, and the ends of the range.
struct Radix {
    int value;
    operator int() const { return value; }
};

inline constexpr std::array<bool, 2> bothBools = {false, true};

/// The values that an argument of type `Number` takes.
template <typename Number>
constexpr auto extremes() {
    if constexpr (std::is_same_v<Number, bool>) {
        return bothBools;
    } else if constexpr (std::is_same_v<Number, unsigned int>) {
        return extremeUnsigned;
    } else if constexpr (std::is_same_v<Number, long long>) {
        return extremeWide;
    } else if constexpr (std::is_same_v<Number, Radix>) {
        std::array<Radix, extremeInts.size() + 5> radixes{{{2}, {7}, {8}, {10}, {16}}};
        for (std::size_t i = 0; i < extremeInts.size(); ++i)
            radixes[i + 5].value = extremeInts[i];
        return radixes;
    } else {
        static_assert(std::is_same_v<Number, int>);
        return extremeInts;
    }
}

/// Visits every combination of the values of some arguments.
template <typename... Numbers>
struct Combinations {
    template <typename Visit>
    static void forEach(Visit visit) {
        visit();
    }
};

template <typename First, typename... Rest>
struct Combinations<First, Rest...> {
    template <typename Visit>
    static void forEach(Visit visit) {
        for (First const first : extremes<First>())
            Combinations<Rest...>::forEach([&](Rest... rest) { visit(first, rest...); });
    }
};

}  // namespace interface_test
