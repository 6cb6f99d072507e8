#include "Screening.h"

#include "Residues.h"

#include <algorithm>

namespace qel::internal {

using limbs::Limb;

namespace {

constexpr auto primes = makeDivisorTable(smallPrimes);

/// The index of 23, the greatest of the primes that the test divides by before any witness.
constexpr std::size_t lastTrialPrime = 8;
static_assert(smallPrimes[lastTrialPrime] == 23);

/// Twice a prime plus one, not the primes themselves: 13, 17, 19 and 29 never strike. The set of
/// candidates that reach the test, and with it the prime that is found, rests on this.
consteval std::array<std::uint16_t, 1755> documentedDivisors() noexcept {
    std::array<std::uint16_t, 1755> documented{3};
    for (std::size_t i = 1; i < documented.size(); ++i)
        documented[i] = static_cast<std::uint16_t>(2 * smallPrimes[i - 1] + 1);
    return documented;
}

constexpr auto divisors = makeDivisorTable(documentedDivisors());
static_assert(divisors.divisors.back() == 2 * 14983 + 1);

/// The index of the first odd multiple of `divisor` above an even base with that residue.
unsigned int firstMultiple(unsigned int divisor, unsigned int residue) noexcept {
    unsigned int const distance = divisor - residue;
    return (distance % 2 != 0 ? distance : distance + divisor) / 2;
}

unsigned int powerModulo(unsigned int base, Limb exponent, unsigned int modulus) noexcept {
    unsigned int result = 1;
    for (; exponent != 0; exponent /= 2) {
        if (exponent % 2 != 0)
            result = result * base % modulus;
        base = base * base % modulus;
    }
    return result;
}

/// How many of the small primes are looked at: those up to 23, which every test refuses, and with
/// a witness those below the limit.
std::size_t primesBelow(Limb limit, int witnessCount) noexcept {
    auto const end = std::lower_bound(smallPrimes.begin(), smallPrimes.end(), limit);
    auto const below = static_cast<std::size_t>(end - smallPrimes.begin());
    return std::max(witnessCount > 0 ? below : 0, lastTrialPrime + 1);
}

}  // namespace

bool isStruckByDivisors(Limb const* n, std::size_t count) noexcept {
    std::array<std::uint16_t, divisors.divisors.size()> residues;
    std::size_t const length = limbs::significant(n, count);
    takeResidues(residues, divisors.divisors, divisors.groups.data(), n, length);
    for (std::size_t i = 0; i < residues.size(); ++i) {
        if (residues[i] == 0 && (length > 1 || n[0] != divisors.divisors[i]))
            return true;
    }
    return false;
}

Screening::Screening(Limb const* start, std::size_t limbCount, int witnessCount, Limb limit,
                     Limb* scratch) noexcept
    : number(scratch), count(limbCount), witnesses(witnessCount),
      primeCount(primesBelow(limit, witnessCount)) {
    std::copy(start, start + count, number);
    takeResidues({residues.data(), primeCount}, primes.divisors, primes.groups.data(), number,
                 limbs::significant(number, count));
}

void Screening::advance(int length) noexcept {
    unsigned int const step = 2 * static_cast<unsigned int>(length);
    limbs::addLimb(number, number, count, step);
    advanceResidues({residues.data(), primeCount}, primes.divisors, step);
}

// The test refuses all multiples of the primes up to 23, and of its witnesses, since no power of
// theirs is 1 or -1 modulo themselves. (2 is left out: all numbers here are odd.)
Screening::Window Screening::window(int length) noexcept {
    Window struck;
    auto const end = static_cast<unsigned int>(length);
    for (std::size_t j = 1; j < primeCount; ++j) {
        unsigned int const prime = smallPrimes[j];
        bool const always = j <= lastTrialPrime || static_cast<long long>(j) <= witnesses;
        for (unsigned int i = firstMultiple(prime, residues[j]); i < end; i += prime) {
            if (!struck[i] && (always || isRefused(2 * i, prime)))
                struck.set(i);
        }
    }
    return struck;
}

/// True when the test of n = base + offset + 1 certainly fails for a prime factor of n.
///
/// A witness a that passes has a^(n-1) = 1 modulo n: a power that the test looks at is 1 or -1, and
/// as that is not the last one, a^(n-1) = -1 (limbs/StrongTest.cpp has the proof), its square comes
/// there at the latest. What holds modulo n holds modulo the factor r, where by Fermat
/// a^(n-1) = a^((n-1) mod (r-1)). Nothing more is known: a composite that fools the witnesses must
/// be returned.
bool Screening::isRefused(unsigned int offset, unsigned int factor) const noexcept {
    Limb const rest =
        limbs::remainderLimb(number, limbs::significant(number, count), Limb{factor} - 1);
    Limb const exponent = (rest + offset) % (factor - 1);
    int const tried = std::min(witnesses, 3);
    for (int j = 1; j <= tried; ++j) {
        if (powerModulo(smallPrimes[static_cast<std::size_t>(j)], exponent, factor) != 1)
            return true;
    }
    return false;
}

}  // namespace qel::internal
