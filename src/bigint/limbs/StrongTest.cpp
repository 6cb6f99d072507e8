// The witnesses are small, so their powers are taken from the exponent's top bit down: each window
// of bits costs its squarings and one multiplication by a limb, the witness to that digit.
#include "StrongTest.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

constexpr int widestWindow = 5;

/// The powers of a witness that fit a limb: witness^digit for all digits of `width` bits.
struct DigitPowers {
    explicit DigitPowers(Limb witness) noexcept {
        width = 1;
        table[1] = witness;
        while (width < widestWindow && widen(witness))
            ++width;
    }

    /// False where the last one of twice as many powers would not fit.
    bool widen(Limb witness) noexcept {
        std::size_t const known = std::size_t{1} << width;
        for (std::size_t digit = known; digit < 2 * known; ++digit) {
            DoubleLimb const next = DoubleLimb{table[digit - 1]} * witness;
            if (next >> bitsPerLimb != 0)
                return false;
            table[digit] = static_cast<Limb>(next);
        }
        return true;
    }

    int width;
    std::array<Limb, std::size_t{1} << widestWindow> table = {1};
};

/// `width` bits of a, from bit `low` up.
std::size_t bitsAt(Limb const* a, std::size_t count, long long low, int width) noexcept {
    auto const i = static_cast<std::size_t>(low / bitsPerLimb);
    DoubleLimb const above = i + 1 < count ? a[i + 1] : 0;
    DoubleLimb const pair = (above << bitsPerLimb) | a[i];
    return static_cast<std::size_t>(pair >> (low % bitsPerLimb)) & ((std::size_t{1} << width) - 1);
}

/// The upper limb of high:low << shift, for a shift below 64.
Limb shiftedUp(Limb high, Limb low, int shift) noexcept {
    return static_cast<Limb>((((DoubleLimb{high} << bitsPerLimb) | low) << shift) >> bitsPerLimb);
}

/// How often 2 divides n - 1, for an odd n above 1.
long long twosBelow(Limb const* n) noexcept {
    if (n[0] != 1)
        return std::countr_zero(n[0] - 1);
    std::size_t i = 1;
    while (n[i] == 0)
        ++i;
    return static_cast<long long>(i) * bitsPerLimb + std::countr_zero(n[i]);
}

}  // namespace

std::size_t strongTestScratch(std::size_t count) noexcept {
    return 4 * count + 1 + montgomeryScratch(count);
}

StrongTest::StrongTest(Limb const* number, std::size_t limbCount, Limb* scratch) noexcept
    : n(number), count(limbCount), shift(std::countl_zero(n[count - 1])), twos(twosBelow(n)),
      one(scratch), minusOne(one + count), complement(minusOne + count), power(complement + count),
      context(n, count, power + count + 1) {
    std::fill(power, power + count, Limb{0});
    subtract(complement, power, n, count);
    power[0] = 1;
    context.enter(one, power);
    subtract(minusOne, n, one, count);
}

// Up to s squarings are documented, one more than the textbook has, and s - 1 give the same
// verdict: witness^(n-1) = -1 (mod n) is impossible. It would make the order of the witness modulo
// each prime factor r of n a multiple of 2^(s+1), and so each r, and n itself, 1 modulo 2^(s+1);
// but n - 1 has just s factors of two.
bool StrongTest::passes(Limb witness) noexcept {
    raiseToOddPart(witness);
    if (isEqual(one) || isEqual(minusOne))
        return true;
    for (long long j = 1; j < twos; ++j) {
        context.squareTimes(power, 1);
        if (isEqual(minusOne))
            return true;
    }
    return false;
}

template <typename Number>
bool ShortStrongTest<Number>::passes(Limb witness) const noexcept {
    // Three bits at a time, without branches.
    constexpr int width = 3;
    std::array<Number, std::size_t{1} << width> powers{one, montgomery.enter(witness % n)};
    for (std::size_t digit = 2; digit < powers.size(); ++digit)
        powers[digit] = montgomery.multiply(powers[digit - 1], powers[1]);
    int low = highestBit(oddPart) / width * width;
    Number power = powers[static_cast<std::size_t>(oddPart >> low)];
    while (low > 0) {
        low -= width;
        for (int i = 0; i < width; ++i)
            power = montgomery.multiply(power, power);
        auto const digit = static_cast<std::size_t>(oddPart >> low) % powers.size();
        power = montgomery.multiply(power, powers[digit]);
    }
    if (power == one || power == n - one)
        return true;
    for (int j = 1; j < twos; ++j) {
        power = montgomery.multiply(power, power);
        if (power == n - one)
            return true;
    }
    return false;
}

template class ShortStrongTest<Limb>;
template class ShortStrongTest<DoubleLimb>;

void StrongTest::raiseToOddPart(Limb witness) noexcept {
    DigitPowers const powers(witness);
    long long const bits = static_cast<long long>(count) * bitsPerLimb - shift;
    // The first window takes what the others leave over.
    int width = static_cast<int>((bits - twos - 1) % powers.width) + 1;
    long long low = bits - width;
    std::copy(one, one + count, power);
    multiplyLimb(powers.table[bitsAt(n, count, low, width)]);
    for (width = powers.width; low > twos;) {
        low -= width;
        context.squareTimes(power, width);
        multiplyLimb(powers.table[bitsAt(n, count, low, width)]);
    }
}

/// power *= factor, modulo n.
///
/// The quotient comes from the leading 64 bits of n, rounded up, and the leading 128 bits of the
/// product, rounded down. So it is never too high; and it is at most 5 too low, since those bits,
/// u and d, have u / d - u / (d + 1) < 2^128 / 2^126.
void StrongTest::multiplyLimb(Limb factor) noexcept {
    Limb const top = limbs::multiplyLimb(power, power, count, factor);
    DoubleLimb const leading = (DoubleLimb{shiftedUp(top, power[count - 1], shift)} << bitsPerLimb)
                               | shiftedUp(power[count - 1], power[count - 2], shift);
    DoubleLimb const divisor = DoubleLimb{shiftedUp(n[count - 1], n[count - 2], shift)} + 1;
    Limb const quotient = static_cast<Limb>(leading / divisor);
    // complement is 2^(64 count) - n: adding it so often takes n away, but for the limb above.
    Limb above = top + addMultiply(power, complement, count, quotient) - quotient;
    while (above != 0 || compare(power, n, count) >= 0)
        above -= subtract(power, power, n, count);
}

bool StrongTest::isEqual(Limb const* a) const noexcept {
    return compare(power, a, count) == 0;
}

}  // namespace qel::limbs
