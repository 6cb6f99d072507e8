// The rows of Boost.Multiprecision's cpp_int. Results go to variables that live through the
// measurement; texts are new strings.
#include "Rows.h"

#include <boost/integer/mod_inverse.hpp>
#include <boost/multiprecision/cpp_int.hpp>
#include <boost/version.hpp>

namespace {

class Boost {
  public:
    using Value = boost::multiprecision::cpp_int;

    static constexpr char const* name = "boost";
    /// Everything but the product takes quadratic time or worse.
    static bool endsInReasonableTime(std::string const&, int bits) { return bits <= 131072; }

    static Value take(qel::LargeInteger const& operand) {
        return Value("0x" + qel::bench::hexDigits(operand));
    }
    static std::string hexDigits(Value const& value) { return value.str(0, std::ios::hex); }

    Value const& power(Value const& base, Value const& exponent, Value const& modulus) {
        return result = powm(base, exponent, modulus);
    }
    Value const& multiply(Value const& a, Value const& b) { return result = a * b; }
    Value const& square(Value const& a) { return result = a * a; }
    qel::bench::Division<Value> const& divide(Value const& a, Value const& b) {
        divide_qr(a, b, division.quotient, division.remainder);
        return division;
    }
    Value const& gcd(Value const& a, Value const& b) {
        return result = boost::multiprecision::gcd(a, b);
    }
    Value const& inverse(Value const& a, Value const& modulus) {
        return result = boost::integer::mod_inverse(a, modulus);
    }

    std::string toText(Value const& a, int radix) {
        return a.str(0, radix == 10 ? std::ios::dec : std::ios::hex);
    }
    Value const& fromText(std::string const& digits, int radix) {
        result.assign(radix == 10 ? digits : "0x" + digits);
        return result;
    }

  private:
    Value result;
    qel::bench::Division<Value> division;
};

[[maybe_unused]] bool const registered =
    (benchmark::AddCustomContext("peer boost", "Boost " BOOST_LIB_VERSION),
     qel::bench::registerRows<Boost>(), true);

}  // namespace
