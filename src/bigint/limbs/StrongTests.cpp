// Strong tests in eight lanes: the powers base^(modulus >> i), for i going down, by windows of the
// exponents' bits as long as no lane has to be looked at, and bit by bit from there.
//
// A product with a digit is divided by 2^52. So that this need not be made up for, a power y is
// represented by y * 2^e * R, with an e that a window of any width w leaves as it is: w squarings
// make it e * 2^w, and the window's factor is
//     base^bits * 2^(52 - e * (2^w - 1)),
// which is a digit while e * (2^w - 1) <= 52 and base < 2^e.
#include "StrongTests.h"

#include "Montgomery.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

constexpr std::size_t alignment = 64 / sizeof(Limb);

// --- numbers and lanes --------------------------------------------------------------------------

/// R has four bits more than any modulus.
std::size_t blocksFor(std::size_t count) noexcept {
    return (bitsPerLimb * count + 4 + bitsPerBlock - 1) / bitsPerBlock;
}

/// The digits of one lane, from limbs.
void spread(Limb* digits, std::size_t digitCount, Limb const* a, std::size_t count) noexcept {
    for (std::size_t i = 0; i < digitCount; ++i) {
        std::size_t const limb = bitsPerDigit * i / bitsPerLimb;
        std::size_t const shift = bitsPerDigit * i % bitsPerLimb;
        Limb digit = limb < count ? a[limb] >> shift : 0;
        if (shift + bitsPerDigit > bitsPerLimb && limb + 1 < count)
            digit |= a[limb + 1] << (bitsPerLimb - shift);
        digits[lanes * i] = digit & digitMask;
    }
}

/// Limbs from the digits of one lane, for a number that has room in them.
void join(Limb* out, std::size_t count, Limb const* digits, std::size_t digitCount) noexcept {
    std::fill(out, out + count, Limb{0});
    for (std::size_t i = 0; i < digitCount; ++i) {
        std::size_t const limb = bitsPerDigit * i / bitsPerLimb;
        std::size_t const shift = bitsPerDigit * i % bitsPerLimb;
        Limb const digit = digits[lanes * i] & digitMask;
        if (limb < count)
            out[limb] |= digit << shift;
        if (shift + bitsPerDigit > bitsPerLimb && limb + 1 < count)
            out[limb + 1] |= digit >> (bitsPerLimb - shift);
    }
}

/// The dividend of powerOfTwo has up to so many limbs more than the modulus: 2^exponent is at most
/// R * 2^104, and R has up to 264 bits more; then 63 bits of shift, and a limb of zeros.
constexpr std::size_t excess = 8;

/// out[0, count) = 2^exponent mod modulus, for a power that is not below the modulus.
void powerOfTwo(Limb* out, std::size_t exponent, Limb const* modulus, std::size_t count,
                Limb* scratch) noexcept {
    std::size_t const used = significant(modulus, count);
    int const shift = std::countl_zero(modulus[used - 1]);
    Limb* const divisor = scratch;
    Limb* const dividend = divisor + count;
    Limb* const quotient = dividend + count + excess;
    std::copy(modulus, modulus + used, divisor);
    if (shift != 0)
        shiftLeft(divisor, divisor, used, shift);
    std::size_t const bit = exponent + static_cast<std::size_t>(shift);
    std::size_t const length = bit / bitsPerLimb + 2;
    std::fill(dividend, dividend + length, Limb{0});
    dividend[bit / bitsPerLimb] = Limb{1} << (bit % bitsPerLimb);
    if (used == 1)
        dividend[0] = divideLimb(quotient, dividend, length, divisor[0]);
    else
        divideNormalized(quotient, dividend, length, divisor, used);
    std::fill(out, out + count, Limb{0});
    if (shift != 0)
        shiftRight(out, dividend, used, shift);
    else
        std::copy(dividend, dividend + used, out);
}
constexpr std::size_t powerOfTwoScratch(std::size_t count) noexcept {
    return 3 * count + 2 * excess;
}

std::size_t bitLength(Limb const* a, std::size_t count) noexcept {
    std::size_t const used = significant(a, count);
    return bitsPerLimb * used - static_cast<std::size_t>(std::countl_zero(a[used - 1]));
}

/// s, for odd - 1 = d * 2^s.
std::size_t twos(Limb const* odd) noexcept {
    if (odd[0] != 1)
        return static_cast<std::size_t>(std::countr_zero(odd[0] - 1));
    std::size_t limb = 1;
    while (odd[limb] == 0)
        ++limb;
    return bitsPerLimb * limb + static_cast<std::size_t>(std::countr_zero(odd[limb]));
}

// --- windows ------------------------------------------------------------------------------------

constexpr int widestWindow = 4;

struct Window {
    int width;
    int e;
};

/// The widest window for bases up to this one.
Window windowFor(Limb largestBase) noexcept {
    Window window{widestWindow, 0};
    for (;; --window.width) {
        window.e = bitsPerDigit / ((1 << window.width) - 1);
        if ((largestBase >> window.e) == 0)
            return window;
    }
}

// --- the tests ----------------------------------------------------------------------------------

/// One call of passStrongTests.
class StrongTests {
  public:
    StrongTests(Limb const* const* moduliOfLanes, std::size_t limbCount, Limb const* bases,
                Limb* scratch) noexcept;
    unsigned run() noexcept;

  private:
    void divideScratch(Limb* scratch) noexcept;
    void prepareModuli() noexcept;
    void prepareFactor(std::size_t position, int width) noexcept;
    void start(std::size_t position, int width) noexcept;
    void step(std::size_t position, int width) noexcept;
    void look(std::size_t position) noexcept;
    void reduce(Limb* out, std::size_t lane, Limb const* a) const noexcept;
    [[nodiscard]] bool isMinusOne(std::size_t lane, bool orOne) const noexcept;

    Limb const* const* moduli;
    std::size_t count;
    std::size_t digits;
    Window window;
    std::array<std::size_t, lanes> s;
    /// The powers of each lane's base that a window may ask for.
    std::array<std::array<Limb, std::size_t{1} << widestWindow>, lanes> powers;
    unsigned passed = 0;

    LaneKernels const& kernels;
    LaneModuli context;
    Limb* modulusDigits;
    Limb* inverseOfDigit;
    Limb* inverseOfBlock;
    Limb* negatedInverses;
    Limb* y;
    /// What represents 1; and reduced, in `count` limbs for each lane.
    Limb* one;
    Limb* ones;
    Limb* factor;
    Limb* kernelScratch;
    Limb* rest;
};

StrongTests::StrongTests(Limb const* const* moduliOfLanes, std::size_t limbCount, Limb const* bases,
                         Limb* scratch) noexcept
    : moduli(moduliOfLanes), count(limbCount), digits(blocksFor(limbCount) * digitsPerBlock),
      window(windowFor(*std::max_element(bases, bases + lanes))), kernels(laneKernels()) {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        s[lane] = twos(moduli[lane]);
        powers[lane][0] = 1;
        for (std::size_t i = 1; i < std::size_t{1} << window.width; ++i)
            powers[lane][i] = powers[lane][i - 1] * bases[lane];
    }
    divideScratch(scratch);
    prepareModuli();
}

void StrongTests::divideScratch(Limb* scratch) noexcept {
    auto const address = reinterpret_cast<std::uintptr_t>(scratch) / sizeof(Limb);
    scratch += (alignment - address % alignment) % alignment;
    for (Limb** const number : {&modulusDigits, &inverseOfDigit, &inverseOfBlock, &y, &one}) {
        *number = scratch;
        scratch += lanes * digits;
    }
    kernelScratch = scratch;
    negatedInverses = kernelScratch + laneKernelScratch(blocksFor(count));
    factor = negatedInverses + lanes;
    ones = factor + lanes;
    rest = ones + lanes * count;
    context = {blocksFor(count), modulusDigits, inverseOfDigit, inverseOfBlock, negatedInverses};
}

void StrongTests::prepareModuli() noexcept {
    std::fill(y, y + lanes * digits, Limb{0});
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        spread(modulusDigits + lane, digits, moduli[lane], count);
        negatedInverses[lane] = negatedInverse(moduli[lane][0]) & digitMask;
        y[lane] = 1;
        factor[lane] = 1;
    }
    // From 1, each product with 1 is a division by 2^52.
    kernels.multiplyDigit(y, context, factor, kernelScratch);
    std::copy(y, y + lanes * digits, inverseOfDigit);
    for (std::size_t i = 1; i < digitsPerBlock; ++i)
        kernels.multiplyDigit(y, context, factor, kernelScratch);
    std::copy(y, y + lanes * digits, inverseOfBlock);
}

/// The factor for a window of the exponents that begins at this position.
void StrongTests::prepareFactor(std::size_t position, int width) noexcept {
    Limb const mask = (Limb{1} << width) - 1;
    int const unused = bitsPerDigit - window.e * static_cast<int>(mask);
    int const shift = static_cast<int>(position % bitsPerDigit);
    Limb const* const digit = modulusDigits + position / bitsPerDigit * lanes;
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        Limb bits = digit[lane] >> shift;
        if (shift + width > bitsPerDigit)
            bits |= digit[lanes + lane] << (bitsPerDigit - shift);
        factor[lane] = powers[lane][bits & mask] << unused;
    }
}

/// y = base^(modulus >> position), for a position `width` bits below the top of the moduli.
void StrongTests::start(std::size_t position, int width) noexcept {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        powerOfTwo(rest, bitsPerDigit * digits + (static_cast<std::size_t>(window.e) << width),
                   moduli[lane], count, rest + count);
        spread(y + lane, digits, rest, count);
    }
    // No bits are set above the top: the factor there makes a 1 of it.
    prepareFactor(position + static_cast<std::size_t>(width), width);
    std::copy(y, y + lanes * digits, one);
    kernels.multiplyDigit(one, context, factor, kernelScratch);
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        reduce(rest, lane, one);
        std::copy(rest, rest + count, ones + lane * count);
    }
    prepareFactor(position, width);
    kernels.multiplyDigit(y, context, factor, kernelScratch);
}

/// From base^(modulus >> (position + width)) to base^(modulus >> position).
void StrongTests::step(std::size_t position, int width) noexcept {
    prepareFactor(position, width);
    kernels.square(y, context, width, kernelScratch);
    kernels.multiplyDigit(y, context, factor, kernelScratch);
}

/// out[0, count] = a mod modulus, of one lane.
void StrongTests::reduce(Limb* out, std::size_t lane, Limb const* a) const noexcept {
    join(out, count + 1, a + lane, digits);
    while (out[count] != 0 || compare(out, moduli[lane], count) >= 0)
        out[count] -= subtract(out, out, moduli[lane], count);
}

bool StrongTests::isMinusOne(std::size_t lane, bool orOne) const noexcept {
    Limb const* const oneOfLane = ones + lane * count;
    reduce(rest, lane, y);
    if (orOne && compare(rest, oneOfLane, count) == 0)
        return true;
    subtract(rest, moduli[lane], rest, count);
    return compare(rest, oneOfLane, count) == 0;
}

/// Judges the lanes whose modulus >> position is their d or a multiple of it.
void StrongTests::look(std::size_t position) noexcept {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        if (s[lane] >= position && isMinusOne(lane, s[lane] == position))
            passed |= 1U << lane;
    }
}

unsigned StrongTests::run() noexcept {
    std::size_t length = 0;
    for (std::size_t lane = 0; lane < lanes; ++lane)
        length = std::max(length, bitLength(moduli[lane], count));
    std::size_t const lookFrom = *std::max_element(s.begin(), s.end());
    auto const width = static_cast<std::size_t>(window.width);

    std::size_t const first = 1 + (length - lookFrom - 1) % width;
    std::size_t position = length - first;
    start(position, static_cast<int>(first));
    while (position > lookFrom) {
        position -= width;
        step(position, window.width);
    }
    constexpr unsigned all = (1U << lanes) - 1;
    for (look(position); position > 1 && passed != all; look(position)) {
        --position;
        step(position, 1);
    }
    return passed;
}

}  // namespace

unsigned passStrongTests(Limb const* const* moduli, std::size_t count, Limb const* bases,
                         Limb* scratch) noexcept {
    return StrongTests(moduli, count, bases, scratch).run();
}

std::size_t strongTestsScratch(std::size_t count) noexcept {
    std::size_t const blocks = blocksFor(count);
    return alignment + 5 * blocks * limbsPerBlock + laneKernelScratch(blocks) + 2 * lanes
           + (lanes + 1) * count + powerOfTwoScratch(count);
}

}  // namespace qel::limbs
