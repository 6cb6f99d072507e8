// The kernels that exist in variants: one table for each, and the one place that chooses.
//
// Every variant computes the same; both are compiled wherever the compiler can, and tested on the
// same tables whatever the machine.
#pragma once

#include "Limbs.h"

namespace qel::limbs {

struct Kernels {
    /// out = a * b; returns the highest limb of the product.
    Limb (*multiplyLimb)(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept;
    /// out += a * b; returns the carry.
    Limb (*addMultiply)(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept;
    /// out[0, aCount + bCount) = a * b, row by row.
    void (*multiplyRows)(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                         std::size_t bCount) noexcept;
    /// out[0, 2 * count) = a * a, row by row.
    void (*squareRows)(Limb* out, Limb const* a, std::size_t count) noexcept;
    /// One Montgomery reduction: out[0, count) = t / 2^(64 count) modulo the odd modulus, for
    /// t[0, 2 * count) < modulus * 2^(64 count). Uses up t. `negatedInverse` is -1 / modulus[0].
    void (*reduce)(Limb* out, Limb* t, Limb const* modulus, std::size_t count,
                   Limb negatedInverse) noexcept;
};

/// add and subtract as the compiler makes them. x86-64 has better, which needs no choice: add with
/// carry is in every such processor.
Limb addPortable(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept;
Limb subtractPortable(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept;

/// The end of every variant's reduction: the carries of its rows, left in the lower half of t,
/// added to the upper half, and the modulus subtracted where it fits.
void finishReduction(Limb* out, Limb const* t, Limb const* modulus, std::size_t count) noexcept;

/// 64-by-64-bit products as the compiler makes them.
extern Kernels const portableKernels;
/// mulx with two carry chains. Only for processors that have BMI2 and ADX.
extern Kernels const adxKernels;

/// True when this processor can run adxKernels.
[[nodiscard]] bool hasAdx() noexcept;

/// The variant in use: the fastest that this processor runs, unless a test has chosen.
[[nodiscard]] Kernels const& kernels() noexcept;
/// For tests and benchmarks: uses this variant from now on; null goes back to the own choice.
void useKernels(Kernels const* variant) noexcept;

}  // namespace qel::limbs
