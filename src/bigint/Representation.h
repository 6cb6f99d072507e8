// What the public operations of LargeInteger are made of: the functions that see its fields.
#pragma once

#include "qel/LargeInteger.h"

#include "Storage.h"

namespace qel::internal {

struct Representation {
    [[nodiscard]] static Magnitude magnitude(LargeInteger const& a) noexcept {
        return {a.data, static_cast<int>(topBit(a.data, limbIndex(a.highestBit + 1LL) + 1))};
    }
    /// The limbs of the buffer, to be written below the cached bound.
    [[nodiscard]] static Limb* writableLimbs(LargeInteger& a) noexcept { return a.data; }
    /// A buffer for a result of at most `count` limbs.
    [[nodiscard]] static Limb* resultBuffer(std::size_t count) noexcept {
        return newBuffer(std::max(count + 1, bufferLimbs(initialSize)));
    }
    /// The value in the first `used` limbs of a result's buffer, as a copy has it: with an exact
    /// bound and a tight capacity.
    [[nodiscard]] static LargeInteger tight(Limb* buffer, std::size_t used, bool flag) noexcept {
        return sized(buffer, used, checkedPosition(topBit(buffer, used)), flag);
    }
    /// The same with the capacity of a tight copy of a value with the top `sizeTop`.
    [[nodiscard]] static LargeInteger sized(Limb* buffer, std::size_t used, int sizeTop,
                                            bool flag) noexcept;
    /// A copy of limbs that stay where they are.
    [[nodiscard]] static LargeInteger copied(Limb const* value, std::size_t count, int sizeTop,
                                             bool flag) noexcept;

    /// Stores the exact top bit, given that it is at or below bound + 1: an operation that may have
    /// carried one bit past the old top raises the bound by one and rescans.
    static void refreshHighestBit(LargeInteger& a, long long bound) noexcept {
        a.highestBit = checkedPosition(topBit(a.data, limbIndex(bound + 1) + 1));
    }
    /// As ensureSize.
    static void reserve(LargeInteger& a, int w) noexcept {
        if (w >= a.size - 2)
            a.ensureSize(w);
    }
    /// Replaces the magnitude, whose top is `oldTop`, by `count` limbs of one that is no longer;
    /// capacity, cached bound and flag stay.
    static void replaceMagnitude(LargeInteger& a, int oldTop, Limb const* value,
                                 std::size_t count) noexcept;
    /// Grows as setting each bit from `first` to `last` does, in this order.
    static void growAlong(LargeInteger& a, long long first, int last) noexcept;

    /// a + b or, with `subtract`, a - b.
    /// @param bBound the cached bound of b, which may tell the capacity
    /// @param bFlag its sign flag
    static void add(LargeInteger& a, Magnitude b, int bBound, bool bFlag, bool subtract) noexcept;
    [[nodiscard]] static LargeInteger sum(LargeInteger const& a, LargeInteger const& b,
                                          bool subtract) noexcept;

    static void shiftBy(LargeInteger& a, long long distance, int from) noexcept;
    static void shiftLeft(LargeInteger& a, long long count) noexcept;
    static void shiftRight(LargeInteger& a, long long count) noexcept;
    static void shiftLeftFrom(LargeInteger& a, int from, long long count) noexcept;
    static void shiftRightFrom(LargeInteger& a, int from, long long count) noexcept;
    [[nodiscard]] static LargeInteger shifted(LargeInteger const& a, long long distance) noexcept;

    static void subtractWhileLarger(LargeInteger& a, LargeInteger const& b) noexcept;
    [[nodiscard]] static LargeInteger gcdOfMagnitudes(LargeInteger const& a,
                                                      LargeInteger const& b) noexcept;
    [[nodiscard]] static bool invert(LargeInteger& a, LargeInteger const& m) noexcept;
    /// What a power keeps: bound and capacity of its last product, or those of a new zero that it
    /// was then added to.
    enum class Kept { asProduct, asSum };
    [[nodiscard]] static bool raise(LargeInteger& a, LargeInteger const& e, LargeInteger const& m,
                                    Kept kept) noexcept;

    static void become(LargeInteger& a, Limb const* value, std::size_t count, int bound,
                       int capacity) noexcept;
    template <int bits>
    static void parseBits(LargeInteger& a, char const* text) noexcept;
    static void parseDecimal(LargeInteger& a, char const* text) noexcept;
};

}  // namespace qel::internal
