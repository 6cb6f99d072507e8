// What the public operations of LargeInteger are made of: the functions that see its fields.
#pragma once

#include "qel/LargeInteger.h"

#include "Storage.h"

namespace qel::internal {

struct Representation {
    [[nodiscard]] static Magnitude magnitude(LargeInteger const& a) noexcept {
        return {a.data, a.getHighestBit()};
    }
    /// The limbs, to be written below the cached bound.
    [[nodiscard]] static Limb* writableLimbs(LargeInteger& a) noexcept { return a.data; }
    /// Makes room for `capacity` words, which become the capacity of `a` in the end; its limbs
    /// stay.
    static void makeRoom(LargeInteger& a, int capacity) noexcept;
    /// Makes room for `capacity` words, just enough; the limbs are neither kept nor filled.
    static void replaceBuffer(LargeInteger& a, int capacity) noexcept;
    /// Makes `capacity` the capacity; the limbs are neither kept nor filled.
    static void renew(LargeInteger& a, int capacity) noexcept {
        // What is left over is at most what is used and a few limbs.
        constexpr std::int32_t spare = 8;
        std::int32_t const needed = tightRoom(capacity);
        if (a.room < needed || a.room / 2 > needed + spare)
            replaceBuffer(a, capacity);
        a.size = capacity;
    }
    /// Sets all limbs in the object. Their number is fixed, so that no call copies a few of them.
    static void setOwnLimbs(LargeInteger& a, Limb const* value, std::size_t count) noexcept {
        for (std::size_t i = 0; i < a.own.size(); ++i)
            a.own[i] = i < count ? value[i] : 0;
    }
    /// Copies the limbs of a source that is no larger. Those in an object have a fixed number,
    /// which needs no loop.
    static void copyLimbs(LargeInteger& a, LargeInteger const& source) noexcept {
        if (a.data == a.own.data() && source.data == source.own.data())
            a.own = source.own;
        else
            std::memcpy(a.data, source.data, bufferLimbs(a.size) * sizeof(Limb));
    }
    /// Takes a value over, under the capacity of a tight copy of one with the top `sizeTop`.
    static void take(LargeInteger& a, LargeInteger& source, int sizeTop) noexcept;
    /// Becomes the number of `count` limbs from elsewhere, not negative, with the given bound and
    /// capacity.
    static void become(LargeInteger& a, Limb const* value, std::size_t count, int bound,
                       int capacity) noexcept;

    /// The value in the first `used` limbs of a result, as a copy has it: with an exact bound and a
    /// tight capacity.
    [[nodiscard]] static LargeInteger tight(ResultLimbs& limbs, std::size_t used,
                                            bool flag) noexcept {
        return sized(limbs, used, checkedPosition(topBit(limbs.get(), used)), flag);
    }
    /// The same with the capacity of a tight copy of a value with the top `sizeTop`.
    [[nodiscard]] static LargeInteger sized(ResultLimbs& limbs, std::size_t used, int sizeTop,
                                            bool flag) noexcept {
        return {limbs, used, tightSize(sizeTop), static_cast<int>(topBit(limbs.get(), used)), flag};
    }
    /// A copy of limbs that stay where they are.
    [[nodiscard]] static LargeInteger copied(Limb const* value, std::size_t count, int sizeTop,
                                             bool flag) noexcept;

    /// Stores the exact top bit, given that it is at or below `bound`: an operation that may have
    /// carried one bit past the old top raises the bound by one and rescans.
    static void refreshHighestBit(LargeInteger& a, long long bound) noexcept {
        a.highestBit = checkedPosition(topBit(a.data, limbCount(bound)));
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

    static void reduceToDivisor(LargeInteger& a, LargeInteger& b) noexcept;
    [[nodiscard]] static LargeInteger gcdOfMagnitudes(Magnitude first, Magnitude second) noexcept;
    [[nodiscard]] static bool invert(LargeInteger& a, Magnitude value, Magnitude divisor) noexcept;
    /// What a power keeps: bound and capacity of its last product, or those of a new zero that it
    /// was then added to.
    enum class Kept { asProduct, asSum };
    [[nodiscard]] static bool raise(LargeInteger& a, LargeInteger const& e, LargeInteger const& m,
                                    Kept kept) noexcept;

    static void becomeQuotient(LargeInteger& a, int emptySize, Limb const* quotient,
                               int top) noexcept;
    template <int bits>
    static void parseBits(LargeInteger& a, char const* text) noexcept;
    static void parseDecimal(LargeInteger& a, char const* text) noexcept;
};

}  // namespace qel::internal
