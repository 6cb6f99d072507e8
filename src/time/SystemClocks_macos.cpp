// Time since start-up from CoreServices.
#ifdef __APPLE__

#include "SystemClocks.h"

#include <CoreServices/CoreServices.h>

namespace qel {

unsigned long long microsecondsSinceStartup() noexcept {
    UnsignedWide counter = {};
    Microseconds(&counter);
    return static_cast<unsigned long long>(counter.hi) << 32 | counter.lo;
}

}  // namespace qel

#endif
