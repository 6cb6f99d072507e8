// Long quotients by halves (Burnikel and Ziegler, "Fast recursive division", 1998): the upper part
// of the divisor gives the quotient's digits, a fast product takes the lower part into account.
#include "DivideByHalves.h"

#include "DivideByReciprocal.h"
#include "Thresholds.h"

#include <algorithm>

namespace qel::limbs {

namespace {

void divideBlock(Limb* quotient, Limb* a, Limb const* divisor, std::size_t count,
                 std::size_t digits, Limb* scratch) noexcept;

/// a -= quotient * the lower limbs of the divisor, for a remainder a[0, count) by the upper ones,
/// with `carry` above. The quotient may be too large, by two at most as the divisor's highest bit
/// is set (Burnikel and Ziegler, section 2); it never is too small, so that the last a fits its
/// limbs.
void correct(Limb* quotient, std::size_t digits, Limb* a, Limb carry, Limb const* divisor,
             std::size_t count, Limb* scratch) noexcept {
    std::size_t const lower = count - digits;
    Limb* const product = scratch;
    if (lower > digits)
        multiply(product, divisor, lower, quotient, digits, scratch + count);
    else
        multiply(product, quotient, digits, divisor, lower, scratch + count);
    Limb top = carry - subtract(a, a, product, count);  // 0, or -1 where the quotient is too large
    while (top != 0) {
        subtractLimb(quotient, quotient, digits, 1);
        top += add(a, a, divisor, count);
    }
}

/// quotient[0, digits) = a[0, count + digits) / divisor, for digits <= count and upper `count`
/// limbs of a below the divisor; the remainder stays in a, with zeros above.
void divideBlock(Limb* quotient, Limb* a, Limb const* divisor, std::size_t count,
                 std::size_t digits, Limb* scratch) noexcept {
    if (digits < divideSplit) {
        divideNormalized(quotient, a, count + digits, divisor, count);
        return;
    }
    if (digits < count) {
        divideByUpperPart(quotient, a, divisor, count, digits, scratch);
        return;
    }
    std::size_t const half = digits / 2;
    divideBlock(quotient + half, a + half, divisor, count, digits - half, scratch);
    divideBlock(quotient, a, divisor, count, half, scratch);
}

}  // namespace

void divideByUpperPart(Limb* quotient, Limb* a, Limb const* divisor, std::size_t count,
                       std::size_t digits, Limb* scratch) noexcept {
    std::size_t const lower = count - digits;
    Limb const* const upper = divisor + lower;
    Limb carry = 0;
    if (compare(a + count, upper, digits) < 0) {
        divideBlock(quotient, a + lower, upper, digits, digits, scratch);
    } else {
        // The upper parts are equal: the largest quotient, and the remainder
        // upper * B + rest - (B - 1) * upper = rest + upper for B = 2^(64 digits).
        std::fill(quotient, quotient + digits, ~Limb{0});
        std::fill(a + count, a + count + digits, Limb{0});
        carry = add(a + lower, a + lower, upper, digits);
    }
    correct(quotient, digits, a, carry, divisor, count, scratch);
}

// A product of `count` limbs and its needs: with b <= count / 2 limbs in the shorter factor these
// are 12b for slices, and 4b by parts or at most (4 + 4/3) * 3/2 points for each
// of 64/80 count + 4 coefficients: together below 13 count + 256.
std::size_t divideByHalvesScratch(std::size_t count) noexcept {
    return 14 * count + 256;
}

void divideByHalves(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                    std::size_t count, Limb* scratch) noexcept {
    std::size_t done = aCount - count;
    if (std::size_t const first = done % count; first != 0) {
        done -= first;
        divideBlock(quotient + done, a + done, divisor, count, first, scratch);
    }
    while (done != 0) {
        done -= count;
        divideBlock(quotient + done, a + done, divisor, count, count, scratch);
    }
}

std::size_t divideScratch(std::size_t count) noexcept {
    if (count < divideSplit)
        return 0;
    std::size_t const byHalves = divideByHalvesScratch(count);
    return count < divideReciprocal ? byHalves
                                    : std::max(byHalves, divideByReciprocalScratch(count));
}

void divide(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor, std::size_t count,
            Limb* scratch) noexcept {
    if (count < divideSplit)
        divideNormalized(quotient, a, aCount, divisor, count);
    else if (std::min(aCount - count, count) < divideReciprocal)
        divideByHalves(quotient, a, aCount, divisor, count, scratch);
    else
        divideByReciprocal(quotient, a, aCount, divisor, count, scratch);
}

}  // namespace qel::limbs
