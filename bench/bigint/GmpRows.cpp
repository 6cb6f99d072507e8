// The rows of GMP. Results go to variables that live through the measurement, as its users do it;
// texts are new strings.
#include "Rows.h"

#include <gmpxx.h>

#include <cstring>

namespace {

class Gmp {
  public:
    using Value = mpz_class;

    static constexpr char const* name = "gmp";
    static bool endsInReasonableTime(std::string const&, int) { return true; }

    static Value take(qel::LargeInteger const& operand) {
        return Value(qel::bench::hexDigits(operand), 16);
    }
    static std::string hexDigits(Value const& value) { return value.get_str(16); }

    Value const& power(Value const& base, Value const& exponent, Value const& modulus) {
        mpz_powm(out(), base.get_mpz_t(), exponent.get_mpz_t(), modulus.get_mpz_t());
        return result;
    }
    Value const& multiply(Value const& a, Value const& b) {
        mpz_mul(out(), a.get_mpz_t(), b.get_mpz_t());
        return result;
    }
    Value const& square(Value const& a) {
        mpz_mul(out(), a.get_mpz_t(), a.get_mpz_t());
        return result;
    }
    qel::bench::Division<Value> const& divide(Value const& a, Value const& b) {
        mpz_tdiv_qr(division.quotient.get_mpz_t(), division.remainder.get_mpz_t(), a.get_mpz_t(),
                    b.get_mpz_t());
        return division;
    }
    Value const& gcd(Value const& a, Value const& b) {
        mpz_gcd(out(), a.get_mpz_t(), b.get_mpz_t());
        return result;
    }
    Value const& inverse(Value const& a, Value const& modulus) {
        mpz_invert(out(), a.get_mpz_t(), modulus.get_mpz_t());
        return result;
    }

    std::string toText(Value const& a, int radix) {
        std::string text(mpz_sizeinbase(a.get_mpz_t(), radix) + 2, '\0');
        mpz_get_str(text.data(), radix, a.get_mpz_t());
        text.resize(std::strlen(text.c_str()));
        return text;
    }
    Value const& fromText(std::string const& digits, int radix) {
        mpz_set_str(out(), digits.c_str(), radix);
        return result;
    }

  private:
    mpz_ptr out() { return result.get_mpz_t(); }

    Value result;
    qel::bench::Division<Value> division;
};

[[maybe_unused]] bool const registered =
    (benchmark::AddCustomContext("peer gmp", std::string("GMP ") + gmp_version),
     qel::bench::registerRows<Gmp>(), true);

}  // namespace
