// Shifts: of the whole value, words first and then bits; and of the bits above a position, one by
// one, for edits of a few positions.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <algorithm>

namespace qel {

using namespace internal;

void LargeInteger::shiftBits(int count, int from) noexcept {
    Representation::shiftBy(*this, count, from);
}

/// The distance is 64 bits wide so that it can always be negated.
void internal::Representation::shiftBy(LargeInteger& a, long long distance, int from) noexcept {
    if (a.highestBit < 0 || distance == 0)
        return;
    if (from <= 0) {
        if (distance > 0)
            shiftLeft(a, distance);
        else
            shiftRight(a, -distance);
    } else {
        if (distance > 0)
            shiftLeftFrom(a, from, distance);
        else
            shiftRightFrom(a, from, -distance);
    }
}

void internal::Representation::shiftLeft(LargeInteger& a, long long count) noexcept {
    long long const bound = a.highestBit + count;
    requireIndex(a.getHighestBit() + count);
    a.ensureSize(wordIndex(bound) + 1);
    int const oldTop = wordIndex(a.highestBit);
    int const words = wordIndex(count);
    int const bits = static_cast<int>(count % bitsPerWord);
    if (words > 0) {
        for (int i = oldTop; i >= 0; --i)
            a.data[i + words] = a.data[i];
        std::fill(a.data, a.data + words, 0U);
    }
    if (bits != 0) {
        for (int j = oldTop + words + 1; j > words; --j)
            a.data[j] = (a.data[j] << bits) | (a.data[j - 1] >> (bitsPerWord - bits));
        a.data[words] <<= bits;
    }
    refreshHighestBit(a, bound);
}

void internal::Representation::shiftRight(LargeInteger& a, long long count) noexcept {
    if (a.highestBit < count) {
        a.clear();
        return;
    }
    long long const bound = a.highestBit - count;
    int const oldTop = wordIndex(a.highestBit);
    int const words = wordIndex(count);
    int const bits = static_cast<int>(count % bitsPerWord);
    int const newTop = oldTop - words;
    if (words > 0) {
        for (int k = 0; k <= newTop; ++k)
            a.data[k] = a.data[k + words];
        std::fill(a.data + newTop + 1, a.data + oldTop + 1, 0U);
    }
    if (bits != 0) {
        for (int k = 0; k < newTop; ++k)
            a.data[k] = (a.data[k] >> bits) | (a.data[k + 1] << (bitsPerWord - bits));
        a.data[newTop] >>= bits;
    }
    refreshHighestBit(a, bound);
}

// The bound follows the highest bit that setBit meets and is not rescanned.
void internal::Representation::shiftLeftFrom(LargeInteger& a, int from, long long count) noexcept {
    for (long long i = a.highestBit; i >= from; --i) {
        long long const target = i + count;
        if (a[static_cast<int>(i)] != 0)
            a.setBit(checkedPosition(target));
        else if (target <= a.highestBit)
            a.clearBit(static_cast<int>(target));
    }
    long long const gapEnd = std::min(from + count, a.highestBit + 1LL);
    for (long long i = from; i < gapEnd; ++i)
        a.clearBit(static_cast<int>(i));
}

void internal::Representation::shiftRightFrom(LargeInteger& a, int from, long long count) noexcept {
    for (long long target = from; target <= a.highestBit; ++target) {
        long long const source = target + count;
        a.setBit(static_cast<int>(target),
                 source <= a.highestBit && a[static_cast<int>(source)] != 0);
    }
    refreshHighestBit(a, a.highestBit);
}

LargeInteger& LargeInteger::operator<<=(int n) noexcept {
    shiftBits(n, 0);
    return *this;
}

LargeInteger& LargeInteger::operator>>=(int n) noexcept {
    Representation::shiftBy(*this, -static_cast<long long>(n), 0);
    return *this;
}

LargeInteger LargeInteger::operator<<(int n) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work <<= n);
}

LargeInteger LargeInteger::operator>>(int n) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work >>= n);
}

void LargeInteger::insertBit(int pos, bool value) noexcept {
    if (pos < 0)
        return;
    shiftBits(1, pos);
    setBit(pos, value);
}

}  // namespace qel
