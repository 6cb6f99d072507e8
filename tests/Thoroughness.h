// How much the tests of many cases do: all of it in release, less in the builds that are made
// slow by asserts and sanitizers, and more on request.
#pragma once

#include <algorithm>
#include <cstdlib>

namespace thoroughness {

#ifdef NDEBUG
inline constexpr bool slowBuild = false;
#else
inline constexpr bool slowBuild = true;
#endif

/// What there is to do: `usual`, but in slow builds `few`.
constexpr int cases(int usual, int few) noexcept {
    return slowBuild ? few : usual;
}

/// The number in QEL_DEEP, at least 1.
inline int deepTimes() noexcept {
    char const* const deep = std::getenv("QEL_DEEP");
    return deep != nullptr ? std::max(1, std::atoi(deep)) : 1;
}

inline bool isDeep() noexcept {
    return deepTimes() > 1;
}

}  // namespace thoroughness
