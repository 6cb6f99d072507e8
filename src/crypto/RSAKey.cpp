// Key pairs: their text form, their creation from seeds, their application to a value.
#include "qel/RSAKey.h"

#include "qel/PrimesNumber.h"

#include "../bigint/Representation.h"

#include <cassert>

namespace qel {

using namespace internal;

namespace {

using limbs::DoubleLimb;
using limbs::Limb;

constexpr int witnessesPerPrime = 30;

/// Those of the listed numbers 2^k + 1, k from 1 to 16, that can be the first one without a common
/// factor. For an odd divisor d of k, 2^(k/d) + 1 divides 2^k + 1 and stands before it: where it
/// has a factor in common, so has 2^k + 1. This leaves the powers of two for k.
constexpr int listedPrimes[] = {3, 5, 17, 257, 65537};

/// The magnitude modulo 2^64 - 1, of which all the listed primes are factors.
Limb foldedLimbs(Magnitude a) noexcept {
    DoubleLimb sum = 0;
    for (std::size_t i = 0; i < a.count(); ++i)
        sum += a.value[i];
    sum = static_cast<Limb>(sum) + (sum >> limbs::bitsPerLimb);
    return static_cast<Limb>(sum) + limbs::upperLimb(sum);
}

bool isCoprimeToBoth(LargeInteger const& candidate, LargeInteger const& first,
                     LargeInteger const& second) noexcept {
    return candidate.findGreatestCommonDivisor(first).isOne()
           && candidate.findGreatestCommonDivisor(second).isOne();
}

}  // namespace

RSAKey::RSAKey() noexcept = default;

RSAKey::RSAKey(LargeInteger const& e, LargeInteger const& n) noexcept : exponent(e), modulus(n) {}

RSAKey::RSAKey(char const* text) noexcept {
    std::string const whole(text);
    std::size_t const comma = whole.find(',');
    if (comma == std::string::npos)
        return;
    exponent.parseString(whole.substr(0, comma), 16);
    modulus.parseString(whole.substr(comma + 1), 16);
}

std::string RSAKey::toString() const noexcept {
    return exponent.toString(16) + ',' + modulus.toString(16);
}

bool RSAKey::operator==(RSAKey const& other) const noexcept {
    return exponent == other.exponent && modulus == other.modulus;
}

bool RSAKey::operator!=(RSAKey const& other) const noexcept {
    return !(*this == other);
}

bool RSAKey::applyToValue(LargeInteger& value) const noexcept {
    // The value itself is the one digit.
    if (value.compareAbsolute(modulus) < 0
        && Representation::raise(value, exponent, modulus, Representation::Kept::asSum)) {
        value.setNegative(modulus.isNegative());
        return true;
    }
    if (exponent.isZero() || modulus.isZero() || value <= LargeInteger(0)) {
        value.clear();
        return false;
    }
    assert(modulus.getHighestBit() > 0 && "applyToValue: a modulus of 1 divides for ever");
    LargeInteger result;
    while (!value.isZero()) {
        LargeInteger digit;
        result *= modulus;
        value.divideBy(modulus, digit);
        digit.exponentModulo(exponent, modulus);
        result += digit;
    }
    value.swapWith(result);
    return true;
}

LargeInteger RSAKey::findBestCommonDivisor(LargeInteger const& first,
                                           LargeInteger const& second) noexcept {
    assert(!first.isZero() && !second.isZero() && "findBestCommonDivisor: nothing is coprime to 0");
    if (!first.isNegative() && !second.isNegative()) {
        Limb const x = foldedLimbs(Representation::magnitude(first));
        Limb const y = foldedLimbs(Representation::magnitude(second));
        for (int const prime : listedPrimes) {
            if (x % static_cast<Limb>(prime) != 0 && y % static_cast<Limb>(prime) != 0)
                return LargeInteger(prime);
        }
    }
    LargeInteger candidate(4);
    while (!isCoprimeToBoth(candidate, first, second))
        ++candidate;
    return LargeInteger(candidate);
}

void RSAKey::createKeyPair(RSAKey& firstKey, RSAKey& secondKey, int bitCount, int const* seeds,
                           int seedCount) noexcept {
    int const firstBits = bitCount / 2;
    int const firstSeeds = seedCount / 2;
    int const* const otherSeeds = seeds != nullptr && firstSeeds > 0 ? seeds + firstSeeds : seeds;
    LargeInteger p =
        PrimesNumber::createProbablePrime(firstBits, witnessesPerPrime, seeds, firstSeeds);
    LargeInteger q = PrimesNumber::createProbablePrime(bitCount - firstBits, witnessesPerPrime,
                                                       otherSeeds, seedCount - firstSeeds);
    if (p.isZero() || q.isZero()) {
        firstKey = secondKey = RSAKey();
        return;
    }
    LargeInteger const n = p * q;
    --p;
    --q;
    LargeInteger const phi = p * q;
    LargeInteger const e = findBestCommonDivisor(p, q);
    LargeInteger d(e);
    d.inverseModulo(phi);
    firstKey = RSAKey(e, n);
    secondKey = RSAKey(d, n);
}

}  // namespace qel
