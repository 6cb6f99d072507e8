#include "Decimal.h"
#include "EightDigits.h"
#include "Reciprocal.h"
#include "Thresholds.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

constexpr Limb groupBase = 10'000'000'000'000'000'000U;  // its highest bit is set
constexpr Limb groupInverse = reciprocal(groupBase);

/// The groups that one sweep over the limbs takes: their steps do not wait for each other.
constexpr std::size_t groupsPerSweep = 4;

/// 10^(19 groups) = limbs * 2^exponent, where the highest bit of the limbs is set and the lowest
/// limb is not zero: a power of 5, three in ten shorter.
struct Power {
    std::size_t groups;
    Limb const* limbs;
    std::size_t count;
    std::size_t exponent;
};

/// The powers at which a text is split: of `first`, 2 * `first`, 4 * `first`... groups. The last
/// one is at half of the text or a little above, and no part has more than `first` groups.
class Powers {
  public:
    /// For a text of `groups` groups, and parts of at most `split`.
    Powers(std::size_t groups, std::size_t split, Limb* memory) noexcept;

    /// Twice `first` limbs for the first power, and 2^k * first for each k-th one after it, as
    /// 10^19 fits a limb: together 2^levels * first < groups + 2^levels, and 2^levels < groups.
    static std::size_t room(std::size_t groups) noexcept { return 2 * groups; }

    /// How many there are: how often a half is split again.
    std::size_t levels() const noexcept { return count; }
    Power const& operator[](std::size_t k) const noexcept { return table[k]; }

  private:
    std::array<Power, 40> table;
    std::size_t count = 0;
};

/// The power that is memory[0, count) * 2^exponent, the highest limb not zero. A power of 5 has
/// less than 64 zero bits at the low end once it is shifted, and its square twice as many and one:
/// so one limb there may be zero.
Power normalized(std::size_t groups, Limb* memory, std::size_t count,
                 std::size_t exponent) noexcept {
    if (int const shift = std::countl_zero(memory[count - 1]); shift != 0) {
        shiftLeft(memory, memory, count, shift);
        exponent -= static_cast<std::size_t>(shift);
    }
    std::size_t const zeros = memory[0] == 0 ? 1 : 0;
    return {groups, memory + zeros, count - zeros, exponent + zeros * bitsPerLimb};
}

/// By squaring, between `memory` and groups limbs above. 5^(19 j) has at most j limbs for every j
/// on the way.
Power firstPower(std::size_t groups, Limb* memory) noexcept {
    constexpr Limb fiveTo19 = groupBase >> digitsPerGroup;
    Limb* power = memory;
    Limb* spare = memory + groups;
    power[0] = fiveTo19;
    std::size_t count = 1;
    for (std::size_t bit = std::bit_floor(groups) / 2; bit != 0; bit /= 2) {
        square(spare, power, count, memory + 2 * groups);
        std::swap(power, spare);
        count = significant(power, 2 * count);
        if ((groups & bit) != 0) {
            power[count] = multiplyLimb(power, power, count, fiveTo19);
            count = significant(power, count + 1);
        }
    }
    return normalized(groups, power, count, groups * digitsPerGroup);
}

Powers::Powers(std::size_t groups, std::size_t split, Limb* memory) noexcept {
    std::size_t first = groups;
    for (; first > split; first -= first / 2)
        ++count;
    table[0] = firstPower(first, memory);
    memory += 2 * first;
    for (std::size_t k = 1; k < count; ++k) {
        Power const& root = table[k - 1];
        std::size_t const squareCount = 2 * root.count;
        square(memory, root.limbs, root.count, memory + squareCount);
        table[k] = normalized(2 * root.groups, memory, squareCount, 2 * root.exponent);
        memory += squareCount;
    }
}

// --- out ----------------------------------------------------------------------------------------

/// Three digits and two blocks. The block with the three ends where the next one is then written.
void writeGroup(char* out, Limb group) noexcept {
    Limb const upper = group / blockBase;
    Limb const top = upper / blockBase;
    storeBlock(out, toCharacters(splitDecimal(top)) >> 40);
    storeBlock(out + 3, toCharacters(splitDecimal(upper - blockBase * top)));
    storeBlock(out + 11, toCharacters(splitDecimal(group - blockBase * upper)));
}

/// Divides by 10^19 for several groups in one sweep: a quotient's limb is at once the next
/// division's.
void writeByGroups(char* out, std::size_t groups, Limb* a, std::size_t count) noexcept {
    while (groups > 0) {
        count = significant(a, count);
        std::array<Limb, groupsPerSweep> rests = {};
        for (std::size_t i = count; i-- > 0;) {
            Limb limb = a[i];
            for (Limb& rest : rests) {
                ShortQuotient const digit = divideTwoByOne(rest, limb, groupBase, groupInverse);
                limb = digit.quotient;
                rest = digit.remainder;
            }
            a[i] = limb;
        }
        for (std::size_t i = 0; i < groupsPerSweep && groups > 0; ++i)
            writeGroup(out + --groups * digitsPerGroup, rests[i]);
    }
}

/// Splits at the power below `level` and, where the text is not longer than that, further down.
void write(char* out, std::size_t groups, Limb* a, std::size_t aCount, Powers const& powers,
           std::size_t level, Limb* scratch) noexcept {
    if (level == 0) {
        writeByGroups(out, groups, a, aCount);
        return;
    }
    auto const& [lowGroups, divisor, divisorCount, exponent] = powers[--level];
    std::size_t const zeros = (exponent + bitsPerLimb - 1) / bitsPerLimb;
    int const shift = static_cast<int>(zeros * bitsPerLimb - exponent);
    std::size_t const count = significant(a, aCount);
    std::size_t const powerCount = zeros + divisorCount;
    char* const lowOut = out + (groups - std::min(groups, lowGroups)) * digitsPerGroup;
    if (count < powerCount || lowOut == out) {
        std::fill(out, lowOut, '0');
        write(lowOut, std::min(groups, lowGroups), a, count, powers, level, scratch);
        return;
    }
    // The low limbs, where the power has zeros, are part of the remainder as they are.
    a[count] = shift == 0 ? 0 : shiftLeft(a, a, count, shift);
    std::size_t const quotientCount = count + 1 - powerCount;
    Limb* const quotient = scratch;
    Limb* const rest = scratch + quotientCount + 1;
    divide(quotient, a + zeros, count + 1 - zeros, divisor, divisorCount, rest);
    if (shift != 0)
        shiftRight(a, a, powerCount, shift);
    write(out, groups - lowGroups, quotient, quotientCount, powers, level, rest);
    write(lowOut, lowGroups, a, powerCount, powers, level, rest);
}

// --- in -----------------------------------------------------------------------------------------

/// Up to 19 digits.
Limb readGroup(char const* digits, std::size_t length) noexcept {
    Limb group = 0;
    for (; length % digitsPerBlock != 0; --length)
        group = 10 * group + static_cast<Limb>(*digits++ - '0');
    for (; length != 0; length -= digitsPerBlock, digits += digitsPerBlock)
        group = blockBase * group + joinDecimal(loadBlock(digits) - inEveryByte('0'));
    return group;
}

/// Multiplies by 10^19 and adds a group, for several groups in one sweep: a limb of one product is
/// at once the next factor's. The first, highest group may be short, the first sweep takes those
/// that do not fill one.
void readByGroups(Limb* out, char const* digits, std::size_t length) noexcept {
    for (std::size_t done = 0; length != 0;) {
        std::size_t const taken = (groupsOf(length) - 1) % groupsPerSweep + 1;
        std::array<Limb, groupsPerSweep> carries = {};
        for (std::size_t i = groupsPerSweep - taken; i < groupsPerSweep; ++i) {
            std::size_t const groupLength = (length - 1) % digitsPerGroup + 1;
            carries[i] = readGroup(digits, groupLength);
            digits += groupLength;
            length -= groupLength;
        }
        std::fill(out + done, out + done + taken, Limb{0});
        done += taken;
        for (std::size_t i = 0; i < done; ++i) {
            Limb limb = out[i];
            for (Limb& carry : carries) {
                DoubleLimb const product = DoubleLimb{limb} * groupBase + carry;
                limb = low(product);
                carry = high(product);
            }
            out[i] = limb;
        }
    }
}

void read(Limb* out, char const* digits, std::size_t length, Powers const& powers,
          std::size_t level, Limb* scratch) noexcept {
    if (level == 0) {
        readByGroups(out, digits, length);
        return;
    }
    std::size_t const groups = groupsOf(length);
    auto const& [lowGroups, factor, factorCount, exponent] = powers[--level];
    if (groups <= lowGroups) {
        read(out, digits, length, powers, level, scratch);
        return;
    }
    std::size_t const highGroups = groups - lowGroups;
    std::size_t const highLength = length - lowGroups * digitsPerGroup;
    Limb* const upper = scratch;
    Limb* const product = scratch + highGroups;
    read(upper, digits, highLength, powers, level, product);
    read(out, digits + highLength, lowGroups * digitsPerGroup, powers, level, product);
    std::size_t productCount = highGroups + factorCount;
    Limb* const rest = product + productCount + 1;
    if (highGroups > factorCount)
        multiply(product, upper, highGroups, factor, factorCount, rest);
    else
        multiply(product, factor, factorCount, upper, highGroups, rest);
    if (int const shift = static_cast<int>(exponent % bitsPerLimb); shift != 0) {
        product[productCount] = shiftLeft(product, product, productCount, shift);
        ++productCount;
    }
    // The sum is below 10^(19 groups) and so fits. So do the limbs of the product, even if the
    // highest is zero: the power's limbs, moved up by the exponent, need at most lowGroups.
    std::fill(out + lowGroups, out + groups, Limb{0});
    std::size_t const begin = exponent / bitsPerLimb;
    std::size_t const end = begin + productCount;
    Limb const carry = add(out + begin, out + begin, product, productCount);
    addLimb(out + end, out + end, groups - end, carry);
}

}  // namespace

// The quotients of one way down: they halve, with a limb or two more each.
std::size_t toDecimalScratch(std::size_t groups) noexcept {
    return Powers::room(groups)
           + std::max(squareScratch(groups), 2 * groups + 128 + divideScratch(groups));
}

void toDecimal(char* out, std::size_t groups, Limb* a, std::size_t count, Limb* scratch) noexcept {
    if (groups <= decimalOutSplit) {
        writeByGroups(out, groups, a, count);
        return;
    }
    Powers const powers(groups, decimalOutSplit, scratch);
    write(out, groups, a, count, powers, powers.levels(), scratch + Powers::room(groups));
}

// The upper parts of one way down are shorter than 2^K + 2^(K - 1) + ... < 2 groups, the product
// has at most `groups` limbs.
std::size_t fromDecimalScratch(std::size_t groups) noexcept {
    return Powers::room(groups)
           + std::max(squareScratch(groups), 3 * groups + 64 + multiplyScratch(groups, groups + 1));
}

void fromDecimal(Limb* out, char const* digits, std::size_t length, Limb* scratch) noexcept {
    std::size_t const groups = groupsOf(length);
    if (groups <= decimalInSplit) {
        readByGroups(out, digits, length);
        return;
    }
    Powers const powers(groups, decimalInSplit, scratch);
    read(out, digits, length, powers, powers.levels(), scratch + Powers::room(groups));
}

}  // namespace qel::limbs
