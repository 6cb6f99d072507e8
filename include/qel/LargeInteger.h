/// @file
/// Signed integers of any width.
#ifndef QEL_LARGEINTEGER_H
#define QEL_LARGEINTEGER_H

#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace qel {

namespace internal {
struct Representation;  // of the library's own sources
class ResultLimbs;
}  // namespace internal

/// A signed integer of any width, with bit access and number theory.
///
/// A value type: each object owns its limbs, a copy is a deep one. A value whose capacity is nine
/// 32-bit words or fewer needs no memory beside the object. The representation is a
/// magnitude and a sign flag, not two's complement. A zero may carry the flag (a negative zero);
/// every query treats it as zero, it compares equal to zero and prints without a sign.
///
/// Bit positions count from 0 at the least significant bit. A negative position names no bit: it
/// reads as 0, and writing it does nothing.
///
/// No operation throws or reports an error. When memory runs out, or when a value would need a
/// bit index above the largest `int`, the process ends, with one line on the standard error (with
/// the runtime's own where a text found no memory).
///
/// An operand may be the object itself: `x += x`, `x /= x` and the like count their operands as
/// they were on entry. One value may be read by several threads at once, or changed by one;
/// distinct values are independent.
///
/// Cost: sums, comparisons, shifts and bit ranges are linear in the width of the values in use.
/// Products are quadratic up to a few thousand bits and nearly linear in the end, and quotients,
/// remainders and decimal texts follow them at a small factor. A modular power takes about one
/// product and one remainder for each bit of the exponent, a greatest common divisor or an inverse
/// is quadratic. One bit is read or cleared in the same time at any width. Where high bits were
/// cleared or cancelled, the old width counts until a copy or an operation that looks for the top.
class LargeInteger {
  public:
    /// @name Construction and storage
    /// @{

    /// Zero.
    LargeInteger() noexcept : data(own.data()) {}
    /// The value `v`.
    LargeInteger(int v) noexcept;
    /// The value `v`.
    LargeInteger(unsigned int v) noexcept;
    /// The value `v`. A `long` is as near to each of the three: cast it to `long long`.
    ///
    /// So is every other 64-bit type but `long long`: `std::size_t`, `std::uint64_t`, and on Linux
    /// `std::int64_t`. An unsigned one is `(LargeInteger(high) << 32) + LargeInteger(low)`.
    LargeInteger(long long v) noexcept;
    /// A deep copy, with a capacity just large enough for the source's cached bound.
    LargeInteger(LargeInteger const& source) noexcept;
    /// What a copy would be, without copying memory. The source becomes zero.
    LargeInteger(LargeInteger&& source) noexcept;
    /// Gives the memory back.
    ~LargeInteger() noexcept {
        if (data != own.data())
            freeMemory();
    }
    /// A deep copy, with a capacity just large enough for the value. Self-assignment does nothing.
    LargeInteger& operator=(LargeInteger const& source) noexcept;
    /// What the assigned copy would be, without copying memory. The source becomes zero, unless it
    /// is this object.
    LargeInteger& operator=(LargeInteger&& source) noexcept;
    /// Exchanges the two values without copying memory.
    void swapWith(LargeInteger& other) noexcept {
        if (data == own.data() || other.data == other.own.data())
            swapOwnLimbs(other);
        std::swap(data, other.data);
        std::swap(size, other.size);
        std::swap(highestBit, other.highestBit);
        std::swap(room, other.room);
        std::swap(negative, other.negative);
    }
    /// Becomes zero, without a sign. A buffer of 17 words or more is released for a small one.
    void clear() noexcept;
    /// A reservation: makes room above the 32-bit word of index `w`, so that setting bits up to
    /// there allocates nothing; sums and shifts want one word more. The value does not change. Does
    /// nothing where there is room already.
    ///
    /// Assignment, products and quotients take a capacity of their own; `clear` may.
    void ensureSize(int w) noexcept;

    /// @}
    /// @name Sign and small values
    /// @{

    /// Stores the sign flag as given, even on zero, which then is a negative zero.
    void setNegative(bool flag) noexcept { negative = flag; }
    /// True for zero, a negative zero included.
    [[nodiscard]] bool isZero() const noexcept {
        return data[0] == 0 && (highestBit < bitsPerLimb || getHighestBit() < 0);
    }
    /// True for +1; -1 is not one.
    [[nodiscard]] bool isOne() const noexcept {
        return data[0] == 1 && !negative && (highestBit < bitsPerLimb || getHighestBit() == 0);
    }
    /// True below zero; false for a negative zero.
    [[nodiscard]] bool isNegative() const noexcept { return negative && !isZero(); }
    /// Changes the sign of the object itself; any zero loses its flag.
    /// @return the new sign: true when the value is now negative.
    bool negate() noexcept {
        negative = !negative && !isZero();
        return negative;
    }
    /// Drops all but the low 31 bits of the magnitude silently, and applies the sign: 2^31 and
    /// -2^31 give 0.
    [[nodiscard]] int toInteger() const noexcept {
        int const low = static_cast<int>(data[0] & 0x7FFFFFFF);
        return negative ? -low : low;
    }

    /// @}
    /// @name Bits of the magnitude
    /// @{

    /// The index of the highest set bit; -1 for zero.
    [[nodiscard]] int getHighestBit() const noexcept {
        return highestBit < 0 || leading() == 1 ? highestBit : findHighestBit();
    }
    /// Bit `i`, 0 or 1; 0 for every position outside the value.
    [[nodiscard]] int operator[](int i) const noexcept {
        return i >= 0 && i <= highestBit
                   ? static_cast<int>(data[i / bitsPerLimb] >> (i % bitsPerLimb) & 1)
                   : 0;
    }
    /// Sets bit `i`, growing the value as needed; ignored for a negative `i`.
    void setBit(int i) noexcept;
    /// Sets or clears bit `i`, as setBit(int) and clearBit do.
    void setBit(int i, bool value) noexcept;
    /// Clears bit `i`; ignored outside the value. The sign flag stays, also when no bit is left.
    void clearBit(int i) noexcept;
    /// Sets or clears the bits `start` to `start + count - 1`; does nothing for a `count` below 1.
    void setRange(int start, int count, bool value) noexcept;
    /// The bits `start` to `start + count - 1`, at most 32 of them, as an unsigned value in an
    /// int: 32 bits may come out negative. Bits above the value read as 0; a negative `start` or a
    /// `count` below 1 gives 0.
    [[nodiscard]] int getBitRangeAsInt(int start, int count) const noexcept;
    /// Writes the low `count` bits of `value`, at most 32, to the positions from `start` up: bit k
    /// of `value` goes to position `start + k`. Nothing for a `count` below 1.
    void setBitRangeAsInt(int start, int count, unsigned int value) noexcept;
    /// The bits `start` to `start + count - 1` of the magnitude as a new value that is not
    /// negative. Zero for a range outside the value, a negative `start` or a `count` below 1.
    [[nodiscard]] LargeInteger getBitRange(int start, int count) const noexcept;
    /// The lowest set bit at or above `start`; -1 when there is none. A negative `start` counts
    /// as 0.
    [[nodiscard]] int findNextSetBit(int start) const noexcept;
    /// The lowest clear bit at or above `start`. A negative `start` counts as 0; -1 when every
    /// position up to the largest int is set.
    [[nodiscard]] int findNextClearBit(int start) const noexcept;
    /// The number of set bits. (All 2^31 of them set are more than an int counts: the process
    /// ends.)
    [[nodiscard]] int countNumberOfSetBits() const noexcept;

    /// @}
    /// @name Comparison
    /// @{

    /// Compares the magnitudes: 1, 0 or -1.
    [[nodiscard]] int compareAbsolute(LargeInteger const& other) const noexcept;
    /// Compares the values: 1, 0 or -1.
    [[nodiscard]] int compare(LargeInteger const& other) const noexcept {
        // Two values of the same width mostly differ in their highest limbs.
        if (highestBit == other.highestBit && highestBit >= 0 && !negative && !other.negative) {
            int const i = highestBit / bitsPerLimb;
            if (data[i] != other.data[i] && leading() == 1 && other.leading() == 1)
                return data[i] > other.data[i] ? 1 : -1;
        }
        return compareAll(other);
    }
    /// True for equal values, whatever flag a zero carries.
    [[nodiscard]] bool operator==(LargeInteger const& other) const noexcept {
        return data[0] == other.data[0] && isSame(other);
    }
    /// True for two values that differ.
    [[nodiscard]] bool operator!=(LargeInteger const& other) const noexcept {
        return !(*this == other);
    }
    /// True when this value is below `other`.
    [[nodiscard]] bool operator<(LargeInteger const& other) const noexcept {
        return compare(other) < 0;
    }
    /// True when this value is not above `other`.
    [[nodiscard]] bool operator<=(LargeInteger const& other) const noexcept {
        return compare(other) <= 0;
    }
    /// True when this value is above `other`.
    [[nodiscard]] bool operator>(LargeInteger const& other) const noexcept {
        return compare(other) > 0;
    }
    /// True when this value is not below `other`.
    [[nodiscard]] bool operator>=(LargeInteger const& other) const noexcept {
        return compare(other) >= 0;
    }

    /// @}
    /// @name Bitwise operators
    /// They act on magnitudes and keep the left operand's sign flag, whatever the right one's:
    /// (-6) & 3 is -2, 6 & (-3) is 2.
    /// @{

    /// Keeps the bits that `b` has too.
    LargeInteger& operator&=(LargeInteger const& b) noexcept;
    /// Takes the bits of `b` too.
    LargeInteger& operator|=(LargeInteger const& b) noexcept;
    /// Flips the bits that `b` has.
    LargeInteger& operator^=(LargeInteger const& b) noexcept;
    /// The bits that both have, with this value's sign.
    [[nodiscard]] LargeInteger operator&(LargeInteger const& b) const noexcept;
    /// The bits that either has, with this value's sign.
    [[nodiscard]] LargeInteger operator|(LargeInteger const& b) const noexcept;
    /// The bits that only one of them has, with this value's sign.
    [[nodiscard]] LargeInteger operator^(LargeInteger const& b) const noexcept;

    /// @}
    /// @name Arithmetic
    /// @{

    /// Signed addition, but a negative zero plus a positive b gives -b.
    LargeInteger& operator+=(LargeInteger const& b) noexcept;
    /// Signed subtraction, but a negative zero minus a negative b gives b.
    LargeInteger& operator-=(LargeInteger const& b) noexcept;
    /// Signed multiplication, but `x *= x` keeps the sign of x: the square of a negative x comes
    /// out negative. `x * x` is the square.
    LargeInteger& operator*=(LargeInteger const& b) noexcept;
    /// The sum, by the rule of `+=`: with a negative zero on the left it is -b for a positive b.
    [[nodiscard]] LargeInteger operator+(LargeInteger const& b) const noexcept;
    /// The difference, by the rule of `-=`: with a negative zero on the left it is b for a negative
    /// b.
    [[nodiscard]] LargeInteger operator-(LargeInteger const& b) const noexcept;
    /// The product, also of a value with itself; a product of zero may be a negative zero.
    [[nodiscard]] LargeInteger operator*(LargeInteger const& b) const noexcept;
    /// The value with the other sign; zero for any zero.
    [[nodiscard]] LargeInteger operator-() const noexcept;
    /// Adds 1, as `+= 1` does.
    LargeInteger& operator++() noexcept {
        // Without a carry, an exact bound rises by one at most, and with room for two words more
        // the capacity stays.
        bool const isSimple = !negative && highestBit >= 0 && data[0] != ~std::uint64_t{0}
                              && (highestBit + 1LL) / 32 + 3 < size && leading() == 1;
        if (!isSimple)
            return addOne();
        ++data[0];
        highestBit += static_cast<int>(leading() >> 1);
        return *this;
    }
    /// Subtracts 1, as `-= 1` does.
    LargeInteger& operator--() noexcept {
        // Without a borrow, bound and capacity stay.
        if (negative || data[0] == 0)
            return subtractOne();
        --data[0];
        return *this;
    }
    /// Adds 1 and returns the old value, at the cost of a copy.
    LargeInteger operator++(int) noexcept;
    /// Subtracts 1 and returns the old value, at the cost of a copy.
    LargeInteger operator--(int) noexcept;

    /// @}
    /// @name Shifts of the magnitude
    /// The sign flag stays, so a right shift rounds toward zero: (-5) >> 1 is -2. Shifting every
    /// bit out gives a plain zero. It may keep its flag where higher bits have gone since the last
    /// operation that looked for the top (cleared, or lost in a sum, a difference or a remainder),
    /// and always keeps it when `from` is above 0. The binary operators copy first and give a
    /// plain zero.
    /// @{

    /// Shifts left by `count`, or right by `-count`. With `from` above 0 only the bits at
    /// positions `from` and up move and those below stay.
    void shiftBits(int count, int from) noexcept;
    /// Shifts left; a negative `n` shifts right.
    LargeInteger& operator<<=(int n) noexcept;
    /// Shifts right; a negative `n` shifts left.
    LargeInteger& operator>>=(int n) noexcept;
    /// The value shifted left; right for a negative `n`.
    [[nodiscard]] LargeInteger operator<<(int n) const noexcept;
    /// The value shifted right, rounded toward zero; left for a negative `n`.
    [[nodiscard]] LargeInteger operator>>(int n) const noexcept;
    /// Moves the bits at `pos` and above up by one and writes `value` into the gap. Does nothing
    /// for a negative `pos`.
    void insertBit(int pos, bool value) noexcept;

    /// @}
    /// @name Division
    /// Truncating: the quotient rounds toward zero, the remainder takes the dividend's sign. A
    /// divisor of zero is no error: quotient and remainder are zero. A zero quotient or remainder
    /// of a negative operand may be a negative zero.
    /// @{

    /// Becomes the quotient and stores the remainder, whose old value does not matter; both zero
    /// for a divisor of zero.
    ///
    /// `remainder` may be `divisor`, whose old value divides. Where it is this object, neither
    /// result is kept: the object becomes zero, with the sign flag that the dividend had.
    void divideBy(LargeInteger const& divisor, LargeInteger& remainder) noexcept;
    /// Becomes the quotient, rounded toward zero; zero for a divisor of zero.
    LargeInteger& operator/=(LargeInteger const& divisor) noexcept;
    /// Becomes the remainder, with the dividend's sign; zero for a divisor of zero.
    LargeInteger& operator%=(LargeInteger const& divisor) noexcept;
    /// The quotient, rounded toward zero; zero for a divisor of zero.
    [[nodiscard]] LargeInteger operator/(LargeInteger const& divisor) const noexcept;
    /// The remainder, with the dividend's sign; zero for a divisor of zero.
    [[nodiscard]] LargeInteger operator%(LargeInteger const& divisor) const noexcept;

    /// @}
    /// @name Number theory
    /// @{

    /// Uses both values up: their greatest common divisor by the steps of repeated subtraction.
    ///
    /// @pre Two objects, no null pointers, both values not negative, and `b` not zero unless `a`
    /// is. Otherwise the call can run for ever (an assert says so first): a zero `b` is subtracted
    /// for ever, opposite signs grow for ever. (One object twice gives 0.)
    [[nodiscard]] static LargeInteger simpleGCD(LargeInteger* a, LargeInteger* b) noexcept;
    /// Greatest common divisor with `other`; that of x and 0 is x.
    /// @pre Both values are not negative; otherwise the call can run for ever.
    [[nodiscard]] LargeInteger findGreatestCommonDivisor(LargeInteger other) const noexcept;
    /// Becomes its inverse modulo `m`, or zero for an even value, even where an inverse exists (4
    /// modulo 7).
    ///
    /// Zero, too, for an `m` that is 1, 0 or negative, and for a multiple of `m`; a value of `m` or
    /// more is even or odd by what it is once reduced modulo `m`.
    /// @pre The value is not negative and, except in the cases above, shares no factor with `m`;
    /// otherwise the call can run for ever (an assert says so first).
    void inverseModulo(LargeInteger const& m) noexcept;
    /// Becomes its power modulo `m`; the exponent itself is first reduced modulo `m`, so pass one
    /// below `m`.
    ///
    /// A reduced exponent of zero gives 1, also for an `m` of 1; an `m` of zero gives 1. Exponent
    /// and modulus count by their magnitudes.
    /// @pre The base is not negative; otherwise the sign may be wrong.
    void exponentModulo(LargeInteger const& e, LargeInteger const& m) noexcept;

    /// @}
    /// @name Text
    /// @{

    /// The empty text for zero, not "0"; otherwise the digits in radix 2, 8, 10 or 16, lower case,
    /// without prefix or leading zeros, behind a "-" when negative.
    ///
    /// The empty text, too, for any other radix. The operator of LargeIntegerStream.h writes "0".
    [[nodiscard]] std::string toString(int radix) const noexcept;
    /// Becomes the number that `text` writes in radix 2, 8, 10 or 16; what is no digit of the radix
    /// is skipped, and nothing is an error: "12-3" is 123, and a text without digits zero.
    ///
    /// A "-" counts only as the first character; before no digit or only zeros it gives a negative
    /// zero. Reading stops at a zero byte. In any other radix no digit is read.
    void parseString(std::string const& text, int radix) noexcept;

    /// @}

  private:
    friend struct internal::Representation;
    friend struct LargeIntegerPeer;

    static constexpr int bitsPerLimb = 64;

    /// The `used` limbs of a result, with a capacity that holds them.
    LargeInteger(internal::ResultLimbs& limbs, std::size_t used, int capacity, int bound,
                 bool flag) noexcept;

    /// The bits of the limb of the cached bound, from the bound up: 1 where the bound is exact.
    [[nodiscard]] std::uint64_t leading() const noexcept {
        return data[highestBit / bitsPerLimb] >> (highestBit % bitsPerLimb);
    }
    void freeMemory() noexcept;
    void swapOwnLimbs(LargeInteger& other) noexcept;
    [[nodiscard]] int findHighestBit() const noexcept;
    [[nodiscard]] int compareAll(LargeInteger const& other) const noexcept;
    [[nodiscard]] bool isSame(LargeInteger const& other) const noexcept;
    LargeInteger& addOne() noexcept;
    LargeInteger& subtractOne() noexcept;

    /// The limbs of a value that needs no more.
    std::array<std::uint64_t, 5> own{};
    /// The magnitude, least significant limb first: room for `size` 32-bit words and one more, in
    /// the object itself or on the heap.
    std::uint64_t* data;
    /// Capacity in 32-bit words.
    std::int32_t size = 4;
    /// An upper bound of the index of the highest set bit; -1 for no bits. It may be too high
    /// after operations that can only lower the top: bits between are zero.
    std::int32_t highestBit = -1;
    /// The limbs at `data`, used or not.
    std::int32_t room = 5;
    /// The sign flag; without meaning on a zero magnitude, but kept.
    bool negative = false;
};

}  // namespace qel

#endif
