// The variant for x86-64 processors with BMI2 and ADX. A row keeps two carries at once: adcx adds
// the high half of the product before, adox the old value of out; mulx disturbs neither flag.
#include "Kernels.h"
#include "Rows.h"

#if defined(__x86_64__)

#include <utility>

namespace qel::limbs {

namespace {

// One limb: low:high = a[k] * b; low += carry (CF) and += out[k] (OF). The high half is the next
// limb's carry, so the two registers change places from limb to limb.
#define QEL_LIMB(offset, carry, high)                                                              \
    "mulxq " #offset "(%[a]), %[low], %[" #high "]\n\t"                                            \
    "adcxq %[" #carry "], %[low]\n\t"                                                              \
    "adoxq " #offset "(%[out]), %[low]\n\t"                                                        \
    "movq %[low], " #offset "(%[out])\n\t"
#define QEL_LIMBS_1 QEL_LIMB(0, carry, high)
#define QEL_LIMBS_2 QEL_LIMBS_1 QEL_LIMB(8, high, carry)
#define QEL_LIMBS_3 QEL_LIMBS_2 QEL_LIMB(16, carry, high)
#define QEL_LIMBS_4 QEL_LIMBS_3 QEL_LIMB(24, high, carry)
#define QEL_LIMBS_5 QEL_LIMBS_4 QEL_LIMB(32, carry, high)
#define QEL_LIMBS_6 QEL_LIMBS_5 QEL_LIMB(40, high, carry)
#define QEL_LIMBS_7 QEL_LIMBS_6 QEL_LIMB(48, carry, high)
#define QEL_LIMBS_8 QEL_LIMBS_7 QEL_LIMB(56, high, carry)

// A few limbs in a row, from a carry of zero. After an odd number the carry is in `high`.
#define QEL_HEAD(limbs, last)                                                                      \
    asm volatile("xorl %k[zero], %k[zero]\n\t" limbs "adcxq %[zero], %[" #last "]\n\t"             \
                 "adoxq %[zero], %[" #last "]\n\t"                                                 \
                 : [carry] "+&r"(carry), [high] "=&r"(high), [low] "=&r"(low), [zero] "=&r"(zero)  \
                 : [a] "r"(a), [out] "r"(out), "d"(b)                                              \
                 : "cc", "memory")

/// The first 0 to 7 limbs of a row; returns the carry.
inline Limb head(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    Limb carry = 0;
    Limb high = 0;
    Limb low = 0;
    Limb zero = 0;
    switch (count) {
    case 1:
        QEL_HEAD(QEL_LIMBS_1, high);
        return high;
    case 2:
        QEL_HEAD(QEL_LIMBS_2, carry);
        return carry;
    case 3:
        QEL_HEAD(QEL_LIMBS_3, high);
        return high;
    case 4:
        QEL_HEAD(QEL_LIMBS_4, carry);
        return carry;
    case 5:
        QEL_HEAD(QEL_LIMBS_5, high);
        return high;
    case 6:
        QEL_HEAD(QEL_LIMBS_6, carry);
        return carry;
    case 7:
        QEL_HEAD(QEL_LIMBS_7, high);
        return high;
    default:
        return 0;
    }
}

Limb addMultiplyAdx(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    std::size_t const first = count % 8;
    Limb carry = head(out, a, first, b);
    std::size_t blocks = count / 8;
    if (blocks == 0)
        return carry;
    out += first;
    a += first;
    Limb high = 0;
    Limb low = 0;
    Limb zero = 0;
    // Between blocks both carries live in the flags: lea and jrcxz touch none.
    asm volatile("xorl %k[zero], %k[zero]\n"
                 "1:\n\t" QEL_LIMBS_8 "leaq 64(%[a]), %[a]\n\t"
                 "leaq 64(%[out]), %[out]\n\t"
                 "leaq -1(%[blocks]), %[blocks]\n\t"
                 "jrcxz 2f\n\t"
                 "jmp 1b\n"
                 "2:\n\t"
                 "adcxq %[zero], %[carry]\n\t"
                 "adoxq %[zero], %[carry]\n\t"
                 : [carry] "+&r"(carry), [high] "=&r"(high), [low] "=&r"(low), [zero] "=&r"(zero),
                   [a] "+&r"(a), [out] "+&r"(out), [blocks] "+&c"(blocks)
                 : "d"(b)
                 : "cc", "memory");
    return carry;
}

#undef QEL_LIMB
#undef QEL_LIMBS_1
#undef QEL_LIMBS_2
#undef QEL_LIMBS_3
#undef QEL_LIMBS_4
#undef QEL_LIMBS_5
#undef QEL_LIMBS_6
#undef QEL_LIMBS_7
#undef QEL_LIMBS_8
#undef QEL_HEAD

}  // namespace

Kernels const adxKernels = {addMultiplyAdx, multiplyRows<addMultiplyAdx>,
                            squareRows<addMultiplyAdx>, reduceRows<addMultiplyAdx>};

}  // namespace qel::limbs

#else

namespace qel::limbs {

Kernels const adxKernels = portableKernels;

}  // namespace qel::limbs

#endif
