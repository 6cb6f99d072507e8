// Gcd, inverse and power of wide numbers by what defines them.
#include "Expect.h"
#include "WideNumber.h"

using namespace fuzz;
using qel::LargeInteger;

namespace {

/// By remainders alone.
LargeInteger plainGcd(LargeInteger a, LargeInteger b) {
    while (!b.isZero()) {
        LargeInteger rest = a % b;
        a.swapWith(b);
        b.swapWith(rest);
    }
    return a;
}

/// Bit by bit from the top.
LargeInteger plainPower(LargeInteger const& base, LargeInteger const& exponent,
                        LargeInteger const& m) {
    LargeInteger power(1);
    for (int i = exponent.getHighestBit(); i >= 0; --i) {
        power = power * power % m;
        if (exponent[i] != 0)
            power = power * base % m;
    }
    return power;
}

void checkInverse(LargeInteger const& value, LargeInteger const& m) {
    LargeInteger const reduced = value % m;
    LargeInteger inverse(value);
    if (reduced[0] == 0) {
        inverse.inverseModulo(m);
        expect(inverse.isZero(), "an even value has no inverse");
    } else if (plainGcd(reduced, m).isOne()) {
        inverse.inverseModulo(m);
        expect((inverse * value % m).isOne(), "value * inverse is 1");
        expect(inverse < m && !inverse.isNegative(), "the inverse is reduced");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    LargeInteger const common = wideNumber(input, 20);
    LargeInteger const a = common * wideNumber(input, 60);
    LargeInteger const b = common * wideNumber(input, 60);
    expectEqual(text(a.findGreatestCommonDivisor(b)), text(plainGcd(a, b)), "gcd");
    if (b <= LargeInteger(1))
        return 0;

    checkInverse(a, b);
    LargeInteger const exponent = wideNumber(input, 40) % b;
    LargeInteger power(a);
    power.exponentModulo(exponent, b);
    expectEqual(text(power), text(plainPower(a, exponent, b)), "power");
    return 0;
}
