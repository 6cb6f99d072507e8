// The buffers of LargeInteger and the limbs in them. A buffer has room for the words of its
// capacity and one more, the guard, and all its bits above the highest set one are zero: a scan may
// start above the cached bound.
#pragma once

#include "Words.h"
#include "limbs/Limbs.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace qel::internal {

using limbs::Limb;

/// The capacity of a new value, and the least there is.
inline constexpr int initialSize = 4;

inline Limb* checkedBuffer(void* buffer) noexcept {
    if (buffer == nullptr)
        endProcess("out of memory");
    return static_cast<Limb*>(buffer);
}

/// Not filled.
inline Limb* newBuffer(std::size_t limbCount) noexcept {
    return checkedBuffer(std::malloc(limbCount * sizeof(Limb)));
}

/// The limbs of a buffer of `size` words and the guard.
constexpr std::size_t bufferLimbs(int size) noexcept {
    return static_cast<std::size_t>(size) / 2 + 1;
}

/// The same as a value keeps it: the limbs of a buffer that is just large enough.
constexpr std::int32_t tightRoom(int size) noexcept {
    return static_cast<std::int32_t>(bufferLimbs(size));
}

/// The capacity of a tight copy of a value whose top bit is at or below `bound`.
inline int tightSize(int bound) noexcept {
    return bound < initialSize * bitsPerWord ? initialSize : wordIndex(bound) + 1;
}

/// The capacity after growth for word w.
inline int grownSize(int size, long long w) noexcept {
    if (w + 2 < size)
        return size;
    long long const grown = (3 * w + 6) / 2;
    if (grown > INT_MAX)
        endProcessTooWide();
    return static_cast<int>(grown);
}

/// The index of the limb that holds bit `position`.
constexpr std::size_t limbIndex(long long position) noexcept {
    return static_cast<std::size_t>(position) / limbs::bitsPerLimb;
}

/// The limbs that hold bits 0 to `top`; none for -1.
constexpr std::size_t limbCount(long long top) noexcept {
    return static_cast<std::size_t>(top + limbs::bitsPerLimb) / limbs::bitsPerLimb;
}

/// The index of the highest set bit of count limbs, -1 for zero.
inline long long topBit(Limb const* a, std::size_t count) noexcept {
    std::size_t const length = limbs::significant(a, count);
    if (length == 0)
        return -1;
    return static_cast<long long>(length) * limbs::bitsPerLimb - 1
           - std::countl_zero(a[length - 1]);
}

/// A magnitude to compute with: limbs, and the exact index of the highest set bit (-1 for zero).
struct Magnitude {
    Limb const* value;
    int top;

    [[nodiscard]] std::size_t count() const noexcept { return limbCount(top); }
};

/// 1, 0 or -1.
inline int compareMagnitudes(Magnitude a, Magnitude b) noexcept {
    if (a.top != b.top)
        return a.top > b.top ? 1 : -1;
    return limbs::compare(a.value, b.value, a.count());
}

/// Copies a magnitude to `count` limbs, with zeros above.
inline void loadLimbs(Limb* out, std::size_t count, Magnitude a) noexcept {
    assert(a.count() <= count);
    std::fill(std::copy_n(a.value, a.count(), out), out + count, Limb{0});
}

/// The limbs of a new value while it is computed. A short value takes a copy, a long one the limbs
/// themselves. Not filled.
class ResultLimbs {
  public:
    /// Room for `count` limbs, and for the guard above them.
    explicit ResultLimbs(std::size_t count) noexcept
        : room(std::max(count + 1, local.size())),
          memory(room == local.size() ? local.data() : newBuffer(room)) {}

    ~ResultLimbs() {
        if (memory != local.data())
            std::free(memory);
    }

    ResultLimbs(ResultLimbs const&) = delete;
    ResultLimbs& operator=(ResultLimbs const&) = delete;

    [[nodiscard]] Limb* get() noexcept { return memory; }

    /// Hands out a buffer of at least `needed` limbs with the first `used` of these.
    [[nodiscard]] Limb* takeOver(std::size_t used, std::size_t needed) noexcept {
        if (memory != local.data() && room >= needed)
            return std::exchange(memory, local.data());
        Limb* const buffer = newBuffer(needed);
        std::copy_n(memory, used, buffer);
        return buffer;
    }

  private:
    std::array<Limb, 6> local;  // as many as an object keeps, and a carry's
    std::size_t room;
    Limb* memory;
};

/// Limbs for the time of one operation: on the stack for the sizes of keys. Not filled.
class Workspace {
  public:
    explicit Workspace(std::size_t count) noexcept
        : memory(count <= local.size() ? local.data() : newBuffer(count)), next(memory),
          end(memory + count) {}

    ~Workspace() {
        if (memory != local.data())
            std::free(memory);
    }

    Workspace(Workspace const&) = delete;
    Workspace& operator=(Workspace const&) = delete;

    /// The next `count` limbs.
    Limb* take(std::size_t count) noexcept {
        assert(count <= static_cast<std::size_t>(end - next));
        Limb* const taken = next;
        next += count;
        return taken;
    }

    /// All limbs that are left, as scratch.
    [[nodiscard]] Limb* rest() const noexcept { return next; }

  private:
    std::array<Limb, 640> local;
    Limb* memory;
    Limb* next;
    [[maybe_unused]] Limb* end;  // for the assert
};

}  // namespace qel::internal
