// The registers that the system saves, as it tells itself: it gives a thread the wide ones only
// when it first uses them, so that asking the processor finds them missing.
#ifdef __APPLE__

#include "WideRegisters.h"

#include <sys/sysctl.h>

namespace qel::limbs {

bool savesWideRegisters() noexcept {
    int saved = 0;
    auto size = sizeof saved;
    return sysctlbyname("hw.optional.avx512f", &saved, &size, nullptr, 0) == 0 && saved != 0;
}

}  // namespace qel::limbs

#endif
