// A screening that spares the peers most of their powers, with the verdicts of the documented one:
// beside the documented divisors, each further prime r below a limit is asked whether a candidate
// that it divides can pass the first witnesses at all. All is done in words, and the start is
// divided once in a search.
#ifndef QEL_BENCH_CRYPTO_WIDESCREENING_H
#define QEL_BENCH_CRYPTO_WIDESCREENING_H

#include "SearchSteps.h"

namespace qel::bench {

class WideScreening {
  public:
    WideScreening(Words startingWords, std::size_t blockSize);

    void enterBlock();
    /// Whether number i of the block needs no test.
    [[nodiscard]] bool rejects(std::size_t i) const;

    // As PlainScreening, which needs the base.
    template <typename Integer>
    void enterBlock(Integer const& /*base*/) {
        enterBlock();
    }
    template <typename Integer>
    bool rejects(Integer const& /*base*/, std::size_t i) const {
        return rejects(i);
    }

  private:
    struct Divisor {
        std::uint32_t value;
        std::uint32_t remainder;
    };

    void mark(Divisor divisor, std::uint16_t with);
    [[nodiscard]] std::uint32_t startModulo(std::uint32_t divisor) const;

    Words start;
    std::size_t length;
    /// From the start to the base.
    std::uint64_t distance = 0;
    std::vector<Divisor> asking;
    std::vector<Divisor> striking;
    /// For each number of the block: nothing, that it is struck, or a divisor to ask.
    std::vector<std::uint16_t> marks;
};

}  // namespace qel::bench

#endif
