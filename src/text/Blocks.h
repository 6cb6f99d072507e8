// Sixteen bytes of a text at once, in the vector types that both of our compilers know, on any
// machine. Nothing is read beyond a text.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace qel::internal {

inline constexpr std::size_t blockSize = 16;
using Block [[gnu::vector_size(blockSize)]] = std::uint8_t;

/// Up to 16 bytes, zeros behind them.
inline Block blockAt(char const* bytes, std::size_t count = blockSize) noexcept {
    Block block = {};
    std::memcpy(&block, bytes, count);
    return block;
}

inline Block repeated(char c) noexcept {
    return Block{} + static_cast<std::uint8_t>(c);
}

static_assert(std::endian::native == std::endian::little);

/// The last byte of a block is the top one of the second word.
inline std::array<std::uint64_t, 2> wordsOf(Block const& block) noexcept {
    return std::bit_cast<std::array<std::uint64_t, 2>>(block);
}

/// True when any bit is set.
inline bool any(Block const& hits) noexcept {
    auto const [first, last] = wordsOf(hits);
    return (first | last) != 0;
}

/// The position of the last byte that is not zero, where there is one.
inline std::size_t lastHit(Block const& hits) noexcept {
    auto const [first, last] = wordsOf(hits);
    int const zeros = last != 0 ? std::countl_zero(last) : 64 + std::countl_zero(first);
    return blockSize - 1 - static_cast<std::size_t>(zeros) / 8;
}

/// The sum of the sixteen numbers, up to 4080: by pairs of bytes, then of pairs, and so on.
inline std::size_t sumOfBytes(Block const& numbers) noexcept {
    constexpr std::uint64_t lowBytes = 0x00FF00FF00FF00FF;
    auto const [first, last] = wordsOf(numbers);
    std::uint64_t const sums =
        (first & lowBytes) + (first >> 8 & lowBytes) + (last & lowBytes) + (last >> 8 & lowBytes);
    return sums * 0x0001000100010001 >> 48;
}

/// Replaces every byte of a text by what `operation` makes of it, which maps a block to a block.
template <typename Operation>
void applyToBlocks(std::string& text, Operation operation) noexcept {
    char* const bytes = text.data();
    std::size_t i = 0;
    auto const apply = [&](std::size_t count) {
        Block const block = operation(blockAt(bytes + i, count));
        std::memcpy(bytes + i, &block, count);
    };
    for (; text.size() - i >= blockSize; i += blockSize)
        apply(blockSize);
    apply(text.size() - i);
}

}  // namespace qel::internal
