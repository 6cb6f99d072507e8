#include "Screening.h"

#include "Residues.h"

#include <algorithm>

namespace qel::internal {

using limbs::Limb;

namespace {

/// The index of 23, the greatest of the primes that the test divides by before any witness.
constexpr std::size_t lastTrialPrime = 8;
static_assert(smallPrimes[lastTrialPrime] == 23);

/// Twice a prime plus one, not the primes themselves: 13, 17, 19 and 29 never strike. The set of
/// candidates that reach the test, and with it the prime that is found, rests on this.
consteval std::array<std::uint16_t, Screening::divisorCount> makeDivisors() noexcept {
    std::array<std::uint16_t, Screening::divisorCount> divisors{3};
    for (std::size_t i = 1; i < divisors.size(); ++i)
        divisors[i] = static_cast<std::uint16_t>(2 * smallPrimes[i - 1] + 1);
    return divisors;
}

constexpr auto divisors = makeDivisors();
static_assert(divisors.back() == 2 * 14983 + 1);

/// How many small primes are looked at, by limbs of the number: the more a modular power costs, the
/// more it is worth to avoid one.
std::size_t primesWorthwhile(std::size_t count) noexcept {
    return count <= 4 ? 1028 : count <= 8 ? 3512 : smallPrimes.size();
}

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

}  // namespace

std::size_t screeningScratch(std::size_t count) noexcept {
    return 2 * count;
}

Screening::Screening(Limb const* start, std::size_t limbCount, int witnessCount,
                     Limb* scratch) noexcept
    : number(scratch), count(limbCount), quotient(scratch + limbCount), witnesses(witnessCount),
      primeCount(witnessCount > 0 ? primesWorthwhile(limbCount) : lastTrialPrime + 1) {
    std::copy(start, start + count, number);
    takeResidues(divisorResidues, divisors, number, count, quotient);
    takeResidues({primeResidues.data(), primeCount}, {smallPrimes.data(), primeCount}, number,
                 count, quotient);
}

void Screening::advance(int length) noexcept {
    unsigned int const step = 2 * static_cast<unsigned int>(length);
    limbs::addLimb(number, number, count, step);
    advanceResidues(divisorResidues, divisors, step);
    advanceResidues({primeResidues.data(), primeCount}, {smallPrimes.data(), primeCount}, step);
}

Screening::Window Screening::window(int length) noexcept {
    Window struck;
    strikeDocumented(struck, static_cast<unsigned int>(length));
    strikeFactors(struck, static_cast<unsigned int>(length));
    return struck;
}

/// A divisor does not strike itself.
void Screening::strikeDocumented(Window& struck, unsigned int length) const noexcept {
    bool const isShort = limbs::significant(number, count) == 1;
    for (std::size_t j = 0; j < divisorCount; ++j) {
        unsigned int const divisor = divisors[j];
        for (unsigned int i = firstMultiple(divisor, divisorResidues[j]); i < length;
             i += divisor) {
            if (!isShort || number[0] + 2 * i + 1 != divisor)
                struck.set(i);
        }
    }
}

/// Strikes by prime factors. The test refuses all multiples of the primes up to 23, and those of
/// its witnesses, of which a power is never 1 or -1 modulo them.
void Screening::strikeFactors(Window& struck, unsigned int length) noexcept {
    for (std::size_t j = 1; j < primeCount; ++j) {
        unsigned int const prime = smallPrimes[j];
        bool const always = j <= lastTrialPrime || static_cast<long long>(j) <= witnesses;
        for (unsigned int i = firstMultiple(prime, primeResidues[j]); i < length; i += prime) {
            if (!struck[i] && (always || isRefused(2 * i, prime)))
                struck.set(i);
        }
    }
}

/// True when the test of n = base + offset + 1 certainly fails for a prime factor of n.
///
/// A witness a that passes has a^(n-1) = 1 modulo n: a power that the test looks at is 1 or -1, and
/// that is not the last one, a^(n-1) = -1 (limbs/StrongTest.cpp has the proof), so that its square
/// comes at the latest there. What holds modulo n holds modulo the factor r, where by Fermat
/// a^(n-1) = a^((n-1) mod (r-1)). Nothing more is known: a composite that fools the witnesses must
/// be returned.
bool Screening::isRefused(unsigned int offset, unsigned int factor) noexcept {
    Limb const exponent = (residue(number, count, factor - 1, quotient) + offset) % (factor - 1);
    int const tried = std::min(witnesses, 3);
    for (int j = 1; j <= tried; ++j) {
        if (powerModulo(smallPrimes[static_cast<std::size_t>(j)], exponent, factor) != 1)
            return true;
    }
    return false;
}

}  // namespace qel::internal
