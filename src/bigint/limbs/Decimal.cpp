#include "Decimal.h"
#include "Thresholds.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

constexpr Limb groupBase = 10'000'000'000'000'000'000U;

/// 10^(19 * 2^k) = limbs * 2^(64 zeros - shift): shifted until the highest bit is set, and without
/// the limbs that are zero at the low end, three in ten.
struct Power {
    Limb const* limbs;
    std::size_t count;
    std::size_t zeros;
    int shift;
};

/// The index of the power that splits `groups` >= 2 groups: the largest 2^k below.
std::size_t splitIndex(std::size_t groups) noexcept {
    return static_cast<std::size_t>(std::bit_width(groups - 1)) - 1;
}

class Powers {
  public:
    /// Computes those that splitting `groups` groups takes.
    Powers(std::size_t groups, Limb* memory) noexcept;

    /// Less than 2^(K + 1) limbs for the powers up to 10^(19 * 2^K), since 10^19 fits a limb; and
    /// one for each, where a shift comes to be an own limb.
    static std::size_t room(std::size_t groups) noexcept { return 2 * groups + 64; }

    Power const& operator[](std::size_t k) const noexcept { return table[k]; }

  private:
    void squareInto(Power& out, Power const& root, Limb* memory) noexcept;

    std::array<Power, 40> table;
};

Powers::Powers(std::size_t groups, Limb* memory) noexcept {
    *memory = groupBase;  // its highest bit is set
    table[0] = {memory, 1, 0, 0};
    Limb* next = memory + 1;
    std::size_t const last = groups < 2 ? 0 : splitIndex(groups);
    for (std::size_t k = 0; k < last; ++k) {
        squareInto(table[k + 1], table[k], next);
        next += 2 * table[k].count;
    }
}

// The square of a number with its highest bit set has it there or one below.
void Powers::squareInto(Power& out, Power const& root, Limb* memory) noexcept {
    std::size_t const count = 2 * root.count;
    square(memory, root.limbs, root.count, memory + count);
    int shift = 2 * root.shift;
    if (memory[count - 1] >> (bitsPerLimb - 1) == 0) {
        shiftLeft(memory, memory, count, 1);
        ++shift;
    }
    std::size_t const wholeLimbs = static_cast<std::size_t>(shift / bitsPerLimb);
    std::size_t const stripped = static_cast<std::size_t>(
        std::find_if(memory, memory + count, [](Limb limb) { return limb != 0; }) - memory);
    out = {memory + stripped, count - stripped, 2 * root.zeros + stripped - wholeLimbs,
           shift % bitsPerLimb};
}

// --- out ----------------------------------------------------------------------------------------

void writeGroup(char* out, Limb group) noexcept {
    for (std::size_t i = digitsPerGroup; i-- > 0; group /= 10)
        out[i] = static_cast<char>('0' + group % 10);
}

void writeByGroups(char* out, std::size_t groups, Limb* a, std::size_t count) noexcept {
    for (std::size_t i = groups; i-- > 0;) {
        count = significant(a, count);
        writeGroup(out + i * digitsPerGroup, count == 0 ? 0 : divideLimb(a, a, count, groupBase));
    }
}

void write(char* out, std::size_t groups, Limb* a, std::size_t aCount, Powers const& powers,
           Limb* scratch) noexcept {
    if (groups <= decimalOutSplit) {
        writeByGroups(out, groups, a, aCount);
        return;
    }
    std::size_t const k = splitIndex(groups);
    std::size_t const lowGroups = std::size_t{1} << k;
    char* const lowOut = out + (groups - lowGroups) * digitsPerGroup;
    auto const& [divisor, divisorCount, zeros, shift] = powers[k];
    std::size_t const count = significant(a, aCount);
    std::size_t const powerCount = zeros + divisorCount;
    if (count < powerCount) {
        std::fill(out, lowOut, '0');
        write(lowOut, lowGroups, a, count, powers, scratch);
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
    write(out, groups - lowGroups, quotient, quotientCount, powers, rest);
    write(lowOut, lowGroups, a, powerCount, powers, rest);
}

// --- in -----------------------------------------------------------------------------------------

Limb readGroup(char const* digits, std::size_t length) noexcept {
    Limb group = 0;
    for (std::size_t i = 0; i < length; ++i)
        group = 10 * group + static_cast<Limb>(digits[i] - '0');
    return group;
}

constexpr std::size_t groupsOf(std::size_t length) noexcept {
    return (length + digitsPerGroup - 1) / digitsPerGroup;
}

/// Only the first, highest group may be short.
void readByGroups(Limb* out, char const* digits, std::size_t length) noexcept {
    std::size_t const groups = groupsOf(length);
    std::size_t const first = length - (groups - 1) * digitsPerGroup;
    out[0] = readGroup(digits, first);
    for (std::size_t i = 1; i < groups; ++i) {
        out[i] = multiplyLimb(out, out, i, groupBase);
        Limb const group = readGroup(digits + first + (i - 1) * digitsPerGroup, digitsPerGroup);
        addLimb(out, out, i + 1, group);
    }
}

void read(Limb* out, char const* digits, std::size_t length, Powers const& powers,
          Limb* scratch) noexcept {
    std::size_t const groups = groupsOf(length);
    if (groups <= decimalInSplit) {
        readByGroups(out, digits, length);
        return;
    }
    std::size_t const k = splitIndex(groups);
    std::size_t const lowGroups = std::size_t{1} << k;
    std::size_t const highGroups = groups - lowGroups;
    std::size_t const highLength = length - lowGroups * digitsPerGroup;
    Limb* const high = scratch;
    Limb* const product = scratch + highGroups;
    read(high, digits, highLength, powers, product);
    read(out, digits + highLength, lowGroups * digitsPerGroup, powers, product);
    // high * power: the shift comes out again. The sum is below 10^(19 groups) and so fits.
    auto const& [factor, factorCount, zeros, shift] = powers[k];
    std::size_t const productCount = highGroups + factorCount;
    Limb* const rest = product + productCount;
    if (highGroups > factorCount)
        multiply(product, high, highGroups, factor, factorCount, rest);
    else
        multiply(product, factor, factorCount, high, highGroups, rest);
    if (shift != 0)
        shiftRight(product, product, productCount, shift);
    std::fill(out + lowGroups, out + groups, Limb{0});
    Limb const carry = add(out + zeros, out + zeros, product, productCount);
    std::size_t const end = zeros + productCount;
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
    Powers const powers(groups, scratch);
    write(out, groups, a, count, powers, scratch + Powers::room(groups));
}

// The high parts of one way down are shorter than 2^K + 2^(K - 1) + ... < 2 groups, the product has
// at most `groups` limbs.
std::size_t fromDecimalScratch(std::size_t groups) noexcept {
    return Powers::room(groups)
           + std::max(squareScratch(groups), 3 * groups + multiplyScratch(groups, groups + 1));
}

void fromDecimal(Limb* out, char const* digits, std::size_t length, Limb* scratch) noexcept {
    std::size_t const groups = groupsOf(length);
    if (groups <= decimalInSplit) {
        readByGroups(out, digits, length);
        return;
    }
    Powers const powers(groups, scratch);
    read(out, digits, length, powers, scratch + Powers::room(groups));
}

}  // namespace qel::limbs
