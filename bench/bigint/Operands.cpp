// How the operands are drawn.
#include "Operands.h"

#include <algorithm>
#include <random>

namespace qel::bench {
namespace {

using Generator = std::mt19937;

/// Exactly `bits` bits.
LargeInteger draw(Generator& random, int bits) {
    LargeInteger value;
    value.setBit(bits - 1);
    for (int i = 0; i < bits - 1; i += 32)
        value.setBitRangeAsInt(i, std::min(32, bits - 1 - i), static_cast<unsigned int>(random()));
    return value;
}

/// Exactly `bits` bits, the second highest one clear: below every modulus that drawModulus draws.
LargeInteger drawBelowModulus(Generator& random, int bits) {
    LargeInteger value = draw(random, bits);
    value.clearBit(bits - 2);
    return value;
}

/// Exactly `bits` bits, the two highest set.
LargeInteger drawModulus(Generator& random, int bits, bool odd) {
    LargeInteger value = draw(random, bits);
    value.setBit(bits - 2);
    value.setBit(0, odd);
    return value;
}

LargeInteger drawEvenModulusCoprimeTo(LargeInteger const& value, Generator& random, int bits) {
    LargeInteger modulus = drawModulus(random, bits, false);
    while (!value.findGreatestCommonDivisor(modulus).isOne())
        modulus += LargeInteger(2);
    return modulus;
}

}  // namespace

std::string hexDigits(LargeInteger const& value) {
    std::string text;
    for (int i = value.getHighestBit() / 4; i >= 0; --i)
        text += "0123456789abcdef"[value.getBitRangeAsInt(4 * i, 4)];
    return text;
}

Operands two(int bits) {
    Generator random(1);
    LargeInteger const a = draw(random, bits);
    return {a, draw(random, bits)};
}

Operands one(int bits) {
    Generator random(2);
    return {draw(random, bits)};
}

Operands dividendAndDivisor(int bits) {
    Generator random(3);
    LargeInteger const dividend = draw(random, 2 * bits);
    return {dividend, draw(random, bits)};
}

Operands baseExponentModulus(int bits) {
    Generator random(4);
    LargeInteger const base = drawBelowModulus(random, bits);
    LargeInteger const exponent = drawBelowModulus(random, bits);
    return {base, exponent, drawModulus(random, bits, true)};
}

Operands smallValueAndEvenModulus(int bits) {
    Generator random(5);
    LargeInteger const value(65537);
    return {value, drawEvenModulusCoprimeTo(value, random, bits)};
}

Operands valueAndEvenModulus(int bits) {
    Generator random(6);
    LargeInteger value = drawBelowModulus(random, bits);
    value.setBit(0);
    return {value, drawEvenModulusCoprimeTo(value, random, bits)};
}

}  // namespace qel::bench
