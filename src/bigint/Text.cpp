// Text in radix 2, 8, 10 and 16. Zero has no digits: it is the empty text, both ways.
#include "qel/LargeInteger.h"

#include "../text/HexDigit.h"
#include "Product.h"
#include "Representation.h"
#include "limbs/Decimal.h"
#include "limbs/EightDigits.h"

#include <algorithm>
#include <string_view>

namespace qel {

using namespace internal;

namespace {

// --- out ----------------------------------------------------------------------------------------

/// The `count` < 64 bits from `position` up; those above the top are 0.
Limb bitsFrom(Magnitude a, long long position, int count) noexcept {
    std::size_t const i = limbIndex(position);
    auto const shift = static_cast<int>(position % limbs::bitsPerLimb);
    Limb bits = a.value[i] >> shift;
    if (shift != 0 && i + 1 < a.count())
        bits |= a.value[i + 1] << (limbs::bitsPerLimb - shift);
    return bits & ((Limb{1} << count) - 1);
}

/// Digits of `bits` bits each, behind the sign if there is one.
template <int bits>
std::string textOfBits(Magnitude a, bool negative) noexcept {
    constexpr int bitsPerBlock = bits * int{limbs::digitsPerBlock};
    std::size_t const length = static_cast<std::size_t>(a.top / bits) + 1;
    std::string text(length + (negative ? 1 : 0), '-');
    char* next = text.data() + text.size();
    std::size_t left = length;
    long long position = 0;
    auto const nextBlock = [&] {
        Limb const digits = bitsFrom(a, position, bitsPerBlock);
        position += bitsPerBlock;
        return limbs::toCharacters(limbs::splitBits<bits>(digits));
    };
    for (; left >= limbs::digitsPerBlock; left -= limbs::digitsPerBlock)
        limbs::storeBlock(next -= limbs::digitsPerBlock, nextBlock());
    if (left != 0) {
        std::uint64_t const block = nextBlock() >> (8 * (limbs::digitsPerBlock - left));
        std::memcpy(next - left, &block, left);
    }
    return text;
}

std::string textOfDecimal(Magnitude a, bool negative) noexcept {
    std::size_t const count = limbCount(a.top);
    std::size_t const groups = limbs::decimalGroups(count);
    Workspace workspace(count + 1 + limbs::toDecimalScratch(groups));
    Limb* const rest = workspace.take(count + 1);
    loadLimbs(rest, count, a);
    std::string text(1 + groups * limbs::digitsPerGroup, '0');
    limbs::toDecimal(text.data() + 1, groups, rest, count, workspace.rest());
    std::size_t start = text.find_first_not_of('0');
    if (negative)
        text[--start] = '-';
    text.erase(0, start);
    return text;
}

// --- in -----------------------------------------------------------------------------------------

/// The values of the hexadecimal digits, and more for what is no such digit.
constexpr auto digitValues = [] {
    std::array<std::uint8_t, 256> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<std::uint8_t>(hexDigitValue(static_cast<char>(i)));
    return values;
}();

constexpr unsigned int digitValue(char c) noexcept {
    return digitValues[static_cast<unsigned char>(c)];
}

/// Fills limbs with bits from the lowest up.
class LimbFiller {
  public:
    explicit LimbFiller(Limb* first) noexcept : out(first) {}

    /// Adds `count` <= 32 bits.
    void put(Limb bits, int count) noexcept {
        gathered |= bits << filled;
        filled += count;
        if (filled >= limbs::bitsPerLimb) {
            *out++ = gathered;
            filled -= limbs::bitsPerLimb;
            gathered = bits >> (count - filled);
        }
    }

    /// Writes the rest; returns the end of the limbs.
    Limb* finish() noexcept {
        *out++ = gathered;
        return out;
    }

  private:
    Limb* out;
    Limb gathered = 0;
    int filled = 0;
};

/// Puts the digits of radix 2^bits in place, the last one first.
template <int bits>
void readBits(LimbFiller& out, std::string_view text) noexcept {
    auto const putSingly = [&out, text](std::size_t begin, std::size_t end) {
        while (end-- > begin) {
            unsigned int const digit = digitValue(text[end]);
            if (digit < 1U << bits)
                out.put(digit, bits);
        }
    };
    std::size_t left = text.size();
    while (left >= limbs::digitsPerBlock) {
        left -= limbs::digitsPerBlock;
        Limb digits = 0;
        unsigned int seen = 0;
        for (std::size_t i = left; i < left + limbs::digitsPerBlock; ++i) {
            unsigned int const digit = digitValue(text[i]);
            seen |= digit;
            digits = (digits << bits) | digit;
        }
        if (seen < 1U << bits)
            out.put(digits, bits * int{limbs::digitsPerBlock});
        else
            putSingly(left, left + limbs::digitsPerBlock);
    }
    putSingly(0, left);
}

/// The capacity that shifting by a digit and adding it, once for each, makes of `size`.
///
/// It follows from the last top alone: the first digit that is not 0 has a top below `bits`, and
/// each one after it raises the top by `bits`. The sum then visits the word above that of the bit
/// above the top; the shift before it visits no higher one, and where it is lower, nothing grows.
int capacityAfterDigits(int size, int top, int bits) noexcept {
    for (;;) {
        // From this top on the sum visits a word two below the capacity, or higher.
        long long const from = static_cast<long long>(bitsPerWord) * (size - 3) - 1;
        if (top < from)
            return size;
        long long const growing = from + (top - from) % bits;
        size = grownSize(size, wordIndex(growing + 1) + 1);
    }
}

constexpr int topOfTen = 3;

bool isDecimalDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

bool areDecimalDigits(std::string_view text) noexcept {
    for (; text.size() >= limbs::digitsPerBlock; text.remove_prefix(limbs::digitsPerBlock)) {
        if (!limbs::areDecimal(limbs::loadBlock(text.data())))
            return false;
    }
    return std::all_of(text.begin(), text.end(), isDecimalDigit);
}

/// The decimal digits of a text: a part of it where no other characters stand between, else a copy.
std::string_view decimalDigits(std::string_view text, std::string& copy) noexcept {
    text.remove_prefix(static_cast<std::size_t>(
        std::find_if(text.begin(), text.end(), isDecimalDigit) - text.begin()));
    if (areDecimalDigits(text))
        return text;
    copy.resize(text.size());
    copy.erase(std::copy_if(text.begin(), text.end(), copy.begin(), isDecimalDigit), copy.end());
    return copy;
}

}  // namespace

std::string LargeInteger::toString(int radix) const noexcept {
    Magnitude const magnitude = Representation::magnitude(*this);
    if (magnitude.top < 0)
        return {};
    switch (radix) {
    case 2:
        return textOfBits<1>(magnitude, negative);
    case 8:
        return textOfBits<3>(magnitude, negative);
    case 10:
        return textOfDecimal(magnitude, negative);
    case 16:
        return textOfBits<4>(magnitude, negative);
    default:
        return {};
    }
}

void LargeInteger::parseString(std::string const& text, int radix) noexcept {
    clear();
    switch (radix) {
    case 2:
        Representation::parseBits<1>(*this, text.c_str());
        break;
    case 8:
        Representation::parseBits<3>(*this, text.c_str());
        break;
    case 10:
        Representation::parseDecimal(*this, text.c_str());
        break;
    case 16:
        Representation::parseBits<4>(*this, text.c_str());
        break;
    default:
        break;
    }
    negative = !text.empty() && text.front() == '-';
}

/// Reads into a plain zero.
template <int bits>
void internal::Representation::parseBits(LargeInteger& a, char const* text) noexcept {
    std::string_view const characters(text);
    Workspace workspace(characters.size() * bits / limbs::bitsPerLimb + 1);
    Limb* const value = workspace.rest();
    LimbFiller filler(value);
    readBits<bits>(filler, characters);
    auto const count = static_cast<std::size_t>(filler.finish() - value);
    int const top = checkedPosition(topBit(value, count));
    assign(a, value, top, capacityAfterDigits(a.size, top, bits));
}

/// Reads into a plain zero. A product has a fresh buffer, so bound and capacity are those of the
/// last multiplication by ten and addition of a digit.
void internal::Representation::parseDecimal(LargeInteger& a, char const* text) noexcept {
    std::string copy;
    std::string_view digits = decimalDigits(text, copy);
    if (digits.empty())
        return;
    auto const last = static_cast<Limb>(digits.back() - '0');
    digits.remove_suffix(1);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    std::size_t const groups = limbs::groupsOf(digits.size());
    std::size_t const count = groups + 1;
    Workspace workspace(count + limbs::fromDecimalScratch(groups));
    Limb* const value = workspace.take(count);
    limbs::fromDecimal(value, digits.data(), digits.size(), workspace.rest());
    value[groups] = 0;
    int const factorTop = checkedPosition(topBit(value, count));
    int const productSize = productCapacity({value, factorTop}, topOfTen);
    limbs::multiplyLimb(value, value, count, 10);
    int const capacity = grownSize(productSize, wordIndex(topBit(value, count) + 1) + 1);
    limbs::addLimb(value, value, count, last);
    assign(a, value, checkedPosition(topBit(value, count)), capacity);
}

}  // namespace qel
