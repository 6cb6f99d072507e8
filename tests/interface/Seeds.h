// Seeds of primes: none, in every way to say so, and the ends of the range.
#pragma once

#include "Arguments.h"

#include <array>
#include <vector>

namespace interface_test {

struct Seeds {
    int const* first;
    int count;
};

/// All of the extreme integers.
inline Seeds allSeeds() {
    return {extremeInts.data(), static_cast<int>(extremeInts.size())};
}

/// A negative count is none, whatever there is.
inline std::vector<Seeds> seedLists() {
    static constexpr std::array<int, 2> twice = {77, 77};
    std::vector<Seeds> lists = {allSeeds(), {twice.data(), 2}, {twice.data(), 1}};
    for (int const& seed : extremeInts) {
        lists.push_back({&seed, 1});
        if (seed <= 0) {
            lists.push_back({nullptr, seed});
            lists.push_back({twice.data(), seed});
        }
    }
    return lists;
}

}  // namespace interface_test
