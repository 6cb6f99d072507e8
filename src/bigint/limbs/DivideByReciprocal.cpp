// Long quotients by a reciprocal of the divisor, which Newton's iteration gives (Brent and
// Zimmermann, "Modern Computer Arithmetic", 2010, Algorithm 3.5). Products of which all but the
// lower part is known are taken modulo B^L - 1 for B = 2^64 (section 3.4.1 there), and numbers that
// are factors more than once are transformed once.
#include "DivideByReciprocal.h"

#include "DivideByHalves.h"
#include "Thresholds.h"
#include "Transform.h"

#include <algorithm>

namespace qel::limbs {

namespace {

/// The sign of a number in two's complement, by its highest limb.
constexpr bool isNegative(Limb highest) noexcept {
    return highest >> (bitsPerLimb - 1) != 0;
}

/// A number modulo B^length - 1, which has two forms of zero.
class Residue {
  public:
    Residue(Limb* memory, std::size_t limbCount) noexcept : limbs(memory), length(limbCount) {}

    /// a, of at most twice the length.
    void assign(Limb const* a, std::size_t count) noexcept {
        std::size_t const lower = std::min(count, length);
        std::copy(a, a + lower, limbs);
        std::fill(limbs + lower, limbs + length, Limb{0});
        if (count == lower)
            return;
        std::size_t const upper = count - lower;
        Limb const carry = add(limbs, limbs, a + lower, upper);
        addLimb(limbs, limbs, length, addLimb(limbs + upper, limbs + upper, length - upper, carry));
    }

    void subtract(Limb const* b) noexcept {
        subtractLimb(limbs, limbs, length, limbs::subtract(limbs, limbs, b, length));
    }

    /// This number becomes B^exponent less this.
    void subtractFromPower(std::size_t exponent) noexcept {
        Limb* const at = limbs + exponent % length;
        Limb const borrow = subtractLimb(at, at, length - exponent % length, 1);
        subtractLimb(limbs, limbs, length, borrow);
        for (std::size_t i = 0; i < length; ++i)
            limbs[i] = ~limbs[i];
    }

    /// Leaves the number that is small in size, in two's complement.
    void settle() noexcept {
        if (isNegative(limbs[length - 1]))
            addLimb(limbs, limbs, length, 1);
    }

  private:
    Limb* limbs;
    std::size_t length;
};

/// One step of Newton's iteration: with the upper limbs of a and of X known, the `lower` ones.
///
/// For the upper part Y = B^h + y of X, before its correction, a Y is less than 2 B^n away from
/// B^(n + h), so that n + 3 limbs tell the difference E, signed. At most 4 times it is below 0, and
/// Y is too large; it is never 0, as then a and Y would be powers of two, Y = B^h and a = B^n. Then
/// the lower part is that of E Y / B^(2 h), for which the limbs of E from `lower` on are enough.
void refine(Limb* x, Limb const* a, std::size_t count, std::size_t lower, Limb* scratch) noexcept {
    std::size_t const upper = count - lower;
    Shape const shape = cyclicShape(count + 3);
    Limb* const yImage = scratch;
    Limb* const image = yImage + shape.imageLimbs();
    Limb* const e = image + shape.imageLimbs();
    Limb* const product = e + shape.length;
    TransformTables const tables(product + shape.length, shape.nodes());

    std::copy(x + lower, x + count, product);
    product[upper] = 1;
    tables.take(yImage, shape, product, upper + 1);
    tables.take(image, shape, a, count);
    tables.multiply(e, shape, image, yImage);
    Residue difference(e, shape.length);
    difference.subtractFromPower(count + upper);
    difference.settle();
    Limb tooLarge = 0;
    for (; isNegative(e[count]); ++tooLarge)
        e[count] += add(e, e, a, count);

    Limb const* const leading = e + lower;
    tables.take(image, shape, leading, upper + 1);
    tables.multiply(product, shape, image, yImage);
    for (Limb i = 0; i < tooLarge; ++i) {
        Limb const borrow = subtract(product, product, leading, upper + 1);
        subtractLimb(product + upper + 1, product + upper + 1, upper, borrow);
    }
    Limb const* const quotient = product + 2 * upper - lower;
    std::copy(quotient, quotient + lower, x);
    subtractLimb(x + lower, x + lower, upper, tooLarge);
    addLimb(x + lower, x + lower, upper, quotient[lower]);
}

/// The needs of `refine`.
std::size_t refineScratch(std::size_t count) noexcept {
    Shape const shape = cyclicShape(count + 3);
    return 2 * shape.imageLimbs() + 2 * shape.length + TransformTables::limbs(shape.nodes());
}

/// The digits of a block: so many that blocks are about equal, and at most half the divisor's.
std::size_t blockDigits(std::size_t digits, std::size_t count) noexcept {
    std::size_t const most = count - count / 2;
    std::size_t const blocks = (digits - 1) / most + 1;
    return (digits - 1) / blocks + 1;
}

/// Quotients of up to `digits` digits by one divisor. With X from the k = `digits` upper limbs d of
/// the divisor and R those of the dividend, floor(R X / B^k) is off by a few at most: R X / B^k is
/// above R B^k / d - 2 and below R B^k / d, and what d and R leave out changes a quotient by less
/// than 2 each, as d >= B^k / 2. So one limb more than the divisor's tells the remainder, signed.
class BlockDivision {
  public:
    BlockDivision(Limb const* divisorLimbs, std::size_t divisorCount, std::size_t blockDigits,
                  Limb* scratch) noexcept
        : divisor(divisorLimbs), count(divisorCount), digits(blockDigits),
          estimates(productShape(digits)), remainders(cyclicShape(count + 1)),
          inverseImage(scratch), divisorImage(inverseImage + estimates.imageLimbs()),
          image(divisorImage + remainders.imageLimbs()),
          product(image + std::max(estimates.imageLimbs(), remainders.imageLimbs())),
          rest(product + std::max(estimates.length, remainders.length)),
          tables(rest + remainders.length, std::max(estimates.nodes(), remainders.nodes())) {}

    static std::size_t scratch(std::size_t count, std::size_t digits) noexcept {
        Shape const estimates = productShape(digits);
        Shape const remainders = cyclicShape(count + 1);
        return estimates.imageLimbs() + remainders.imageLimbs()
               + std::max(estimates.imageLimbs(), remainders.imageLimbs())
               + std::max(estimates.length, remainders.length) + remainders.length
               + TransformTables::limbs(std::max(estimates.nodes(), remainders.nodes()));
    }

    /// With the reciprocal of the divisor's upper limbs.
    void prepare(Limb const* inverse) const noexcept {
        tables.take(inverseImage, estimates, inverse, digits);
        tables.take(divisorImage, remainders, divisor, count);
    }

    /// quotient[0, places) = a[0, count + places) / divisor, for places <= digits; the remainder
    /// stays in a, with zeros above.
    void divide(Limb* quotient, Limb* a, std::size_t places) const noexcept {
        estimate(quotient, a + count + places - digits, places);
        tables.take(image, remainders, quotient, places);
        tables.multiply(product, remainders, image, divisorImage);
        Residue remainder(rest, remainders.length);
        remainder.assign(a, count + places);
        remainder.subtract(product);
        remainder.settle();
        correct(quotient, places);
        std::copy(rest, rest + count, a);
        std::fill(a + count, a + count + places, Limb{0});
    }

  private:
    /// From the upper limbs R of the dividend. They are at most the divisor's d, and X is at most
    /// (B^(2k) - 1) / d, so that R X / B^k is below B^k: the sum does not carry.
    void estimate(Limb* quotient, Limb const* upper, std::size_t places) const noexcept {
        tables.take(image, estimates, upper, digits);
        tables.multiply(product, estimates, image, inverseImage);
        Limb* const high = product + digits;
        add(high, high, upper, digits);
        std::copy(high + digits - places, high + digits, quotient);
    }

    void correct(Limb* quotient, std::size_t places) const noexcept {
        Limb& top = rest[count];
        while (isNegative(top)) {
            top += add(rest, rest, divisor, count);
            subtractLimb(quotient, quotient, places, 1);
        }
        while (top != 0 || compare(rest, divisor, count) >= 0) {
            top -= subtract(rest, rest, divisor, count);
            addLimb(quotient, quotient, places, 1);
        }
    }

    Limb const* divisor;
    std::size_t count;
    std::size_t digits;
    Shape estimates;
    Shape remainders;
    Limb* inverseImage;
    Limb* divisorImage;
    Limb* image;
    Limb* product;
    Limb* rest;
    TransformTables tables;
};

}  // namespace

// Enough for either way, at every length: each step of Newton's iteration needs more than those
// before it.
std::size_t reciprocalScratch(std::size_t count) noexcept {
    return std::max(2 * count + divideByHalvesScratch(count), refineScratch(count));
}

// X = floor((B^2n - 1) / a), whose dividend is B^n (B^n - 1 - a) + (B^n - 1) after B^n a is taken
// away.
void reciprocalByDivision(Limb* x, Limb const* a, std::size_t count, Limb* scratch) noexcept {
    std::fill(scratch, scratch + count, ~Limb{0});
    for (std::size_t i = 0; i < count; ++i)
        scratch[count + i] = ~a[i];
    divideByHalves(x, scratch, 2 * count, a, count, scratch + 2 * count);
}

void reciprocalByNewton(Limb* x, Limb const* a, std::size_t count, Limb* scratch) noexcept {
    std::size_t const lower = (count - 1) / 2;
    reciprocal(x + lower, a + lower, count - lower, scratch);
    refine(x, a, count, lower, scratch);
}

void reciprocal(Limb* x, Limb const* a, std::size_t count, Limb* scratch) noexcept {
    if (count < reciprocalNewton)
        reciprocalByDivision(x, a, count, scratch);
    else
        reciprocalByNewton(x, a, count, scratch);
}

// Blocks of half the divisor's limbs need the most.
std::size_t divideByReciprocalScratch(std::size_t count) noexcept {
    std::size_t const digits = blockDigits(count, count);
    return digits + std::max(reciprocalScratch(digits), BlockDivision::scratch(count, digits));
}

void divideByReciprocal(Limb* quotient, Limb* a, std::size_t aCount, Limb const* divisor,
                        std::size_t count, Limb* scratch) noexcept {
    std::size_t const digits = blockDigits(aCount - count, count);
    Limb* const inverse = scratch;
    reciprocal(inverse, divisor + count - digits, digits, scratch + digits);
    BlockDivision const blocks(divisor, count, digits, scratch + digits);
    blocks.prepare(inverse);
    std::size_t done = aCount - count;
    for (std::size_t places = (done - 1) % digits + 1; done != 0; places = digits) {
        done -= places;
        blocks.divide(quotient + done, a + done, places);
    }
}

}  // namespace qel::limbs
