// What the public operations of LargeInteger are made of: the functions that see its fields.
#pragma once

#include "qel/LargeInteger.h"

#include "Storage.h"

namespace qel::internal {

struct Representation {
    [[nodiscard]] static Magnitude magnitude(LargeInteger const& a) noexcept {
        return {a.data, a.getHighestBit()};
    }
    /// A value as a copy has it: an exact bound, and a tight buffer.
    [[nodiscard]] static LargeInteger tight(limbs::Limb const* value, long long top,
                                            bool flag) noexcept;

    /// Stores the exact top bit, given that it is at or below bound + 1: an operation that may have
    /// carried one bit past the old top raises the bound by one and rescans.
    static void refreshHighestBit(LargeInteger& a, long long bound) noexcept;
    /// Replaces the magnitude, whose top is `oldTop`, by one that is no longer; capacity, cached
    /// bound and flag stay.
    static void replaceMagnitude(LargeInteger& a, int oldTop, limbs::Limb const* value,
                                 int top) noexcept;
    /// Replaces a plain zero by a value with an exact bound and the given capacity.
    static void replaceZero(LargeInteger& a, limbs::Limb const* value, int top,
                            int capacity) noexcept;

    static void addMagnitude(LargeInteger& a, LargeInteger const& b) noexcept;
    static void subtractMagnitude(LargeInteger& a, LargeInteger const& b) noexcept;

    static void shiftBy(LargeInteger& a, long long distance, int from) noexcept;
    static void shiftLeft(LargeInteger& a, long long count) noexcept;
    static void shiftRight(LargeInteger& a, long long count) noexcept;
    static void shiftLeftFrom(LargeInteger& a, int from, long long count) noexcept;
    static void shiftRightFrom(LargeInteger& a, int from, long long count) noexcept;

    static void subtractWhileLarger(LargeInteger& a, LargeInteger const& b) noexcept;
    [[nodiscard]] static LargeInteger gcdOfMagnitudes(LargeInteger const& a,
                                                      LargeInteger const& b) noexcept;
    [[nodiscard]] static bool invert(LargeInteger& a, LargeInteger const& m) noexcept;
    static void raise(LargeInteger& base, LargeInteger const& exponent,
                      LargeInteger const& modulus) noexcept;

    template <int bits>
    static void parseBits(LargeInteger& a, char const* text) noexcept;
    static void parseDecimal(LargeInteger& a, char const* text) noexcept;
};

}  // namespace qel::internal
