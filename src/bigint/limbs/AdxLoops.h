// The loops of the variant for x86-64 processors with BMI2 and ADX, in assembly, because no
// compiler keeps a carry in its flag from one step of a loop to the next: lea, dec, mov and jrcxz
// leave the flags alone. Each .macro is one step; what is copied how often is up to .rept and .if.
#pragma once

#include "Limbs.h"

#if defined(__x86_64__)

namespace qel::limbs::adx {

enum class Row { first, adding };

/// out = a * b or, adding, out += a * b, for `head` limbs and then `blocks` times eight; returns
/// the carry.
///
/// Of one limb, low:high = a[k] * b, low += carry (adcx) and low += out[k] (adox); mulx disturbs
/// neither flag. The high half is the next limb's carry. Its move costs nothing, and lets the
/// processor deal the instructions of every limb to its ports in the same way.
template <Row kind, std::size_t head, bool looped>
[[gnu::always_inline]] inline Limb row(Limb* out, Limb const* a, std::size_t blocks,
                                       Limb b) noexcept {
    Limb carry;
    Limb high;
    Limb low;
    Limb zero;
    asm volatile(".macro qel_limbs count\n\t"
                 ".rept \\count\n\t"
                 "mulxq qel_at(%[a]), %[low], %[high]\n\t"
                 "adcxq %[carry], %[low]\n\t"
                 "movq %[high], %[carry]\n\t"
                 ".if %c[adding]\n\t"
                 "adoxq qel_at(%[out]), %[low]\n\t"
                 ".endif\n\t"
                 "movq %[low], qel_at(%[out])\n\t"
                 ".set qel_at, qel_at + 8\n\t"
                 ".endr\n\t"
                 ".endm\n\t"
                 "xorl %k[zero], %k[zero]\n\t"
                 "movl %k[zero], %k[carry]\n\t"
                 ".set qel_at, 0\n\t"
                 "qel_limbs %c[head]\n\t"
                 ".if %c[looped]\n\t"
                 "1:\n\t"
                 "qel_limbs 8\n\t"
                 "leaq 64(%[a]), %[a]\n\t"
                 "leaq 64(%[out]), %[out]\n\t"
                 "leaq -1(%[blocks]), %[blocks]\n\t"
                 "jrcxz 2f\n\t"
                 "jmp 1b\n"
                 "2:\n\t"
                 ".endif\n\t"
                 "adcxq %[zero], %[carry]\n\t"
                 "adoxq %[zero], %[carry]\n\t"
                 ".purgem qel_limbs"
                 : [carry] "=&r"(carry), [high] "=&r"(high), [low] "=&r"(low), [zero] "=&r"(zero),
                   [a] "+&r"(a), [out] "+&r"(out), [blocks] "+&c"(blocks)
                 : [adding] "n"(kind == Row::adding), [head] "n"(head), [looped] "n"(looped), "d"(b)
                 : "cc", "memory");
    return carry;
}

/// out[0, 2 * count) = 2 * out + the squares of the limbs of a, for an out below half its range:
/// adcx carries what doubling shifts out, adox the sums with the squares.
inline void doubleAndAddSquares(Limb* out, Limb const* a, std::size_t count) noexcept {
    std::size_t steps = count % 4;
    std::size_t const blocks = count / 4;
    Limb low;
    Limb high;
    Limb limb;
    asm volatile(".macro qel_squares count\n\t"
                 ".set qel_at, 0\n\t"
                 ".rept \\count\n\t"
                 "movq qel_at(%[a]), %%rdx\n\t"
                 "mulxq %%rdx, %[low], %[high]\n\t"
                 "movq 2*qel_at(%[out]), %[limb]\n\t"
                 "adcxq %[limb], %[limb]\n\t"
                 "adoxq %[low], %[limb]\n\t"
                 "movq %[limb], 2*qel_at(%[out])\n\t"
                 "movq 2*qel_at+8(%[out]), %[limb]\n\t"
                 "adcxq %[limb], %[limb]\n\t"
                 "adoxq %[high], %[limb]\n\t"
                 "movq %[limb], 2*qel_at+8(%[out])\n\t"
                 ".set qel_at, qel_at + 8\n\t"
                 ".endr\n\t"
                 "leaq qel_at(%[a]), %[a]\n\t"
                 "leaq 2*qel_at(%[out]), %[out]\n\t"
                 "leaq -1(%[steps]), %[steps]\n\t"
                 ".endm\n\t"
                 "xorl %k[low], %k[low]\n"
                 "1:\n\t"
                 "jrcxz 2f\n\t"
                 "qel_squares 1\n\t"
                 "jmp 1b\n"
                 "2:\n\t"
                 "movq %[blocks], %[steps]\n\t"
                 "jmp 4f\n"
                 "3:\n\t"
                 "qel_squares 4\n"
                 "4:\n\t"
                 "jrcxz 5f\n\t"
                 "jmp 3b\n"
                 "5:\n\t"
                 ".purgem qel_squares"
                 : [low] "=&r"(low), [high] "=&r"(high), [limb] "=&r"(limb), [a] "+&r"(a),
                   [out] "+&r"(out), [steps] "+&c"(steps)
                 : [blocks] "r"(blocks)
                 : "cc", "memory", "rdx");
}

}  // namespace qel::limbs::adx

#endif
