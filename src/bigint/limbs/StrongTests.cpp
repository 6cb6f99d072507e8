// Strong tests in eight lanes: the powers base^(modulus >> i), for i going down, with windows of
// the exponents' bits as far as no lane has to be looked at, and bit by bit from there.
//
// A product with a digit is a product with digit / 2^52. So that the 2^52 need not be made up for,
// a power y is represented by y * 2^e * R, with an e that a window of any width w leaves as it is:
// after w squarings there is (2^e)^(2^w), and multiplying by
//     base^bits * 2^(52 - e * (2^w - 1)) / 2^52
// makes it 2^e again. That factor is a digit while e * (2^w - 1) <= 52 and base < 2^e.
#include "StrongTests.h"

#include "Montgomery.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

constexpr std::size_t alignment = 64 / sizeof(Limb);
constexpr int widestWindow = 4;

struct Window {
    int width;
    int e;
};

/// The widest window for bases up to this one, with the largest e for it.
Window windowFor(Limb largestBase) noexcept {
    Window window{widestWindow, 0};
    for (;; --window.width) {
        window.e = bitsPerDigit / ((1 << window.width) - 1);
        if ((largestBase >> window.e) == 0)
            return window;
    }
}

std::size_t blocksFor(std::size_t count) noexcept {
    // R has four bits more than any modulus.
    std::size_t const bits = bitsPerLimb * count + 4;
    return (bits + bitsPerBlock - 1) / bitsPerBlock;
}

/// 64 bits of a, from this one up.
Limb bitsFrom(Limb const* a, std::size_t count, std::size_t position) noexcept {
    std::size_t const limb = position / bitsPerLimb;
    std::size_t const shift = position % bitsPerLimb;
    Limb bits = limb < count ? a[limb] >> shift : 0;
    if (shift != 0 && limb + 1 < count)
        bits |= a[limb + 1] << (bitsPerLimb - shift);
    return bits;
}

/// Limbs to the digits of one lane.
void spread(Limb* digits, std::size_t digitCount, Limb const* a, std::size_t count) noexcept {
    for (std::size_t i = 0; i < digitCount; ++i)
        digits[lanes * i] = bitsFrom(a, count, bitsPerDigit * i) & digitMask;
}

/// The digits of one lane to limbs, for a number that has room in them.
void join(Limb* out, std::size_t count, Limb const* digits, std::size_t digitCount) noexcept {
    std::fill(out, out + count, Limb{0});
    for (std::size_t i = 0; i < digitCount; ++i) {
        Limb const digit = digits[lanes * i] & digitMask;
        std::size_t const limb = bitsPerDigit * i / bitsPerLimb;
        std::size_t const shift = bitsPerDigit * i % bitsPerLimb;
        if (limb < count)
            out[limb] |= digit << shift;
        if (shift + bitsPerDigit > bitsPerLimb && limb + 1 < count)
            out[limb + 1] |= digit >> (bitsPerLimb - shift);
    }
}

/// What is to be divided, and its quotient, have up to so many limbs more than the modulus.
constexpr std::size_t excess = 12;

/// out[0, count) = 2^exponent modulo a number of `count` limbs, for a power up to 2^52 R^... that
/// is not shorter than the number.
void powerOfTwo(Limb* out, std::size_t exponent, Limb const* modulus, std::size_t count,
                Limb* scratch) noexcept {
    std::size_t const used = significant(modulus, count);
    Limb* const divisor = scratch;
    Limb* const dividend = divisor + count;
    Limb* const quotient = dividend + count + excess;
    int const shift = std::countl_zero(modulus[used - 1]);
    std::size_t const top = exponent + static_cast<std::size_t>(shift);
    std::size_t const length = top / bitsPerLimb + 2;
    std::fill(dividend, dividend + length, Limb{0});
    dividend[top / bitsPerLimb] = Limb{1} << (top % bitsPerLimb);
    std::copy(modulus, modulus + used, divisor);
    if (shift != 0)
        shiftLeft(divisor, divisor, used, shift);
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

std::size_t bitLength(Limb const* a, std::size_t count) noexcept {
    std::size_t const used = significant(a, count);
    return bitsPerLimb * used - static_cast<std::size_t>(std::countl_zero(a[used - 1]));
}

/// s, where modulus - 1 = odd * 2^s.
std::size_t twos(Limb const* modulus) noexcept {
    if (modulus[0] > 1)
        return static_cast<std::size_t>(std::countr_zero(modulus[0] - 1));
    std::size_t limb = 1;
    while (modulus[limb] == 0)
        ++limb;
    return bitsPerLimb * limb + static_cast<std::size_t>(std::countr_zero(modulus[limb]));
}

/// One call of passStrongTests.
class StrongTests {
  public:
    StrongTests(Limb const* const* m, std::size_t limbCount, Limb const* bases,
                Limb* scratch) noexcept;
    unsigned run() noexcept;

  private:
    void prepareModuli() noexcept;
    void start(int width) noexcept;
    void multiplyWindow(std::size_t position, int width) noexcept;
    void look(std::size_t position) noexcept;
    [[nodiscard]] bool laneHasPassed(std::size_t lane, bool mayBeOne) noexcept;

    Limb const* const* moduli;
    std::size_t count;
    std::size_t digits;
    Window window;
    std::array<std::size_t, lanes> s;
    /// Powers of the bases: lane, exponent.
    std::array<std::array<Limb, std::size_t{1} << widestWindow>, lanes> powers;
    LaneKernels const& kernels;
    LaneModuli context;
    Limb* modulusDigits;
    Limb* inverseOfDigit;
    Limb* inverseOfBlock;
    Limb* y;
    Limb* kernelScratch;
    Limb* negatedInverses;
    Limb* factor;
    /// 2^e * R for each lane, what 1 is represented by; in limbs.
    Limb* ones;
    Limb* rest;
    unsigned passed = 0;
};

StrongTests::StrongTests(Limb const* const* m, std::size_t limbCount, Limb const* bases,
                         Limb* scratch) noexcept
    : moduli(m), count(limbCount), digits(blocksFor(limbCount) * digitsPerBlock),
      window(windowFor(*std::max_element(bases, bases + lanes))), kernels(laneKernels()) {
    auto const address = reinterpret_cast<std::uintptr_t>(scratch) / sizeof(Limb);
    Limb* next = scratch + (alignment - address % alignment) % alignment;
    auto const take = [&next](std::size_t size) {
        Limb* const taken = next;
        next += size;
        return taken;
    };
    modulusDigits = take(lanes * digits);
    inverseOfDigit = take(lanes * digits);
    inverseOfBlock = take(lanes * digits);
    y = take(lanes * digits);
    kernelScratch = take(laneKernelScratch(blocksFor(count)));
    negatedInverses = take(lanes);
    factor = take(lanes);
    ones = take(lanes * count);
    rest = next;
    context = {blocksFor(count), modulusDigits, inverseOfDigit, inverseOfBlock, negatedInverses};
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        s[lane] = twos(moduli[lane]);
        powers[lane][0] = 1;
        for (std::size_t i = 1; i < std::size_t{1} << window.width; ++i)
            powers[lane][i] = powers[lane][i - 1] * bases[lane];
    }
}

void StrongTests::prepareModuli() noexcept {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        spread(modulusDigits + lane, digits, moduli[lane], count);
        negatedInverses[lane] = negatedInverse(moduli[lane][0]) & digitMask;
        powerOfTwo(ones + lane * count, bitsPerDigit * digits + static_cast<std::size_t>(window.e),
                   moduli[lane], count, rest);
    }
    // From 1, each product with 1 is a division by 2^52.
    std::fill(factor, factor + lanes, Limb{1});
    std::fill(y, y + lanes * digits, Limb{0});
    std::fill(y, y + lanes, Limb{1});
    kernels.multiplyDigit(y, context, factor, kernelScratch);
    std::copy(y, y + lanes * digits, inverseOfDigit);
    for (std::size_t i = 1; i < digitsPerBlock; ++i)
        kernels.multiplyDigit(y, context, factor, kernelScratch);
    std::copy(y, y + lanes * digits, inverseOfBlock);
}

/// y = 1, squared as often as a window of this width wants it.
void StrongTests::start(int width) noexcept {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        powerOfTwo(rest, bitsPerDigit * digits + (static_cast<std::size_t>(window.e) << width),
                   moduli[lane], count, rest + count);
        spread(y + lane, digits, rest, count);
    }
}

/// y *= base^(the bits of the exponent from this position), after as many squarings.
void StrongTests::multiplyWindow(std::size_t position, int width) noexcept {
    Limb const mask = (Limb{1} << width) - 1;
    int const shift = bitsPerDigit - window.e * static_cast<int>(mask);
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        Limb const bits = bitsFrom(moduli[lane], count, position) & mask;
        factor[lane] = powers[lane][bits] << shift;
    }
    kernels.multiplyDigit(y, context, factor, kernelScratch);
}

/// Whether y is -1, or 1 where it may be.
bool StrongTests::laneHasPassed(std::size_t lane, bool mayBeOne) noexcept {
    Limb const* const modulus = moduli[lane];
    Limb const* const one = ones + lane * count;
    Limb* const value = rest;
    join(value, count + 1, y + lane, digits);
    while (value[count] != 0 || compare(value, modulus, count) >= 0)
        value[count] -= subtract(value, value, modulus, count);
    if (mayBeOne && compare(value, one, count) == 0)
        return true;
    subtract(value, modulus, value, count);
    return compare(value, one, count) == 0;
}

/// With y = base^(modulus >> position), the lanes that have reached their d are judged.
void StrongTests::look(std::size_t position) noexcept {
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        if (s[lane] >= position && laneHasPassed(lane, s[lane] == position))
            passed |= 1U << lane;
    }
}

unsigned StrongTests::run() noexcept {
    prepareModuli();
    std::size_t length = 0;
    for (std::size_t lane = 0; lane < lanes; ++lane)
        length = std::max(length, bitLength(moduli[lane], count));
    std::size_t const largest = *std::max_element(s.begin(), s.end());
    auto const width = static_cast<std::size_t>(window.width);

    std::size_t const first = 1 + (length - largest - 1) % width;
    std::size_t position = length - first;
    start(static_cast<int>(first));
    multiplyWindow(position, static_cast<int>(first));
    while (position > largest) {
        kernels.square(y, context, window.width, kernelScratch);
        position -= width;
        multiplyWindow(position, window.width);
    }
    constexpr unsigned all = (1U << lanes) - 1;
    for (look(position); position > 1 && passed != all; look(position)) {
        kernels.square(y, context, 1, kernelScratch);
        --position;
        multiplyWindow(position, 1);
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
    return alignment + 4 * blocks * limbsPerBlock + laneKernelScratch(blocks) + 2 * lanes
           + lanes * count + 4 * count + 2 * excess;
}

}  // namespace qel::limbs
