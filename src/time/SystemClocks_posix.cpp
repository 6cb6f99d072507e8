// Time since start-up from POSIX's monotonic clock.
#ifndef __APPLE__

#include "SystemClocks.h"

#include <ctime>

namespace qel::internal {

unsigned long long microsecondsSinceStartup() noexcept {
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    // Nanoseconds are below 10^9: they divide faster in 32 bits.
    return static_cast<unsigned long long>(now.tv_sec) * 1000000
           + static_cast<unsigned int>(now.tv_nsec) / 1000;
}

}  // namespace qel::internal

#endif
