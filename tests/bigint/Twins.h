// The same numbers twice, as the library's and as the plain model's integers, with representations
// of many kinds.
#pragma once

#include "Choices.h"
#include "PlainDifference.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>

namespace bigint_test {

/// The same number twice.
struct Twin {
    LargeInteger fast;
    plain::LargeInteger plain;
};

/// A word and a number, as in "set at 7".
inline std::string label(char const* word, int number) {
    std::ostringstream text;
    text << word << ' ' << number;
    return text.str();
}

inline std::string describe(Twin const& twin) {
    Representation const model{twin.plain.size, twin.plain.highestBit, twin.plain.negative};
    std::ostringstream text;
    text << "0x" << twin.plain.toString(16) << ' ' << model;
    return text.str();
}

inline std::string check(Twin const& twin) {
    return difference(twin.fast, twin.plain);
}

/// Mostly up to 40 words, seldom up to 300, very seldom up to 3,000.
inline int width(Choices& choices) {
    if (choices.oneIn(20000))
        return choices.below(3000 * 32);
    if (choices.oneIn(200))
        return choices.below(300 * 32);
    return choices.oneIn(2) ? choices.below(6 * 32) : choices.below(40 * 32);
}

/// Widths around word, limb and algorithm boundaries.
inline int edgeWidth(Choices& choices) {
    static constexpr int edges[] = {0,   1,   31,  32,   33,   63,   64,   65,   95,
                                    96,  127, 128, 129,  159,  160,  255,  256,  257,
                                    511, 512, 513, 1023, 1024, 1025, 1791, 1792, 1793};
    return edges[choices.below(static_cast<int>(std::size(edges)))];
}

inline unsigned patternWord(Choices& choices, int pattern) {
    switch (pattern) {
    case 0:
        return choices.word();
    case 1:
        return 0xFFFFFFFFU;
    case 2:
        return choices.oneIn(4) ? choices.word() : 0;
    case 3:
        return choices.word() & choices.word() & choices.word() & choices.word();
    case 4:
        return ~(choices.word() & choices.word() & choices.word() & choices.word());
    default: {  // runs of ones and zeros
        unsigned const ones = 0xFFFFFFFFU << choices.below(32);
        return choices.oneIn(2) ? ~ones : ones;
    }
    }
}

/// Both halves of a twin get the same calls, so that their representations start equal too.
template <typename Operation>
void both(Twin& twin, Operation operation) {
    operation(twin.fast);
    operation(twin.plain);
}

inline void refill(Twin& twin, int bits, Choices& choices) {
    bits = std::min(bits, choices.widest());
    both(twin, [](auto& v) { v.clear(); });
    int const pattern = choices.below(6);
    for (int done = 0; done < bits; done += 32) {
        unsigned const value = patternWord(choices, pattern);
        int const count = std::min(32, bits - done);
        both(twin, [&](auto& v) { v.setBitRangeAsInt(done, count, value); });
    }
    if (choices.oneIn(8))
        both(twin, [&](auto& v) { v.clear(), v.setBit(bits); });
    bool const negative = choices.oneIn(3);
    both(twin, [&](auto& v) { v.setNegative(negative); });
    if (choices.oneIn(4)) {
        int const bound = bits + choices.below(100);
        both(twin, [&](auto& v) { v.setBit(bound), v.clearBit(bound); });
    }
    if (choices.oneIn(8)) {
        int const reserved = choices.below(60);
        both(twin, [&](auto& v) { v.ensureSize(reserved); });
    }
}

inline void refill(Twin& twin, Choices& choices) {
    refill(twin, choices.oneIn(4) ? edgeWidth(choices) : width(choices), choices);
}

/// A number that division has trouble with: quotient * divisor plus or minus a little.
inline void refillAsMultiple(Twin& twin, Twin const& divisor, Choices& choices) {
    refill(twin, choices.below(700), choices);
    both(twin, [](auto& v) { v.setNegative(false); });
    twin.fast *= divisor.fast;
    twin.plain *= divisor.plain;
    int const little = choices.below(3) - 1;
    twin.fast += LargeInteger(little);
    twin.plain += plain::LargeInteger(little);
}

}  // namespace bigint_test
