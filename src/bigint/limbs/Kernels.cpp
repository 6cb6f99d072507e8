// Which variant of the kernels this processor runs.
#include "Kernels.h"

#include <atomic>

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace qel::limbs {

namespace {

// Null until the first use. Threads that race here store the same pointer.
constinit std::atomic<Kernels const*> chosen{nullptr};

}  // namespace

bool hasAdx() noexcept {
#if defined(__x86_64__)
    constexpr unsigned int bmi2 = 1U << 8;
    constexpr unsigned int adx = 1U << 19;
    unsigned int eax = 0;
    unsigned int ebx = 0;
    unsigned int ecx = 0;
    unsigned int edx = 0;
    return __get_cpuid_count(7, 0, &eax, &ebx, &ecx, &edx) != 0 && (ebx & bmi2) != 0
           && (ebx & adx) != 0;
#else
    return false;
#endif
}

Kernels const& kernels() noexcept {
    Kernels const* variant = chosen.load(std::memory_order_relaxed);
    if (variant == nullptr) {
        variant = hasAdx() ? &adxKernels : &portableKernels;
        chosen.store(variant, std::memory_order_relaxed);
    }
    return *variant;
}

void useKernels(Kernels const* variant) noexcept {
    chosen.store(variant, std::memory_order_relaxed);
}

Limb addMultiply(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    return kernels().addMultiply(out, a, count, b);
}

}  // namespace qel::limbs
