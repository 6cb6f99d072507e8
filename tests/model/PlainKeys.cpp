#include "PlainKeys.h"

#include "PlainPrimes.h"

namespace plain {

namespace {

LargeInteger parsed(std::string const& text) {
    LargeInteger value;
    value.parseString(text, 16);
    return value;
}

LargeInteger createPrime(int bitCount, int const* seeds, int seedCount) {
    return parsed(createProbablePrime(bitCount, 30, seeds, seedCount).toString(16));
}

bool isCoprimeToBoth(LargeInteger const& candidate, LargeInteger const& first,
                     LargeInteger const& second) {
    return candidate.findGreatestCommonDivisor(first).isOne()
           && candidate.findGreatestCommonDivisor(second).isOne();
}

}  // namespace

Key::Key(std::string const& text) {
    std::size_t const comma = text.find(',');
    if (comma == std::string::npos)
        return;
    exponent.parseString(text.substr(0, comma), 16);
    modulus.parseString(text.substr(comma + 1), 16);
}

std::string Key::toString() const {
    return exponent.toString(16) + ',' + modulus.toString(16);
}

bool Key::operator==(Key const& other) const {
    return exponent == other.exponent && modulus == other.modulus;
}

bool Key::applyToValue(LargeInteger& value) const {
    if (exponent.isZero() || modulus.isZero() || value <= LargeInteger(0)) {
        value.clear();
        return false;
    }
    LargeInteger result;
    LargeInteger digit;
    while (!value.isZero()) {
        result *= modulus;
        value.divideBy(modulus, digit);
        digit.exponentModulo(exponent, modulus);
        result += digit;
    }
    value.swapWith(result);
    return true;
}

LargeInteger findBestCommonDivisor(LargeInteger const& first, LargeInteger const& second) {
    for (int c = 2; c < 65537; c *= 2) {
        LargeInteger const candidate(c | 1);
        if (isCoprimeToBoth(candidate, first, second))
            return LargeInteger(candidate);
    }
    LargeInteger candidate(4);
    while (!isCoprimeToBoth(candidate, first, second))
        ++candidate;
    return LargeInteger(candidate);
}

void createKeyPair(Key& firstKey, Key& secondKey, int bitCount, int const* seeds, int seedCount) {
    int const h = bitCount / 2;
    int const k = seedCount / 2;
    // A negative count draws nothing, whatever there is.
    int const* const otherSeeds = k > 0 ? seeds + k : seeds;
    LargeInteger p = createPrime(h, seeds, k);
    LargeInteger q = createPrime(bitCount - h, otherSeeds, seedCount - k);
    if (p.isZero() || q.isZero()) {
        firstKey = secondKey = Key();
        return;
    }
    LargeInteger const n = p * q;
    --p;
    --q;
    LargeInteger const phi = p * q;
    LargeInteger const e = findBestCommonDivisor(p, q);
    LargeInteger d(e);
    d.inverseModulo(phi);
    firstKey = Key(e, n);
    secondKey = Key(d, n);
}

}  // namespace plain
