#include "Montgomery.h"

#include "Kernels.h"

#include <algorithm>
#include <bit>

namespace qel::limbs {

// Newton: an inverse modulo 2^k is one modulo 2^(2k) after a step; the first has 5 bits right.
Limb negatedInverse(Limb odd) noexcept {
    Limb inverse = (3 * odd) ^ 2;
    for (int bits = 5; bits < bitsPerLimb; bits *= 2)
        inverse *= 2 - odd * inverse;
    return 0 - inverse;
}

// A product, and what it needs itself; entering divides there.
std::size_t montgomeryScratch(std::size_t count) noexcept {
    return 2 * count
           + std::max({multiplyScratch(count, count), squareScratch(count), 2 * count + 1});
}

MontgomeryContext::MontgomeryContext(Limb const* m, std::size_t limbCount,
                                     Limb* productAndScratch) noexcept
    : modulus(m), count(limbCount), inverse(negatedInverse(m[0])), product(productAndScratch),
      scratch(productAndScratch + 2 * limbCount) {}

void MontgomeryContext::multiply(Limb* out, Limb const* a, Limb const* b) const noexcept {
    limbs::multiply(product, a, count, b, count, scratch);
    kernels().reduce(out, product, modulus, count, inverse);
}

void MontgomeryContext::squareTimes(Limb* a, long long times) const noexcept {
    for (; times > 0; --times) {
        limbs::square(product, a, count, scratch);
        kernels().reduce(a, product, modulus, count, inverse);
    }
}

void MontgomeryContext::leave(Limb* out, Limb const* a) const noexcept {
    std::copy(a, a + count, product);
    std::fill(product + count, product + 2 * count, Limb{0});
    kernels().reduce(out, product, modulus, count, inverse);
}

void MontgomeryContext::enter(Limb* out, Limb const* a) const noexcept {
    if (count == 1) {
        Limb const shifted[2] = {0, a[0]};
        Limb quotient[2];
        out[0] = divideLimb(quotient, shifted, 2, modulus[0]);
        return;
    }
    // a and the modulus shifted up alike; the rest comes down again.
    int const shift = std::countl_zero(modulus[count - 1]);
    Limb* const divisor = scratch;
    Limb* const quotient = scratch + count;
    Limb* const dividend = product;
    std::fill(dividend, dividend + count, Limb{0});
    std::copy(a, a + count, dividend + count);
    std::copy(modulus, modulus + count, divisor);
    if (shift != 0) {
        shiftLeft(divisor, divisor, count, shift);
        shiftLeft(dividend + count, dividend + count, count, shift);
    }
    divideNormalized(quotient, dividend, 2 * count, divisor, count);
    if (shift != 0)
        shiftRight(out, dividend, count, shift);
    else
        std::copy(dividend, dividend + count, out);
}

}  // namespace qel::limbs
