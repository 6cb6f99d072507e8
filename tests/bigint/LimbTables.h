// What the tests of the ground floor share: tables of lengths and operands, arrays between marked
// limbs, and twins of the products: natural numbers on 32-bit halves, one step at a time.
#pragma once

#include "KernelVariants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace limb_test {

using qel::limbs::Limb;
using Limbs = std::vector<Limb>;

inline constexpr Limb allOnes = ~Limb{0};
inline constexpr Limb topBit = Limb{1} << 63;

// --- tables -------------------------------------------------------------------------------------

/// Every length of a row from no full block of eight limbs to five, and around eight blocks.
inline std::vector<std::size_t> rowLengths() {
    std::vector<std::size_t> lengths;
    for (std::size_t count = 1; count <= 40; ++count)
        lengths.push_back(count);
    lengths.insert(lengths.end(), {63, 64, 65});
    return lengths;
}

inline constexpr Limb edgeLimbs[] = {
    0, 1, 2, 3, 0xFFFFFFFF, 1ULL << 32, topBit - 1, topBit, topBit + 1, allOnes - 1, allOnes};

/// Limbs that carry far and those that carry nowhere, and everyday ones.
enum class Pattern { uniform, zero, ones, sparse, runs, power, belowPower, abovePower };

inline constexpr Pattern patterns[] = {Pattern::uniform,    Pattern::zero,      Pattern::ones,
                                       Pattern::sparse,     Pattern::runs,      Pattern::power,
                                       Pattern::belowPower, Pattern::abovePower};

/// A stream of operands, the same in each run.
class Operands {
  public:
    explicit Operands(unsigned seed) : random(seed) {}

    Limb limb() { return random(); }
    std::size_t below(std::size_t end) { return random() % end; }

    Limbs make(Pattern pattern, std::size_t count) {
        Limbs out(count, pattern == Pattern::ones ? allOnes : 0);
        std::size_t const bit = below(64 * count);
        switch (pattern) {
        case Pattern::uniform:
            std::generate(out.begin(), out.end(), [&] { return limb(); });
            break;
        case Pattern::sparse:
            out[bit / 64] = limb();
            out[below(count)] = allOnes;
            break;
        case Pattern::runs:
            fillWithRuns(out);
            break;
        case Pattern::power:
        case Pattern::abovePower:
            out[bit / 64] = Limb{1} << (bit % 64);
            out[0] |= pattern == Pattern::abovePower ? 1 : 0;
            break;
        case Pattern::belowPower:
            std::fill_n(out.begin(), bit / 64, allOnes);
            out[bit / 64] = (Limb{1} << (bit % 64)) - 1;
            break;
        case Pattern::zero:
        case Pattern::ones:
            break;
        }
        return out;
    }

    Limbs any(std::size_t count) { return make(patterns[below(std::size(patterns))], count); }

  private:
    /// Runs of ones and zeros, of up to 100 bits each.
    void fillWithRuns(Limbs& out) {
        bool one = below(2) != 0;
        for (std::size_t bit = 0; bit < 64 * out.size(); one = !one) {
            for (std::size_t run = 1 + below(100); run > 0 && bit < 64 * out.size(); --run, ++bit)
                out[bit / 64] |= Limb{one} << (bit % 64);
        }
    }

    std::mt19937_64 random;
};

/// Calls check(a) for operands of all patterns at all these lengths; stops at the first failure.
template <typename Check>
void onOperands(unsigned seed, std::vector<std::size_t> const& lengths, Check check) {
    Operands operands(seed);
    for (std::size_t const count : lengths) {
        for (Pattern const pattern : patterns) {
            check(operands.make(pattern, count));
            if (testing::Test::HasFailure())
                return;
        }
    }
}

/// Calls check(a, b) for operands of equal length and all pairs of patterns.
template <typename Check>
void onPairs(unsigned seed, std::vector<std::size_t> const& lengths, Check check) {
    Operands operands(seed);
    onOperands(seed + 1, lengths, [&](Limbs const& a) {
        for (Pattern const pattern : patterns)
            check(a, operands.make(pattern, a.size()));
    });
}

// --- printing -----------------------------------------------------------------------------------

inline std::string text(Limbs const& a) {
    std::ostringstream out;
    out << "0x" << std::hex << std::setfill('0');
    for (std::size_t i = a.size(); i-- > 0;)
        out << std::setw(16) << a[i] << (i > 0 ? "'" : "");
    return out.str();
}

inline std::string text(Limb a) {
    return text(Limbs{a});
}

/// Operands by name, as in "\n  a = 0x...".
template <typename Value, typename... More>
std::string input(char const* name, Value const& value, More const&... more) {
    std::string out = std::string("\n  ") + name + " = " + text(value);
    if constexpr (sizeof...(more) > 0)
        out += input(more...);
    return out;
}

// --- arrays between marked limbs ----------------------------------------------------------------

/// An output, scratch or operand in place, with limbs on both sides that nobody may write.
class Fenced {
  public:
    explicit Fenced(Limbs const& values) : memory(values.size() + 2 * width, mark) {
        std::copy(values.begin(), values.end(), memory.begin() + width);
    }
    explicit Fenced(std::size_t count) : Fenced(Limbs(count, litter)) {}

    Limb* data() { return memory.data() + width; }
    Limbs values() const { return {memory.begin() + width, memory.end() - width}; }

    testing::AssertionResult intact() const {
        auto const isMark = [](Limb limb) { return limb == mark; };
        if (!std::all_of(memory.begin(), memory.begin() + width, isMark))
            return testing::AssertionFailure() << "wrote below the array";
        if (!std::all_of(memory.end() - width, memory.end(), isMark))
            return testing::AssertionFailure() << "wrote above the array";
        return testing::AssertionSuccess();
    }

    testing::AssertionResult holds(Limbs const& expected) const {
        if (values() != expected)
            return testing::AssertionFailure() << "\n  got      " << text(values())
                                               << "\n  expected " << text(expected) << "\n";
        return intact();
    }

  private:
    static constexpr std::ptrdiff_t width = 16;
    static constexpr Limb mark = 0x5AFE'5AFE'5AFE'5AFE;
    static constexpr Limb litter = 0xBAD0'BAD1'BAD2'BAD3;

    Limbs memory;
};

// --- twins --------------------------------------------------------------------------------------

using Halves = std::vector<std::uint32_t>;

inline Halves halves(Limbs const& a) {
    Halves out;
    for (Limb const limb : a) {
        out.push_back(static_cast<std::uint32_t>(limb));
        out.push_back(static_cast<std::uint32_t>(limb >> 32));
    }
    return out;
}

/// For an even number of halves.
inline Limbs joined(Halves const& a) {
    Limbs out;
    for (std::size_t i = 0; i < a.size(); i += 2)
        out.push_back(a[i] | (Limb{a[i + 1]} << 32));
    return out;
}

/// a + b with its carry, in one limb more than the longer of them.
inline Limbs sum(Limbs const& a, Limbs const& b) {
    std::size_t const count = std::max(a.size(), b.size()) + 1;
    Halves x = halves(a);
    Halves y = halves(b);
    x.resize(2 * count);
    y.resize(2 * count);
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        carry += std::uint64_t{x[i]} + y[i];
        x[i] = static_cast<std::uint32_t>(carry);
        carry >>= 32;
    }
    return joined(x);
}

/// a * b by the rules of school, in as many limbs as both together.
inline Limbs product(Limbs const& a, Limbs const& b) {
    Halves const x = halves(a);
    Halves const y = halves(b);
    Halves out(x.size() + y.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < y.size(); ++j) {
            carry += std::uint64_t{x[i]} * y[j] + out[i + j];
            out[i + j] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        out[i + y.size()] = static_cast<std::uint32_t>(carry);
    }
    return joined(out);
}

/// a < b for numbers of one length.
inline bool less(Limbs const& a, Limbs const& b) {
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

/// `a` and one limb more.
inline Limbs with(Limbs a, Limb top) {
    a.push_back(top);
    return a;
}

}  // namespace limb_test
