// Time since start-up from CoreServices.
#ifdef __APPLE__

#include "SystemClocks.h"

#include <CoreServices/CoreServices.h>

namespace qel::internal {

unsigned long long microsecondsSinceStartup() noexcept {
    UnsignedWide counter = {};
// The system's headers call it deprecated; it is still the counter that the clock is defined by.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Microseconds(&counter);
#pragma GCC diagnostic pop
    return static_cast<unsigned long long>(counter.hi) << 32 | counter.lo;
}

}  // namespace qel::internal

#endif
