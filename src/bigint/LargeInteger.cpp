// Storage: construction, copies and growth.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <utility>

namespace qel {

using namespace internal;

namespace {

/// The limb in the buffer of a new value.
Limb* bufferWith(Limb lowest) noexcept {
    Limb* const buffer = newBuffer(bufferLimbs(initialSize));
    buffer[0] = lowest;
    std::fill(buffer + 1, buffer + bufferLimbs(initialSize), Limb{0});
    return buffer;
}

Limb* copiedBuffer(Limb const* source, int size) noexcept {
    Limb* const buffer = newBuffer(bufferLimbs(size));
    std::memcpy(buffer, source, bufferLimbs(size) * sizeof(Limb));
    return buffer;
}

/// |v| as an unsigned value: negating before widening would overflow for the most negative v.
Limb magnitudeOf(long long v) noexcept {
    return v < 0 ? 0 - static_cast<Limb>(v) : static_cast<Limb>(v);
}

}  // namespace

LargeInteger::LargeInteger() noexcept
    : data(bufferWith(0)), size(initialSize), highestBit(-1), negative(false) {}

// Takes over a buffer.
LargeInteger::LargeInteger(Limb* buffer, int capacity, int bound, bool flag) noexcept
    : data(buffer), size(capacity), highestBit(bound), negative(flag) {}

LargeInteger::LargeInteger(int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(unsigned int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(long long v) noexcept
    : data(bufferWith(magnitudeOf(v))), size(initialSize),
      highestBit(limbs::bitsPerLimb - 1 - std::countl_zero(magnitudeOf(v))), negative(v < 0) {}

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
    int const newSize = tightSize(highestBit);
    negative = source.negative;
    if (bufferLimbs(newSize) == bufferLimbs(size)) {
        std::memcpy(data, source.data, bufferLimbs(newSize) * sizeof(Limb));
    } else {
        std::free(data);
        data = copiedBuffer(source.data, newSize);
    }
    size = newSize;
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
        data = bufferWith(0);
    } else {
        std::fill_n(data, limbCount(highestBit), Limb{0});
    }
    highestBit = -1;
    negative = false;
}

void LargeInteger::ensureSize(int w) noexcept {
    int const newSize = grownSize(size, w);
    if (newSize == size)
        return;
    data = checkedBuffer(std::realloc(data, bufferLimbs(newSize) * sizeof(Limb)));
    std::fill(data + bufferLimbs(size), data + bufferLimbs(newSize), Limb{0});
    size = newSize;
}

LargeInteger internal::Representation::sized(Limb* buffer, std::size_t used, int sizeTop,
                                             bool flag) noexcept {
    int const size = tightSize(sizeTop);
    int const top = static_cast<int>(topBit(buffer, used));
    for (std::size_t i = used; i < bufferLimbs(size); ++i)
        buffer[i] = 0;
    return LargeInteger(buffer, size, top, flag);
}

LargeInteger internal::Representation::copied(Limb const* value, std::size_t count, int sizeTop,
                                              bool flag) noexcept {
    int const size = tightSize(sizeTop);
    std::size_t const room = bufferLimbs(size);
    count = std::min(count, room);  // what is above is zero
    Limb* const buffer = newBuffer(room);
    std::fill(std::copy_n(value, count, buffer), buffer + room, Limb{0});
    return LargeInteger(buffer, size, static_cast<int>(topBit(value, count)), flag);
}

void internal::Representation::replaceMagnitude(LargeInteger& a, int oldTop, Limb const* value,
                                                std::size_t count) noexcept {
    assert(oldTop <= a.highestBit && topBit(value, count) <= oldTop);
    std::size_t const old = limbCount(oldTop);
    count = std::min(count, old);
    std::fill(std::copy_n(value, count, a.data), a.data + old, Limb{0});
}

// Room is made for each word that is two below the capacity, or higher.
void internal::Representation::growAlong(LargeInteger& a, long long first, int last) noexcept {
    for (int w = wordIndex(first); w <= wordIndex(last); w = std::max(w + 1, a.size - 2))
        a.ensureSize(w);
}

}  // namespace qel
