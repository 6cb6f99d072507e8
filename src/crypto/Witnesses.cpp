#include "Witnesses.h"

#include "../bigint/limbs/StrongTest.h"
#include "../bigint/limbs/StrongTests.h"
#include "SmallPrimes.h"

#include <algorithm>
#include <array>

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

    [[nodiscard]] Limb current() const noexcept { return last; }

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

constexpr std::size_t fewestLimbs = 2;
constexpr unsigned int allLanes = (1U << limbs::lanes) - 1;

/// Whether eight tests are made at once: shorter numbers are tested faster one by one, and longer
/// ones would overflow the sums.
bool testsEight(std::size_t count) noexcept {
    return limbs::laneKernels().pays && count >= fewestLimbs && count <= limbs::longestStrongTest;
}

/// A number below 2^64 that passes with the first twelve primes is one (Sorenson and Webster,
/// "Strong pseudoprimes to twelve prime bases", 2017), and as such passes with all witnesses that
/// it does not divide: at least those below 2048.
constexpr int decidingWitnesses = 11;
constexpr int witnessesBelow2048 = 308;
static_assert(smallPrimes[decidingWitnesses] == 37 && smallPrimes[witnessesBelow2048] < 2048);

template <typename Test>
bool passesAll(Test test, int witnessCount, bool isDecided) noexcept {
    OddPrimes witnesses;
    for (int passed = 0; passed < witnessCount; ++passed) {
        if (isDecided && passed == decidingWitnesses && test.passes(2))
            return true;
        if (!test.passes(witnesses.next()))
            return false;
    }
    return true;
}

bool passesOneByOne(Limb const* n, std::size_t count, int witnessCount, Limb* scratch) noexcept {
    using limbs::DoubleLimb;
    bool const isDecided = passingProves(n, count, witnessCount);
    count = limbs::significant(n, count);
    if (count == 1)
        return passesAll(limbs::ShortStrongTest<Limb>(n[0]), witnessCount, isDecided);
    if (count == 2)
        return passesAll(limbs::ShortStrongTest<DoubleLimb>(limbs::load<DoubleLimb>(n)),
                         witnessCount, false);
    return passesAll(limbs::StrongTest(n, count, scratch), witnessCount, false);
}

/// Lanes left over repeat the last witness.
bool passesByEight(Limb const* n, std::size_t count, OddPrimes witnesses, int witnessCount,
                   Limb* scratch) noexcept {
    std::array<Limb const*, limbs::lanes> moduli;
    moduli.fill(n);
    std::array<Limb, limbs::lanes> bases;
    while (witnessCount > 0) {
        for (Limb& base : bases)
            base = --witnessCount >= 0 ? witnesses.next() : witnesses.current();
        if (limbs::passStrongTests(moduli.data(), count, bases.data(), scratch) != allLanes)
            return false;
    }
    return true;
}

/// Nearly all numbers fail with the first witness, so that is what all are tested with; then the
/// first to pass is tested with the others.
int indexByEight(std::span<Limb const* const> numbers, std::size_t count, int witnessCount,
                 Limb* scratch) noexcept {
    std::array<Limb const*, limbs::lanes> moduli;
    moduli.fill(numbers[0]);
    std::copy(numbers.begin(), numbers.end(), moduli.begin());
    OddPrimes witnesses;
    std::array<Limb, limbs::lanes> bases;
    bases.fill(witnesses.next());
    unsigned int const passed = limbs::passStrongTests(moduli.data(), count, bases.data(), scratch);
    for (std::size_t k = 0; k < numbers.size(); ++k) {
        if ((passed >> k & 1) != 0
            && passesByEight(numbers[k], count, witnesses, witnessCount - 1, scratch))
            return static_cast<int>(k);
    }
    return -1;
}

}  // namespace

std::size_t numbersAtOnce(std::size_t count) noexcept {
    return testsEight(count) ? limbs::lanes : 1;
}

std::size_t witnessScratch(std::size_t count) noexcept {
    return testsEight(count) ? limbs::strongTestsScratch(count) : limbs::strongTestScratch(count);
}

bool passingProves(Limb const* n, std::size_t count, int witnessCount) noexcept {
    return limbs::significant(n, count) == 1 && witnessCount > decidingWitnesses
           && witnessCount <= witnessesBelow2048;
}

int indexOfPassing(std::span<Limb const* const> numbers, std::size_t count, int witnessCount,
                   Limb* scratch) noexcept {
    bool const areLimbs = std::all_of(numbers.begin(), numbers.end(), [count](Limb const* n) {
        return limbs::significant(n, count) == 1;
    });
    bool const byEight = testsEight(count) && witnessCount > 0 && !areLimbs;
    if (byEight && numbers.size() > 1)
        return indexByEight(numbers, count, witnessCount, scratch);
    for (std::size_t k = 0; k < numbers.size(); ++k) {
        if (byEight ? passesByEight(numbers[k], count, {}, witnessCount, scratch)
                    : passesOneByOne(numbers[k], count, witnessCount, scratch))
            return static_cast<int>(k);
    }
    return -1;
}

}  // namespace qel::internal
