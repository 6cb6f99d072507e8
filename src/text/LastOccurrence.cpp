// Most searches end at the first candidate of the filter, which is compared as a whole; only behind
// one that fails are the borders needed.
#include "LastOccurrence.h"

#include "Blocks.h"

namespace qel::internal {

namespace {

/// The places of a text where a part may occur, going by its first and its last byte.
class Candidates {
  public:
    Candidates(char const* text, std::string_view part) noexcept
        : firsts_(text), lasts_(text + part.size() - 1), first_(part.front()), last_(part.back()) {}

    /// The last candidate below `end`; the no-position value when there is none.
    [[nodiscard]] std::size_t lastBelow(std::size_t end) const noexcept {
        constexpr std::size_t wide = 4 * blockSize;
        while (end >= wide && !any(agreeingInFourBlocks(end - wide)))
            end -= wide;
        for (; end >= blockSize; end -= blockSize) {
            Block const hits = agreeing(end - blockSize);
            if (any(hits))
                return end - blockSize + lastHit(hits);
        }
        while (end > 0 && (firsts_[end - 1] != first_ || lasts_[end - 1] != last_))
            --end;
        return end - 1;  // wraps around to the no-position value
    }

  private:
    [[nodiscard]] Block agreeing(std::size_t i) const noexcept {
        return (blockAt(firsts_ + i) == repeated(first_))
               & (blockAt(lasts_ + i) == repeated(last_));
    }

    [[nodiscard]] Block agreeingInFourBlocks(std::size_t i) const noexcept {
        return agreeing(i) | agreeing(i + blockSize) | agreeing(i + 2 * blockSize)
               | agreeing(i + 3 * blockSize);
    }

    char const* firsts_;
    char const* lasts_;
    char first_;
    char last_;
};

}  // namespace

void LastOccurrence::findBorders() {
    if (!borders_.empty())
        return;
    borders_.resize(part_.size() + 1);
    for (std::size_t n = 1; n < part_.size(); ++n)
        borders_[n + 1] = step(borders_[n], fromEnd(n));
}

std::size_t LastOccurrence::in(std::string_view text) {
    std::size_t const length = part_.size();
    if (text.size() < length)
        return std::string_view::npos;
    Candidates const candidates(text.data(), part_);
    std::size_t candidate = candidates.lastBelow(text.size() - length + 1);
    if (candidate == std::string_view::npos || text.substr(candidate, length) == part_)
        return candidate;
    findBorders();
    while (candidate != std::string_view::npos) {
        // All occurrences that end behind `end` are refuted.
        std::size_t end = candidate + length;
        std::size_t matched = 0;
        do {
            matched = step(matched, text[--end]);
            if (matched == length)
                return end;
        } while (matched > 0 && end > 0);
        if (end < length)
            break;
        candidate = candidates.lastBelow(end - length + 1);
    }
    return std::string_view::npos;
}

}  // namespace qel::internal
