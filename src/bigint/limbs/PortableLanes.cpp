// The variant of the lanes for every processor: each lane by itself, a row of products at a time.
#include "LaneKernels.h"

#include <algorithm>

namespace qel::limbs {

namespace {

/// out[0, count] += digit * a[0, count), in one lane.
void addRow(Limb* out, Limb digit, Limb const* a, std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const product = DoubleLimb{digit & digitMask} * (a[lanes * i] & digitMask);
        out[lanes * i] += static_cast<Limb>(product) & digitMask;
        out[lanes * (i + 1)] += static_cast<Limb>(product >> bitsPerDigit);
    }
}

/// out[0, count) = the digits of the sums a, and nothing above them.
void carryDigits(Limb* out, Limb const* a, std::size_t count) noexcept {
    Limb carry = 0;
    for (std::size_t i = 0; i < count; ++i) {
        Limb const sum = a[lanes * i] + carry;
        out[lanes * i] = sum & digitMask;
        carry = sum >> bitsPerDigit;
    }
}

/// Montgomery's reduction of one digit: adds the multiple of the modulus that clears t[0].
void clearDigit(Limb* t, Limb const* modulus, Limb negatedInverse, std::size_t count) noexcept {
    addRow(t, t[0] * negatedInverse, modulus, count);
    t[lanes] += t[0] >> bitsPerDigit;
}

void squareLane(Limb* y, LaneModuli const& moduli, std::size_t lane, Limb* t) noexcept {
    std::size_t const count = moduli.blocks * digitsPerBlock;
    for (std::size_t i = 0; i < 2 * count; ++i)
        t[lanes * i] = 0;
    for (std::size_t i = 0; i < count; ++i)
        addRow(t + lanes * i, y[lanes * i], y, count);
    // A digit on its way out leaves itself times 2^-260 in the digits from five above it, the
    // last block's times 2^-52 in those from the next. Only the last digit of all is cleared as
    // usual, so that no more than a few moduli remain.
    for (std::size_t i = 0; i + 1 < count; ++i, t += lanes) {
        t[lanes] += t[0] >> bitsPerDigit;
        if (i + digitsPerBlock < count)
            addRow(t + lanes * digitsPerBlock, t[0], moduli.inverseOfBlock + lane, count);
        else
            addRow(t + lanes, t[0], moduli.inverseOfDigit + lane, count);
    }
    clearDigit(t, moduli.moduli + lane, moduli.negatedInverse[lane], count);
    carryDigits(y, t + lanes, count);
}

void squarePortable(Limb* y, LaneModuli const& moduli, int times, Limb* scratch) noexcept {
    for (; times > 0; --times) {
        for (std::size_t lane = 0; lane < lanes; ++lane)
            squareLane(y + lane, moduli, lane, scratch + lane);
    }
}

void multiplyDigitPortable(Limb* y, LaneModuli const& moduli, Limb const* factor,
                           Limb* scratch) noexcept {
    std::size_t const count = moduli.blocks * digitsPerBlock;
    std::fill(scratch, scratch + lanes * (count + 1), Limb{0});
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        addRow(scratch + lane, factor[lane], y + lane, count);
        clearDigit(scratch + lane, moduli.moduli + lane, moduli.negatedInverse[lane], count);
        carryDigits(y + lane, scratch + lanes + lane, count);
    }
}

}  // namespace

LaneKernels const portableLanes = {squarePortable, multiplyDigitPortable, false};

}  // namespace qel::limbs
