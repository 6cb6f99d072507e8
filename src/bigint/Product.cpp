#include "Product.h"

#include <algorithm>
#include <utility>

namespace qel::internal {

namespace {

/// The lowest set bit of a at or above `from`, -1 for none.
long long nextSetBit(Magnitude a, long long from) noexcept {
    if (from > a.top)
        return -1;
    std::size_t i = limbIndex(from);
    Limb limb = a.value[i] & (~Limb{0} << (from % limbs::bitsPerLimb));
    while (limb == 0)  // the bit a.top is set
        limb = a.value[++i];
    return static_cast<long long>(i) * limbs::bitsPerLimb + std::countr_zero(limb);
}

}  // namespace

std::size_t productLimbs(Magnitude a, Magnitude b) noexcept {
    if (a.top < 0 || b.top < 0)
        return 0;
    // The product's top or the position below it: one out of reach ends before the long work.
    requireIndex(static_cast<long long>(a.top) + b.top);
    return a.count() + b.count();
}

void multiply(Limb* out, Magnitude a, Magnitude b) noexcept {
    if (a.top < 0 || b.top < 0)
        return;
    if (a.top < b.top)
        std::swap(a, b);
    bool const isSquare = a.value == b.value;
    Workspace workspace(isSquare ? limbs::squareScratch(a.count())
                                 : limbs::multiplyScratch(a.count(), b.count()));
    if (isSquare)
        limbs::square(out, a.value, a.count(), workspace.rest());
    else
        limbs::multiply(out, a.value, a.count(), b.value, b.count(), workspace.rest());
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

}  // namespace qel::internal
