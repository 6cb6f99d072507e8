#include "Witnesses.h"

#include "../bigint/limbs/StrongTest.h"
#include "SmallPrimes.h"

namespace qel::internal {

using limbs::Limb;

namespace {

/// The odd primes in ascending order.
class OddPrimes {
  public:
    Limb next() noexcept {
        if (++taken < smallPrimes.size())
            return last = smallPrimes[taken];
        do {
            last += 2;
        } while (!isPrime(last));
        return last;
    }

  private:
    /// For odd numbers from 3 to 2^32.
    static bool isPrime(Limb number) noexcept {
        for (std::size_t i = 1; i < smallPrimes.size(); ++i) {
            Limb const prime = smallPrimes[i];
            if (prime * prime > number)
                break;
            if (number % prime == 0)
                return false;
        }
        return true;
    }

    std::size_t taken = 0;
    Limb last = 2;
};

bool passesAll(Limb const* n, std::size_t count, int witnessCount, Limb* scratch) noexcept {
    limbs::StrongTest test(n, limbs::significant(n, count), scratch);
    OddPrimes witnesses;
    for (int i = 0; i < witnessCount; ++i) {
        if (!test.passes(witnesses.next()))
            return false;
    }
    return true;
}

}  // namespace

std::size_t numbersAtOnce(std::size_t) noexcept {
    return 1;
}

std::size_t witnessScratch(std::size_t count) noexcept {
    return limbs::strongTestScratch(count);
}

int findPassing(std::span<Limb const* const> numbers, std::size_t count, int witnessCount,
                Limb* scratch) noexcept {
    for (std::size_t k = 0; k < numbers.size(); ++k) {
        if (passesAll(numbers[k], count, witnessCount, scratch))
            return static_cast<int>(k);
    }
    return -1;
}

}  // namespace qel::internal
