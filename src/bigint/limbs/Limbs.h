// The ground floor: natural numbers as arrays of 64-bit limbs, lowest limb first.
//
// The contract that all kernels share, said once:
// - outputs come first, then operands, then counts; a carry or borrow out is returned;
// - `out` may be the same array as an operand of the same position, but may not overlap it
//   otherwise; a product's `out` overlaps nothing;
// - counts are at least 1 unless said otherwise, and are not checked; neither is room in `out`;
// - scratch comes from the caller, and a function beside the kernel says how many limbs it needs;
// - nothing is allocated, nothing is kept between calls, and no sign is seen here.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qel::limbs {

using Limb = std::uint64_t;
__extension__ typedef unsigned __int128 DoubleLimb;

inline constexpr int bitsPerLimb = 64;

// The limbs of any number are counted without overflow.
static_assert(sizeof(std::size_t) == sizeof(Limb));

[[nodiscard]] constexpr Limb upperLimb(DoubleLimb x) noexcept {
    return static_cast<Limb>(x >> bitsPerLimb);
}

// --- linear work --------------------------------------------------------------------------------

/// out = a + b.
Limb add(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept;
/// out = a + carry.
Limb addLimb(Limb* out, Limb const* a, std::size_t count, Limb carry) noexcept;
/// out = a - b.
Limb subtract(Limb* out, Limb const* a, Limb const* b, std::size_t count) noexcept;
/// out = a - borrow.
Limb subtractLimb(Limb* out, Limb const* a, std::size_t count, Limb borrow) noexcept;
/// 1, 0 or -1.
[[nodiscard]] inline int compare(Limb const* a, Limb const* b, std::size_t count) noexcept {
    constexpr std::size_t block = 4;
    auto const isSameBlock = [=](Limb const* x, Limb const* y) {
        return ((x[0] ^ y[0]) | (x[1] ^ y[1]) | (x[2] ^ y[2]) | (x[3] ^ y[3])) == 0;
    };
    while (count > block && isSameBlock(a + count - block, b + count - block))
        count -= block;
    while (count > 0 && a[count - 1] == b[count - 1])
        --count;
    if (count == 0)
        return 0;
    return a[count - 1] > b[count - 1] ? 1 : -1;
}
/// The count without zero limbs on top; 0 for zero.
[[nodiscard]] inline std::size_t significant(Limb const* a, std::size_t count) noexcept {
    while (count > 0 && a[count - 1] == 0)
        --count;
    return count;
}
/// The number of set bits.
[[nodiscard]] long long countBits(Limb const* a, std::size_t count) noexcept;
/// out = a << bits, for 0 < bits < 64; returns the bits shifted out.
Limb shiftLeft(Limb* out, Limb const* a, std::size_t count, int bits) noexcept;
/// out = a >> bits, for 0 < bits < 64.
void shiftRight(Limb* out, Limb const* a, std::size_t count, int bits) noexcept;

// --- one limb by many ---------------------------------------------------------------------------

/// out = a * b; returns the highest limb of the product.
Limb multiplyLimb(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept;
/// out += a * b.
Limb addMultiply(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept;

// --- products -----------------------------------------------------------------------------------

/// out[0, aCount + bCount) = a * b, for aCount >= bCount.
void multiply(Limb* out, Limb const* a, std::size_t aCount, Limb const* b, std::size_t bCount,
              Limb* scratch) noexcept;
std::size_t multiplyScratch(std::size_t aCount, std::size_t bCount) noexcept;

/// out[0, 2 * count) = a * a.
void square(Limb* out, Limb const* a, std::size_t count, Limb* scratch) noexcept;
std::size_t squareScratch(std::size_t count) noexcept;

// --- quotients ----------------------------------------------------------------------------------

/// quotient[0, count) = a / divisor; returns the remainder. `quotient` may be `a`.
Limb divideLimb(Limb* quotient, Limb const* a, std::size_t count, Limb divisor) noexcept;
/// a modulo the divisor.
Limb remainderLimb(Limb const* a, std::size_t count, Limb divisor) noexcept;
/// The same by two limbs, the upper one not zero, for count >= 2: quotient[0, count - 1), and
/// remainder[0, 2). `quotient` may be `a`.
void divideTwoLimbs(Limb* quotient, Limb* remainder, Limb const* a, std::size_t count,
                    Limb const* divisor) noexcept;

/// a / divisor: quotient[0, aCount - count), the remainder in a[0, count), whose limbs above
/// are zero afterwards. `divisor` has `count` >= 2 limbs with the top bit of the highest set, and
/// the top `count` limbs of a are below it.
void divideNormalized(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                      std::size_t count) noexcept;

/// As divideNormalized, and by halves where that is faster.
void divide(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor, std::size_t count,
            Limb* scratch) noexcept;
std::size_t divideScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
