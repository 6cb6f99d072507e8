// The generator, against the plain one.
#include "CryptoFunctions.h"
#include "IntegerRows.h"

#include "model/PlainRandom.h"
#include "qel/Random.h"

namespace interface_test {

namespace {

constexpr int draws = 20;

/// What `draw` gives again and again, from every seed.
template <typename Draw>
Function sequence(char const* name, Draw /*draw*/) {
    return {name, [](Results& results) {
                for (long long const seed : extremeWide) {
                    qel::Random random(seed);
                    plain::Random expected(seed);
                    for (int i = 0; i < draws; ++i) {
                        auto const drawn = Draw{}(random);
                        EXPECT_EQ(drawn, Draw{}(expected)) << seed << " draw " << i;
                        results.add("", seed, drawn);
                    }
                }
            }};
}

plain::Random generatorFor(plain::LargeInteger const& /*value*/) {
    return plain::Random(-1);
}

qel::Random generatorFor(qel::LargeInteger const& /*value*/) {
    return qel::Random(-1);
}

}  // namespace

std::vector<Function> randomFunctions() {
    return {
        sequence("Random::Random(long long)",
                 [](auto& r) { return std::remove_reference_t<decltype(r)>(r).nextInt(); }),
        sequence("Random::nextInt()", [](auto& r) { return r.nextInt(); }),
        sequence("Random::nextBool()", [](auto& r) { return r.nextBool(); }),
        // Left out: bits far above the operands, which take up to 256 MB, and counts of 2^31, which
        // take minutes, be it below bit 0.
        unaryOf<fewOperands, int, int>(
            "Random::fillBitsRandomly(LargeInteger&, int, int)",
            [](auto& value, int firstBit, int bitCount) {
                auto random = generatorFor(value);
                random.fillBitsRandomly(value, firstBit, bitCount);
                return random.nextInt();  // from the same state
            },
            [](auto const&, int firstBit, int bitCount) {
                return 0LL + firstBit + bitCount <= 1 << 17 && bitCount < 1 << 17;
            }),
    };
}

}  // namespace interface_test
