#include "Product.h"

#include <algorithm>

namespace qel::internal {

namespace {

/// The lowest set bit of a at or above `from`, -1 for none.
long long nextSetBit(Magnitude a, long long from) noexcept {
    if (from > a.top)
        return -1;
    int i = wordIndex(from);
    std::uint32_t word = a.words[i] & (~std::uint32_t{0} << (from % bitsPerWord));
    while (word == 0)  // the bit a.top is set
        word = a.words[++i];
    return static_cast<long long>(i) * bitsPerWord + std::countr_zero(word);
}

std::size_t productWorkspace(Magnitude a, Magnitude b) noexcept {
    if (a.top < 0 || b.top < 0)
        return 0;
    // The product's top or the position below it: one out of reach ends before the long work.
    requireIndex(static_cast<long long>(a.top) + b.top);
    std::size_t const longer = limbCount(std::max(a.top, b.top));
    std::size_t const shorter = limbCount(std::min(a.top, b.top));
    return 2 * (longer + shorter)
           + std::max(limbs::multiplyScratch(longer, shorter), limbs::squareScratch(longer));
}

std::size_t quotientWorkspace(Magnitude dividend, Magnitude divisor) noexcept {
    std::size_t const count = limbCount(divisor.top);
    return 2 * limbCount(dividend.top) + count + 2 + limbs::divideScratch(count);
}

}  // namespace

Product::Product(Magnitude a, Magnitude b) noexcept : workspace(productWorkspace(a, b)) {
    if (a.top < 0 || b.top < 0)
        return;
    if (a.top < b.top)
        std::swap(a, b);
    std::size_t const aCount = limbCount(a.top);
    std::size_t const bCount = limbCount(b.top);
    limbs::Limb* const out = workspace.take(aCount + bCount);
    limbs::Limb* const aLimbs = workspace.take(aCount);
    loadLimbs(aLimbs, aCount, a);
    if (a.words == b.words) {
        limbs::square(out, aLimbs, aCount, workspace.rest());
    } else {
        limbs::Limb* const bLimbs = workspace.take(bCount);
        loadLimbs(bLimbs, bCount, b);
        limbs::multiply(out, aLimbs, aCount, bLimbs, bCount, workspace.rest());
    }
    value = out;
    top = checkedPosition(topBit(out, aCount + bCount));
}

int productCapacity(Magnitude a, int bTop) noexcept {
    int size = initialSize;
    if (bTop < 0)
        return size;
    for (;;) {
        // The next bit i whose addition grows: the one for word (bTop + i + 1) / 32 + 1, two words
        // or fewer below the capacity.
        long long const from = static_cast<long long>(bitsPerWord) * (size - 3) - bTop - 1;
        long long const i = nextSetBit(a, std::max(from, 0LL));
        if (i < 0)
            return size;
        size = grownSize(size, (bTop + i + 1) / bitsPerWord + 1);
    }
}

Quotient::Quotient(Magnitude dividend, Magnitude divisor) noexcept
    : remainderTop(dividend.top), workspace(quotientWorkspace(dividend, divisor)) {
    std::size_t const aCount = limbCount(dividend.top);
    std::size_t const count = limbCount(divisor.top);
    limbs::Limb* const a = workspace.take(aCount + 1);
    limbs::Limb* const q = workspace.take(aCount + 1);
    limbs::Limb* const d = workspace.take(count);
    loadLimbs(a, aCount, dividend);
    remainder = a;
    if (dividend.top < divisor.top)
        return;
    loadLimbs(d, count, divisor);
    quotient = q;
    if (count == 1) {
        a[0] = limbs::divideLimb(q, a, aCount, d[0]);
        quotientTop = static_cast<int>(topBit(q, aCount));
        remainderTop = static_cast<int>(topBit(a, 1));
        return;
    }
    // D1: both shifted left until the divisor's highest bit is set.
    int const shift = std::countl_zero(d[count - 1]);
    a[aCount] = shift == 0 ? 0 : limbs::shiftLeft(a, a, aCount, shift);
    if (shift != 0)
        limbs::shiftLeft(d, d, count, shift);
    limbs::divide(q, a, aCount + 1, d, count, workspace.rest());
    if (shift != 0)
        limbs::shiftRight(a, a, count, shift);
    quotientTop = static_cast<int>(topBit(q, aCount + 1 - count));
    remainderTop = static_cast<int>(topBit(a, count));
}

}  // namespace qel::internal
