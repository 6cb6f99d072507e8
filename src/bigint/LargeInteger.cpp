// Storage: construction, copies and growth. A buffer always holds size + 1 words; the guard word
// at index `size` lets scans start one bit above the cached bound.
//
// Growth does not write the new guard word. No scan reaches it: growth leaves at least two spare
// words above the highest word written.
#include "qel/LargeInteger.h"

#include "Representation.h"

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
    Representation::refreshHighestBit(*this, 2LL * bitsPerWord - 1);
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

LargeInteger internal::Representation::tight(limbs::Limb const* value, long long top,
                                             bool flag) noexcept {
    int const bound = checkedPosition(top);
    int const size = tightSize(bound);
    int const used = wordIndex(bound) + 1;
    auto* const words = checkedBuffer<std::uint32_t>(std::malloc(bytesFor(size)));
    storeWords(words, value, bound);
    std::fill(words + used, words + size + 1, 0U);
    return LargeInteger(words, size, bound, flag);
}

void internal::Representation::refreshHighestBit(LargeInteger& a, long long bound) noexcept {
    a.highestBit = checkedPosition(highestSetBit(a.data, wordIndex(bound + 1)));
}

void internal::Representation::replaceMagnitude(LargeInteger& a, int oldTop,
                                                limbs::Limb const* value, int top) noexcept {
    assert(top <= oldTop && oldTop <= a.highestBit);
    std::fill(a.data, a.data + wordIndex(oldTop) + 1, 0U);
    storeWords(a.data, value, top);
}

void internal::Representation::replaceZero(LargeInteger& a, limbs::Limb const* value, int top,
                                           int capacity) noexcept {
    assert(a.highestBit < 0 && !a.negative && tightSize(top) <= capacity);
    if (capacity != a.size) {
        std::free(a.data);
        a.data = checkedBuffer<std::uint32_t>(std::malloc(bytesFor(capacity)));
        a.size = capacity;
    }
    int const used = wordIndex(top) + 1;
    storeWords(a.data, value, top);
    std::memset(a.data + used, 0, bytesFor(a.size) - bytesFor(used - 1));
    a.highestBit = top;
}

}  // namespace qel
