// What a fuzz target expects; where it is not so, the process ends, and the input has been found.
#pragma once

#include <cstdlib>
#include <iostream>

namespace fuzz {

template <typename Actual, typename Expected>
void expectEqual(Actual const& actual, Expected const& expected, char const* what) {
    if (actual == expected)
        return;
    std::cerr << what << ": " << actual << ", not " << expected << '\n';
    std::abort();
}

inline void expect(bool holds, char const* what) {
    expectEqual(holds, true, what);
}

}  // namespace fuzz
