// A call's result is compared with the model's, and written down with the arguments.
#pragma once

#include "Results.h"
#include "Texts.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <type_traits>

namespace interface_test {

/// Floating-point numbers by their bits, so that -0 is not 0 and a NaN is itself.
template <typename Value>
bool isSame(Value const& a, Value const& b) {
    if constexpr (std::is_same_v<Value, double>) {
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    } else if constexpr (std::is_same_v<Value, float>) {
        return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
    } else {
        return a == b;
    }
}

/// Adds a line for the call with these arguments, whose result must be the expected one.
template <typename Value, typename... Arguments>
void expectResult(Results& results, Value const& actual,
                  std::type_identity_t<Value> const& expected, Arguments const&... arguments) {
    results.add("", arguments..., actual);
    if (!isSame(actual, expected)) {
        Results expectedLine;
        expectedLine.add("", arguments..., expected);
        ADD_FAILURE() << results.lastLine() << "should be\n" << expectedLine.lastLine();
    }
}

/// One line for all bytes.
template <typename Function, typename Model>
void forEachCharacter(Results& results, Function function, Model model) {
    for (char const c : allCharacters)
        expectResult(results, function(c), model(c), static_cast<unsigned char>(c));
}

template <typename Function, typename Model>
void forEachText(Results& results, Function function, Model model) {
    for (std::string const& text : texts())
        expectResult(results, function(text.c_str()), model(text), text);
}

/// Among the pairs are those of one and the same text.
template <typename Function, typename Model>
void forEachPair(Results& results, Function function, Model model) {
    for (std::string const& a : texts()) {
        for (std::string const& b : texts())
            expectResult(results, function(a.c_str(), b.c_str()), model(a, b), a, b);
    }
}

}  // namespace interface_test
