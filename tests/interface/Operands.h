// Integers as operands: every value twice, as the library's and as the plain model's, exact and
// with a cached bound far above the top, and some with room to spare.
#pragma once

#include "bigint/Twins.h"

#include <string>
#include <vector>

namespace interface_test {

using bigint_test::Twin;

struct Operand {
    /// The number has an exact bound and a tight buffer.
    Twin number;
    /// What the cached bound is raised by.
    int above = 0;
    /// A word that there is room for.
    int reserved = 0;

    /// In place: a copy has another bound and capacity, and so has what is moved.
    void assignTo(Twin& twin) const {
        twin.fast = number.fast;
        twin.plain = number.plain;
        if (above > 0) {
            int const bound = number.plain.getHighestBit() + above;
            both(twin, [bound](auto& x) { x.setBit(bound), x.clearBit(bound); });
        }
        if (reserved > 0)
            both(twin, [this](auto& x) { x.ensureSize(reserved); });
    }

    [[nodiscard]] std::string description() const {
        Twin twin;
        assignTo(twin);
        return describe(twin);
    }
};

using Operands = std::vector<Operand>;

/// The number that the hexadecimal digits write.
inline Twin twinOf(std::string const& digits) {
    Twin twin;
    both(twin, [&](auto& x) { x.parseString(digits, 16); });
    return {twin.fast, twin.plain};
}

/// As many bits without a pattern, odd, the highest one set.
inline std::string patternOf(int bits) {
    std::string digits = "8";
    unsigned int state = 12345;
    while (static_cast<int>(digits.size()) < bits / 4) {
        state = state * 1103515245U + 12345U;
        digits += "0123456789abcdef"[state >> 28];
    }
    digits.back() = 'd';
    return digits;
}

/// What all functions are called with.
inline Operands const& manyOperands() {
    static Operands const operands = [] {
        Operands list;
        std::vector<std::string> const exact = {"",
                                                "-",
                                                "1",
                                                "-1",
                                                "80000000",
                                                "ffffffff",
                                                "8000000000000000",
                                                "10000000000000000",
                                                "ffffffffffffffff",
                                                "-80000000000000000000000000000000",
                                                patternOf(200),
                                                patternOf(700),
                                                patternOf(1300)};
        for (std::string const& digits : exact) {
            list.push_back({twinOf(digits)});
            list.push_back({twinOf(digits), 100});
        }
        // More than 16 words of capacity are given back where a value becomes zero.
        for (std::string const& digits :
             {std::string(), std::string("1"), '-' + patternOf(200), '-' + patternOf(1300)}) {
            list.push_back({twinOf(digits), 0, 40});
            list.push_back({twinOf(digits), 2000, 0});
        }
        return list;
    }();
    return operands;
}

/// Of each kind one, for functions of many arguments.
inline Operands const& fewOperands() {
    static Operands const operands = {{twinOf(""), 0, 40},
                                      {twinOf("-"), 100},
                                      {twinOf("1")},
                                      {twinOf("ffffffff"), 100},
                                      {twinOf("ffffffffffffffff"), 0, 40},
                                      {twinOf("10000000000000000"), 100},
                                      {twinOf("-80000000000000000000000000000000")},
                                      {twinOf(patternOf(200))},
                                      {twinOf('-' + patternOf(1300)), 100}};
    return operands;
}

}  // namespace interface_test
