// The two clocks of the system. Everything else about the current time is computed from them, in
// Clock.cpp; the tests of that put a script in their place.
#pragma once

namespace qel::internal {

struct WallClockTime {
    long long seconds;  // since the epoch
    int microseconds;   // [0, 999999]
};

/// Never goes back while the system runs.
[[nodiscard]] unsigned long long microsecondsSinceStartup() noexcept;

/// The time of day, which may be set and adjusted at any moment.
[[nodiscard]] WallClockTime readWallClock() noexcept;

}  // namespace qel::internal
