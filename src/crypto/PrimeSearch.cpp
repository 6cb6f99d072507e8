// The search for a probable prime: a start drawn from the seeds, then the odd numbers above it in
// blocks. Screening strikes nearly all of them, and the first of the rest that passes the test is
// the result.
#include "qel/PrimesNumber.h"

#include "qel/Random.h"

#include "../bigint/Storage.h"
#include "NumberLimbs.h"
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
    for (int i = seedCount - 1; i >= 0; --i) {
        LargeInteger fill;
        Random(seeds[i]).fillBitsRandomly(fill, 0, bitCount);
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
    /// @param base even; it, and the end of the walk, are below the double of 2^bitCount
    CandidateWalk(LargeInteger const& base, int bitCount, int witnessLimit,
                  Workspace& workspace) noexcept
        : count(limbsFor(bitCount)), witnessCount(witnessLimit), most(numbersAtOnce(count)),
          screening(copied(base, workspace.take(count), count), count, witnessCount,
                    worthwhileLimit(bitCount, most), workspace.take(screeningScratch(count))),
          scratch(workspace.take(witnessScratch(count))) {
        for (std::size_t k = 0; k < most; ++k)
            candidates[k] = workspace.take(count);
    }

    static std::size_t limbsNeeded(int bitCount) noexcept {
        std::size_t const count = limbsFor(bitCount);
        return (1 + mostNumbersAtOnce) * count + screeningScratch(count) + witnessScratch(count);
    }

    /// The index of the first of the next `length` odd numbers that passes; -1 when none does.
    [[nodiscard]] int findPassing(int length) noexcept {
        for (int first = 0; first < length;) {
            int const step = std::min(length - first, Screening::windowLength);
            int const found = findInWindow(first, step);
            if (found >= 0)
                return found;
            screening.advance(step);
            first += step;
        }
        return testGathered();
    }

  private:
    /// Room for bitCount + 1 bits, and for the blocks that leave a small width far behind.
    static std::size_t limbsFor(int bitCount) noexcept { return limbCount(std::max(bitCount, 0)); }

    static Limb const* copied(LargeInteger const& base, Limb* out, std::size_t count) noexcept {
        copyLimbs(out, count, base);
        return out;
    }

    int findInWindow(int first, int length) noexcept {
        Screening::Window const struck = screening.window(length);
        for (int i = 0; i < length; ++i) {
            if (struck[static_cast<std::size_t>(i)])
                continue;
            limbs::addLimb(candidates[gathered], screening.base(), count,
                           2 * static_cast<Limb>(i) + 1);
            indices[gathered++] = first + i;
            int const found = gathered == most ? testGathered() : -1;
            if (found >= 0)
                return found;
        }
        return -1;
    }

    /// The index of the first one gathered that passes, -1 when none does; then gathers anew.
    int testGathered() noexcept {
        std::size_t next = 0;
        while (next < gathered) {
            int const found = internal::findPassing({candidates.data() + next, gathered - next},
                                                    count, witnessCount, scratch);
            if (found < 0)
                break;
            next += static_cast<std::size_t>(found);
            // Last, though documented to come first: it hardly ever says anything about a number
            // that passes.
            if (!isStruckByDivisors(candidates[next], count))
                return indices[next];
            ++next;
        }
        gathered = 0;
        return -1;
    }

    std::size_t count;
    int witnessCount;
    std::size_t most;
    Screening screening;
    Limb* scratch;
    std::size_t gathered = 0;
    std::array<Limb*, mostNumbersAtOnce> candidates;
    std::array<int, mostNumbersAtOnce> indices;
};

}  // namespace

LargeInteger PrimesNumber::createProbablePrime(int bitCount, int witnessCount, int const* seeds,
                                               int seedCount) noexcept {
    LargeInteger base = startingValue(bitCount, seeds, seedCount);
    int const length = checkedPosition(blockLength(bitCount));
    LargeInteger const blockSpan(2LL * length);
    Workspace workspace(CandidateWalk::limbsNeeded(bitCount));
    CandidateWalk walk(base + blockSpan, bitCount, witnessCount, workspace);
    while (base.getHighestBit() < bitCount) {
        // Before the first block too: the stretch just above the start is never searched.
        base += blockSpan;
        int const index = walk.findPassing(length);
        if (index >= 0)
            return base + LargeInteger(2U * static_cast<unsigned int>(index) + 1U);
    }
    return LargeInteger();
}

}  // namespace qel
