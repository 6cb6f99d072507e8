// The library's version, stated once: the build system reads these three lines, and so does the
// version banner.
#pragma once

namespace qel::internal {

inline constexpr int versionMajor = 1;
inline constexpr int versionMinor = 4;
inline constexpr int versionRelease = 0;

}  // namespace qel::internal
