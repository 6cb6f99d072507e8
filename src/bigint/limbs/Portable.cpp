// The variant for every processor, and the rows that exist only once.
#include "Kernels.h"
#include "Rows.h"

namespace qel::limbs {

namespace {

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

}  // namespace

Limb multiplyLimb(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    Limb carry = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const sum = DoubleLimb{a[i]} * b + carry;
        out[i] = static_cast<Limb>(sum);
        carry = static_cast<Limb>(sum >> bitsPerLimb);
    }
    return carry;
}

Kernels const portableKernels = {addMultiplyPortable, multiplyRows<addMultiplyPortable>,
                                 squareRows<addMultiplyPortable>, reduceRows<addMultiplyPortable>};

}  // namespace qel::limbs
