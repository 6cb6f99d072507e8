// Which variants of the kernels this processor runs.
#include "Kernels.h"

#include "LaneKernels.h"
#include "WideRegisters.h"

#include <atomic>

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace qel::limbs {

namespace {

// Null until the first use. Threads that race here store the same pointer.
constinit std::atomic<Kernels const*> chosen{nullptr};
constinit std::atomic<LaneKernels const*> chosenLanes{nullptr};

#if defined(__x86_64__)

/// Whether leaf 7 of cpuid names all these features in ebx.
bool hasFeatures(unsigned int features) noexcept {
    unsigned int eax = 0;
    unsigned int ebx = 0;
    unsigned int ecx = 0;
    unsigned int edx = 0;
    return __get_cpuid_count(7, 0, &eax, &ebx, &ecx, &edx) != 0 && (ebx & features) == features;
}

#else

bool hasFeatures(unsigned int /*features*/) noexcept {
    return false;
}

#endif

}  // namespace

bool hasAdx() noexcept {
    constexpr unsigned int bmi2 = 1U << 8;
    constexpr unsigned int adx = 1U << 19;
    return hasFeatures(bmi2 | adx);
}

bool hasIfma() noexcept {
    constexpr unsigned int avx512f = 1U << 16;
    constexpr unsigned int avx512ifma = 1U << 21;
    return hasFeatures(avx512f | avx512ifma) && savesWideRegisters();
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

LaneKernels const& laneKernels() noexcept {
    LaneKernels const* variant = chosenLanes.load(std::memory_order_relaxed);
    if (variant == nullptr) {
        variant = hasIfma() ? &ifmaLanes : &portableLanes;
        chosenLanes.store(variant, std::memory_order_relaxed);
    }
    return *variant;
}

void useLaneKernels(LaneKernels const* variant) noexcept {
    chosenLanes.store(variant, std::memory_order_relaxed);
}

Limb multiplyLimb(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    return kernels().multiplyLimb(out, a, count, b);
}

Limb addMultiply(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    return kernels().addMultiply(out, a, count, b);
}

}  // namespace qel::limbs
