// Sequences of operations on twins: after every step both halves have the same value, sign flag,
// bound and capacity. What comes next is the choice of a random engine, or of a fuzzer.
#pragma once

#include "Subtractions.h"
#include "Twins.h"

#include <array>
#include <cstdlib>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace bigint_test {

/// Kinds of steps.
enum class Family { storage, bits, shifts, queries, arithmetic, division, numberTheory, text };

/// As often as a sequence of all kinds takes them.
inline std::vector<Family> const allFamilies = {
    Family::storage,    Family::storage,     Family::bits,       Family::bits,
    Family::bits,       Family::bits,        Family::shifts,     Family::shifts,
    Family::queries,    Family::queries,     Family::arithmetic, Family::arithmetic,
    Family::arithmetic, Family::arithmetic,  Family::division,   Family::division,
    Family::text,       Family::numberTheory};

class Sequence {
  public:
    explicit Sequence(Choices& source, std::vector<Family> kinds = allFamilies)
        : choices(source), families(std::move(kinds)) {}

    /// Runs steps until one differs, or no choice is left; what differs, or the empty text.
    std::string run(int steps) {
        for (int i = 0; i < steps && !choices.ended(); ++i) {
            std::string const fault = step();
            if (!fault.empty())
                return label("step", i) + ", " + trace + ": " + fault;
        }
        return {};
    }

  private:
    int below(int end) { return choices.below(end); }
    bool oneIn(int n) { return choices.oneIn(n); }
    Twin& any() { return twins[static_cast<std::size_t>(below(static_cast<int>(twins.size())))]; }
    unsigned word() { return choices.word(); }
    void refill(Twin& twin) { bigint_test::refill(twin, choices); }
    void refill(Twin& twin, int bits) { bigint_test::refill(twin, bits, choices); }

    // --- steps ---

    /// Applies one operation to two twins that may be the same.
    template <typename Operation>
    std::string binary(char const* name, Operation operation) {
        Twin& a = any();
        Twin& b = any();
        trace = std::string(name) + " of " + describe(a) + " and " + describe(b);
        operation(a.fast, b.fast);
        operation(a.plain, b.plain);
        return check(a) + check(b);
    }

    /// Compares what the operation returns.
    template <typename Operation>
    std::string result(char const* name, Operation operation) {
        Twin& a = any();
        Twin& b = any();
        trace = std::string(name) + " of " + describe(a) + " and " + describe(b);
        return difference(operation(a.fast, b.fast), operation(a.plain, b.plain)) + check(a)
               + check(b);
    }

    template <typename Operation>
    std::string unary(std::string const& name, Operation operation) {
        Twin& a = any();
        trace = name + " of " + describe(a);
        operation(a.fast);
        operation(a.plain);
        return check(a);
    }

    template <typename Operation>
    std::string query(std::string const& name, Operation operation) {
        Twin& a = any();
        Twin& b = any();
        trace = name + " of " + describe(a) + " and " + describe(b);
        auto const fast = operation(a.fast, b.fast);
        auto const plain = operation(a.plain, b.plain);
        std::ostringstream text;
        if (fast != plain)
            text << fast << ", not " << plain;
        return text.str() + check(a) + check(b);
    }

    std::string step() {
        if (oneIn(4))
            refill(any());
        if (oneIn(16)) {
            Twin& multiple = any();
            refillAsMultiple(multiple, any(), choices);
        }
        tame();
        return stepOf(families[static_cast<std::size_t>(below(static_cast<int>(families.size())))]);
    }

    std::string stepOf(Family family) {
        switch (family) {
        case Family::storage:
            return storageStep();
        case Family::bits:
            return oneIn(2) ? bitStep() : rangeStep();
        case Family::shifts:
            return shiftStep();
        case Family::queries:
            return queryStep();
        case Family::division:
            return divisionStep();
        case Family::numberTheory:
            return numberTheoryStep();
        case Family::text:
            return textStep();
        default:
            return arithmeticStep();
        }
    }

    /// Numbers that have grown out of proportion start again.
    void tame() {
        for (Twin& twin : twins) {
            int const bound = twin.plain.highestBit;
            if (bound > choices.widest() || (bound > 3000 && oneIn(3)))
                refill(twin);
        }
    }

    std::string storageStep() {
        int const v = static_cast<int>(word());
        long long const wide = choices.wide();
        switch (below(12)) {
        case 0:
            return unary("assign int",
                         [v](auto& x) { x = std::remove_reference_t<decltype(x)>(v); });
        case 1:
            return unary("assign unsigned", [v](auto& x) {
                x = std::remove_reference_t<decltype(x)>(static_cast<unsigned>(v));
            });
        case 2:
            return unary("assign wide",
                         [wide](auto& x) { x = std::remove_reference_t<decltype(x)>(wide); });
        case 3:
            return result("copy",
                          [](auto& a, auto&) { return std::remove_reference_t<decltype(a)>(a); });
        case 4:
            return binary("assign", [](auto& a, auto& b) { a = b; });
        case 5:
            return binary("swap", [](auto& a, auto& b) { a.swapWith(b); });
        case 6:
            return unary("clear", [](auto& x) { x.clear(); });
        case 7:
            return unary("reserve", [v](auto& x) { x.ensureSize(v & 63); });
        case 8:
            return unary("flag", [v](auto& x) { x.setNegative((v & 1) != 0); });
        case 9:
            return unary("negate", [](auto& x) { (void)x.negate(); });
        case 10:
            return result("minus", [](auto& a, auto&) { return -a; });
        default:
            return binary("move", [](auto& a, auto& b) {
                std::remove_reference_t<decltype(a)> copy(a);
                a = b;
                std::remove_reference_t<decltype(a)> moved(std::move(copy));
                b = std::move(moved);
            });
        }
    }

    std::string bitStep() {
        int const i = below(1400) - 10;
        bool const value = oneIn(2);
        std::string const at = label(" at", i);
        switch (below(4)) {
        case 0:
            return unary("set" + at, [i](auto& x) { x.setBit(i); });
        case 1:
            return unary("clear" + at, [i](auto& x) { x.clearBit(i); });
        case 2:
            return unary("write" + at, [i, value](auto& x) { x.setBit(i, value); });
        default:
            return unary("insert" + at, [i, value](auto& x) { x.insertBit(i, value); });
        }
    }

    std::string rangeStep() {
        int const start = below(1300) - 10;
        int const count = below(150) - 5;
        unsigned const value = word();
        bool const bit = oneIn(2);
        std::string const at = label(" at", start) + label(" for", count);
        switch (below(4)) {
        case 0:
            return unary("range" + at, [=](auto& x) { x.setRange(start, count, bit); });
        case 1:
            return unary("int" + at, [=](auto& x) { x.setBitRangeAsInt(start, count, value); });
        case 2:
            return query("int read" + at,
                         [=](auto& a, auto&) { return a.getBitRangeAsInt(start, count); });
        default:
            return result(("subrange" + at).c_str(),
                          [=](auto& a, auto&) { return a.getBitRange(start, count * 8); });
        }
    }

    std::string shiftStep() {
        int const count = oneIn(3) ? below(2000) - 1000 : below(140) - 70;
        int const from = oneIn(3) ? below(500) : 0;
        std::string const by = label(" by", count);
        switch (below(5)) {
        case 0:
            return unary("left" + by, [=](auto& x) { x <<= count; });
        case 1:
            return unary("right" + by, [=](auto& x) { x >>= count; });
        case 2:
            return result(("left of" + by).c_str(), [=](auto& a, auto&) { return a << count; });
        case 3:
            return result(("right of" + by).c_str(), [=](auto& a, auto&) { return a >> count; });
        default:
            return unary("partial" + by + label(" from", from),
                         [=](auto& x) { x.shiftBits(count, from); });
        }
    }

    std::string queryStep() {
        int const i = below(1400) - 10;
        switch (below(10)) {
        case 0:
            return query("compare", [](auto& a, auto& b) { return a.compare(b); });
        case 1:
            return query("compareAbsolute", [](auto& a, auto& b) { return a.compareAbsolute(b); });
        case 2:
            return query("toInteger", [](auto& a, auto&) { return a.toInteger(); });
        case 3:
            return query("highest bit", [](auto& a, auto&) { return a.getHighestBit(); });
        case 4:
            return query("bit", [i](auto& a, auto&) { return a[i]; });
        case 5:
            return query("next set", [i](auto& a, auto&) { return a.findNextSetBit(i); });
        case 6:
            return query("next clear", [i](auto& a, auto&) { return a.findNextClearBit(i); });
        case 7:
            return query("count", [](auto& a, auto&) { return a.countNumberOfSetBits(); });
        case 8:
            return query("order", [](auto& a, auto& b) {
                return (a == b) + 2 * (a != b) + 4 * (a < b) + 8 * (a <= b) + 16 * (a > b)
                       + 32 * (a >= b);
            });
        default:
            return query("signs", [](auto& a, auto&) {
                return a.isZero() + 2 * a.isOne() + 4 * a.isNegative();
            });
        }
    }

    std::string arithmeticStep() {
        switch (below(18)) {
        case 0:
        case 1:
            return binary("+=", [](auto& a, auto& b) { a += b; });
        case 2:
        case 3:
            return binary("-=", [](auto& a, auto& b) { a -= b; });
        case 4:
        case 5:
            return binary("*=", [](auto& a, auto& b) { a *= b; });
        case 6:
            return binary("&=", [](auto& a, auto& b) { a &= b; });
        case 7:
            return binary("|=", [](auto& a, auto& b) { a |= b; });
        case 8:
            return binary("^=", [](auto& a, auto& b) { a ^= b; });
        case 9:
            return result("+", [](auto& a, auto& b) { return a + b; });
        case 10:
            return result("-", [](auto& a, auto& b) { return a - b; });
        case 11:
            return result("*", [](auto& a, auto& b) { return a * b; });
        case 12:
            return result("&", [](auto& a, auto& b) { return a & b; });
        case 13:
            return result("|", [](auto& a, auto& b) { return a | b; });
        case 14:
            return result("^", [](auto& a, auto& b) { return a ^ b; });
        case 15:
            return unary("++", [](auto& x) { ++x; });
        case 16:
            return unary("--", [](auto& x) { --x; });
        default:
            return oneIn(2) ? result("postfix ++", [](auto& a, auto&) { return a++; })
                            : result("postfix --", [](auto& a, auto&) { return a--; });
        }
    }

    std::string divisionStep() {
        switch (below(6)) {
        case 0:
            return binary("/=", [](auto& a, auto& b) { a /= b; });
        case 1:
            return binary("%=", [](auto& a, auto& b) { a %= b; });
        case 2:
            return result("/", [](auto& a, auto& b) { return a / b; });
        case 3:
            return result("%", [](auto& a, auto& b) { return a % b; });
        default:
            return divideByStep();
        }
    }

    /// The divisor may be the dividend or the remainder; the remainder is not the dividend.
    std::string divideByStep() {
        Twin& a = any();
        Twin& divisor = any();
        Twin* remainder = &any();
        while (remainder == &a)
            remainder = &any();
        trace =
            "divide " + describe(a) + " by " + describe(divisor) + " into " + describe(*remainder);
        a.fast.divideBy(divisor.fast, remainder->fast);
        a.plain.divideBy(divisor.plain, remainder->plain);
        return check(a) + check(divisor) + check(*remainder);
    }

    std::string numberTheoryStep() {
        switch (below(4)) {
        case 0:
            return gcdStep();
        case 1:
            return inverseStep();
        default:
            return powerStep();
        }
    }

    std::string gcdStep() {
        constexpr int limit = 3000;
        Twin a = any();
        Twin b = any();
        both(a, [](auto& v) { v.setNegative(false); });
        both(b, [](auto& v) { v.setNegative(false); });
        trace = "gcd of " + describe(a) + " and " + describe(b);
        if (subtractionsAfterDivisions(a.fast, b.fast, limit) >= limit)
            return {};
        std::string const fault = difference(a.fast.findGreatestCommonDivisor(b.fast),
                                             a.plain.findGreatestCommonDivisor(b.plain));
        if (!fault.empty())
            return fault;
        if (std::abs(a.fast.getHighestBit() - b.fast.getHighestBit()) > 10 || b.fast.isZero())
            return {};
        return simpleGcdStep(a, b);
    }

    /// Both operands have one sign, and few subtractions lie before them.
    std::string simpleGcdStep(Twin& a, Twin& b) {
        bool const negative = oneIn(4);
        both(a, [=](auto& v) { v.setNegative(negative); });
        both(b, [=](auto& v) { v.setNegative(negative); });
        trace = "simple " + trace;
        return difference(LargeInteger::simpleGCD(&a.fast, &b.fast),
                          plain::LargeInteger::simpleGCD(&a.plain, &b.plain))
               + check(a) + check(b);
    }

    /// A value below 2^12, so that the plain steps add the modulus few times.
    std::string inverseStep() {
        Twin m = any();
        int const small = below(1 << 12);
        Twin a{LargeInteger(small), plain::LargeInteger(small)};
        if (oneIn(4)) {  // reduced first
            a.fast += m.fast * LargeInteger(3);
            a.plain += m.plain * plain::LargeInteger(3);
        }
        trace = "inverse of " + describe(a) + " modulo " + describe(m);
        bool const refused = m.fast.isOne() || m.fast.isNegative() || m.fast.isZero();
        if (!refused) {
            LargeInteger const reduced = a.fast % m.fast;
            if (a.fast.isNegative()
                || (reduced[0] != 0 && !reduced.findGreatestCommonDivisor(m.fast).isOne()))
                return {};
        }
        a.fast.inverseModulo(m.fast);
        a.plain.inverseModulo(m.plain);
        return check(a);
    }

    std::string powerStep() {
        Twin a = any();
        Twin e = any();
        Twin m = any();
        int const wide = std::min(500, choices.widest() / 8);
        refill(m, below(oneIn(30) ? wide : 120));
        refill(e, below(oneIn(30) ? wide : 90));
        if (oneIn(2))
            both(m, [](auto& v) { v.setBit(0); });
        trace = "power of " + describe(a) + " to " + describe(e) + " modulo " + describe(m);
        int const alias = below(20);
        LargeInteger const& fastModulus = alias == 0 ? a.fast : m.fast;
        plain::LargeInteger const& plainModulus = alias == 0 ? a.plain : m.plain;
        if (alias == 0 && a.plain.highestBit > wide)
            return {};
        a.fast.exponentModulo(alias == 1 ? a.fast : e.fast, fastModulus);
        a.plain.exponentModulo(alias == 1 ? a.plain : e.plain, plainModulus);
        return difference(a.fast, a.plain) + check(e) + check(m);
    }

    std::string textStep() {
        static constexpr int radixes[] = {2, 8, 10, 16, 7, 0};
        int const radix = radixes[below(6)];
        int const widestDecimal = std::min(4000, choices.widest() / 4);
        if (oneIn(2)) {
            for (Twin& twin : twins) {  // plain decimal text takes cubic time
                if (radix == 10 && twin.plain.highestBit > widestDecimal)
                    refill(twin, below(widestDecimal));
            }
            return query(label("text in", radix),
                         [=](auto& a, auto&) { return a.toString(radix); });
        }
        std::ostringstream digits;
        if (oneIn(6))
            digits << '-';
        if (oneIn(6))
            digits << std::string(static_cast<std::size_t>(below(oneIn(10) ? 300 : 9)), '0');
        int const widestText = std::min(3000, choices.widest() / 5);
        int const longest = std::min(oneIn(100) ? 3000 : oneIn(10) ? 400 : 60, widestText);
        int const symbols = oneIn(3) ? 25 : oneIn(10) ? 1 : oneIn(10) ? 2 : 10;
        for (int i = below(longest); i > 0; --i)
            digits << "0123456789abcdefABCDEF-x "[below(symbols)];
        std::string const text = digits.str();
        std::string const fault = unary("parse \"" + text + label("\" in", radix),
                                        [&](auto& x) { x.parseString(text, radix); });
        if (fault.empty() && longest > 400) {  // too wide for the plain division and decimal text
            for (Twin& twin : twins)
                refill(twin);
        }
        return fault;
    }

    Choices& choices;
    std::vector<Family> families;
    std::array<Twin, 5> twins;
    std::string trace;
};

}  // namespace bigint_test
