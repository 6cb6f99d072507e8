// Single bits, ranges of bits, and searches for them. The cached bound is only raised here: bits
// that are cleared leave it where it was, and reads up to a stale bound meet zeros.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <algorithm>

namespace qel {

using namespace internal;

namespace {

constexpr std::uint32_t bitMask(long long position) noexcept {
    return std::uint32_t{1} << (position % bitsPerWord);
}

/// The low `count` bits, `count` from 1 to 32.
constexpr std::uint32_t lowMask(long long count) noexcept {
    return ~std::uint32_t{0} >> (bitsPerWord - count);
}

}  // namespace

int LargeInteger::getHighestBit() const noexcept {
    return static_cast<int>(highestSetBit(data, wordIndex(highestBit + 1LL)));
}

int LargeInteger::operator[](int i) const noexcept {
    if (i < 0 || i > highestBit)
        return 0;
    return (data[wordIndex(i)] & bitMask(i)) != 0 ? 1 : 0;
}

void LargeInteger::setBit(int i) noexcept {
    if (i < 0)
        return;
    if (i > highestBit) {
        ensureSize(wordIndex(i));
        highestBit = i;
    }
    data[wordIndex(i)] |= bitMask(i);
}

void LargeInteger::setBit(int i, bool value) noexcept {
    if (value)
        setBit(i);
    else
        clearBit(i);
}

void LargeInteger::clearBit(int i) noexcept {
    if (i >= 0 && i <= highestBit)
        data[wordIndex(i)] &= ~bitMask(i);
}

void LargeInteger::setRange(int start, int count, bool value) noexcept {
    // Positions below 0 are ignored one by one, and so are those above the bound when clearing:
    // leaving them out of the loop changes nothing.
    long long end = static_cast<long long>(start) + count;
    if (!value)
        end = std::min(end, highestBit + 1LL);
    for (long long i = std::max(start, 0); i < end; ++i)
        setBit(checkedPosition(i), value);
}

int LargeInteger::getBitRangeAsInt(int start, int count) const noexcept {
    long long const n = std::min({static_cast<long long>(count),
                                  static_cast<long long>(bitsPerWord), highestBit + 1LL - start});
    if (start < 0 || n <= 0)
        return 0;
    int const shift = start % bitsPerWord;
    std::uint32_t const* const word = data + wordIndex(start);
    std::uint32_t bits = word[0] >> shift;
    if (shift > bitsPerWord - n)
        bits |= word[1] << (bitsPerWord - shift);
    return static_cast<int>(bits & lowMask(n));
}

void LargeInteger::setBitRangeAsInt(int start, int count, unsigned int value) noexcept {
    for (int k = 0; k < std::min(count, bitsPerWord); ++k) {
        long long const position = static_cast<long long>(start) + k;
        if (((value >> k) & 1) != 0)
            setBit(checkedPosition(position));
        else if (position <= highestBit)
            clearBit(static_cast<int>(position));
    }
}

LargeInteger LargeInteger::getBitRange(int start, int count) const noexcept {
    LargeInteger range;
    long long const n = std::min(getHighestBit() + 1LL - start, static_cast<long long>(count));
    if (start < 0 || n <= 0)
        return range;
    range.ensureSize(wordIndex(n));
    for (long long done = 0; done < n; done += bitsPerWord)
        range.data[wordIndex(done)] = static_cast<std::uint32_t>(
            getBitRangeAsInt(static_cast<int>(start + done), static_cast<int>(n - done)));
    Representation::refreshHighestBit(range, n);
    return range;
}

int LargeInteger::findNextSetBit(int start) const noexcept {
    for (long long i = std::max(start, 0); i <= highestBit; ++i) {
        if ((*this)[static_cast<int>(i)] != 0)
            return static_cast<int>(i);
    }
    return -1;
}

int LargeInteger::findNextClearBit(int start) const noexcept {
    long long i = std::max(start, 0);
    while (i <= highestBit && (*this)[static_cast<int>(i)] != 0)
        ++i;
    return i > INT_MAX ? -1 : static_cast<int>(i);
}

int LargeInteger::countNumberOfSetBits() const noexcept {
    long long count = 0;
    for (int i = wordIndex(highestBit); i >= 0; --i)
        count += std::popcount(data[i]);
    return checkedPosition(count);
}

}  // namespace qel
