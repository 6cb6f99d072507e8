// The variant for every processor: 64-by-64-bit products as the compiler makes them.
#include "Kernels.h"

namespace qel::limbs {

namespace {

Limb multiplyLimbPortable(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    Limb carry = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const sum = DoubleLimb{a[i]} * b + carry;
        out[i] = static_cast<Limb>(sum);
        carry = static_cast<Limb>(sum >> bitsPerLimb);
    }
    return carry;
}

// a * b + out + carry is at most (2^64 - 1)^2 + 2 (2^64 - 1) = 2^128 - 1: nothing overflows.
Limb addMultiplyPortable(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    Limb carry = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const sum = DoubleLimb{a[i]} * b + out[i] + carry;
        out[i] = static_cast<Limb>(sum);
        carry = static_cast<Limb>(sum >> bitsPerLimb);
    }
    return carry;
}

void multiplyRowsPortable(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                          std::size_t bCount) noexcept {
    out[aCount] = multiplyLimbPortable(out, a, aCount, b[0]);
    for (std::size_t i = 1; i < bCount; ++i)
        out[aCount + i] = addMultiplyPortable(out + i, a, aCount, b[i]);
}

/// out[0, 2 * count) = 2 * out + the squares of the limbs of a, for an out below half its range.
void doubleAndAddSquares(Limb* out, Limb const* a, std::size_t count) noexcept {
    Limb carry = 0;
    Limb shiftedOut = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const squared = DoubleLimb{a[i]} * a[i];
        Limb const low = out[2 * i];
        Limb const high = out[2 * i + 1];
        DoubleLimb const first =
            DoubleLimb{(low << 1) | shiftedOut} + static_cast<Limb>(squared) + carry;
        out[2 * i] = static_cast<Limb>(first);
        DoubleLimb const second = DoubleLimb{(high << 1) | (low >> 63)}
                                  + static_cast<Limb>(squared >> bitsPerLimb)
                                  + static_cast<Limb>(first >> bitsPerLimb);
        out[2 * i + 1] = static_cast<Limb>(second);
        carry = static_cast<Limb>(second >> bitsPerLimb);
        shiftedOut = high >> 63;
    }
}

void squareRowsPortable(Limb* out, Limb const* a, std::size_t count) noexcept {
    // Each product of two different limbs once; the sum doubles them.
    out[0] = 0;
    out[2 * count - 1] = 0;
    if (count > 1) {
        out[count] = multiplyLimbPortable(out + 1, a + 1, count - 1, a[0]);
        for (std::size_t i = 1; i + 1 < count; ++i)
            out[count + i] = addMultiplyPortable(out + 2 * i + 1, a + i + 1, count - i - 1, a[i]);
    }
    doubleAndAddSquares(out, a, count);
}

// Montgomery, "Modular multiplication without trial division", 1985. Row i adds the multiple of
// the modulus that makes limb i zero; its carry belongs at limb i + count and waits in limb i.
// The sum stays below 2 * modulus * 2^(64 count), so that one subtraction finishes.
void reducePortable(Limb* out, Limb* t, Limb const* modulus, std::size_t count,
                    Limb negatedInverse) noexcept {
    for (std::size_t i = 0; i < count; ++i)
        t[i] = addMultiplyPortable(t + i, modulus, count, t[i] * negatedInverse);
    finishReduction(out, t, modulus, count);
}

}  // namespace

Kernels const portableKernels = {multiplyLimbPortable, addMultiplyPortable, multiplyRowsPortable,
                                 squareRowsPortable, reducePortable};

}  // namespace qel::limbs
