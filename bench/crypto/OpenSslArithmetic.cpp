// The rows of OpenSSL's BN, whose test chooses its rounds by the width.
#include "../bigint/OpenSsl.h"
#include "ArithmeticRows.h"

namespace qel::bench {
namespace {

struct Functions {
    static bool isProbablyPrime(Bignum const& n) {
        return BN_check_prime(n, bignumPool(), nullptr) == 1;
    }
};

[[maybe_unused]] bool const registered =
    (registerArithmeticRows<WithKeys<OpenSsl, PlainKeys<OpenSsl>, Functions>>(), true);

}  // namespace
}  // namespace qel::bench
