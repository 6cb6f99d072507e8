// LargeInteger as the rows call it. What its operators say is called by operators; what they do
// not, by the functions below, which every library has under the same names or not at all. A
// result is a new value; where an operation works in place its copy counts.
#ifndef QEL_BENCH_BIGINT_OWN_H
#define QEL_BENCH_BIGINT_OWN_H

#include "Division.h"
#include "Operands.h"

#include "qel/LargeInteger.h"
#include "qel/LargeIntegerStream.h"

#include <string>
#include <utility>

namespace qel::bench {

class Own {
  public:
    using Value = LargeInteger;

    static constexpr bool movesValues = true;
    static constexpr char const* name = "qel";
    static bool endsInReasonableTime(std::string const&, int) { return true; }

    static constexpr bool writesRadix(int) { return true; }

    static Value take(LargeInteger const& operand) { return operand; }
    static std::string hexDigits(Value const& value) { return bench::hexDigits(value); }

    // Results of the peers go to variables that live through the measurement.

    Value power(Value const& base, Value const& exponent, Value const& modulus) {
        return powerOf(base, exponent, modulus);
    }
    Value multiply(Value const& a, Value const& b) { return a * b; }
    Value square(Value const& a) { return a * a; }
    Division<Value> divide(Value const& a, Value const& b) { return quotientAndRemainder(a, b); }
    Value gcd(Value const& a, Value const& b) { return a.findGreatestCommonDivisor(b); }
    Value inverse(Value const& a, Value const& modulus) { return inverseOf(a, modulus); }
    std::string toText(Value const& a, int radix) { return a.toString(radix); }
    Value fromText(std::string const& digits, int radix) { return valueOf(digits, radix); }

    // Results are new values everywhere.

    static Value ofInt(int v) { return Value(v); }
    static Value ofUnsigned(unsigned int v) { return Value(v); }
    static Value ofLongLong(long long v) { return Value(v); }
    static int low31Bits(Value const& a) { return a.toInteger(); }
    static void swapValues(Value& a, Value& b) { a.swapWith(b); }
    static void clear(Value& a) { a.clear(); }
    static void reserve(Value& a, int bits) { a.ensureSize((bits - 1) / 32); }

    static void setNegative(Value& a, bool negative) { a.setNegative(negative); }
    static bool isZero(Value const& a) { return a.isZero(); }
    static bool isOne(Value const& a) { return a.isOne(); }
    static bool isNegative(Value const& a) { return a.isNegative(); }
    static void negate(Value& a) { static_cast<void>(a.negate()); }
    static int compare(Value const& a, Value const& b) { return a.compare(b); }
    static int compareAbsolute(Value const& a, Value const& b) { return a.compareAbsolute(b); }

    static int highestBit(Value const& a) { return a.getHighestBit(); }
    static int bit(Value const& a, int i) { return a[i]; }
    static void setBit(Value& a, int i) { a.setBit(i); }
    static void setBitTo(Value& a, int i, bool value) { a.setBit(i, value); }
    static void clearBit(Value& a, int i) { a.clearBit(i); }
    static void setRange(Value& a, int start, int count, bool value) {
        a.setRange(start, count, value);
    }
    static int rangeAsInt(Value const& a, int start, int count) {
        return a.getBitRangeAsInt(start, count);
    }
    static void setRangeAsInt(Value& a, int start, int count, unsigned int value) {
        a.setBitRangeAsInt(start, count, value);
    }
    static Value range(Value const& a, int start, int count) { return a.getBitRange(start, count); }
    static int nextSetBit(Value const& a, int start) { return a.findNextSetBit(start); }
    static int nextClearBit(Value const& a, int start) { return a.findNextClearBit(start); }
    static int countBits(Value const& a) { return a.countNumberOfSetBits(); }
    static void shiftFrom(Value& a, int count, int from) { a.shiftBits(count, from); }
    static void insertBit(Value& a, int pos, bool value) { a.insertBit(pos, value); }

    static Division<Value> quotientAndRemainder(Value const& a, Value const& b) {
        Division<Value> result{a, {}};
        result.quotient.divideBy(b, result.remainder);
        return result;
    }
    static Value greatestDivisor(Value const& a, Value const& b) {
        return a.findGreatestCommonDivisor(b);
    }
    /// Uses both up.
    static Value greatestDivisorInPlace(Value a, Value b) { return Value::simpleGCD(&a, &b); }
    static Value inverseOf(Value const& a, Value const& modulus) {
        Value result(a);
        result.inverseModulo(modulus);
        return result;
    }
    static Value powerOf(Value const& base, Value const& exponent, Value const& modulus) {
        Value result(base);
        result.exponentModulo(exponent, modulus);
        return result;
    }

    static std::string textOf(Value const& a, int radix) { return a.toString(radix); }
    static Value valueOf(std::string const& digits, int radix) {
        Value result;
        result.parseString(digits, radix);
        return result;
    }
    static void write(std::ostream& out, Value const& a) { out << a; }
};

}  // namespace qel::bench

#endif
