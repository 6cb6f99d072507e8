// Large integers of thousands of bits from a few bytes of an input: runs of words of some kind.
// Too wide for the plain model, they are held against identities and plain remainders.
#pragma once

#include "Input.h"

#include "qel/LargeInteger.h"

#include <cstdint>
#include <string>

namespace fuzz {

inline unsigned int wideWord(Input& input, int kind, unsigned int& state) {
    switch (kind) {
    case 0:
        return 0;
    case 1:
        return 0xFFFFFFFFU;
    case 2:
        return input.number<unsigned int>();
    default:  // another word each time (a step of a linear congruential generator)
        return state = state * 1664525U + 1013904223U;
    }
}

/// Not negative, of at most `words` words.
inline qel::LargeInteger wideNumber(Input& input, int words) {
    qel::LargeInteger number;
    auto state = input.number<std::uint16_t>() + 0U;
    int filled = input.below(words + 1);
    for (int word = 0; word < filled;) {
        int const kind = input.below(4);
        int const run = 1 + input.below(64);
        for (int end = word + run; word < end && word < filled; ++word)
            number.setBitRangeAsInt(word * 32, 32, wideWord(input, kind, state));
    }
    return qel::LargeInteger(number);
}

inline constexpr std::uint64_t mersenne61 = (std::uint64_t{1} << 61) - 1;

constexpr std::uint64_t modularProduct(std::uint64_t a, std::uint64_t b) {
    __extension__ using Wide = unsigned __int128;
    return static_cast<std::uint64_t>(static_cast<Wide>(a) * b % mersenne61);
}

/// The magnitude's remainder modulo 2^61 - 1, word by word and without the library's arithmetic.
inline std::uint64_t plainRemainder(qel::LargeInteger const& number) {
    std::uint64_t remainder = 0;
    for (int word = number.getHighestBit() / 32; word >= 0; --word) {
        auto const bits = static_cast<unsigned int>(number.getBitRangeAsInt(word * 32, 32));
        remainder = (modularProduct(remainder, std::uint64_t{1} << 32) + bits) % mersenne61;
    }
    return remainder;
}

inline std::string text(qel::LargeInteger const& number) {
    return number.toString(16);
}

}  // namespace fuzz
