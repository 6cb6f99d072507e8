// Quotients and remainders by one limb and by two.
#include "Limbs.h"
#include "Reciprocal.h"
#include "Thresholds.h"

#include <algorithm>
#include <bit>

namespace qel::limbs {

namespace {

/// A number shifted up as its divisor is, limb by limb.
class Shifted {
  public:
    explicit Shifted(Limb top) noexcept : shift(std::countl_zero(top)) {}

    [[nodiscard]] Limb operator()(Limb limb, Limb below) const noexcept {
        return (limb << shift) | (below >> 1 >> (bitsPerLimb - 1 - shift));
    }

    int const shift;
};

/// Divides by one limb from the top down. A remainder is kept shifted, with the top bits of the
/// limb below it.
class ByLimb {
  public:
    explicit ByLimb(Limb divisor) noexcept
        : shifted(divisor), d(divisor << shifted.shift), inverse(reciprocal(d)) {}

    /// The quotient's digit for this limb; returns the remainder.
    [[nodiscard]] Limb digit(Limb& quotient, Limb rest, Limb limb, Limb below) const noexcept {
        ShortQuotient const result = divideTwoByOne(rest, shifted(limb, below), d, inverse);
        quotient = result.quotient;
        return result.remainder;
    }

    Shifted const shifted;

  private:
    Limb const d;
    Limb const inverse;
};

Limb divideLimbDirectly(Limb* quotient, Limb const* a, std::size_t count, Limb divisor) noexcept {
    Limb rest = a[count - 1] % divisor;
    quotient[count - 1] = a[count - 1] / divisor;
    for (std::size_t i = count - 1; i-- > 0;) {
        ShortQuotient const digit = divideDirectly(rest, a[i], divisor);
        quotient[i] = digit.quotient;
        rest = digit.remainder;
    }
    return rest;
}

Limb divideByPower(Limb* quotient, Limb const* a, std::size_t count, Limb powerOfTwo) noexcept {
    Limb const rest = a[0] & (powerOfTwo - 1);
    if (powerOfTwo == 1)
        std::copy(a, a + count, quotient);
    else
        shiftRight(quotient, a, count, std::countr_zero(powerOfTwo));
    return rest;
}

/// Divisors below are taken by folding.
constexpr Limb foldedDivisors = Limb{1} << 60;

/// a modulo d, for d < 2^60 (P. Montgomery's way, as in Moeller and Granlund's section on
/// remainders): eight limbs at a time are multiplied with the powers of 2^64 modulo d, whose
/// products wait for nothing.
///
/// A power is reduced once it reaches 2^60, so that small divisors need none of it. What is folded,
/// one limb and nine products, is below 2^64 + 9 * 2^124 < 2^128.
Limb foldedRemainder(Limb const* a, std::size_t count, Limb d) noexcept {
    constexpr std::size_t width = 8;
    Limb powers[width + 2] = {1, (0 - d) % d};
    // Of nine limbs the last is folded alone, with nothing in the upper limb of its sum.
    std::size_t const needed = std::min(count, width + 2);
    for (std::size_t j = 2; j < needed; ++j) {
        DoubleLimb const power = DoubleLimb{powers[j - 1]} * powers[1];
        // Its upper limb is below d, as powers[1] is.
        powers[j] = power < foldedDivisors ? low(power)
                                           : divideDirectly(high(power), low(power), d).remainder;
    }
    auto const block = [&](std::size_t first, std::size_t limbs) {
        DoubleLimb sum = a[first];
        for (std::size_t j = 1; j < limbs; ++j)
            sum += DoubleLimb{a[first + j]} * powers[j];
        return sum;
    };
    std::size_t i = (count - 1) / width * width;
    DoubleLimb sum = block(i, count - i);
    // Each block is ready before the sum above it: only the fold waits.
    for (DoubleLimb next = i == 0 ? 0 : block(i - width, width); i > 0; i -= width) {
        sum =
            next + DoubleLimb{low(sum)} * powers[width] + DoubleLimb{high(sum)} * powers[width + 1];
        if (i > width)
            next = block(i - 2 * width, width);
    }
    // Below (2^64 - 1) (d - 1) + 2^64 <= 2^64 d, whose upper limb is below d.
    sum = DoubleLimb{high(sum)} * powers[1] + low(sum);
    return divideDirectly(high(sum), low(sum), d).remainder;
}

/// Divides the lower half beside the upper one, from whose remainder it starts: each digit waits
/// for the one before, which leaves the processor time for two.
Limb divideInHalves(Limb* quotient, Limb const* a, std::size_t count, Limb divisor) noexcept {
    ByLimb const by(divisor);
    std::size_t const lower = count / 2;
    Limb const below = a[lower - 1];  // the quotient may be a
    Limb upperRest = by.shifted(0, a[count - 1]);
    Limb rest = by.shifted(foldedRemainder(a + lower, count - lower, divisor), below);
    std::size_t i = count - 1;
    for (std::size_t j = lower - 1; j > 0; --i, --j) {
        upperRest = by.digit(quotient[i], upperRest, a[i], a[i - 1]);
        rest = by.digit(quotient[j], rest, a[j], a[j - 1]);
    }
    for (; i > lower; --i)
        upperRest = by.digit(quotient[i], upperRest, a[i], a[i - 1]);
    static_cast<void>(by.digit(quotient[lower], upperRest, a[lower], below));
    return by.digit(quotient[0], rest, a[0], 0) >> by.shifted.shift;
}

}  // namespace

Limb remainderLimb(Limb const* a, std::size_t count, Limb divisor) noexcept {
    if (divisor < foldedDivisors && count >= remainderFold)
        return foldedRemainder(a, count, divisor);
    Limb rest = a[count - 1] % divisor;
    for (std::size_t i = count - 1; i-- > 0;)
        rest = divideDirectly(rest, a[i], divisor).remainder;
    return rest;
}

Limb divideLimb(Limb* quotient, Limb const* a, std::size_t count, Limb divisor) noexcept {
    if ((divisor & (divisor - 1)) == 0)
        return divideByPower(quotient, a, count, divisor);
    if (count < divideLimbReciprocal)
        return divideLimbDirectly(quotient, a, count, divisor);
    if (divisor < foldedDivisors && count >= divideLimbSplit)
        return divideInHalves(quotient, a, count, divisor);
    ByLimb const by(divisor);
    Limb rest = by.shifted(0, a[count - 1]);
    for (std::size_t i = count - 1; i > 0; --i)
        rest = by.digit(quotient[i], rest, a[i], a[i - 1]);
    return by.digit(quotient[0], rest, a[0], 0) >> by.shifted.shift;
}

void divideTwoLimbs(Limb* quotient, Limb* remainder, Limb const* a, std::size_t count,
                    Limb const* divisor) noexcept {
    Shifted const shifted(divisor[1]);
    DoubleLimb const d = join(shifted(divisor[1], divisor[0]), shifted(divisor[0], 0));
    Limb const inverse = reciprocalOfTwo(high(d), low(d));
    // The limb above is below 2^shift, and so below the divisor's upper one.
    Limb const above = shifted(0, a[count - 1]);
    DoubleLimb rest = join(above, shifted(a[count - 1], a[count - 2]));
    std::size_t i = count - 2;
    if (above == 0) {
        // Then the first digit is 0 or 1.
        rest = join(low(rest), shifted(a[i], i == 0 ? 0 : a[i - 1]));
        quotient[i] = rest >= d ? 1 : 0;
        Limb const mask = 0 - quotient[i];
        rest -= join(high(d) & mask, low(d) & mask);
    } else {
        ++i;
    }
    while (i-- > 0) {
        Limb const next = shifted(a[i], i == 0 ? 0 : a[i - 1]);
        quotient[i] = divideThreeByTwo(high(rest), low(rest), next, d, inverse, rest);
    }
    rest >>= shifted.shift;
    remainder[0] = low(rest);
    remainder[1] = high(rest);
}

}  // namespace qel::limbs
