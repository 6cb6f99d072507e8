// Shifts: of the whole value, words first and then bits; and of the bits above a position, one by
// one, for edits of a few positions.
#include "qel/LargeInteger.h"

#include "Words.h"

#include <algorithm>

namespace qel {

using namespace internal;

void LargeInteger::shiftBits(int count, int from) noexcept {
    shiftBy(count, from);
}

/// The distance is 64 bits wide so that it can always be negated.
void LargeInteger::shiftBy(long long distance, int from) noexcept {
    if (highestBit < 0 || distance == 0)
        return;
    if (from <= 0) {
        if (distance > 0)
            shiftLeft(distance);
        else
            shiftRight(-distance);
    } else {
        if (distance > 0)
            shiftLeftFrom(from, distance);
        else
            shiftRightFrom(from, -distance);
    }
}

void LargeInteger::shiftLeft(long long count) noexcept {
    long long const bound = highestBit + count;
    checkedPosition(getHighestBit() + count);
    ensureSize(wordIndex(bound) + 1);
    int const oldTop = wordIndex(highestBit);
    int const words = wordIndex(count);
    int const bits = static_cast<int>(count % bitsPerWord);
    if (words > 0) {
        for (int i = oldTop; i >= 0; --i)
            data[i + words] = data[i];
        std::fill(data, data + words, 0U);
    }
    if (bits != 0) {
        for (int j = oldTop + words + 1; j > words; --j)
            data[j] = (data[j] << bits) | (data[j - 1] >> (bitsPerWord - bits));
        data[words] <<= bits;
    }
    refreshHighestBit(bound);
}

void LargeInteger::shiftRight(long long count) noexcept {
    if (highestBit < count) {
        clear();
        return;
    }
    long long const bound = highestBit - count;
    int const oldTop = wordIndex(highestBit);
    int const words = wordIndex(count);
    int const bits = static_cast<int>(count % bitsPerWord);
    int const newTop = oldTop - words;
    if (words > 0) {
        for (int k = 0; k <= newTop; ++k)
            data[k] = data[k + words];
        std::fill(data + newTop + 1, data + oldTop + 1, 0U);
    }
    if (bits != 0) {
        for (int k = 0; k < newTop; ++k)
            data[k] = (data[k] >> bits) | (data[k + 1] << (bitsPerWord - bits));
        data[newTop] >>= bits;
    }
    refreshHighestBit(bound);
}

// The bound follows the highest bit that setBit meets and is not rescanned.
void LargeInteger::shiftLeftFrom(int from, long long count) noexcept {
    for (long long i = highestBit; i >= from; --i) {
        long long const target = i + count;
        if ((*this)[static_cast<int>(i)] != 0)
            setBit(checkedPosition(target));
        else if (target <= highestBit)
            clearBit(static_cast<int>(target));
    }
    long long const gapEnd = std::min(from + count, highestBit + 1LL);
    for (long long i = from; i < gapEnd; ++i)
        clearBit(static_cast<int>(i));
}

void LargeInteger::shiftRightFrom(int from, long long count) noexcept {
    for (long long target = from; target <= highestBit; ++target) {
        long long const source = target + count;
        setBit(static_cast<int>(target),
               source <= highestBit && (*this)[static_cast<int>(source)] != 0);
    }
    refreshHighestBit(highestBit);
}

LargeInteger& LargeInteger::operator<<=(int n) noexcept {
    shiftBits(n, 0);
    return *this;
}

LargeInteger& LargeInteger::operator>>=(int n) noexcept {
    shiftBy(-static_cast<long long>(n), 0);
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
