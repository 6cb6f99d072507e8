// How primes and keys are drawn.
#include "CryptoOperands.h"

#include "qel/PrimesNumber.h"
#include "qel/RSAKey.h"

#include <array>

namespace qel::bench {
namespace {

/// Wide primes and keys take long to draw.
constexpr int distinct = 8;

std::array<int, 4> seedsOf(int i) {
    return {i + 1, 1000 - 7 * i, 31 * i + 5, -17 * i - 3};
}

Operands valuesAndKeys(int bits, bool isPublic) {
    Operands table = pairs(bits);
    for (std::size_t i = 0; i < table.size(); ++i) {
        Arguments<LargeInteger>& x = table[i];
        x.position = static_cast<int>(i);
        if (i >= distinct) {
            x.b = table[i % distinct].b;
            x.c = table[i % distinct].c;
            x.text = table[i % distinct].text;
        } else {
            RSAKey first;
            RSAKey second;
            std::array<int, 4> const seeds = seedsOf(static_cast<int>(i));
            RSAKey::createKeyPair(first, second, bits, seeds.data(), 4);
            x.text = (isPublic ? first : second).toString();
            std::size_t const comma = x.text.find(',');
            x.b.parseString(x.text.substr(0, comma), 16);
            x.c.parseString(x.text.substr(comma + 1), 16);
        }
        x.a %= x.c;
    }
    return table;
}

}  // namespace

Operands primes(int bits) {
    Operands table = pairs(bits);
    for (std::size_t i = 0; i < table.size(); ++i) {
        std::array<int, 4> const seeds = seedsOf(static_cast<int>(i));
        table[i].a = i < distinct ? PrimesNumber::createProbablePrime(bits, 30, seeds.data(), 4)
                                  : table[i % distinct].a;
    }
    return table;
}

Operands oddNumbers(int bits) {
    Operands table = pairs(bits);
    for (Arguments<LargeInteger>& x : table)
        x.a.setBit(0);
    return table;
}

Operands primesAndOddNumbers(int bits) {
    Operands table = oddNumbers(bits);
    Operands const prime = drawn(primes, bits);
    for (std::size_t i = 0; i < table.size(); i += 2)
        table[i].a = prime[i / 2].a;
    return table;
}

Operands valuesAndPublicKeys(int bits) {
    return valuesAndKeys(bits, true);
}

Operands valuesAndPrivateKeys(int bits) {
    return valuesAndKeys(bits, false);
}

Operands evenPairs(int bits) {
    Operands table = pairs(bits);
    for (Arguments<LargeInteger>& x : table) {
        x.a.clearBit(0);
        x.b.clearBit(0);
    }
    return table;
}

}  // namespace qel::bench
