// Single bits, ranges of bits, and searches for them. The cached bound is only raised here: bits
// that are cleared leave it where it was, and reads up to a stale bound meet zeros.
#include "qel/LargeInteger.h"

#include "Representation.h"

namespace qel {

using namespace internal;

namespace {

constexpr Limb bitMask(long long position) noexcept {
    return Limb{1} << (position % limbs::bitsPerLimb);
}

/// The low `count` bits, for `count` from 1 to 64.
constexpr Limb lowMask(long long count) noexcept {
    return ~Limb{0} >> (limbs::bitsPerLimb - count);
}

/// Calls `apply(limb, mask)` for each limb with bits from `start` to `end` - 1, their mask.
template <typename Apply>
void forEachLimb(Limb* a, long long start, long long end, Apply apply) noexcept {
    while (start < end) {
        long long const limbEnd = (start / limbs::bitsPerLimb + 1) * limbs::bitsPerLimb;
        long long const stop = std::min(limbEnd, end);
        Limb const mask = lowMask(stop - start) << (start % limbs::bitsPerLimb);
        apply(a[limbIndex(start)], mask);
        start = stop;
    }
}

/// `count` <= 64 bits from `start` up, which is at or below the bound; above it there are zeros.
Limb bitsFrom(Limb const* a, int bound, long long start, long long count) noexcept {
    std::size_t const i = limbIndex(start);
    auto const shift = static_cast<int>(start % limbs::bitsPerLimb);
    Limb bits = a[i] >> shift;
    if (shift != 0 && i < limbIndex(bound))
        bits |= a[i + 1] << (limbs::bitsPerLimb - shift);
    return bits & lowMask(count);
}

}  // namespace

int LargeInteger::findHighestBit() const noexcept {
    return static_cast<int>(topBit(data, limbCount(highestBit)));
}

void LargeInteger::setBit(int i) noexcept {
    if (i < 0)
        return;
    if (i > highestBit) {
        ensureSize(wordIndex(i));
        highestBit = i;
    }
    data[limbIndex(i)] |= bitMask(i);
}

void LargeInteger::setBit(int i, bool value) noexcept {
    if (value)
        setBit(i);
    else
        clearBit(i);
}

void LargeInteger::clearBit(int i) noexcept {
    if (i >= 0 && i <= highestBit)
        data[limbIndex(i)] &= ~bitMask(i);
}

void LargeInteger::setRange(int start, int count, bool value) noexcept {
    // Positions below 0 are ignored one by one, and so are those above the bound when clearing:
    // leaving them out changes nothing.
    long long const first = std::max(start, 0);
    long long const end = static_cast<long long>(start) + count;
    if (!value) {
        forEachLimb(data, first, std::min(end, highestBit + 1LL),
                    [](Limb& limb, Limb mask) { limb &= ~mask; });
    } else if (first < end) {
        int const last = checkedPosition(end - 1);
        if (last > highestBit) {
            Representation::growAlong(*this, std::max(first, highestBit + 1LL), last);
            highestBit = last;
        }
        forEachLimb(data, first, end, [](Limb& limb, Limb mask) { limb |= mask; });
    }
}

int LargeInteger::getBitRangeAsInt(int start, int count) const noexcept {
    if (start < 0 || count <= 0 || start > highestBit)
        return 0;
    return static_cast<int>(bitsFrom(data, highestBit, start, std::min(count, bitsPerWord)));
}

// Set bits grow one after the other; clear ones above the bound are ignored.
void LargeInteger::setBitRangeAsInt(int start, int count, unsigned int value) noexcept {
    int const n = std::min(count, bitsPerWord);
    for (int k = 0; k < n;) {
        long long const position = static_cast<long long>(start) + k;
        if (position < 0) {
            ++k;
            continue;
        }
        // The rest of the word of this position, or of the range.
        int const inWord = std::min(n - k, bitsPerWord - static_cast<int>(position % bitsPerWord));
        Limb const mask = lowMask(inWord);
        Limb const bits = (value >> k) & mask;
        int const top = limbs::bitsPerLimb - 1 - std::countl_zero(bits);
        if (top >= 0 && position + top > highestBit)
            setBit(checkedPosition(position + top));
        if (position <= highestBit) {
            auto const shift = static_cast<int>(position % limbs::bitsPerLimb);
            Limb& limb = data[limbIndex(position)];
            limb = (limb & ~(mask << shift)) | (bits << shift);
        }
        k += inWord;
    }
}

// As large as a new value grown for bit n.
LargeInteger LargeInteger::getBitRange(int start, int count) const noexcept {
    Magnitude const whole = Representation::magnitude(*this);
    long long const n = std::min(whole.top + 1LL - start, static_cast<long long>(count));
    if (start < 0 || n <= 0)
        return LargeInteger();
    int const newSize = grownSize(initialSize, wordIndex(n));
    std::size_t const used = limbCount(n - 1);
    ResultLimbs limbs(std::max(used, bufferLimbs(newSize)));
    Limb* const out = limbs.get();
    Limb const* const first = data + limbIndex(start);
    auto const shift = static_cast<int>(start % limbs::bitsPerLimb);
    if (shift == 0)
        std::copy_n(first, used, out);
    else
        limbs::shiftRight(out, first, used, shift);
    // The last limb takes bits from above, and gives up those beyond the range.
    long long const done = static_cast<long long>(used - 1) * limbs::bitsPerLimb;
    out[used - 1] = bitsFrom(data, highestBit, start + done, n - done);
    return {limbs, used, newSize, static_cast<int>(topBit(out, used)), false};
}

int LargeInteger::findNextSetBit(int start) const noexcept {
    long long const from = std::max(start, 0);
    if (from > highestBit)
        return -1;
    std::size_t i = limbIndex(from);
    std::size_t const last = limbIndex(highestBit);
    Limb limb = data[i] & (~Limb{0} << (from % limbs::bitsPerLimb));
    while (limb == 0) {
        while (i + 4 <= last && (data[i + 1] | data[i + 2] | data[i + 3] | data[i + 4]) == 0)
            i += 4;
        if (++i > last)
            return -1;
        limb = data[i];
    }
    return static_cast<int>(i) * limbs::bitsPerLimb + std::countr_zero(limb);
}

int LargeInteger::findNextClearBit(int start) const noexcept {
    long long const from = std::max(start, 0);
    if (from > highestBit)
        return static_cast<int>(from);
    std::size_t i = limbIndex(from);
    Limb limb = ~data[i] & (~Limb{0} << (from % limbs::bitsPerLimb));
    while (limb == 0 && i < limbIndex(highestBit))
        limb = ~data[++i];
    // Without a clear bit up to the end of the last limb, that one is full and the bound its end.
    long long const found = static_cast<long long>(i) * limbs::bitsPerLimb + std::countr_zero(limb);
    return found > INT_MAX ? -1 : static_cast<int>(found);
}

int LargeInteger::countNumberOfSetBits() const noexcept {
    return checkedPosition(limbs::countBits(data, limbCount(highestBit)));
}

}  // namespace qel
