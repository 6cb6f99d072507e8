// The verdict on one number: trial division for small ones, strong tests with fixed witnesses for
// the rest.
#include "qel/PrimesNumber.h"

#include "../bigint/Representation.h"
#include "Screening.h"
#include "Witnesses.h"

namespace qel {

using namespace internal;

namespace {

/// 2 * 3 * 5 * 7 * 11 * 13 * 17 * 19 * 23.
constexpr int smallPrimesProduct = 223092870;

/// Numbers whose highest bit is this or lower are judged by trial division.
constexpr int smallHighestBit = 10;
/// How many low bits trial division looks at. One less than the numbers may have: 1024 to 2047
/// are judged by their value minus 1024, as callers have come to rely on.
constexpr int smallBits = 10;

bool passesTrialDivision(int value) noexcept {
    for (int divisor = value / 2 - 1; divisor >= 2; --divisor) {
        if (value % divisor == 0)
            return false;
    }
    return true;
}

/// Whether a small factor tells what the test would say: one up to 23, as documented, or a larger
/// one that refuses a witness. Looking at the factor r takes the same time for each, and spares one
/// test in r, whose time grows faster. The limit is measured.
bool isStruck(limbs::Limb* n, std::size_t count, int witnessCount, limbs::Limb* scratch) noexcept {
    n[0] -= 1;
    Screening screening(n, count, witnessCount, 16 * count * count, scratch);
    n[0] += 1;
    return screening.window(1)[0];
}

}  // namespace

bool PrimesNumber::isProbablyPrime(LargeInteger const& n, int witnessCount) noexcept {
    if (n[0] == 0)
        return false;
    if (n.getHighestBit() <= smallHighestBit)
        return passesTrialDivision(n.getBitRangeAsInt(0, smallBits));
    // A negative number gets no further: the signed steps give it no divisor of 1.
    if (n.isNegative() && !n.findGreatestCommonDivisor(LargeInteger(smallPrimesProduct)).isOne())
        return false;

    Magnitude const magnitude = Representation::magnitude(n);
    std::size_t const count = magnitude.count();
    Workspace workspace(2 * count + witnessScratch(count));
    limbs::Limb* const number = workspace.take(count);
    loadLimbs(number, count, magnitude);
    if (isStruck(number, count, witnessCount, workspace.take(count)))
        return false;
    limbs::Limb const* const numbers[] = {number};
    return indexOfPassing(numbers, count, witnessCount, workspace.rest()) == 0;
}

}  // namespace qel
