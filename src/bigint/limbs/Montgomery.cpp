#include "Montgomery.h"

#include "Kernels.h"
#include "Thresholds.h"

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

namespace {

/// t[0, 2 count) += q * modulus, with the q[0, count) that makes the lower half zero; returns the
/// carry. What it leaves in the lower half is of no use.
///
/// The lower part of q comes from the lower limbs of t and the modulus alone; its product with the
/// upper limbs of the modulus has to be there before the upper part of q is taken.
Limb eliminateLower(Limb* q, Limb* t, Limb const* modulus, std::size_t count, Limb negatedInverse,
                    Limb* scratch) noexcept {
    if (count < reduceSplit) {
        for (std::size_t i = 0; i < count; ++i) {
            q[i] = t[i] * negatedInverse;
            t[i] = addMultiply(t + i, modulus, count, q[i]);
        }
        return add(t + count, t + count, t, count);
    }
    std::size_t const upper = count / 2;
    std::size_t const lower = count - upper;
    Limb* const product = scratch;
    Limb* const rest = scratch + count;
    Limb carry = eliminateLower(q, t, modulus, lower, negatedInverse, scratch);
    carry = addLimb(t + 2 * lower, t + 2 * lower, upper, carry);
    multiply(product, q, lower, modulus + lower, upper, rest);
    carry += add(t + lower, t + lower, product, count);
    Limb const above = addLimb(t + lower + count, t + lower + count, upper, carry);

    carry = eliminateLower(q + lower, t + lower, modulus, upper, negatedInverse, scratch);
    carry = addLimb(t + count + upper, t + count + upper, lower, carry);
    multiply(product, modulus + upper, lower, q + lower, upper, rest);
    return above + carry + add(t + count, t + count, product, count);
}

}  // namespace

void reduceByHalves(Limb* out, Limb* t, Limb const* modulus, std::size_t count, Limb negatedInverse,
                    Limb* scratch) noexcept {
    Limb const carry = eliminateLower(scratch, t, modulus, count, negatedInverse, scratch + count);
    if (carry != 0 || compare(t + count, modulus, count) >= 0)
        subtract(out, t + count, modulus, count);
    else
        std::copy(t + count, t + 2 * count, out);
}

std::size_t reduceByHalvesScratch(std::size_t count) noexcept {
    return 2 * count + multiplyScratch(count - count / 2, count / 2);
}

// A product, and what it needs itself; entering divides there.
std::size_t montgomeryScratch(std::size_t count) noexcept {
    return 2 * count
           + std::max({multiplyScratch(count, count), squareScratch(count),
                       2 * count + 1 + divideScratch(count),
                       count < reduceSplit ? 0 : reduceByHalvesScratch(count)});
}

MontgomeryContext::MontgomeryContext(Limb const* m, std::size_t limbCount,
                                     Limb* productAndScratch) noexcept
    : modulus(m), count(limbCount), inverse(negatedInverse(m[0])), product(productAndScratch),
      scratch(productAndScratch + 2 * limbCount) {}

void MontgomeryContext::multiply(Limb* out, Limb const* a, Limb const* b) const noexcept {
    limbs::multiply(product, a, count, b, count, scratch);
    reduce(out);
}

void MontgomeryContext::squareTimes(Limb* a, long long times) const noexcept {
    for (; times > 0; --times) {
        limbs::square(product, a, count, scratch);
        reduce(a);
    }
}

void MontgomeryContext::leave(Limb* out, Limb const* a) const noexcept {
    std::copy(a, a + count, product);
    std::fill(product + count, product + 2 * count, Limb{0});
    reduce(out);
}

/// What is in `product`.
void MontgomeryContext::reduce(Limb* out) const noexcept {
    if (count < reduceSplit)
        kernels().reduce(out, product, modulus, count, inverse);
    else
        reduceByHalves(out, product, modulus, count, inverse, scratch);
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
    divide(quotient, dividend, 2 * count, divisor, count, scratch + 2 * count + 1);
    if (shift != 0)
        shiftRight(out, dividend, count, shift);
    else
        std::copy(dividend, dividend + count, out);
}

}  // namespace qel::limbs
