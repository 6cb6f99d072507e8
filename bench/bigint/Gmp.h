// GMP: its C++ interface by operators, and its C interface for what that has not. Where it has no
// function for a range of bits, one reads or writes its limbs, or puts the number together again.
#ifndef QEL_BENCH_BIGINT_GMP_H
#define QEL_BENCH_BIGINT_GMP_H

#include "Division.h"
#include "Operands.h"

#include <gmpxx.h>

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>

namespace qel::bench {

class Gmp {
  public:
    using Value = mpz_class;

    static constexpr bool movesValues = true;
    static constexpr char const* name = "gmp";
    static bool endsInReasonableTime(std::string const&, int) { return true; }

    static constexpr bool writesRadix(int) { return true; }

    static Value take(qel::LargeInteger const& operand) {
        return Value(bench::hexDigits(operand), 16);
    }
    static std::string hexDigits(Value const& value) { return value.get_str(16); }

    // Results go to variables that live through the measurement, as the C interface has it.

    Value const& power(Value const& base, Value const& exponent, Value const& modulus) {
        mpz_powm(out(), in(base), in(exponent), in(modulus));
        return result;
    }
    Value const& multiply(Value const& a, Value const& b) {
        mpz_mul(out(), in(a), in(b));
        return result;
    }
    Value const& square(Value const& a) {
        mpz_mul(out(), in(a), in(a));
        return result;
    }
    Division<Value> const& divide(Value const& a, Value const& b) {
        mpz_tdiv_qr(out(division.quotient), out(division.remainder), in(a), in(b));
        return division;
    }
    Value const& gcd(Value const& a, Value const& b) {
        mpz_gcd(out(), in(a), in(b));
        return result;
    }
    Value const& inverse(Value const& a, Value const& modulus) {
        mpz_invert(out(), in(a), in(modulus));
        return result;
    }
    std::string toText(Value const& a, int radix) { return textOf(a, radix); }
    Value const& fromText(std::string const& digits, int radix) {
        mpz_set_str(out(), digits.c_str(), radix);
        return result;
    }

    // Results are new values.

    static Value ofInt(int v) { return Value(v); }
    static Value ofUnsigned(unsigned int v) { return Value(v); }
    static Value ofLongLong(long long v) { return Value(static_cast<long>(v)); }
    static int low31Bits(Value const& a) {
        int const magnitude = static_cast<int>(mpz_get_ui(in(a)) & 0x7FFFFFFF);
        return mpz_sgn(in(a)) < 0 ? -magnitude : magnitude;
    }
    static void swapValues(Value& a, Value& b) { swap(a, b); }
    static void clear(Value& a) { a = 0; }
    static void reserve(Value& a, int bits) {
        mpz_realloc2(out(a), static_cast<mp_bitcnt_t>(bits));
    }

    static void setNegative(Value& a, bool negative) {
        if ((mpz_sgn(in(a)) < 0) != negative)
            mpz_neg(out(a), in(a));
    }
    static bool isZero(Value const& a) { return a == 0; }
    static bool isOne(Value const& a) { return a == 1; }
    static bool isNegative(Value const& a) { return a < 0; }
    static void negate(Value& a) { mpz_neg(out(a), in(a)); }
    static int compare(Value const& a, Value const& b) { return cmp(a, b); }
    static int compareAbsolute(Value const& a, Value const& b) { return mpz_cmpabs(in(a), in(b)); }

    static int highestBit(Value const& a) {
        return a == 0 ? -1 : static_cast<int>(mpz_sizeinbase(in(a), 2)) - 1;
    }
    static int bit(Value const& a, int i) { return mpz_tstbit(in(a), index(i)); }
    static void setBit(Value& a, int i) { mpz_setbit(out(a), index(i)); }
    static void setBitTo(Value& a, int i, bool value) {
        (value ? mpz_setbit : mpz_clrbit)(out(a), index(i));
    }
    static void clearBit(Value& a, int i) { mpz_clrbit(out(a), index(i)); }
    static void setRange(Value& a, int start, int count, bool value) {
        Value mask = 1;
        mask <<= index(count);
        mask -= 1;
        mask <<= index(start);
        if (!value)
            mpz_com(out(mask), in(mask));
        value ? a |= mask : a &= mask;
    }
    static int rangeAsInt(Value const& a, int start, int count) {
        mp_size_t const limb = start / 64;
        int const shift = start % 64;
        mp_limb_t bits = mpz_getlimbn(in(a), limb) >> shift;
        if (shift + count > 64)
            bits |= mpz_getlimbn(in(a), limb + 1) << (64 - shift);
        return static_cast<int>(static_cast<unsigned int>(bits & maskOf(count)));
    }
    /// Within the number.
    static void setRangeAsInt(Value& a, int start, int count, unsigned int value) {
        mp_size_t const limb = start / 64;
        int const shift = start % 64;
        mp_size_t const size = static_cast<mp_size_t>(mpz_size(in(a)));
        mp_limb_t* const limbs = mpz_limbs_modify(out(a), size);
        mp_limb_t const bits = value & maskOf(count);
        limbs[limb] = (limbs[limb] & ~(maskOf(count) << shift)) | (bits << shift);
        if (shift + count > 64)
            limbs[limb + 1] =
                (limbs[limb + 1] & ~(maskOf(count) >> (64 - shift))) | (bits >> (64 - shift));
        mpz_limbs_finish(out(a), size);
    }
    static Value range(Value const& a, int start, int count) {
        Value result = a >> index(start);
        mpz_tdiv_r_2exp(out(result), in(result), index(count));
        return result;
    }
    static int nextSetBit(Value const& a, int start) {
        return static_cast<int>(mpz_scan1(in(a), index(start)));
    }
    static int nextClearBit(Value const& a, int start) {
        return static_cast<int>(mpz_scan0(in(a), index(start)));
    }
    static int countBits(Value const& a) { return static_cast<int>(mpz_popcount(in(a))); }
    /// Up only.
    static void shiftFrom(Value& a, int count, int from) {
        Value const above = a >> index(from);
        mpz_tdiv_r_2exp(out(a), in(a), index(from));
        a |= above << index(from + count);
    }
    static void insertBit(Value& a, int pos, bool value) {
        shiftFrom(a, 1, pos);
        if (value)
            mpz_setbit(out(a), index(pos));
    }

    static Division<Value> quotientAndRemainder(Value const& a, Value const& b) {
        Division<Value> result;
        mpz_tdiv_qr(out(result.quotient), out(result.remainder), in(a), in(b));
        return result;
    }
    static Value greatestDivisor(Value const& a, Value const& b) {
        Value result;
        mpz_gcd(out(result), in(a), in(b));
        return result;
    }
    static Value greatestDivisorInPlace(Value a, Value const& b) {
        mpz_gcd(out(a), in(a), in(b));
        return a;
    }
    static Value inverseOf(Value const& a, Value const& modulus) {
        Value result;
        mpz_invert(out(result), in(a), in(modulus));
        return result;
    }
    static Value powerOf(Value const& base, Value const& exponent, Value const& modulus) {
        Value result;
        mpz_powm(out(result), in(base), in(exponent), in(modulus));
        return result;
    }

    static std::string textOf(Value const& a, int radix) {
        std::string text(mpz_sizeinbase(in(a), radix) + 2, '\0');
        mpz_get_str(text.data(), radix, in(a));
        text.resize(std::strlen(text.c_str()));
        return text;
    }
    static Value valueOf(std::string const& digits, int radix) {
        Value result;
        mpz_set_str(out(result), digits.c_str(), radix);
        return result;
    }
    static void write(std::ostream& out, Value const& a) { out << a; }

  private:
    static mpz_srcptr in(Value const& value) { return value.get_mpz_t(); }
    static mpz_ptr out(Value& value) { return value.get_mpz_t(); }
    static mp_bitcnt_t index(int i) { return static_cast<mp_bitcnt_t>(i); }
    static mp_limb_t maskOf(int count) { return (mp_limb_t{1} << count) - 1; }

    mpz_ptr out() { return result.get_mpz_t(); }

    Value result;
    Division<Value> division;
};

}  // namespace qel::bench

#endif
