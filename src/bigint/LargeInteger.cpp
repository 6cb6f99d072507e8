// Storage: construction, copies and growth.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <utility>

namespace qel {

using namespace internal;

namespace {

/// From this capacity on, a reset to zero releases the buffer.
constexpr int releaseSize = 17;

/// |v| as an unsigned value: negating before widening would overflow for the most negative v.
Limb magnitudeOf(long long v) noexcept {
    return v < 0 ? 0 - static_cast<Limb>(v) : static_cast<Limb>(v);
}

}  // namespace

LargeInteger::LargeInteger(ResultLimbs& limbs, std::size_t used, int capacity, int bound,
                           bool flag) noexcept
    : data(own.data()), size(capacity), highestBit(bound), negative(flag) {
    std::size_t const needed = bufferLimbs(capacity);
    used = std::min(used, needed);  // what is above is zero
    if (needed > own.size()) {
        room = tightRoom(capacity);
        data = limbs.takeOver(used, needed);
        std::fill(data + used, data + needed, Limb{0});
    } else {
        Representation::setOwnLimbs(*this, limbs.get(), used);
    }
}

LargeInteger::LargeInteger(int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(unsigned int v) noexcept : LargeInteger(static_cast<long long>(v)) {}

LargeInteger::LargeInteger(long long v) noexcept
    : own{magnitudeOf(v)}, data(own.data()),
      highestBit(limbs::bitsPerLimb - 1 - std::countl_zero(magnitudeOf(v))), negative(v < 0) {}

// Sized by the source's cached bound, where assignment goes by its exact top.
LargeInteger::LargeInteger(LargeInteger const& source) noexcept
    : data(own.data()), size(tightSize(source.highestBit)), highestBit(source.getHighestBit()),
      negative(source.negative) {
    std::size_t const needed = bufferLimbs(size);
    if (needed > own.size()) {
        data = newBuffer(needed);
        room = tightRoom(size);
    }
    Representation::copyLimbs(*this, source);
}

LargeInteger::LargeInteger(LargeInteger&& source) noexcept : data(own.data()) {
    Representation::take(*this, source, source.highestBit);
}

LargeInteger& LargeInteger::operator=(LargeInteger const& source) noexcept {
    if (this == &source)
        return *this;
    highestBit = source.getHighestBit();
    negative = source.negative;
    Representation::renew(*this, tightSize(highestBit));
    Representation::copyLimbs(*this, source);
    return *this;
}

LargeInteger& LargeInteger::operator=(LargeInteger&& source) noexcept {
    if (this == &source)
        return *this;
    if (data != own.data())
        freeMemory();
    Representation::take(*this, source, source.getHighestBit());
    return *this;
}

/// Out of line, so that the header asks for no more than a comparison.
void LargeInteger::freeMemory() noexcept {
    std::free(data);
}

/// Exchanges the limbs in the objects, and lets each pointer to them point into the other one.
void LargeInteger::swapOwnLimbs(LargeInteger& other) noexcept {
    std::swap(own, other.own);
    if (data == own.data())
        data = other.own.data();
    if (other.data == other.own.data())
        other.data = own.data();
}

void LargeInteger::clear() noexcept {
    if (size >= releaseSize) {
        LargeInteger zero;
        swapWith(zero);
        return;
    }
    std::fill_n(data, limbCount(highestBit), Limb{0});
    highestBit = -1;
    negative = false;
}

void LargeInteger::ensureSize(int w) noexcept {
    int const newSize = grownSize(size, w);
    if (newSize == size)
        return;
    Representation::makeRoom(*this, newSize);
    std::fill(data + bufferLimbs(size), data + bufferLimbs(newSize), Limb{0});
    size = newSize;
}

/// The source becomes zero.
void internal::Representation::take(LargeInteger& a, LargeInteger& source, int sizeTop) noexcept {
    a.size = tightSize(sizeTop);
    a.highestBit = source.getHighestBit();
    a.room = source.room;
    a.negative = source.negative;
    if (source.data == source.own.data()) {
        a.own = source.own;
        a.data = a.own.data();
    } else {
        a.data = source.data;
    }
    source.own = {};
    source.data = source.own.data();
    source.size = initialSize;
    source.highestBit = -1;
    source.room = static_cast<std::int32_t>(source.own.size());
    source.negative = false;
}

void internal::Representation::makeRoom(LargeInteger& a, int capacity) noexcept {
    std::int32_t const needed = tightRoom(capacity);
    if (a.room >= needed)
        return;
    std::size_t const bytes = bufferLimbs(capacity) * sizeof(Limb);
    if (a.data != a.own.data()) {
        a.data = checkedBuffer(std::realloc(a.data, bytes));
    } else {
        a.data = checkedBuffer(std::malloc(bytes));
        std::copy(a.own.begin(), a.own.end(), a.data);
    }
    a.room = needed;
}

void internal::Representation::replaceBuffer(LargeInteger& a, int capacity) noexcept {
    if (a.data != a.own.data())
        std::free(a.data);
    std::size_t const needed = bufferLimbs(capacity);
    bool const fits = needed <= a.own.size();
    a.data = fits ? a.own.data() : newBuffer(needed);
    a.room = static_cast<std::int32_t>(fits ? a.own.size() : needed);
}

void internal::Representation::assign(LargeInteger& a, Limb const* value, int top,
                                      int capacity) noexcept {
    assert(tightSize(top) <= capacity);
    renew(a, capacity);
    a.highestBit = top;
    if (a.data == a.own.data()) {
        setOwnLimbs(a, value, limbCount(top));
        return;
    }
    std::fill(std::copy_n(value, limbCount(top), a.data), a.data + bufferLimbs(capacity), Limb{0});
}

LargeInteger internal::Representation::copied(Limb const* value, std::size_t count, int sizeTop,
                                              bool flag) noexcept {
    ResultLimbs limbs(std::max(count, limbCount(sizeTop)));
    std::copy_n(value, count, limbs.get());
    return sized(limbs, count, sizeTop, flag);
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
