// Boost.Multiprecision's cpp_int, by operators and its free functions.
#ifndef QEL_BENCH_BIGINT_BOOST_H
#define QEL_BENCH_BIGINT_BOOST_H

#include "Division.h"
#include "Operands.h"

#include <boost/integer/mod_inverse.hpp>
#include <boost/multiprecision/cpp_int.hpp>
#include <boost/version.hpp>

#include <ostream>
#include <string>

namespace qel::bench {

class Boost {
  public:
    using Value = boost::multiprecision::cpp_int;

    static constexpr bool movesValues = true;
    static constexpr char const* name = "boost";
    /// Nearly everything but sums takes quadratic time, number theory at a large factor.
    static bool endsInReasonableTime(std::string const& operation, int bits) {
        bool const isNumberTheory = operation.find("Modulo") != std::string::npos
                                    || operation.find("Divisor") != std::string::npos;
        return bits <= (isNumberTheory ? 4096 : 131072);
    }

    static constexpr bool writesRadix(int radix) { return radix != 2; }

    static Value take(qel::LargeInteger const& operand) {
        Value const value("0x" + bench::hexDigits(operand.isNegative() ? -operand : operand));
        return operand.isNegative() ? Value(-value) : value;
    }
    static std::string hexDigits(Value const& value) {
        return value < 0 ? "-" + hexDigits(-value) : value.str(0, std::ios::hex);
    }

    // Results go to variables that live through the measurement.

    Value const& power(Value const& base, Value const& exponent, Value const& modulus) {
        return result = powm(base, exponent, modulus);
    }
    Value const& multiply(Value const& a, Value const& b) { return result = a * b; }
    Value const& square(Value const& a) { return result = a * a; }
    Division<Value> const& divide(Value const& a, Value const& b) {
        divide_qr(a, b, division.quotient, division.remainder);
        return division;
    }
    Value const& gcd(Value const& a, Value const& b) {
        return result = boost::multiprecision::gcd(a, b);
    }
    Value const& inverse(Value const& a, Value const& modulus) {
        return result = boost::integer::mod_inverse(a, modulus);
    }
    std::string toText(Value const& a, int radix) { return textOf(a, radix); }
    Value const& fromText(std::string const& digits, int radix) {
        result.assign(radix == 10 ? digits : "0x" + digits);
        return result;
    }

    // Results are new values.

    static Value ofInt(int v) { return Value(v); }
    static Value ofUnsigned(unsigned int v) { return Value(v); }
    static Value ofLongLong(long long v) { return Value(v); }
    static void swapValues(Value& a, Value& b) { a.swap(b); }
    static void clear(Value& a) { a = 0; }

    static bool isZero(Value const& a) { return a.is_zero(); }
    static bool isOne(Value const& a) { return a == 1; }
    static bool isNegative(Value const& a) { return a < 0; }
    static void negate(Value& a) { a.backend().negate(); }
    static int compare(Value const& a, Value const& b) { return a.compare(b); }

    static int highestBit(Value const& a) { return a == 0 ? -1 : static_cast<int>(msb(a)); }
    static int bit(Value const& a, int i) { return bit_test(a, static_cast<unsigned>(i)); }
    static void setBit(Value& a, int i) { bit_set(a, static_cast<unsigned>(i)); }
    static void clearBit(Value& a, int i) { bit_unset(a, static_cast<unsigned>(i)); }

    static Division<Value> quotientAndRemainder(Value const& a, Value const& b) {
        Division<Value> result;
        divide_qr(a, b, result.quotient, result.remainder);
        return result;
    }
    static Value greatestDivisor(Value const& a, Value const& b) {
        return boost::multiprecision::gcd(a, b);
    }
    static Value inverseOf(Value const& a, Value const& modulus) {
        return boost::integer::mod_inverse(a, modulus);
    }
    static Value powerOf(Value const& base, Value const& exponent, Value const& modulus) {
        return powm(base, exponent, modulus);
    }

    static std::string textOf(Value const& a, int radix) {
        return a.str(0, radix == 10 ? std::ios::dec : radix == 16 ? std::ios::hex : std::ios::oct);
    }
    static Value valueOf(std::string const& digits, int radix) {
        return Value(radix == 10 ? digits : (radix == 16 ? "0x" : "0") + digits);
    }
    static void write(std::ostream& out, Value const& a) { out << a; }

  private:
    Value result;
    Division<Value> division;
};

}  // namespace qel::bench

#endif
