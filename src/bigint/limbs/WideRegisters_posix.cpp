// The registers that the system saves, as the processor tells.
#ifndef __APPLE__

#include "WideRegisters.h"

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace qel::limbs {

// xgetbv names the states that the system saves, where the system lets programs ask.
bool savesWideRegisters() noexcept {
#if defined(__x86_64__)
    constexpr unsigned int osxsave = 1U << 27;
    constexpr unsigned int wideStates = 0xE6;  // SSE, AVX, masks, upper halves, upper registers
    unsigned int eax = 0;
    unsigned int ebx = 0;
    unsigned int ecx = 0;
    unsigned int edx = 0;
    if (__get_cpuid(1, &eax, &ebx, &ecx, &edx) == 0 || (ecx & osxsave) == 0)
        return false;
    asm("xgetbv" : "=a"(eax), "=d"(edx) : "c"(0));
    return (eax & wideStates) == wideStates;
#else
    return false;
#endif
}

}  // namespace qel::limbs

#endif
