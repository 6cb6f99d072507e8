// The rows of OpenSSL's BN. Results go to variables that live through the measurement, and so does
// the pool of temporaries, as its users do it; texts are allocated by each call.
#include "Rows.h"

#include <openssl/bn.h>
#include <openssl/crypto.h>

#include <memory>

namespace {

struct Release {
    void operator()(BIGNUM* value) const { BN_free(value); }
    void operator()(BN_CTX* pool) const { BN_CTX_free(pool); }
    void operator()(char* text) const { OPENSSL_free(text); }
};

class OpenSsl {
  public:
    using Value = std::unique_ptr<BIGNUM, Release>;

    static constexpr char const* name = "openssl";
    /// Its decimal text and its division take quadratic time.
    static bool endsInReasonableTime(std::string const& operation, int bits) {
        return bits <= 131072 || operation.find("decimal") != 0;
    }

    static Value take(qel::LargeInteger const& operand) {
        BIGNUM* value = nullptr;
        BN_hex2bn(&value, qel::bench::hexDigits(operand).c_str());
        return Value(value);
    }
    static std::string hexDigits(Value const& value) {
        std::unique_ptr<char, Release> const text(BN_bn2hex(value.get()));
        return qel::bench::shown<OpenSsl>(std::string(text.get()));
    }

    Value const& power(Value const& base, Value const& exponent, Value const& modulus) {
        BN_mod_exp(result.get(), base.get(), exponent.get(), modulus.get(), pool.get());
        return result;
    }
    Value const& multiply(Value const& a, Value const& b) {
        BN_mul(result.get(), a.get(), b.get(), pool.get());
        return result;
    }
    Value const& square(Value const& a) {
        BN_sqr(result.get(), a.get(), pool.get());
        return result;
    }
    qel::bench::Division<Value> const& divide(Value const& a, Value const& b) {
        BN_div(division.quotient.get(), division.remainder.get(), a.get(), b.get(), pool.get());
        return division;
    }
    Value const& gcd(Value const& a, Value const& b) {
        BN_gcd(result.get(), a.get(), b.get(), pool.get());
        return result;
    }
    Value const& inverse(Value const& a, Value const& modulus) {
        BN_mod_inverse(result.get(), a.get(), modulus.get(), pool.get());
        return result;
    }

    std::string toText(Value const& a, int radix) {
        std::unique_ptr<char, Release> const text(radix == 10 ? BN_bn2dec(a.get())
                                                              : BN_bn2hex(a.get()));
        return text.get();
    }
    Value const& fromText(std::string const& digits, int radix) {
        BIGNUM* out = result.get();
        (radix == 10 ? BN_dec2bn : BN_hex2bn)(&out, digits.c_str());
        return result;
    }

  private:
    std::unique_ptr<BN_CTX, Release> pool{BN_CTX_new()};
    Value result{BN_new()};
    qel::bench::Division<Value> division{Value(BN_new()), Value(BN_new())};
};

[[maybe_unused]] bool const registered =
    (benchmark::AddCustomContext("peer openssl", OpenSSL_version(OPENSSL_VERSION)),
     qel::bench::registerRows<OpenSsl>(), true);

}  // namespace
