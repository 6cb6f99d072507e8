// Decimal text at limb level: by halves as by single groups, at lengths around every split.
#include "LimbTables.h"

#include "bigint/limbs/Decimal.h"
#include "bigint/limbs/Thresholds.h"

namespace {

using namespace limb_test;
using namespace qel::limbs;

std::string plainDecimal(Limbs rest, std::size_t groups) {
    std::string digits(groups * digitsPerGroup, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit)
        *digit = static_cast<char>('0' + divideLimb(rest.data(), rest.data(), rest.size(), 10));
    return digits;
}

std::string decimal(Limbs const& value, std::size_t groups) {
    Limbs withRoom = value;
    withRoom.push_back(0);
    Fenced limbs(withRoom);
    Fenced scratch(toDecimalScratch(groups));
    std::string digits(groups * digitsPerGroup, '?');
    toDecimal(digits.data(), groups, limbs.data(), value.size(), scratch.data());
    EXPECT_TRUE(limbs.intact() && scratch.intact()) << text(value);
    return digits;
}

Limbs parsed(std::string const& digits) {
    std::size_t const groups = (digits.size() - 1) / digitsPerGroup + 1;
    Fenced out(groups);
    Fenced scratch(fromDecimalScratch(groups));
    fromDecimal(out.data(), digits.data(), digits.size(), scratch.data());
    EXPECT_TRUE(out.intact() && scratch.intact()) << digits;
    return out.values();
}

/// Lengths in groups: around sweeps, splits, halves and quarters that are just longer than a part
/// may be, and powers of two.
std::vector<std::size_t> lengths() {
    std::vector<std::size_t> all;
    for (std::size_t i = 1; i <= 18; ++i)
        all.push_back(i);
    for (std::size_t split : {decimalOutSplit, decimalInSplit}) {
        for (std::size_t times : {1U, 2U, 4U}) {
            for (std::size_t i = times * split - 1; i <= times * split + 3; ++i)
                all.push_back(i);
        }
    }
    for (std::size_t power : {64U, 128U, 256U})
        all.insert(all.end(), {power - 1, power, power + 1, power + power / 2});
    return all;
}

TEST(LimbDecimal, GroupsAreEnoughForTheLargestNumber) {
    // log2(10^19) is above 63.1166, so that a number of 64 * count bits is below 10^(19 groups).
    for (std::size_t count = 1; count <= 100000; ++count)
        ASSERT_GE(decimalGroups(count) * 631166, count * 640000) << count;
}

TEST(LimbDecimal, WritesWhatSingleDigitsWouldBe) {
    Operands operands(1);
    for (std::size_t count : lengths()) {
        for (Pattern pattern : patterns) {
            Limbs const value = operands.make(pattern, count);
            std::size_t const groups = decimalGroups(count);
            ASSERT_EQ(decimal(value, groups), plainDecimal(value, groups)) << text(value);
        }
    }
}

TEST(LimbDecimal, WritesZerosInFrontOfShortNumbers) {
    Operands operands(3);
    for (std::size_t groups : lengths()) {
        if (groups == 1)
            continue;
        std::size_t const longest = groups - 1 - groups / 64;  // surely below 10^(19 groups)
        for (std::size_t count : {std::size_t{1}, longest / 3 + 1, longest}) {
            Limbs value = operands.any(count);
            ASSERT_EQ(decimal(value, groups), plainDecimal(value, groups)) << text(value);
            value.resize(2 * groups);
            ASSERT_EQ(decimal(value, groups), plainDecimal(value, groups)) << text(value);
        }
    }
}

TEST(LimbDecimal, ReadsBackWhatItWrites) {
    Operands operands(2);
    std::vector<std::size_t> counts = lengths();
    for (std::size_t i = 1; i <= 3 * decimalInSplit; ++i)
        counts.push_back(i);
    counts.insert(counts.end(), {1000, 1999, 2600, 4100});  // powers long enough for transforms
    for (std::size_t count : counts) {
        Limbs value = operands.any(count);
        std::string const digits = decimal(value, decimalGroups(count));
        value.resize(decimalGroups(count));
        ASSERT_EQ(parsed(digits), value) << digits;
    }
}

// 10^(19 * 3840), at which 7500 limbs are split, has a multiple of 64 zero bits at the end when its
// highest bit is that of a limb.
TEST(LimbDecimal, SplitsAtAPowerThatFillsItsLimbs) {
    constexpr std::size_t count = 7500;
    Limbs value = Operands(4).any(count);
    value.back() |= topBit;
    std::string const digits = decimal(value, decimalGroups(count));
    value.resize(decimalGroups(count));
    ASSERT_EQ(parsed(digits), value) << digits;
}

// 7440 groups are split at 3840, 1920, 960 and 480 of them, which leaves 240, the next power's own.
TEST(LimbDecimal, WritesALeadingPartOfJustThePowersGroups) {
    constexpr std::size_t groups = 7440;
    std::string const nines(groups * digitsPerGroup, '9');
    Limbs value = parsed(nines);
    while (value.back() == 0)
        value.pop_back();
    ASSERT_EQ(decimal(value, groups), nines);
}

TEST(LimbDecimal, ReadsTheLargestNumberOfEveryLength) {
    for (std::size_t groups : lengths()) {
        for (std::size_t missing : {0U, 1U, 18U}) {
            std::string const nines(groups * digitsPerGroup - missing, '9');
            Limbs const value = parsed(nines);
            std::string const padded = std::string(missing, '0') + nines;
            ASSERT_EQ(plainDecimal(value, groups), padded);
            ASSERT_EQ(decimal(value, groups), padded);
        }
    }
}

TEST(LimbDecimal, PowersOfTenAndTheirNeighboursSplitExactly) {
    for (std::size_t groups : {2U, 3U, 64U, 65U, 129U, 200U, 257U}) {
        for (std::size_t digits : {groups * 19, groups * 19 - 7, groups * 19 - 18}) {
            std::string const power = '1' + std::string(digits - 1, '0');
            std::string const padding(groups * 19 - digits, '0');
            ASSERT_EQ(decimal(parsed(power), groups), padding + power);
            Limbs below = parsed(power);
            subtractLimb(below.data(), below.data(), below.size(), 1);
            ASSERT_EQ(decimal(below, groups), padding + '0' + std::string(digits - 1, '9'));
        }
    }
}

}  // namespace
