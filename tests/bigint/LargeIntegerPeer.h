// A look inside LargeInteger for its tests: what it keeps beside the value, and values with a
// prepared representation.
#pragma once

#include "qel/LargeInteger.h"

#include <cstdint>
#include <ostream>
#include <string>

namespace qel {

struct LargeIntegerPeer {
    static int size(LargeInteger const& v) { return v.size; }
    static int highestBit(LargeInteger const& v) { return v.highestBit; }
    static bool negative(LargeInteger const& v) { return v.negative; }
    static int room(LargeInteger const& v) { return v.room; }
    static bool keepsLimbsInside(LargeInteger const& v) { return v.data == v.own.data(); }
    static std::uint32_t word(LargeInteger const& v, int i) {
        return static_cast<std::uint32_t>(v.data[i / 2] >> (i % 2 * 32));
    }
};

// GoogleTest finds this one by its name.
inline void PrintTo(LargeInteger const& v, std::ostream* out) {
    *out << (LargeIntegerPeer::negative(v) ? "flagged " : "") << "0x" << v.toString(16);
}

}  // namespace qel

namespace bigint_test {

using qel::LargeInteger;
using qel::LargeIntegerPeer;

/// The fields of a value other than its words.
struct Representation {
    int size;
    int highestBit;
    bool negative;

    bool operator==(Representation const&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, Representation const& shown) {
    return out << "{size " << shown.size << ", bound " << shown.highestBit
               << (shown.negative ? ", flagged}" : "}");
}

inline Representation representation(LargeInteger const& v) {
    return {LargeIntegerPeer::size(v), LargeIntegerPeer::highestBit(v),
            LargeIntegerPeer::negative(v)};
}

/// The value of a hexadecimal text, with an exact bound.
inline LargeInteger hex(std::string const& text) {
    LargeInteger v;
    v.parseString(text, 16);
    return LargeInteger(v);
}

inline LargeInteger powerOfTwo(int exponent) {
    return LargeInteger(LargeInteger(1) << exponent);
}

inline LargeInteger negativeZero() {
    LargeInteger zero;
    zero.setNegative(true);
    return zero;
}

/// The object itself as an operand, without a compiler's warning about that.
inline LargeInteger const& self(LargeInteger const& v) {
    return v;
}

/// Raises the cached bound of `v` to `bound`, far above its true top.
inline void makeStale(LargeInteger& v, int bound) {
    v.setBit(bound);
    v.clearBit(bound);
}

}  // namespace bigint_test
