// Division and number theory. Divisors, moduli and remainders may be the object itself: all of them
// count as they were on entry.
#include "IntegerRows.h"
#include "LargeIntegerFunctions.h"

#include "bigint/Subtractions.h"

#include <algorithm>

namespace interface_test {

namespace {

using bigint_test::subtractions;
using bigint_test::subtractionsAfterDivisions;
using qel::LargeInteger;

std::vector<Function> divisions() {
    return {
        ternary<manyOperands>(
            "LargeInteger::divideBy(LargeInteger const&, LargeInteger&)",
            [](auto& x, auto const& divisor, auto& remainder) { x.divideBy(divisor, remainder); }),
        binary(
            "LargeInteger::operator/=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a /= b; }),
        binary(
            "LargeInteger::operator%=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a %= b; }),
        binary("LargeInteger::operator/(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a / b; }),
        binary("LargeInteger::operator%(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a % b; }),
    };
}

/// The model subtracts one by one.
constexpr int mostSubtractions = 3000;

/// Left out: a zero b under an a that is not zero, and opposite signs, with which the call runs
/// for ever.
bool haveSimpleDivisor(LargeInteger const& a, LargeInteger const& b) {
    if (a.isZero() || &a == &b)
        return true;
    return !b.isZero() && a.isNegative() == b.isNegative()
           && subtractions(a, b, mostSubtractions) < mostSubtractions;
}

/// Left out: a negative operand, with which the call can run for ever.
bool haveDivisor(LargeInteger const& a, LargeInteger const& b) {
    return !a.isNegative() && !b.isNegative()
           && subtractionsAfterDivisions(a, b, mostSubtractions) < mostSubtractions;
}

/// Left out: a negative value, and one that has no inverse because it shares a factor with the
/// modulus, with which the call can run for ever. The model adds the modulus about as often as the
/// value says once it is reduced.
bool haveInverse(LargeInteger const& x, LargeInteger const& m) {
    if (m.isOne() || m.isZero() || m.isNegative())
        return true;
    LargeInteger const reduced = x % m;
    if (x.isNegative())
        return false;
    return reduced[0] == 0
           || (reduced < LargeInteger(1 << 12) && reduced.findGreatestCommonDivisor(m).isOne());
}

/// Besides the values that the others take, small ones, which have inverses.
Operands const& invertibleOperands() {
    static Operands const operands = [] {
        Operands list = manyOperands();
        for (char const* digits : {"3", "5", "11", "ffd", "80000003", "1000000000000001d"}) {
            list.push_back({twinOf(digits)});
            list.push_back({twinOf(digits), 700, 40});
        }
        return list;
    }();
    return operands;
}

/// The model takes a product and a quotient of this width for each bit of the exponent.
bool isQuick(LargeInteger const& exponent, LargeInteger const& modulus) {
    long long const width = modulus.getHighestBit() + 1;
    long long const steps = std::min(width, exponent.getHighestBit() + 1LL);
    return steps * width * width <= 200 * 200 * 200;
}

}  // namespace

std::vector<Function> divisionFunctions() {
    std::vector<Function> all = divisions();
    std::vector<Function> const more = {
        binary(
            "LargeInteger::simpleGCD(LargeInteger*, LargeInteger*)",
            [](auto& a, auto& b) {
                return std::remove_reference_t<decltype(a)>::simpleGCD(&a, &b);
            },
            [](auto const& a, auto const& b) { return haveSimpleDivisor(a, b); }),
        binary(
            "LargeInteger::findGreatestCommonDivisor(LargeInteger)",
            [](auto const& a, auto const& b) { return a.findGreatestCommonDivisor(b); },
            [](auto const& a, auto const& b) { return haveDivisor(a, b); }),
        binary<invertibleOperands>(
            "LargeInteger::inverseModulo(LargeInteger const&)",
            [](auto& x, auto const& m) { x.inverseModulo(m); },
            [](auto const& x, auto const& m) { return haveInverse(x, m); }),
        ternary<fewOperands>(
            "LargeInteger::exponentModulo(LargeInteger const&, LargeInteger const&)",
            [](auto& x, auto const& e, auto const& m) { x.exponentModulo(e, m); },
            [](auto const&, auto const& e, auto const& m) { return isQuick(e, m); })};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

}  // namespace interface_test
