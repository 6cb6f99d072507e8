// The primes below 2^16, made by the compiler.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace qel::internal {

inline constexpr std::uint32_t smallPrimeLimit = 1U << 16;

/// Bit k is set when 2k + 1 is prime.
consteval std::array<bool, smallPrimeLimit / 2> sieveOddNumbers() noexcept {
    std::array<bool, smallPrimeLimit / 2> prime{};
    prime.fill(true);
    prime[0] = false;
    for (std::uint32_t p = 3; p * p < smallPrimeLimit; p += 2) {
        if (prime[p / 2]) {
            for (std::uint32_t k = p * p / 2; k < smallPrimeLimit / 2; k += p)
                prime[k] = false;
        }
    }
    return prime;
}

consteval std::array<std::uint16_t, 6542> makeSmallPrimes() noexcept {
    std::array<std::uint16_t, 6542> primes{2};
    std::size_t found = 1;
    auto const sieve = sieveOddNumbers();
    for (std::uint32_t k = 0; k < sieve.size(); ++k) {
        if (sieve[k])
            primes[found++] = static_cast<std::uint16_t>(2 * k + 1);
    }
    return primes;
}

inline constexpr auto smallPrimes = makeSmallPrimes();
static_assert(smallPrimes.back() == 65521);

}  // namespace qel::internal
