// Work that is linear in the limbs: sums, differences, comparison, shifts.
#include "Limbs.h"

#include <algorithm>

namespace qel::limbs {

// A carry seldom goes far.
Limb addLimb(Limb* out, Limb const* a, std::size_t count, Limb carry) noexcept {
    std::size_t i = 0;
    for (; i < count && carry != 0; ++i) {
        Limb const sum = a[i] + carry;
        carry = sum < carry ? 1 : 0;
        out[i] = sum;
    }
    if (out != a)
        std::copy(a + i, a + count, out + i);
    return carry;
}

Limb subtractLimb(Limb* out, Limb const* a, std::size_t count, Limb borrow) noexcept {
    std::size_t i = 0;
    for (; i < count && borrow != 0; ++i) {
        Limb const limb = a[i];
        out[i] = limb - borrow;
        borrow = limb < borrow ? 1 : 0;
    }
    if (out != a)
        std::copy(a + i, a + count, out + i);
    return borrow;
}

// Counts in fields of 2, 4 and 8 bits side by side (Warren, Hacker's Delight, 5-1): not every
// processor that this runs on has an instruction for it.
long long countBits(Limb const* a, std::size_t count) noexcept {
    Limb total = 0;
    for (std::size_t i = 0; i < count; ++i) {
        Limb x = a[i];
        x -= x >> 1 & 0x5555555555555555;
        x = (x & 0x3333333333333333) + (x >> 2 & 0x3333333333333333);
        x = (x + (x >> 4)) & 0x0F0F0F0F0F0F0F0F;
        total += x * 0x0101010101010101 >> 56;
    }
    return static_cast<long long>(total);
}

// From the top down, so that out may be a.
Limb shiftLeft(Limb* out, Limb const* a, std::size_t count, int bits) noexcept {
    int const rest = bitsPerLimb - bits;
    Limb const top = a[count - 1] >> rest;
    for (std::size_t i = count - 1; i > 0; --i)
        out[i] = (a[i] << bits) | (a[i - 1] >> rest);
    out[0] = a[0] << bits;
    return top;
}

// From the bottom up, so that out may be a.
void shiftRight(Limb* out, Limb const* a, std::size_t count, int bits) noexcept {
    int const rest = bitsPerLimb - bits;
    for (std::size_t i = 0; i + 1 < count; ++i)
        out[i] = (a[i] >> bits) | (a[i + 1] << rest);
    out[count - 1] = a[count - 1] >> bits;
}

}  // namespace qel::limbs
