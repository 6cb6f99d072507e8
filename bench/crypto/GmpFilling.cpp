// Random bits for a large integer, beside GMP's generators of both kinds: the one like ours and its
// usual one. All give other bits.
#include "../StandardRows.h"

#include "qel/LargeInteger.h"
#include "qel/Random.h"

#include <gmp.h>

#include <memory>

namespace qel::bench {
namespace {

class GmpState {
  public:
    GmpState() = default;
    GmpState(GmpState const&) = delete;
    GmpState& operator=(GmpState const&) = delete;
    ~GmpState() {
        gmp_randclear(state);
        mpz_clear(value);
    }

    mpz_t value;
    gmp_randstate_t state;
};

struct Filled {
    int bits;
    Random random;
    LargeInteger value;
    std::shared_ptr<GmpState> congruential;
    std::shared_ptr<GmpState> mersenne;
};

std::vector<Filled> filled(int bits) {
    Filled x{bits, Random(1), {}, std::make_shared<GmpState>(), std::make_shared<GmpState>()};
    gmp_randinit_lc_2exp_size(x.congruential->state, 64);
    gmp_randinit_mt(x.mersenne->state);
    mpz_init(x.congruential->value);
    mpz_init(x.mersenne->value);
    return {x};
}

int fillByGmp(GmpState& x, int bits) {
    mpz_urandomb(x.value, x.state, static_cast<mp_bitcnt_t>(bits));
    return 0;
}

[[maybe_unused]] bool const registered = [] {
    addRows(
        {"fillBitsRandomly", {"Random::fillBitsRandomly(LargeInteger&, int, int)"}},
        {64, 128, 256, 512, 1024, 4096, 65536}, filled,
        [](auto& x) {
            x.random.fillBitsRandomly(x.value, 0, x.bits);
            return 0;
        },
        Peer{"gmp lc", [](auto& x) { return fillByGmp(*x.congruential, x.bits); }},
        Peer{"gmp mt", [](auto& x) { return fillByGmp(*x.mersenne, x.bits); }});
    return true;
}();

}  // namespace
}  // namespace qel::bench
