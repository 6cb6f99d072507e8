// The seed tables that keys are created from, so that no luck of one search decides, and the widths
// of the keys.
#ifndef QEL_BENCH_CRYPTO_SEEDTABLES_H
#define QEL_BENCH_CRYPTO_SEEDTABLES_H

#include <array>
#include <span>

namespace qel::bench {

using SeedTable = std::array<int, 4>;

inline constexpr SeedTable seedTables[] = {
    {1, 2, 3, 4},
    {5, 6, 7, 8},
    {17, 4, 1970, 1},
    {-1, 2147483647, -2147483647, 99},
    {123456789, -987654321, 192837465, -564738291},
    {27182818, 28459045, 23536028, 74713526},
    {31415926, 53589793, 23846264, 33832795},
    {-7, -300, -1848, -65537},
    {1009, 10007, 100003, 1000003},
    {2026, 11, 21, 12},
};

/// In bits; multiples of 64, so that both primes fill whole words of 32 bits.
inline constexpr int keyWidths[] = {256, 512, 768, 1024, 1536, 2048, 3072, 4096};
inline constexpr int widestOfAllTables = 2048;

/// Wider keys take seconds: the first tables must do.
inline std::span<SeedTable const> seedTablesFor(int bits) {
    return std::span(seedTables).first(bits <= widestOfAllTables ? std::size(seedTables) : 3);
}

}  // namespace qel::bench

#endif
