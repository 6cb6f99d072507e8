// Storage: construction, copies and growth.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <utility>

namespace qel {

using namespace internal;

namespace {

/// From this capacity on, a reset to zero releases the buffer.
constexpr int releaseSize = 17;

/// What a value without a buffer reads: the limbs of a new zero. Nothing writes them, since that
/// value's capacity is 0.
constexpr std::array<Limb, bufferLimbs(initialSize)> noLimbs{};

Limb* withoutBuffer() noexcept {
    return const_cast<Limb*>(noLimbs.data());
}

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

// Takes over a buffer.
LargeInteger::LargeInteger(Limb* buffer, int capacity, int bound, bool flag) noexcept
    : data(buffer), size(capacity), highestBit(bound), room(tightRoom(capacity)), negative(flag) {}

LargeInteger::LargeInteger() noexcept : LargeInteger(bufferWith(0), initialSize, -1, false) {}

LargeInteger::LargeInteger(int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(unsigned int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(long long v) noexcept
    : LargeInteger(bufferWith(magnitudeOf(v)), initialSize,
                   limbs::bitsPerLimb - 1 - std::countl_zero(magnitudeOf(v)), v < 0) {}

// Sized by the source's cached bound, where assignment goes by its exact top.
LargeInteger::LargeInteger(LargeInteger const& source) noexcept
    : LargeInteger(copiedBuffer(source.data, tightSize(source.highestBit)),
                   tightSize(source.highestBit), source.getHighestBit(), source.negative) {}

LargeInteger::LargeInteger(LargeInteger&& source) noexcept
    : LargeInteger(source.data, tightSize(source.highestBit), source.getHighestBit(),
                   source.negative) {
    room = source.room;
    if (room == 0) {
        data = bufferWith(0);
        room = tightRoom(initialSize);
    }
    source.data = withoutBuffer();
    source.size = 0;
    source.highestBit = -1;
    source.room = 0;
    source.negative = false;
}

LargeInteger::~LargeInteger() noexcept {
    Representation::release(*this);
}

LargeInteger& LargeInteger::operator=(LargeInteger const& source) noexcept {
    if (this == &source)
        return *this;
    highestBit = source.getHighestBit();
    negative = source.negative;
    Representation::renew(*this, tightSize(highestBit));
    std::memcpy(data, source.data, bufferLimbs(size) * sizeof(Limb));
    return *this;
}

LargeInteger& LargeInteger::operator=(LargeInteger&& source) noexcept {
    if (this == &source)
        return *this;
    LargeInteger taken(std::move(source));
    taken.size = tightSize(taken.highestBit);
    swapWith(taken);
    return *this;
}

void LargeInteger::clear() noexcept {
    if (size >= releaseSize || room == 0) {
        LargeInteger zero;
        swapWith(zero);
        return;
    }
    std::fill_n(data, limbCount(highestBit), Limb{0});
    highestBit = -1;
    negative = false;
}

void LargeInteger::ensureSize(int w) noexcept {
    int const newSize = grownSize(std::max(size, initialSize), w);
    if (newSize == size)
        return;
    std::size_t const used = room == 0 ? 0 : bufferLimbs(size);
    if (room < tightRoom(newSize)) {
        void* const old = room == 0 ? nullptr : data;
        data = checkedBuffer(std::realloc(old, bufferLimbs(newSize) * sizeof(Limb)));
        room = tightRoom(newSize);
    }
    std::fill(data + used, data + bufferLimbs(newSize), Limb{0});
    size = newSize;
}

void internal::Representation::replaceBuffer(LargeInteger& a, std::int32_t room) noexcept {
    release(a);
    a.data = newBuffer(static_cast<std::size_t>(room));
    a.room = room;
}

void internal::Representation::assign(LargeInteger& a, Limb const* value, int top,
                                      int capacity) noexcept {
    assert(tightSize(top) <= capacity);
    renew(a, capacity);
    std::fill(std::copy_n(value, limbCount(top), a.data), a.data + bufferLimbs(capacity), Limb{0});
    a.highestBit = top;
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
