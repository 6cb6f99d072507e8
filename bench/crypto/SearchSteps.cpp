#include "SearchSteps.h"

#include <algorithm>

namespace qel::bench {

std::vector<std::uint32_t> oddPrimesBelow(std::uint32_t limit) {
    std::vector<bool> composite(limit, false);
    std::vector<std::uint32_t> primes;
    for (std::uint64_t p = 3; p < limit; p += 2) {
        if (composite[p])
            continue;
        primes.push_back(static_cast<std::uint32_t>(p));
        for (std::uint64_t multiple = p * p; multiple < limit; multiple += p)
            composite[multiple] = true;
    }
    return primes;
}

std::span<std::uint32_t const> witnesses() {
    static std::vector<std::uint32_t> const primes = oddPrimesBelow(256);
    return primes;
}

std::span<std::uint32_t const> screeningDivisors() {
    static std::vector<std::uint32_t> const divisors = [] {
        std::vector<std::uint32_t> found = {2 * 1 + 1, 2 * 2 + 1};
        for (std::uint32_t const p : oddPrimesBelow(15000))
            found.push_back(2 * p + 1);
        return found;
    }();
    return divisors;
}

Words startFrom(std::span<int const> seeds, int bitCount) {
    Words start(static_cast<std::size_t>(bitCount / 32), 0);
    for (int const seed : seeds) {
        auto state = static_cast<std::uint64_t>(seed);
        for (std::uint32_t& word : start) {
            state = (state * 0x5DEECE66D + 11) & 0xFFFFFFFFFFFF;
            word ^= static_cast<std::uint32_t>(state >> 16);
        }
    }
    start.back() |= 1U << 31;
    start.front() &= ~1U;
    return start;
}

std::size_t blockLength(int bitCount) {
    return static_cast<std::size_t>(std::max(1024, bitCount / 20 * 64));
}

std::size_t firstMultiple(std::uint32_t divisor, std::uint32_t remainder) {
    std::uint32_t const distance = divisor - remainder;
    return distance % 2 != 0 ? (distance - 1) / 2 : (distance + divisor - 1) / 2;
}

}  // namespace qel::bench
