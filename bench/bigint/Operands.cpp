// How the operands are drawn.
#include "Operands.h"

#include "../Rows.h"

#include <algorithm>
#include <map>
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

/// Long numbers tell no branch predictor anything, and a whole table of the longest would not fit
/// into the caches.
std::size_t tableSizeFor(int bits) {
    return bits <= 65536 ? tableSize : 4;
}

template <typename DrawOne>
Operands drawTable(int bits, DrawOne drawOne) {
    Generator random(static_cast<unsigned int>(bits));
    Operands table(tableSizeFor(bits));
    for (Arguments<LargeInteger>& x : table) {
        x.bits = bits;
        x.position = static_cast<int>(random() % static_cast<unsigned int>(bits - 31));
        drawOne(x, random);
    }
    return table;
}

}  // namespace

Operands const& drawn(Draw draw, int bits) {
    static std::map<std::pair<Draw, int>, Operands> known;
    auto const [place, isNew] = known.try_emplace({draw, bits});
    if (isNew)
        place->second = draw(bits);
    return place->second;
}

std::string hexDigits(LargeInteger const& value) {
    std::string text = value.isNegative() ? "-" : "";
    for (int i = value.getHighestBit() / 4; i >= 0; --i)
        text += "0123456789abcdef"[value.getBitRangeAsInt(4 * i, 4)];
    return text;
}

Operands pairs(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = draw(random, bits);
        x.b = draw(random, bits);
    });
}

Operands equalPairs(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = draw(random, bits);
        x.b = x.a;
    });
}

Operands closePairs(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = draw(random, bits);
        x.b = x.a;
        x.b.setBit(0, x.a[0] == 0);
    });
}

Operands sparse(int bits) {
    return drawTable(
        bits, [=](Arguments<LargeInteger>& x, Generator&) { x.a = LargeInteger(1) << (bits - 1); });
}

Operands dense(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator&) {
        x.a = (LargeInteger(1) << bits) - LargeInteger(1);
    });
}

Operands dividendsAndDivisors(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = draw(random, 2 * bits);
        x.b = draw(random, bits);
    });
}

Operands basesExponentsModuli(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = drawBelowModulus(random, bits);
        x.b = drawBelowModulus(random, bits);
        x.c = drawModulus(random, bits, true);
    });
}

Operands basesAndModuli(int bits) {
    Operands table = basesExponentsModuli(bits);
    for (Arguments<LargeInteger>& x : table)
        x.b = LargeInteger(65537);
    return table;
}

Operands smallValuesAndEvenModuli(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = LargeInteger(65537);
        x.b = drawEvenModulusCoprimeTo(x.a, random, bits);
    });
}

Operands valuesAndEvenModuli(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.a = drawBelowModulus(random, bits);
        x.a.setBit(0);
        x.b = drawEvenModulusCoprimeTo(x.a, random, bits);
    });
}

Operands oddModuliAndTwoLess(int bits) {
    return drawTable(bits, [=](Arguments<LargeInteger>& x, Generator& random) {
        x.b = drawModulus(random, bits, true);
        x.a = x.b - LargeInteger(2);
    });
}

}  // namespace qel::bench
