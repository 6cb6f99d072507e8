// Sums and differences of numbers of the same length.
#include "Kernels.h"

namespace qel::limbs {

Limb addPortable(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    Limb carry = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const sum = DoubleLimb{a[i]} + b[i] + carry;
        out[i] = static_cast<Limb>(sum);
        carry = static_cast<Limb>(sum >> bitsPerLimb);
    }
    return carry;
}

Limb subtractPortable(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    Limb borrow = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const difference = DoubleLimb{a[i]} - b[i] - borrow;
        out[i] = static_cast<Limb>(difference);
        borrow = static_cast<Limb>(difference >> bitsPerLimb) & 1;
    }
    return borrow;
}

#if defined(__x86_64__)

namespace {

enum class Sum { plus, minus };

// In assembly, because no compiler keeps a carry in its flag from one step of a loop to the next:
// lea, dec, mov and jrcxz leave the flag alone.
template <Sum sum>
Limb sumOf(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    std::size_t steps = count % 4;
    std::size_t const blocks = count / 4;
    Limb limb;
    asm volatile(
        ".macro qel_sums count\n\t"
        ".set qel_at, 0\n\t"
        ".rept \\count\n\t"
        "movq qel_at(%[a]), %[limb]\n\t"
        ".if %c[plus]\n\t"
        "adcq qel_at(%[b]), %[limb]\n\t"
        ".else\n\t"
        "sbbq qel_at(%[b]), %[limb]\n\t"
        ".endif\n\t"
        "movq %[limb], qel_at(%[out])\n\t"
        ".set qel_at, qel_at + 8\n\t"
        ".endr\n\t"
        "leaq qel_at(%[a]), %[a]\n\t"
        "leaq qel_at(%[b]), %[b]\n\t"
        "leaq qel_at(%[out]), %[out]\n\t"
        "decq %[steps]\n\t"
        ".endm\n\t"
        "clc\n\t"
        "jrcxz 2f\n"
        "1:\n\t"
        "qel_sums 1\n\t"
        "jnz 1b\n"
        "2:\n\t"
        "movq %[blocks], %[steps]\n\t"
        "jrcxz 4f\n"
        "3:\n\t"
        "qel_sums 4\n\t"
        "jnz 3b\n"
        "4:\n\t"
        "sbbq %[limb], %[limb]\n\t"
        ".purgem qel_sums"
        : [limb] "=&r"(limb), [out] "+&r"(out), [a] "+&r"(a), [b] "+&r"(b), [steps] "+&c"(steps)
        : [blocks] "r"(blocks), [plus] "n"(sum == Sum::plus)
        : "cc", "memory");
    return 0 - limb;
}

}  // namespace

Limb add(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    return sumOf<Sum::plus>(out, a, b, count);
}

Limb subtract(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    return sumOf<Sum::minus>(out, a, b, count);
}

#else

Limb add(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    return addPortable(out, a, b, count);
}

Limb subtract(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept {
    return subtractPortable(out, a, b, count);
}

#endif

void finishReduction(Limb* out, Limb const* t, Limb const* modulus, std::size_t count) noexcept {
    Limb const carry = add(out, t + count, t, count);
    if (carry != 0 || compare(out, modulus, count) >= 0)
        subtract(out, out, modulus, count);
}

}  // namespace qel::limbs
