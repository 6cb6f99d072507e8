// Products of two numbers: rows for short ones, Karatsuba's three products of halves for longer
// ones (Karatsuba and Ofman, 1962; the subtractive form of Knuth 4.3.3), transforms for the
// longest, slices where one operand is longer.
#include "Kernels.h"
#include "Thresholds.h"
#include "Transform.h"

#include <algorithm>

namespace qel::limbs {

namespace {

/// |a0 - a1| for count limbs of a0 and fewer or as many of a1; true when a0 < a1.
bool absoluteDifference(Limb* out, Limb const* a0, std::size_t count, Limb const* a1,
                        std::size_t count1) noexcept {
    bool const longer = significant(a0 + count1, count - count1) != 0;
    if (!longer && compare(a0, a1, count1) < 0) {
        subtract(out, a1, a0, count1);
        std::fill(out + count1, out + count, Limb{0});
        return true;
    }
    Limb const borrow = subtract(out, a0, a1, count1);
    subtractLimb(out + count1, a0 + count1, count - count1, borrow);
    return false;
}

/// out[half, ...) += low + high - middle or, when `added`, low + high + middle, where low is
/// out[0, 2 half), high is out[2 half, 2 count) and middle has 2 half limbs. The sum is the cross
/// product of halves, so nothing is carried past the end. Scratch: 2 half limbs.
void foldMiddle(Limb* out, std::size_t count, std::size_t half, Limb const* middle, bool added,
                Limb* scratch) noexcept {
    std::size_t const highCount = 2 * (count - half);
    Limb carry = add(scratch, out, out + 2 * half, highCount);
    carry = addLimb(scratch + highCount, out + highCount, 2 * half - highCount, carry);
    if (added)
        carry += add(scratch, scratch, middle, 2 * half);
    else
        carry -= subtract(scratch, scratch, middle, 2 * half);
    carry += add(out + half, out + half, scratch, 2 * half);
    addLimb(out + 3 * half, out + 3 * half, 2 * count - 3 * half, carry);
}

void multiplyEqual(Limb* out, Limb const* a, Limb const* b, std::size_t count,
                   Limb* scratch) noexcept {
    if (count < karatsubaMultiply) {
        kernels().multiplyRows(out, a, count, b, count);
        return;
    }
    std::size_t const half = count - count / 2;
    Limb* const middle = scratch;
    Limb* const rest = scratch + 2 * half;
    bool const aSwapped = absoluteDifference(out, a, half, a + half, count - half);
    bool const bSwapped = absoluteDifference(out + half, b, half, b + half, count - half);
    multiplyEqual(middle, out, out + half, half, rest);
    multiplyEqual(out, a, b, half, rest);
    multiplyEqual(out + 2 * half, a + half, b + half, count - half, rest);
    foldMiddle(out, count, half, middle, aSwapped != bSwapped, rest);
}

/// The needs of multiplyEqual: 4 half limbs a level for middle and fold, halves rounded up, so
/// S(n) <= 2n + 2 + S((n + 1) / 2), which 4n + 4 * 64 bounds for every count of 64 bits.
std::size_t equalScratch(std::size_t count) noexcept {
    return 4 * count + 256;
}

/// A longer operand is cut into slices of so many limbs.
std::size_t sliceCount(std::size_t bCount) noexcept {
    return bCount < transformMultiply ? bCount : 2 * bCount;
}

}  // namespace

// Slices need their product, at most thrice the shorter operand, beside the needs of the product; a
// last, shorter slice goes down with the operands exchanged. Of two levels the second is at most
// half as long, so that all levels together need at most 3 (b + b + b/2 + b/2 + ...) = 12b.
std::size_t multiplyScratch(std::size_t aCount, std::size_t bCount) noexcept {
    if (bCount < karatsubaMultiply)
        return 0;
    std::size_t const slices = aCount == bCount ? 0 : 12 * bCount;
    if (bCount < transformMultiply)
        return equalScratch(bCount) + slices;
    return slices
           + std::max(equalScratch(bCount), transformScratch(std::min(aCount, 3 * bCount), bCount));
}

void multiply(Limb* out, Limb const* a, std::size_t aCount, Limb const* b, std::size_t bCount,
              Limb* scratch) noexcept {
    if (bCount < karatsubaMultiply) {
        kernels().multiplyRows(out, a, aCount, b, bCount);
        return;
    }
    if (bCount >= transformMultiply && aCount <= 3 * bCount) {
        multiplyByTransform(out, a, aCount, b, bCount, scratch);
        return;
    }
    if (aCount == bCount) {
        multiplyEqual(out, a, b, bCount, scratch);
        return;
    }
    std::size_t const whole = sliceCount(bCount);
    multiply(out, a, whole, b, bCount, scratch);
    // Each further slice of a adds its product above what is there.
    Limb* const product = scratch;
    Limb* const rest = scratch + whole + bCount;
    for (std::size_t done = whole; done < aCount;) {
        std::size_t const slice = std::min(whole, aCount - done);
        if (slice >= bCount)
            multiply(product, a + done, slice, b, bCount, rest);
        else
            multiply(product, b, bCount, a + done, slice, rest);
        std::copy(product + bCount, product + bCount + slice, out + done + bCount);
        Limb const carry = add(out + done, out + done, product, bCount);
        addLimb(out + done + bCount, out + done + bCount, slice, carry);
        done += slice;
    }
}

void square(Limb* out, Limb const* a, std::size_t count, Limb* scratch) noexcept {
    if (count < karatsubaSquare) {
        kernels().squareRows(out, a, count);
        return;
    }
    if (count >= transformSquare) {
        multiplyByTransform(out, a, count, a, count, scratch);
        return;
    }
    std::size_t const half = count - count / 2;
    Limb* const middle = scratch;
    Limb* const rest = scratch + 2 * half;
    absoluteDifference(out, a, half, a + half, count - half);
    square(middle, out, half, rest);
    square(out, a, half, rest);
    square(out + 2 * half, a + half, count - half, rest);
    foldMiddle(out, count, half, middle, false, rest);
}

std::size_t squareScratch(std::size_t count) noexcept {
    if (count < karatsubaSquare)
        return 0;
    if (count < transformSquare)
        return equalScratch(count);
    return std::max(equalScratch(count), transformScratch(count, count));
}

}  // namespace qel::limbs
