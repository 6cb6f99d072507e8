// Small worlds without a gap: every pair of values from -40 to 40, zeros of both signs included,
// under exact and stale bounds, through every operation, beside the plain model. All four fields
// of the result and of both operands agree afterwards.
//
// Left out is what does not come to an end: common divisors with a negative operand, repeated
// subtraction of zero, and inverses of values that share a factor with the modulus.
#include "PlainDifference.h"

#include "Thoroughness.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace bigint_test;

constexpr int farthest = 40;

/// A value, and how far its bound is above its top bit.
struct Operand {
    int magnitude;
    bool negative;
    int stale;
};

std::ostream& operator<<(std::ostream& out, Operand const& operand) {
    return out << (operand.negative ? '-' : '+') << operand.magnitude << " stale by "
               << operand.stale;
}

/// An operand as the library's value and as the model's. Made in place: a copy has another
/// capacity.
struct Twin {
    LargeInteger fast;
    plain::LargeInteger plain;

    explicit Twin(Operand const& operand) : fast(operand.magnitude), plain(operand.magnitude) {
        prepare(fast, operand);
        prepare(plain, operand);
    }

    template <typename Integer>
    static void prepare(Integer& v, Operand const& operand) {
        int const bound = v.getHighestBit() + operand.stale;
        if (operand.stale > 0) {
            v.setBit(bound);
            v.clearBit(bound);
        }
        v.setNegative(operand.negative);
    }

    [[nodiscard]] std::string difference() const { return bigint_test::difference(fast, plain); }
};

std::vector<Operand> allOperands() {
    std::vector<Operand> operands;
    for (int const stale : {0, 1, 31, 32, 64}) {
        if (thoroughness::slowBuild && (stale == 1 || stale == 31))
            continue;
        for (int magnitude = 0; magnitude <= farthest; ++magnitude) {
            operands.push_back({magnitude, false, stale});
            operands.push_back({magnitude, true, stale});
        }
    }
    return operands;
}

std::string check(Twin const& a, Twin const& b) {
    std::string const left = a.difference();
    std::string const right = b.difference();
    return (left.empty() ? "" : "left: " + left) + (right.empty() ? "" : "right: " + right);
}

/// What one operation does wrong with two operands; empty for nothing.
using Check = std::function<std::string(Operand const&, Operand const&)>;

/// Changes the left operand, and perhaps the right one.
template <typename Operation>
Check changing(Operation operation) {
    return [operation](Operand const& left, Operand const& right) {
        Twin a(left);
        Twin b(right);
        operation(a.fast, b.fast);
        operation(a.plain, b.plain);
        return check(a, b);
    };
}

/// Makes a value of them.
template <typename Operation>
Check making(Operation operation) {
    return [operation](Operand const& left, Operand const& right) {
        Twin const a(left);
        Twin const b(right);
        return difference(operation(a.fast, b.fast), operation(a.plain, b.plain)) + check(a, b);
    };
}

/// Tells something about them.
template <typename Operation>
Check telling(Operation operation) {
    return [operation](Operand const& left, Operand const& right) {
        Twin const a(left);
        Twin const b(right);
        int const fast = operation(a.fast, b.fast);
        int const plain = operation(a.plain, b.plain);
        std::ostringstream text;
        if (fast != plain)
            text << fast << ", not " << plain;
        return text.str() + check(a, b);
    };
}

/// Uses the left operand as both.
template <typename Operation>
Check withItself(Operation operation) {
    return [operation](Operand const& left, Operand const&) {
        Twin a(left);
        operation(a.fast, self(a.fast));
        operation(a.plain, static_cast<plain::LargeInteger const&>(a.plain));
        return a.difference();
    };
}

/// The remainder's old value has a larger buffer, which the quotient inherits.
template <typename Integer>
Integer const& divide(Integer& dividend, Integer const& divisor, Integer& remainder) {
    remainder.setBit(700);
    dividend.divideBy(divisor, remainder);
    return remainder;
}

std::string checkDivideBy(Operand const& left, Operand const& right) {
    Twin a(left);
    Twin const b(right);
    Twin remainder({3, true, 5});
    divide(a.fast, b.fast, remainder.fast);
    divide(a.plain, b.plain, remainder.plain);
    std::string const fault = remainder.difference();
    return (fault.empty() ? "" : "remainder: " + fault) + check(a, b);
}

std::string checkGcd(Operand const& left, Operand const& right) {
    if ((left.negative && left.magnitude != 0) || (right.negative && right.magnitude != 0))
        return {};  // may never end
    Twin const a(left);
    Twin const b(right);
    return difference(a.fast.findGreatestCommonDivisor(b.fast),
                      a.plain.findGreatestCommonDivisor(b.plain))
           + check(a, b);
}

std::string checkSimpleGcd(Operand const& left, Operand const& right) {
    if (left.magnitude != 0 && (right.magnitude == 0 || left.negative != right.negative))
        return {};  // subtracts zero, or moves away from zero, for ever
    Twin a(left);
    Twin b(right);
    return difference(LargeInteger::simpleGCD(&a.fast, &b.fast),
                      plain::LargeInteger::simpleGCD(&a.plain, &b.plain))
           + check(a, b);
}

std::string checkInverse(Operand const& left, Operand const& right) {
    bool const refused = right.magnitude < 2 || right.negative;
    if (!refused && left.negative && left.magnitude != 0)
        return {};  // may pass by the remainder 1 for ever
    if (!refused && left.magnitude % right.magnitude % 2 != 0
        && std::gcd(left.magnitude, right.magnitude) != 1)
        return {};  // never comes to the remainder 1
    Twin a(left);
    Twin const b(right);
    a.fast.inverseModulo(b.fast);
    a.plain.inverseModulo(b.plain);
    return check(a, b);
}

struct Row {
    char const* name;
    Check check;
};

std::ostream& operator<<(std::ostream& out, Row const& row) {
    return out << row.name;
}

Row const rows[] = {
    {"Sum", making([](auto& a, auto& b) { return a + b; })},
    {"Difference", making([](auto& a, auto& b) { return a - b; })},
    {"Product", making([](auto& a, auto& b) { return a * b; })},
    {"Quotient", making([](auto& a, auto& b) { return a / b; })},
    {"Remainder", making([](auto& a, auto& b) { return a % b; })},
    {"And", making([](auto& a, auto& b) { return a & b; })},
    {"Or", making([](auto& a, auto& b) { return a | b; })},
    {"ExclusiveOr", making([](auto& a, auto& b) { return a ^ b; })},
    {"Negation", making([](auto& a, auto&) { return -a; })},
    {"Copy", making([](auto& a, auto&) { return std::decay_t<decltype(a)>(a); })},
    {"AssignedCopy", changing([](auto& a, auto& b) { a = b; })},
    {"AssignedSum", changing([](auto& a, auto& b) { a += b; })},
    {"AssignedDifference", changing([](auto& a, auto& b) { a -= b; })},
    {"AssignedProduct", changing([](auto& a, auto& b) { a *= b; })},
    {"AssignedQuotient", changing([](auto& a, auto& b) { a /= b; })},
    {"AssignedRemainder", changing([](auto& a, auto& b) { a %= b; })},
    {"AssignedAnd", changing([](auto& a, auto& b) { a &= b; })},
    {"AssignedOr", changing([](auto& a, auto& b) { a |= b; })},
    {"AssignedExclusiveOr", changing([](auto& a, auto& b) { a ^= b; })},
    {"DivideBy", checkDivideBy},
    {"DivideByIntoTheDivisor", changing([](auto& a, auto& b) { a.divideBy(b, b); })},
    {"OwnSum", withItself([](auto& a, auto& b) { a += b; })},
    {"OwnDifference", withItself([](auto& a, auto& b) { a -= b; })},
    {"OwnProduct", withItself([](auto& a, auto& b) { a *= b; })},
    {"OwnQuotient", withItself([](auto& a, auto& b) { a /= b; })},
    {"OwnRemainder", withItself([](auto& a, auto& b) { a %= b; })},
    {"OwnAnd", withItself([](auto& a, auto& b) { a &= b; })},
    {"OwnOr", withItself([](auto& a, auto& b) { a |= b; })},
    {"OwnExclusiveOr", withItself([](auto& a, auto& b) { a ^= b; })},
    {"OwnCopy", withItself([](auto& a, auto& b) { a = b; })},
    {"Compare", telling([](auto& a, auto& b) { return a.compare(b); })},
    {"CompareAbsolute", telling([](auto& a, auto& b) { return a.compareAbsolute(b); })},
    {"Order", telling([](auto& a, auto& b) {
         return (a == b) + 2 * (a != b) + 4 * (a < b) + 8 * (a <= b) + 16 * (a > b) + 32 * (a >= b);
     })},
    {"GreatestCommonDivisor", checkGcd},
    {"SimpleGcd", checkSimpleGcd},
    {"Inverse", checkInverse},
};

class SmallWorld : public testing::TestWithParam<Row> {};

TEST_P(SmallWorld, AgreesWithThePlainModelForEveryPair) {
    std::vector<Operand> const operands = allOperands();
    for (Operand const& a : operands) {
        for (Operand const& b : operands)
            ASSERT_EQ(GetParam().check(a, b), "") << a << " and " << b;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, SmallWorld, testing::ValuesIn(rows),
                         [](auto const& row) { return std::string(row.param.name); });

// --- one value and positions -------------------------------------------------------------------

/// One value and two numbers: distances and positions around words and limbs.
template <typename Operation>
void expectPlain(std::vector<int> const& firsts, std::vector<int> const& seconds,
                 Operation operation) {
    for (Operand const& operand : allOperands()) {
        for (int const i : firsts) {
            for (int const k : seconds) {
                Twin twin(operand);
                operation(twin.fast, i, k);
                operation(twin.plain, i, k);
                ASSERT_EQ(twin.difference(), "") << operand << " with " << i << " and " << k;
            }
        }
    }
}

std::vector<int> between(int first, int last) {
    std::vector<int> numbers(static_cast<std::size_t>(last - first + 1));
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

TEST(SmallWorldOfBits, ShiftsByEveryDistanceUpTo130) {
    expectPlain(between(-130, 130), {0}, [](auto& v, int count, int) { v <<= count; });
    expectPlain(between(-130, 130), {0}, [](auto& v, int count, int) { v >>= count; });
}

TEST(SmallWorldOfBits, ShiftedCopies) {
    expectPlain(between(-70, 70), {0, 1},
                [](auto& v, int count, int left) { v = left != 0 ? v << count : v >> count; });
}

TEST(SmallWorldOfBits, PartialShifts) {
    expectPlain({-70, -64, -33, -32, -31, -2, -1, 0, 1, 2, 31, 32, 33, 64, 70},
                {-1, 0, 1, 2, 3, 4, 5, 6, 31, 32, 33, 64, 69, 70},
                [](auto& v, int count, int from) { v.shiftBits(count, from); });
}

TEST(SmallWorldOfBits, InsertedAndWrittenBits) {
    expectPlain(between(-2, 72), {0, 1},
                [](auto& v, int position, int bit) { v.insertBit(position, bit != 0); });
    expectPlain(between(-2, 72), {0, 1},
                [](auto& v, int position, int bit) { v.setBit(position, bit != 0); });
}

TEST(SmallWorldOfBits, Ranges) {
    std::vector<int> const starts = {-33, -2, -1, 0, 1, 3, 5, 30, 31, 32, 33, 63, 64, 70};
    std::vector<int> const counts = {-1, 0, 1, 2, 5, 31, 32, 33, 64, 65};
    expectPlain(starts, counts,
                [](auto& v, int start, int count) { v.setRange(start, count, true); });
    expectPlain(starts, counts,
                [](auto& v, int start, int count) { v.setRange(start, count, false); });
    expectPlain(starts, counts, [](auto& v, int start, int count) {
        v.setBitRangeAsInt(start, count, 0xA5A5A5A5U);
    });
    expectPlain(starts, counts,
                [](auto& v, int start, int count) { v = v.getBitRange(start, count); });
}

TEST(SmallWorldOfBits, StepsByOneAndSigns) {
    expectPlain(between(0, 5), {0}, [](auto& v, int choice, int) {
        switch (choice) {
        case 0:
            ++v;
            break;
        case 1:
            --v;
            break;
        case 2:
            v = v++;
            break;
        case 3:
            v = v--;
            break;
        case 4:
            (void)v.negate();
            break;
        default:
            v.clear();
        }
    });
}

TEST(SmallWorldOfBits, TextAndBack) {
    expectPlain({2, 7, 8, 10, 16}, {2, 3, 8, 10, 16},
                [](auto& v, int written, int read) { v.parseString(v.toString(written), read); });
}

// --- three values ------------------------------------------------------------------------------

// A negative base has a sign of its own by the documented steps, and every step ends.
TEST(SmallWorldOfPowers, OfEveryTripleFromMinus12To12) {
    std::vector<int> const stales =
        thoroughness::slowBuild ? std::vector<int>{0} : std::vector<int>{0, 33};
    auto const operand = [](int i, int stale) {
        return Operand{i < 0 ? -i - 1 : i, i < 0, stale};  // -1 stands for the negative zero
    };
    for (int const stale : stales) {
        for (int base = -13; base <= 12; ++base) {
            for (int exponent = -13; exponent <= 12; ++exponent) {
                for (int modulus = -13; modulus <= 12; ++modulus) {
                    Twin a(operand(base, stale));
                    Twin const e(operand(exponent, 33 - stale));
                    Twin const m(operand(modulus, stale));
                    a.fast.exponentModulo(e.fast, m.fast);
                    a.plain.exponentModulo(e.plain, m.plain);
                    ASSERT_EQ(check(a, e) + m.difference(), "")
                        << base << " to " << exponent << " modulo " << modulus;
                }
            }
        }
    }
}

}  // namespace
