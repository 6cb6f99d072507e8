// Products of two numbers: rows for short ones, halves and thirds for longer ones, transforms for
// the longest, slices where one operand is longer.
#include "Kernels.h"
#include "MultiplyByParts.h"
#include "Thresholds.h"
#include "Transform.h"

#include <algorithm>

namespace qel::limbs {

namespace {

/// A longer operand is cut into slices of so many limbs.
std::size_t sliceCount(std::size_t bCount) noexcept {
    return bCount < transformMultiply ? bCount : 2 * bCount;
}

}  // namespace

// Slices need their product, at most thrice the shorter operand, beside the needs of the product; a
// last, shorter slice goes down with the operands exchanged. Of two levels the second is at most
// half as long, so that all levels together need at most 3 (b + b + b/2 + b/2 + ...) = 12b.
std::size_t multiplyScratch(std::size_t aCount, std::size_t bCount) noexcept {
    if (bCount < halvesMultiply)
        return 0;
    std::size_t const slices = aCount == bCount ? 0 : 12 * bCount;
    if (bCount < transformMultiply)
        return partsScratch(bCount) + slices;
    return slices
           + std::max(partsScratch(bCount), transformScratch(std::min(aCount, 3 * bCount), bCount));
}

void multiply(Limb* out, Limb const* a, std::size_t aCount, Limb const* b, std::size_t bCount,
              Limb* scratch) noexcept {
    if (bCount < halvesMultiply) {
        kernels().multiplyRows(out, a, aCount, b, bCount);
        return;
    }
    if (bCount >= transformMultiply && aCount <= 3 * bCount) {
        multiplyByTransform(out, a, aCount, b, bCount, scratch);
        return;
    }
    if (aCount == bCount) {
        multiplyByParts(out, a, b, bCount, scratch);
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
    if (count < halvesSquare)
        kernels().squareRows(out, a, count);
    else if (count >= transformSquare)
        multiplyByTransform(out, a, count, a, count, scratch);
    else
        multiplyByParts(out, a, a, count, scratch);
}

std::size_t squareScratch(std::size_t count) noexcept {
    if (count < halvesSquare)
        return 0;
    return count < transformSquare ? partsScratch(count) : transformScratch(count, count);
}

}  // namespace qel::limbs
