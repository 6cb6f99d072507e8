// OpenSSL's BN, wrapped so that its calls look like operators. Each result that is a new value is
// allocated and freed; the pool of temporaries lives as long as the program.
#ifndef QEL_BENCH_BIGINT_OPENSSL_H
#define QEL_BENCH_BIGINT_OPENSSL_H

#include "Division.h"
#include "Operands.h"

#include <openssl/bn.h>
#include <openssl/crypto.h>

#include <memory>
#include <string>
#include <utility>

namespace qel::bench {

struct BignumRelease {
    void operator()(BIGNUM* value) const { BN_free(value); }
    void operator()(BN_CTX* pool) const { BN_CTX_free(pool); }
    void operator()(char* text) const { OPENSSL_free(text); }
};

inline BN_CTX* bignumPool() {
    static std::unique_ptr<BN_CTX, BignumRelease> const shared(BN_CTX_new());
    return shared.get();
}

class Bignum {
  public:
    Bignum() : value(BN_new()) {}
    Bignum(Bignum const& other) : value(BN_dup(other)) {}
    Bignum(Bignum&&) = default;
    Bignum& operator=(Bignum const& other) {
        BN_copy(value.get(), other);
        return *this;
    }
    Bignum& operator=(Bignum&&) = default;
    ~Bignum() = default;

    operator BIGNUM*() const { return value.get(); }

  private:
    std::unique_ptr<BIGNUM, BignumRelease> value;
};

inline Bignum operator+(Bignum const& a, Bignum const& b) {
    Bignum result;
    BN_add(result, a, b);
    return result;
}
inline Bignum operator-(Bignum const& a, Bignum const& b) {
    Bignum result;
    BN_sub(result, a, b);
    return result;
}
inline Bignum operator*(Bignum const& a, Bignum const& b) {
    Bignum result;
    BN_mul(result, a, b, bignumPool());
    return result;
}
inline Bignum operator/(Bignum const& a, Bignum const& b) {
    Bignum result;
    BN_div(result, nullptr, a, b, bignumPool());
    return result;
}
inline Bignum operator%(Bignum const& a, Bignum const& b) {
    Bignum result;
    BN_mod(result, a, b, bignumPool());
    return result;
}
inline Bignum operator-(Bignum const& a) {
    Bignum result(a);
    BN_set_negative(result, BN_is_negative(a) == 0);
    return result;
}
inline Bignum operator*(Bignum const& a, int b) {
    Bignum result(a);
    BN_mul_word(result, static_cast<BN_ULONG>(b));
    return result;
}
inline Bignum operator/(Bignum const& a, int b) {
    Bignum result(a);
    BN_div_word(result, static_cast<BN_ULONG>(b));
    return result;
}
inline Bignum operator%(Bignum const& a, int b) {
    Bignum result;
    BN_set_word(result, BN_mod_word(a, static_cast<BN_ULONG>(b)));
    return result;
}
inline Bignum operator<<(Bignum const& a, int n) {
    Bignum result;
    BN_lshift(result, a, n);
    return result;
}
inline Bignum operator>>(Bignum const& a, int n) {
    Bignum result;
    BN_rshift(result, a, n);
    return result;
}

inline Bignum& operator+=(Bignum& a, Bignum const& b) {
    BN_add(a, a, b);
    return a;
}
inline Bignum& operator-=(Bignum& a, Bignum const& b) {
    BN_sub(a, a, b);
    return a;
}
inline Bignum& operator*=(Bignum& a, Bignum const& b) {
    BN_mul(a, a, b, bignumPool());
    return a;
}
inline Bignum& operator/=(Bignum& a, Bignum const& b) {
    BN_div(a, nullptr, a, b, bignumPool());
    return a;
}
inline Bignum& operator%=(Bignum& a, Bignum const& b) {
    BN_mod(a, a, b, bignumPool());
    return a;
}
inline Bignum& operator<<=(Bignum& a, int n) {
    BN_lshift(a, a, n);
    return a;
}
inline Bignum& operator>>=(Bignum& a, int n) {
    BN_rshift(a, a, n);
    return a;
}
inline Bignum& operator++(Bignum& a) {
    BN_add_word(a, 1);
    return a;
}
inline Bignum& operator--(Bignum& a) {
    BN_sub_word(a, 1);
    return a;
}
inline Bignum operator++(Bignum& a, int) {
    Bignum old(a);
    ++a;
    return old;
}
inline Bignum operator--(Bignum& a, int) {
    Bignum old(a);
    --a;
    return old;
}

inline bool operator==(Bignum const& a, Bignum const& b) {
    return BN_cmp(a, b) == 0;
}
inline bool operator!=(Bignum const& a, Bignum const& b) {
    return BN_cmp(a, b) != 0;
}
inline bool operator<(Bignum const& a, Bignum const& b) {
    return BN_cmp(a, b) < 0;
}
inline bool operator<=(Bignum const& a, Bignum const& b) {
    return BN_cmp(a, b) <= 0;
}
inline bool operator>(Bignum const& a, Bignum const& b) {
    return BN_cmp(a, b) > 0;
}
inline bool operator>=(Bignum const& a, Bignum const& b) {
    return BN_cmp(a, b) >= 0;
}

class OpenSsl {
  public:
    using Value = Bignum;

    /// A move would be that of the wrapper.
    static constexpr bool movesValues = false;
    static constexpr char const* name = "openssl";
    /// Its decimal text and its division take quadratic time, number theory at a large factor.
    static bool endsInReasonableTime(std::string const& operation, int bits) {
        bool const isNumberTheory = operation.find("Modulo") != std::string::npos
                                    || operation.find("Divisor") != std::string::npos;
        bool const isDecimal = operation.find("decimal") != std::string::npos
                               && operation.find("hexadecimal") == std::string::npos;
        return bits <= (isNumberTheory ? 4096 : isDecimal ? 131072 : 1048576);
    }

    static constexpr bool writesRadix(int radix) { return radix == 10 || radix == 16; }

    static Value take(qel::LargeInteger const& operand) {
        return valueOf(bench::hexDigits(operand), 16);
    }
    static std::string hexDigits(Value const& value) { return textOf(value, 16); }

    // Results go to variables that live through the measurement.

    Value const& power(Value const& base, Value const& exponent, Value const& modulus) {
        BN_mod_exp(result, base, exponent, modulus, bignumPool());
        return result;
    }
    Value const& multiply(Value const& a, Value const& b) {
        BN_mul(result, a, b, bignumPool());
        return result;
    }
    Value const& square(Value const& a) {
        BN_sqr(result, a, bignumPool());
        return result;
    }
    Division<Value> const& divide(Value const& a, Value const& b) {
        BN_div(division.quotient, division.remainder, a, b, bignumPool());
        return division;
    }
    Value const& gcd(Value const& a, Value const& b) {
        BN_gcd(result, a, b, bignumPool());
        return result;
    }
    Value const& inverse(Value const& a, Value const& modulus) {
        BN_mod_inverse(result, a, modulus, bignumPool());
        return result;
    }
    std::string toText(Value const& a, int radix) { return textOf(a, radix); }
    Value const& fromText(std::string const& digits, int radix) {
        read(result, digits, radix);
        return result;
    }

    // Results are new values.

    static Value ofUnsigned(unsigned int v) {
        Value result;
        BN_set_word(result, v);
        return result;
    }
    static void swapValues(Value& a, Value& b) { BN_swap(a, b); }
    static void clear(Value& a) { BN_zero(a); }

    static void setNegative(Value& a, bool negative) { BN_set_negative(a, negative); }
    static bool isZero(Value const& a) { return BN_is_zero(a) != 0; }
    static bool isOne(Value const& a) { return BN_is_one(a) != 0; }
    static bool isNegative(Value const& a) { return BN_is_negative(a) != 0; }
    static void negate(Value& a) { BN_set_negative(a, BN_is_negative(a) == 0); }
    static int compare(Value const& a, Value const& b) { return BN_cmp(a, b); }
    static int compareAbsolute(Value const& a, Value const& b) { return BN_ucmp(a, b); }

    static int highestBit(Value const& a) { return BN_num_bits(a) - 1; }
    static int bit(Value const& a, int i) { return BN_is_bit_set(a, i); }
    static void setBit(Value& a, int i) { BN_set_bit(a, i); }
    static void clearBit(Value& a, int i) { BN_clear_bit(a, i); }

    static Division<Value> quotientAndRemainder(Value const& a, Value const& b) {
        Division<Value> result;
        BN_div(result.quotient, result.remainder, a, b, bignumPool());
        return result;
    }
    static Value greatestDivisor(Value const& a, Value const& b) {
        Value result;
        BN_gcd(result, a, b, bignumPool());
        return result;
    }
    static Value inverseOf(Value const& a, Value const& modulus) {
        Value result;
        BN_mod_inverse(result, a, modulus, bignumPool());
        return result;
    }
    static Value powerOf(Value const& base, Value const& exponent, Value const& modulus) {
        Value result;
        BN_mod_exp(result, base, exponent, modulus, bignumPool());
        return result;
    }

    /// In decimal or hexadecimal.
    static std::string textOf(Value const& a, int radix) {
        std::unique_ptr<char, BignumRelease> const text(radix == 10 ? BN_bn2dec(a) : BN_bn2hex(a));
        return text.get();
    }
    static Value valueOf(std::string const& digits, int radix) {
        Value result;
        read(result, digits, radix);
        return result;
    }

  private:
    static void read(Value& value, std::string const& digits, int radix) {
        BIGNUM* out = value;
        (radix == 10 ? BN_dec2bn : BN_hex2bn)(&out, digits.c_str());
    }

    Value result;
    Division<Value> division;
};

}  // namespace qel::bench

#endif
