// The wall clock, which is the same call on every system.
#include "SystemClocks.h"

#include <sys/time.h>

namespace qel::internal {

WallClockTime readWallClock() noexcept {
    timeval now = {};
    gettimeofday(&now, nullptr);
    return {now.tv_sec, static_cast<int>(now.tv_usec)};
}

}  // namespace qel::internal
