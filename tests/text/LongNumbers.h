// Numbers of so many digits that their single steps are rounded, and the value they have by the
// plain steps, to the bit.
#pragma once

#include "qel/CharFunctions.h"

#include "model/PlainDecimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <random>
#include <string>

namespace number_text {

inline std::uint64_t bitsOf(double v) {
    return std::bit_cast<std::uint64_t>(v);
}

/// With a point somewhere or without one, with a sign or without.
inline std::string randomLongNumber(std::mt19937& random) {
    std::string text(1 + random() % 400, ' ');
    for (char& c : text)
        c = static_cast<char>('0' + random() % 10);
    if (random() % 2 == 0)
        text[random() % text.size()] = '.';
    if (random() % 2 == 0)
        text[random() % text.size()] = '-';
    return text;
}

inline void expectPlainValue(std::string const& s) {
    ASSERT_EQ(bitsOf(qel::CharFunctions::AsciiToDouble(s.c_str())), bitsOf(model::value(s))) << s;
}

}  // namespace number_text
