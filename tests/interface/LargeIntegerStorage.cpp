// Construction, assignment, capacity, signs and comparisons.
#include "IntegerRows.h"
#include "LargeIntegerFunctions.h"

#include <utility>

namespace interface_test {

namespace {

using qel::LargeInteger;

/// Becomes zero as the model has it: of a value that was moved from nothing else is documented.
void expectPlainZero(LargeInteger& moved) {
    EXPECT_TRUE(moved.isZero());
    EXPECT_EQ(bigint_test::representation(moved).highestBit, -1);
    EXPECT_FALSE(bigint_test::representation(moved).negative);
    moved = LargeInteger();
}

LargeInteger moveFrom(LargeInteger& source) {
    LargeInteger target(std::move(source));
    expectPlainZero(source);
    return target;
}

plain::LargeInteger moveFrom(plain::LargeInteger& source) {
    plain::LargeInteger target(source);
    source = plain::LargeInteger();
    return target;
}

LargeInteger& moveAssign(LargeInteger& target, LargeInteger& source) {
    LargeInteger& result = target = std::move(source);
    if (&target != &source)
        expectPlainZero(source);
    return result;
}

plain::LargeInteger& moveAssign(plain::LargeInteger& target, plain::LargeInteger& source) {
    target = source;
    if (&target != &source)
        source = plain::LargeInteger();
    return target;
}

std::vector<Function> creations() {
    return {
        construction<>("LargeInteger::LargeInteger()"),
        construction<int>("LargeInteger::LargeInteger(int)"),
        construction<unsigned int>("LargeInteger::LargeInteger(unsigned int)"),
        construction<long long>("LargeInteger::LargeInteger(long long)"),
        unary("LargeInteger::LargeInteger(LargeInteger const&)",
              [](auto& x) { return std::remove_reference_t<decltype(x)>(std::as_const(x)); }),
        unary("LargeInteger::LargeInteger(LargeInteger&&)", [](auto& x) { return moveFrom(x); }),
        binary(
            "LargeInteger::operator=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a = b; }),
        binary(
            "LargeInteger::operator=(LargeInteger&&)",
            [](auto& a, auto& b) -> auto& { return moveAssign(a, b); }),
    };
}

std::vector<Function> storage() {
    return {
        binary("LargeInteger::swapWith(LargeInteger&)", [](auto& a, auto& b) { a.swapWith(b); }),
        unary("LargeInteger::clear()", [](auto& x) { x.clear(); }),
        // Beyond that: gigabytes, or the end of the process.
        unary<int>(
            "LargeInteger::ensureSize(int)", [](auto& x, int w) { x.ensureSize(w); },
            [](auto const&, int w) { return w <= 65535; }),
        unary<bool>("LargeInteger::setNegative(bool)",
                    [](auto& x, bool flag) { x.setNegative(flag); }),
        unary("LargeInteger::isZero()", [](auto const& x) { return x.isZero(); }),
        unary("LargeInteger::isOne()", [](auto const& x) { return x.isOne(); }),
        unary("LargeInteger::isNegative()", [](auto const& x) { return x.isNegative(); }),
        unary("LargeInteger::negate()", [](auto& x) { return x.negate(); }),
        unary("LargeInteger::toInteger()", [](auto const& x) { return x.toInteger(); }),
    };
}

std::vector<Function> comparisons() {
    return {
        binary("LargeInteger::compareAbsolute(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a.compareAbsolute(b); }),
        binary("LargeInteger::compare(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a.compare(b); }),
        binary("LargeInteger::operator==(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a == b; }),
        binary("LargeInteger::operator!=(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a != b; }),
        binary("LargeInteger::operator<(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a < b; }),
        binary("LargeInteger::operator<=(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a <= b; }),
        binary("LargeInteger::operator>(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a > b; }),
        binary("LargeInteger::operator>=(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a >= b; }),
    };
}

}  // namespace

std::vector<Function> storageFunctions() {
    std::vector<Function> all = creations();
    for (auto const& more : {storage(), comparisons()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

}  // namespace interface_test
