// The filter compares whole blocks of bytes with the vector types that both of our compilers know,
// on any machine; the last of several hits is found by counting zeros.
#include "LastOccurrence.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace qel::internal {

namespace {

constexpr std::size_t blockSize = 16;
using Block [[gnu::vector_size(blockSize)]] = std::uint8_t;

Block blockAt(char const* bytes) noexcept {
    Block block;
    std::memcpy(&block, bytes, blockSize);
    return block;
}

Block repeated(char c) noexcept {
    return Block{} + static_cast<std::uint8_t>(c);
}

/// Two words of 8 bytes: the last byte of a block is the top one of `last`.
struct Hits {
    std::uint64_t first;
    std::uint64_t last;

    [[nodiscard]] bool any() const noexcept { return (first | last) != 0; }

    /// How many bytes follow the last hit, where there is any.
    [[nodiscard]] std::size_t bytesBehind() const noexcept {
        int const bits = last != 0 ? std::countl_zero(last) : 64 + std::countl_zero(first);
        return static_cast<std::size_t>(bits) / 8;
    }
};

static_assert(std::endian::native == std::endian::little);

/// The places of a text where a part may occur, going by its first and its last byte.
class Candidates {
  public:
    Candidates(char const* text, std::string_view part) noexcept
        : firsts_(text), lasts_(text + part.size() - 1), first_(part.front()), last_(part.back()) {}

    /// The last candidate below `end`; the no-position value when there is none.
    [[nodiscard]] std::size_t lastBelow(std::size_t end) const noexcept {
        for (; end >= blockSize; end -= blockSize) {
            auto const hits = std::bit_cast<Hits>(agreeing(end - blockSize));
            if (hits.any())
                return end - 1 - hits.bytesBehind();
            while (end >= 5 * blockSize && !hitsInFourBlocks(end - 5 * blockSize).any())
                end -= 4 * blockSize;
        }
        while (end-- > 0) {
            if (firsts_[end] == first_ && lasts_[end] == last_)
                return end;
        }
        return std::string_view::npos;
    }

  private:
    [[nodiscard]] Block agreeing(std::size_t i) const noexcept {
        return (blockAt(firsts_ + i) == repeated(first_))
               & (blockAt(lasts_ + i) == repeated(last_));
    }

    [[nodiscard]] Hits hitsInFourBlocks(std::size_t i) const noexcept {
        return std::bit_cast<Hits>(agreeing(i) | agreeing(i + blockSize)
                                   | agreeing(i + 2 * blockSize) | agreeing(i + 3 * blockSize));
    }

    char const* firsts_;
    char const* lasts_;
    char first_;
    char last_;
};

}  // namespace

LastOccurrence::LastOccurrence(std::string_view part) : part_(part), borders_(part.size() + 1) {
    for (std::size_t n = 1; n < part_.size(); ++n)
        borders_[n + 1] = step(borders_[n], fromEnd(n));
}

std::size_t LastOccurrence::in(std::string_view text) const noexcept {
    std::size_t const length = part_.size();
    Candidates const candidates(text.data(), part_);
    // All occurrences that end behind `end` are refuted.
    std::size_t end = text.size();
    while (end >= length) {
        std::size_t const candidate = candidates.lastBelow(end - length + 1);
        if (candidate == std::string_view::npos)
            break;
        end = candidate + length;
        std::size_t matched = 0;
        do {
            matched = step(matched, text[--end]);
            if (matched == length)
                return end;
        } while (matched > 0 && end > 0);
    }
    return std::string_view::npos;
}

}  // namespace qel::internal
