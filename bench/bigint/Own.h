// LargeInteger as the rows call it. Every result is a new value, as the operators give them, so
// its allocation is part of what is measured; so is the copy in front of what works in place.
#ifndef QEL_BENCH_BIGINT_OWN_H
#define QEL_BENCH_BIGINT_OWN_H

#include "Operands.h"

#include "qel/LargeInteger.h"

#include <string>

namespace qel::bench {

/// What divide gives, for every library.
template <typename Value>
struct Division {
    Value quotient;
    Value remainder;
};

class Own {
  public:
    using Value = LargeInteger;

    static constexpr char const* name = "qel";
    static bool endsInReasonableTime(std::string const&, int) { return true; }

    static Value take(LargeInteger const& operand) { return operand; }
    static std::string hexDigits(Value const& value) { return bench::hexDigits(value); }

    Value power(Value const& base, Value const& exponent, Value const& modulus) {
        Value result(base);
        result.exponentModulo(exponent, modulus);
        return result;
    }
    Value multiply(Value const& a, Value const& b) { return a * b; }
    Value square(Value const& a) { return a * a; }
    Division<Value> divide(Value const& a, Value const& b) {
        Division<Value> result{a, {}};
        result.quotient.divideBy(b, result.remainder);
        return result;
    }
    Value gcd(Value const& a, Value const& b) { return a.findGreatestCommonDivisor(b); }
    Value inverse(Value const& a, Value const& modulus) {
        Value result(a);
        result.inverseModulo(modulus);
        return result;
    }

    std::string toText(Value const& a, int radix) { return a.toString(radix); }
    Value fromText(std::string const& digits, int radix) {
        Value result;
        result.parseString(digits, radix);
        return result;
    }
};

}  // namespace qel::bench

#endif
