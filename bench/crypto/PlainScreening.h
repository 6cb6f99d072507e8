// The documented screening, step by step: each block is divided by each divisor, with the peer's
// own division, and what is not struck must have no prime factor up to 23.
#ifndef QEL_BENCH_CRYPTO_PLAINSCREENING_H
#define QEL_BENCH_CRYPTO_PLAINSCREENING_H

#include "SearchSteps.h"

#include <numeric>

namespace qel::bench {

template <typename Peer>
class PlainScreening {
  public:
    PlainScreening(Words const& /*start*/, std::size_t blockSize) : length(blockSize) {}

    /// `base` is the start plus as many blocks as were entered, this one counted.
    void enterBlock(typename Peer::Integer const& base) {
        struck.assign(length, false);
        for (std::uint32_t const q : screeningDivisors()) {
            auto const remainder = static_cast<std::uint32_t>(Peer::remainder(base, q));
            for (std::size_t i = firstMultiple(q, remainder); i < length; i += q)
                struck[i] = true;
        }
    }

    /// Whether base + 2i + 1 needs no test.
    bool rejects(typename Peer::Integer const& base, std::size_t i) const {
        return struck[i]
               || std::gcd(Peer::remainder(base, smallPrimesProduct) + 2 * i + 1,
                           smallPrimesProduct)
                      != 1;
    }

  private:
    std::size_t length;
    std::vector<bool> struck;
};

}  // namespace qel::bench

#endif
