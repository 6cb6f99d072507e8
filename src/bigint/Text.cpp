// Text in radix 2, 8, 10 and 16. Zero has no digits: it is the empty text, both ways.
#include "qel/LargeInteger.h"

#include "Product.h"
#include "limbs/Decimal.h"
#include "qel/CharFunctions.h"

#include <algorithm>

namespace qel {

namespace {

/// The bits that one digit stands for; 0 for a radix that is no supported power of two.
constexpr int bitsPerDigit(int radix) noexcept {
    switch (radix) {
    case 2:
        return 1;
    case 8:
        return 3;
    case 16:
        return 4;
    default:
        return 0;
    }
}

/// The `bits` bits from `position` up; those above the top are 0.
unsigned int digitAt(Magnitude a, long long position, int bits) noexcept {
    int const i = wordIndex(position);
    std::uint64_t const above = i < wordIndex(a.top) ? a.words[i + 1] : 0;
    std::uint64_t const pair = (above << bitsPerWord) | a.words[i];
    return static_cast<unsigned int>(pair >> (position % bitsPerWord)) & ((1U << bits) - 1);
}

std::string digitsOfBits(Magnitude a, int bits) noexcept {
    static constexpr char table[] = "0123456789abcdef";
    std::string digits(static_cast<std::size_t>(a.top / bits) + 1, '0');
    long long position = 0;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, position += bits)
        *digit = table[digitAt(a, position, bits)];
    return digits;
}

std::string decimalDigits(Magnitude a) noexcept {
    std::size_t const count = limbCount(a.top);
    std::size_t const groups = limbs::decimalGroups(count);
    Workspace workspace(count + 1 + limbs::toDecimalScratch(groups));
    limbs::Limb* const rest = workspace.take(count + 1);
    loadLimbs(rest, count, a.words, a.top);
    std::string digits(groups * limbs::digitsPerGroup, '0');
    limbs::toDecimal(digits.data(), groups, rest, count, workspace.take(0));
    digits.erase(0, digits.find_first_not_of('0'));
    return digits;
}

}  // namespace

std::string LargeInteger::toString(int radix) const noexcept {
    Magnitude const magnitude{data, getHighestBit()};
    int const bits = bitsPerDigit(radix);
    if (magnitude.top < 0 || (bits == 0 && radix != 10))
        return {};
    std::string digits = bits > 0 ? digitsOfBits(magnitude, bits) : decimalDigits(magnitude);
    if (negative)
        digits.insert(digits.begin(), '-');
    return digits;
}

void LargeInteger::parseString(std::string const& text, int radix) noexcept {
    clear();
    if (bitsPerDigit(radix) > 0)
        parseBits(text.c_str(), bitsPerDigit(radix));
    else if (radix == 10)
        parseDecimal(text.c_str());
    negative = !text.empty() && text.front() == '-';
}

/// Reads into a plain zero. The capacity is what shifting by a digit and adding the digit, once for
/// each, would leave; the bits are then written in place, the last digit first.
void LargeInteger::parseBits(char const* text, int bits) noexcept {
    auto const digitOf = [bits](char c) {
        int const digit = CharFunctions::GetHexDigitValue(c);
        return digit < 1 << bits ? digit : -1;
    };
    long long top = -1;
    char const* end = text;
    for (; *end != '\0'; ++end) {
        int const digit = digitOf(*end);
        if (digit < 0)
            continue;
        if (top >= 0) {
            top = checkedPosition(top + bits);
            ensureSize(wordIndex(top) + 1);
        }
        auto const digitBits = std::bit_width(static_cast<unsigned int>(digit));
        top = std::max(top, static_cast<long long>(digitBits) - 1);
        ensureSize(wordIndex(top + 1) + 1);
    }
    for (long long position = 0; position <= top;) {
        int const digit = digitOf(*--end);
        if (digit < 0)
            continue;
        std::uint64_t const moved = static_cast<std::uint64_t>(digit) << (position % bitsPerWord);
        data[wordIndex(position)] |= static_cast<std::uint32_t>(moved);
        data[wordIndex(position) + 1] |= static_cast<std::uint32_t>(moved >> bitsPerWord);
        position += bits;
    }
    highestBit = static_cast<int>(top);
}

/// Reads into a plain zero. A product has a fresh buffer, so the books are those of the last
/// multiplication and addition: all digits before the last are read at once.
void LargeInteger::parseDecimal(char const* text) noexcept {
    std::string digits;
    std::copy_if(text, text + std::strlen(text), std::back_inserter(digits),
                 [](char c) { return c >= '0' && c <= '9'; });
    if (digits.empty())
        return;
    LargeInteger const last(digits.back() - '0');
    digits.pop_back();
    digits.erase(0, digits.find_first_not_of('0'));
    if (!digits.empty()) {
        std::size_t const groups = (digits.size() - 1) / limbs::digitsPerGroup + 1;
        Workspace workspace(groups + limbs::fromDecimalScratch(groups));
        limbs::Limb* const value = workspace.take(groups);
        limbs::fromDecimal(value, digits.data(), digits.size(), workspace.take(0));
        int const top = checkedPosition(topBit(value, groups));
        ensureSize(wordIndex(top));
        storeWords(data, value, top);
        highestBit = top;
    }
    *this *= LargeInteger(10U);
    *this += last;
}

}  // namespace qel
