// What the tests of the kernels share: numbers that find carries, buffers between marks, and
// messages that show the operands.
#pragma once

#include "bigint/limbs/Limbs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace limbs_test {

using qel::limbs::Limb;
using Number = std::vector<Limb>;

/// Exactly `count` limbs, with marks before and behind that must stay.
class Fenced {
  public:
    explicit Fenced(std::size_t count) : limbs(count + 2 * fence, mark) {}

    explicit Fenced(Number const& value) : Fenced(value.size()) {
        std::copy(value.begin(), value.end(), data());
    }

    Limb* data() { return limbs.data() + fence; }

    [[nodiscard]] bool intact() const {
        auto const isMark = [](Limb limb) { return limb == mark; };
        return std::all_of(limbs.begin(), limbs.begin() + fence, isMark)
               && std::all_of(limbs.end() - fence, limbs.end(), isMark);
    }

    [[nodiscard]] Number value() const { return {limbs.begin() + fence, limbs.end() - fence}; }

  private:
    static constexpr std::ptrdiff_t fence = 8;
    static constexpr Limb mark = 0xFEEDFACECAFEBEEFU;

    Number limbs;
};

enum class Pattern { uniform, ones, sparse, runs, highOnly };

inline constexpr Pattern patterns[] = {Pattern::uniform, Pattern::ones, Pattern::sparse,
                                       Pattern::runs, Pattern::highOnly};

inline Number number(std::size_t count, Pattern pattern, std::mt19937_64& random) {
    Number limbs(count);
    bool ones = false;
    for (Limb& limb : limbs) {
        switch (pattern) {
        case Pattern::uniform:
            limb = random();
            break;
        case Pattern::ones:
            limb = ~Limb{0};
            break;
        case Pattern::sparse:
            limb = random() % 16 == 0 ? random() : 0;
            break;
        case Pattern::runs:
            ones = random() % 8 == 0 ? !ones : ones;
            limb = (ones ? ~Limb{0} : 0) ^ (random() % 4 == 0 ? ~Limb{0} << random() % 64 : 0);
            break;
        case Pattern::highOnly:
            break;
        }
    }
    if (pattern == Pattern::highOnly)
        limbs.back() = Limb{1} << random() % 64;
    return limbs;
}

inline Number anyNumber(std::size_t count, std::mt19937_64& random) {
    return number(count, patterns[random() % std::size(patterns)], random);
}

/// Hexadecimal, highest limb first.
inline std::string show(Number const& value) {
    std::ostringstream text;
    text << std::hex << value.size() << " limbs";
    for (auto limb = value.rbegin(); limb != value.rend(); ++limb)
        text << ' ' << *limb;
    return text.str();
}

}  // namespace limbs_test
