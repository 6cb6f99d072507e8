// What the documented search for a prime consists of beside its large numbers: the start, the
// blocks, the divisors of the screening and the witnesses. All numbers here are small.
#ifndef QEL_BENCH_CRYPTO_SEARCHSTEPS_H
#define QEL_BENCH_CRYPTO_SEARCHSTEPS_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace qel::bench {

/// The words of a number, the lowest first.
using Words = std::vector<std::uint32_t>;

inline constexpr std::size_t witnessesPerPrime = 30;
/// 2 * 3 * 5 * 7 * 11 * 13 * 17 * 19 * 23: who shares a factor with it is not tested.
inline constexpr unsigned long smallPrimesProduct = 223092870;

/// The odd primes below `limit`, in order.
std::vector<std::uint32_t> oddPrimesBelow(std::uint32_t limit);
/// 3, 5, 7, 11, ...; more than witnessesPerPrime.
std::span<std::uint32_t const> witnesses();
/// 2p + 1 for p = 1 and the primes below 15000, in order; not all of them are prime.
std::span<std::uint32_t const> screeningDivisors();

/// Where the search for a prime starts: even, with the top bit of the width set. `bitCount` is a
/// multiple of 32, so that every seed fills whole words.
Words startFrom(std::span<int const> seeds, int bitCount);

/// How many odd numbers a block holds.
std::size_t blockLength(int bitCount);
/// Of the odd numbers above the even base, number i being base + 2i + 1: the first that `divisor`
/// divides. `remainder` is the base's.
std::size_t firstMultiple(std::uint32_t divisor, std::uint32_t remainder);

}  // namespace qel::bench

#endif
