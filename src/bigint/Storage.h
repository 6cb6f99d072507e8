// The buffers of LargeInteger, and limbs in place of words: what the upper storey needs to call
// the kernels below it.
#pragma once

#include "EndProcess.h"
#include "Words.h"
#include "limbs/Limbs.h"

#include <array>
#include <cassert>
#include <cstdlib>
#include <cstring>

namespace qel::internal {

/// The capacity of a new value, and the least there is.
inline constexpr int initialSize = 4;

template <typename Unit>
Unit* checkedBuffer(void* buffer) noexcept {
    if (buffer == nullptr)
        endProcess("out of memory");
    return static_cast<Unit*>(buffer);
}

/// The bytes of a buffer of `size` words and the guard.
inline std::size_t bytesFor(int size) noexcept {
    return (static_cast<std::size_t>(size) + 1) * sizeof(std::uint32_t);
}

inline std::uint32_t* zeroedBuffer(int size) noexcept {
    return checkedBuffer<std::uint32_t>(std::calloc(1, bytesFor(size)));
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

/// The limbs that hold bits 0 to `top`.
inline std::size_t limbCount(long long top) noexcept {
    return static_cast<std::size_t>(top / limbs::bitsPerLimb) + 1;
}

/// A magnitude to compute with: words, and the exact index of the highest set bit (-1 for zero).
struct Magnitude {
    std::uint32_t const* words;
    int top;
};

/// Copies a magnitude to `count` limbs, with zeros above. On a machine that stores the lowest byte
/// first, two words in a row have the bytes of a limb.
inline void loadLimbs(limbs::Limb* out, std::size_t count, Magnitude a) noexcept {
    static_assert(std::endian::native == std::endian::little);
    std::size_t const wordCount = static_cast<std::size_t>(wordIndex(a.top)) + 1;
    assert(wordCount <= 2 * count);
    for (std::size_t i = wordCount / 2; i < count; ++i)
        out[i] = 0;
    std::memcpy(out, a.words, wordCount * sizeof *a.words);
}

inline void storeWords(std::uint32_t* words, limbs::Limb const* in, int top) noexcept {
    if (top >= 0)
        std::memcpy(words, in, (static_cast<std::size_t>(wordIndex(top)) + 1) * sizeof *words);
}

/// The index of the highest set bit of count limbs, -1 for zero.
inline long long topBit(limbs::Limb const* a, std::size_t count) noexcept {
    std::size_t const length = limbs::significant(a, count);
    if (length == 0)
        return -1;
    return static_cast<long long>(length) * limbs::bitsPerLimb - 1
           - std::countl_zero(a[length - 1]);
}

/// Limbs for the time of one operation: on the stack for the sizes of keys. Not filled.
class Workspace {
  public:
    explicit Workspace(std::size_t count) noexcept
        : memory(count <= local.size()
                     ? local.data()
                     : checkedBuffer<limbs::Limb>(std::malloc(count * sizeof(limbs::Limb)))),
          next(memory), end(memory + count) {}

    ~Workspace() {
        if (memory != local.data())
            std::free(memory);
    }

    Workspace(Workspace const&) = delete;
    Workspace& operator=(Workspace const&) = delete;

    /// The next `count` limbs.
    limbs::Limb* take(std::size_t count) noexcept {
        assert(count <= static_cast<std::size_t>(end - next));
        limbs::Limb* const taken = next;
        next += count;
        return taken;
    }

    /// All limbs that are left, as scratch.
    [[nodiscard]] limbs::Limb* rest() const noexcept { return next; }

  private:
    std::array<limbs::Limb, 640> local;
    limbs::Limb* memory;
    limbs::Limb* next;
    [[maybe_unused]] limbs::Limb* end;  // for the assert
};

}  // namespace qel::internal
