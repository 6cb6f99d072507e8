// Storage: construction, copies and growth. A buffer always holds size + 1 words; the guard word
// at index `size` lets scans start one bit above the cached bound.
//
// Growth does not write the new guard word. No scan reaches it: growth leaves at least two spare
// words above the highest word written.
#include "qel/LargeInteger.h"

#include "Storage.h"

#include <algorithm>
#include <utility>

namespace qel {

using namespace internal;

namespace {

/// From this capacity on, a reset to zero releases the buffer.
constexpr int releaseSize = 17;

std::uint32_t* copiedBuffer(std::uint32_t const* source, int size) noexcept {
    std::uint32_t* const buffer = checkedBuffer<std::uint32_t>(std::malloc(bytesFor(size)));
    std::memcpy(buffer, source, bytesFor(size));
    return buffer;
}

/// |v| as an unsigned value: negating before widening would overflow for the most negative v.
std::uint64_t magnitude(long long v) noexcept {
    return v < 0 ? 0 - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
}

}  // namespace

LargeInteger::LargeInteger() noexcept
    : data(zeroedBuffer(initialSize)), size(initialSize), highestBit(-1), negative(false) {}

LargeInteger::LargeInteger(int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(unsigned int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(long long v) noexcept : LargeInteger() {
    negative = v < 0;
    data[0] = static_cast<std::uint32_t>(magnitude(v));
    data[1] = static_cast<std::uint32_t>(magnitude(v) >> bitsPerWord);
    refreshHighestBit(2LL * bitsPerWord - 1);
}

// Sized by the source's cached bound, where assignment goes by its exact top.
LargeInteger::LargeInteger(LargeInteger const& source) noexcept
    : data(copiedBuffer(source.data, tightSize(source.highestBit))),
      size(tightSize(source.highestBit)), highestBit(source.getHighestBit()),
      negative(source.negative) {}

LargeInteger::LargeInteger(LargeInteger&& source) noexcept : LargeInteger() {
    int const copied = tightSize(source.highestBit);
    if (source.size == copied) {
        source.highestBit = source.getHighestBit();
        swapWith(source);
    } else {
        std::free(data);
        data = copiedBuffer(source.data, copied);
        size = copied;
        highestBit = source.getHighestBit();
        negative = source.negative;
        source.clear();
    }
}

// A tight value, as a copy would be.
LargeInteger::LargeInteger(std::uint64_t const* limbs, int top, bool flag) noexcept
    : data(checkedBuffer<std::uint32_t>(std::malloc(bytesFor(tightSize(top))))),
      size(tightSize(top)), highestBit(top), negative(flag) {
    storeWords(data, limbs, top);
    std::fill(data + wordIndex(top) + 1, data + size + 1, 0U);
}

LargeInteger::~LargeInteger() noexcept {
    std::free(data);
}

LargeInteger& LargeInteger::operator=(LargeInteger const& source) noexcept {
    if (this == &source)
        return *this;
    highestBit = source.getHighestBit();
    size = tightSize(highestBit);
    negative = source.negative;
    std::free(data);
    data = copiedBuffer(source.data, size);
    return *this;
}

LargeInteger& LargeInteger::operator=(LargeInteger&& source) noexcept {
    if (this == &source)
        return *this;
    int const top = source.getHighestBit();
    if (source.size == tightSize(top)) {
        swapWith(source);
        highestBit = top;
    } else {
        *this = static_cast<LargeInteger const&>(source);
    }
    source.clear();
    return *this;
}

void LargeInteger::swapWith(LargeInteger& other) noexcept {
    std::swap(data, other.data);
    std::swap(size, other.size);
    std::swap(highestBit, other.highestBit);
    std::swap(negative, other.negative);
}

void LargeInteger::clear() noexcept {
    if (size >= releaseSize) {
        std::free(data);
        size = initialSize;
        data = zeroedBuffer(size);
    } else {
        std::memset(data, 0, bytesFor(size));
    }
    highestBit = -1;
    negative = false;
}

void LargeInteger::ensureSize(int w) noexcept {
    int const newSize = grownSize(size, w);
    if (newSize == size)
        return;
    data = checkedBuffer<std::uint32_t>(std::realloc(data, bytesFor(newSize)));
    std::fill(data + size, data + newSize, 0U);
    size = newSize;
}

/// Stores the exact top bit, given that it is at or below bound + 1: an operation that may have
/// carried one bit past the old top raises the bound by one and rescans.
void LargeInteger::refreshHighestBit(long long bound) noexcept {
    highestBit = checkedPosition(highestSetBit(data, wordIndex(bound + 1)));
}

}  // namespace qel
