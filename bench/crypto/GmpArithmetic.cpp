// The rows of GMP. Its test takes 30 rounds, the first 24 of which are a Baillie-PSW test.
#include "../bigint/Gmp.h"
#include "ArithmeticRows.h"

namespace qel::bench {
namespace {

struct Functions {
    static bool isProbablyPrime(mpz_class const& n) {
        return mpz_probab_prime_p(n.get_mpz_t(), 30) > 0;
    }
    static mpz_class bestCommonDivisor(mpz_class const& a, mpz_class const& b) {
        for (unsigned long power = 2; power <= 65536; power *= 2) {
            if (mpz_gcd_ui(nullptr, a.get_mpz_t(), power + 1) == 1
                && mpz_gcd_ui(nullptr, b.get_mpz_t(), power + 1) == 1)
                return power + 1;
        }
        return 0;
    }
};

[[maybe_unused]] bool const registered =
    (registerArithmeticRows<WithKeys<Gmp, PlainKeys<Gmp>, Functions>>(), true);

}  // namespace
}  // namespace qel::bench
