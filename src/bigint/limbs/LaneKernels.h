// Arithmetic on eight numbers at once, digit beside digit: the kernels under StrongTests.h, in
// variants like those of Kernels.h.
//
// A number has digits of 52 bits, lowest first, in blocks of five; digit i of the eight numbers
// stands in the limbs [8 * i, 8 * i + 8), aligned to 64 bytes. A limb may carry litter above its
// digit. Each lane has a modulus n of its own, and R = 2^(260 * blocks) is at least 16 n in all of
// them. Numbers are below 8 n and never reduced further: Montgomery's product of two of them is
// below 64 n^2 / R + 3 n <= 7 n, and a product with a digit adds at most n to that.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

inline constexpr std::size_t lanes = 8;
inline constexpr int bitsPerDigit = 52;
inline constexpr std::size_t digitsPerBlock = 5;
inline constexpr int bitsPerBlock = bitsPerDigit * static_cast<int>(digitsPerBlock);
/// How many limbs eight digits, one block of eight numbers, take.
inline constexpr std::size_t limbsPerBlock = lanes * digitsPerBlock;
inline constexpr Limb digitMask = (Limb{1} << bitsPerDigit) - 1;

/// Eight odd moduli, and what reductions modulo them need.
struct LaneModuli {
    std::size_t blocks;
    Limb const* moduli;
    /// 2^-52 and 2^-260, reduced.
    Limb const* inverseOfDigit;
    Limb const* inverseOfBlock;
    /// -1 / modulus modulo 2^52, for each lane.
    Limb const* negatedInverse;
};

struct LaneKernels {
    /// y = y^2 / R, `times` times over.
    void (*square)(Limb* y, LaneModuli const& moduli, int times, Limb* scratch) noexcept;
    /// y = y * factor / 2^52, with a factor below 2^52 for each lane.
    void (*multiplyDigit)(Limb* y, LaneModuli const& moduli, Limb const* factor,
                          Limb* scratch) noexcept;
    /// Whether eight powers at once take less time than eight powers one by one.
    bool pays;
};

/// The scratch of the kernels, aligned as the numbers are.
inline std::size_t laneKernelScratch(std::size_t blocks) noexcept {
    return 2 * blocks * limbsPerBlock;
}

/// 64-by-64-bit products as the compiler makes them, lane by lane: a description more than a use.
extern LaneKernels const portableLanes;
/// Products of 52-bit digits in registers of 512 bits. Only for processors with AVX-512 IFMA.
extern LaneKernels const ifmaLanes;

/// True when this processor, and the system on it, can run ifmaLanes.
[[nodiscard]] bool hasIfma() noexcept;

/// The variant in use: the fastest that this processor runs, unless a test has chosen.
[[nodiscard]] LaneKernels const& laneKernels() noexcept;
/// For tests and benchmarks: uses this variant from now on; null goes back to the own choice.
void useLaneKernels(LaneKernels const* variant) noexcept;

}  // namespace qel::limbs
