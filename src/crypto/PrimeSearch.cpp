// The search for a probable prime: a start drawn from the seeds, then the odd numbers above it in
// blocks. Screening strikes nearly all of them, and the first of the rest that passes the test is
// the result.
#include "qel/PrimesNumber.h"

#include "qel/Random.h"

#include "../bigint/Representation.h"
#include "Screening.h"
#include "Witnesses.h"

#include <algorithm>
#include <array>

namespace qel {

using namespace internal;

namespace {

using limbs::Limb;

LargeInteger startingValue(int bitCount, int const* seeds, int seedCount) noexcept {
    LargeInteger start;
    for (int i = seedCount; i > 0; --i) {
        LargeInteger fill;
        Random(seeds[i - 1]).fillBitsRandomly(fill, 0, bitCount);
        start ^= fill;
    }
    if (bitCount > 0)
        start.setBit(bitCount - 1);
    start.clearBit(0);
    return start;
}

/// How many odd numbers a block holds.
long long blockLength(int bitCount) noexcept {
    return std::max(1024LL, bitCount / 20 * 64LL);
}

/// Up to which factor screening is worth its time. A modular power costs about bits^3, or a share
/// of that where several are taken at once, and looking at the factor r spares one in r. Measured.
Limb worthwhileLimit(int bitCount, std::size_t atOnce) noexcept {
    auto const bits = static_cast<Limb>(std::clamp(bitCount, 0, 1024));
    return bits * bits * bits / 900 / atOnce;
}

/// Walks over the candidates in ascending order. Those that screening leaves are gathered until
/// there are as many as are tested at once.
class CandidateWalk {
  public:
    /// @param first even: the candidates are the odd numbers above it. It, and the end of the walk,
    ///     are below the double of 2^bitCount
    CandidateWalk(LargeInteger const& first, int bitCount, int witnessLimit,
                  Workspace& workspace) noexcept
        : count(limbsFor(bitCount)), witnessCount(witnessLimit), most(numbersAtOnce(count)),
          start(workspace.take(count)), screeningSpace(workspace.take(count)),
          testSpace(workspace.take(witnessScratch(count))),
          screening(loaded(first, start, count), count, witnessCount,
                    worthwhileLimit(bitCount, most), screeningSpace) {
        for (std::size_t k = 0; k < most; ++k)
            candidates[k] = workspace.take(count);
    }

    static std::size_t limbsNeeded(int bitCount) noexcept {
        std::size_t const count = limbsFor(bitCount);
        return (2 + mostNumbersAtOnce) * count + witnessScratch(count);
    }

    /// The highest bit of the even number where the walk goes on.
    [[nodiscard]] long long highestBit() const noexcept { return topBit(screening.base(), count); }

    /// Whether one of the next `length` odd numbers passes; the first to do so is the prime.
    [[nodiscard]] bool findPrime(int length) noexcept {
        for (int done = 0; done < length;) {
            int const step = std::min(length - done, Screening::windowLength);
            if (findInWindow(step))
                return true;
            screening.advance(step);
            done += step;
        }
        return testGathered();
    }

    [[nodiscard]] LargeInteger prime() const noexcept {
        return Representation::copied(found, count, checkedPosition(topBit(found, count)), false);
    }

  private:
    /// Room for bitCount + 1 bits, and for the blocks that leave a small width far behind.
    static std::size_t limbsFor(int bitCount) noexcept { return limbCount(std::max(bitCount, 0)); }

    static Limb const* loaded(LargeInteger const& value, Limb* out, std::size_t count) noexcept {
        loadLimbs(out, count, Representation::magnitude(value));
        return out;
    }

    bool findInWindow(int length) noexcept {
        Screening::Window const struck = screening.window(length);
        for (int i = 0; i < length; ++i) {
            if (struck[static_cast<std::size_t>(i)])
                continue;
            limbs::addLimb(candidates[gathered], screening.base(), count,
                           2 * static_cast<Limb>(i) + 1);
            ++gathered;
            if (gathered == most && testGathered())
                return true;
        }
        return false;
    }

    /// Whether one of those gathered passes; then gathers anew.
    bool testGathered() noexcept {
        for (std::size_t next = 0; next < gathered; ++next) {
            int const passed = indexOfPassing({candidates.data() + next, gathered - next}, count,
                                              witnessCount, testSpace);
            if (passed < 0)
                break;
            next += static_cast<std::size_t>(passed);
            // Last, though documented to come first: it hardly ever says anything about a number
            // that passes, and nothing about a prime.
            if (passingProves(candidates[next], count, witnessCount)
                || !isStruckByDivisors(candidates[next], count)) {
                found = candidates[next];
                return true;
            }
        }
        gathered = 0;
        return false;
    }

    std::size_t count;
    int witnessCount;
    std::size_t most;
    Limb* start;
    Limb* screeningSpace;
    Limb* testSpace;
    Screening screening;
    std::size_t gathered = 0;
    std::array<Limb*, mostNumbersAtOnce> candidates;
    Limb const* found = nullptr;
};

}  // namespace

LargeInteger PrimesNumber::createProbablePrime(int bitCount, int witnessCount, int const* seeds,
                                               int seedCount) noexcept {
    LargeInteger const start = startingValue(bitCount, seeds, seedCount);
    int const length = checkedPosition(blockLength(bitCount));
    Workspace workspace(CandidateWalk::limbsNeeded(bitCount));
    // The stretch just above the start is never searched.
    CandidateWalk walk(start + LargeInteger(2LL * length), bitCount, witnessCount, workspace);
    // A block is searched when the one before it began within the width.
    for (bool isWithin = start.getHighestBit() < bitCount; isWithin;) {
        isWithin = walk.highestBit() < bitCount;
        if (walk.findPrime(length))
            return walk.prime();
    }
    return LargeInteger();
}

}  // namespace qel
