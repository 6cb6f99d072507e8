// Eight digits at once, as the bytes of one word with the first digit lowest (Lamport, "Multiple
// byte processing with full-word instructions", 1975). Steps work on pairs of neighbours, on all
// pairs at the same time: no lane overflows into the next.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace qel::limbs {

inline constexpr std::size_t digitsPerBlock = 8;
inline constexpr std::uint64_t blockBase = 100'000'000;

constexpr std::uint64_t inEveryByte(char c) noexcept {
    return static_cast<unsigned char>(c) * std::uint64_t{0x0101010101010101};
}

inline std::uint64_t loadBlock(char const* text) noexcept {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t block;
    std::memcpy(&block, text, sizeof block);
    return block;
}

inline void storeBlock(char* text, std::uint64_t block) noexcept {
    std::memcpy(text, &block, sizeof block);
}

/// The characters of eight digits below 16: 6 more than a digit carries into the upper half of its
/// byte where a letter is due.
constexpr std::uint64_t toCharacters(std::uint64_t digits) noexcept {
    std::uint64_t const letters = ((digits + inEveryByte(6)) >> 4) & inEveryByte(1);
    return digits + inEveryByte('0') + letters * ('a' - 10 - '0');
}

/// The digits of a number below 2^(8 bits) in radix 2^bits.
template <int bits>
constexpr std::uint64_t splitBits(std::uint64_t number) noexcept {
    constexpr std::uint64_t four = (std::uint64_t{1} << 4 * bits) - 1;
    constexpr std::uint64_t two = ((1U << 2 * bits) - 1) * std::uint64_t{0x0000000100000001};
    constexpr std::uint64_t one = ((1U << bits) - 1) * std::uint64_t{0x0001000100010001};
    number = number >> 4 * bits | (number & four) << 32;
    number = (number >> 2 * bits & two) | (number & two) << 16;
    return (number >> bits & one) | (number & one) << 8;
}

/// The digits of a number below 10^8. 5243 / 2^19 and 103 / 2^10 are so little above 1/100 and
/// 1/10 that the products' floors are the quotients of numbers below 10^4 and 10^2.
constexpr std::uint64_t splitDecimal(std::uint64_t number) noexcept {
    std::uint64_t const upper = number / 10000;
    number = upper | (number - 10000 * upper) << 32;
    std::uint64_t const hundreds = number * 5243 >> 19 & 0x0000007F0000007F;
    number = hundreds | (number - 100 * hundreds) << 16;
    std::uint64_t const tens = number * 103 >> 10 & 0x000F000F000F000F;
    return tens | (number - 10 * tens) << 8;
}

/// True for eight characters '0' to '9': those have 3 in the upper half of the byte, and with 6
/// more as well. What carries out of a byte is none of them.
constexpr bool areDecimal(std::uint64_t characters) noexcept {
    return (characters & (characters + inEveryByte(6)) & inEveryByte('\xF0')) == inEveryByte('0');
}

/// The number that eight digits below 10 write.
constexpr std::uint64_t joinDecimal(std::uint64_t digits) noexcept {
    digits = (10 * digits + (digits >> 8)) & 0x00FF00FF00FF00FF;
    digits = (100 * digits + (digits >> 16)) & 0x0000FFFF0000FFFF;
    return (10000 * digits + (digits >> 32)) & 0x00000000FFFFFFFF;
}

}  // namespace qel::limbs
