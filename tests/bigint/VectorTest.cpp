// Arithmetic against files of vectors that other tools computed.
#include "LargeIntegerPeer.h"

#include "VectorFiles.h"

namespace {

using namespace bigint_test;
using vector_files::Fields;
using vector_files::Operation;

LargeInteger number(std::string const& text) {
    return hex(text);
}

int position(std::string const& text) {
    return number(text).toInteger();
}

/// A binary operator and its assigning form; the operands stay.
template <typename Binary, typename Assign>
void checkBinary(Fields const& f, Binary binary, Assign assign) {
    LargeInteger const a = number(f[0]);
    LargeInteger const b = number(f[1]);
    LargeInteger const expected = number(f[2]);
    EXPECT_EQ(binary(a, b), expected);
    LargeInteger left(a);
    assign(left, b);
    EXPECT_EQ(left, expected);
    EXPECT_EQ(a, number(f[0]));
    EXPECT_EQ(b, number(f[1]));
}

void checkAdd(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a + b; }, [](auto& a, auto& b) { a += b; });
}

void checkSubtract(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a - b; }, [](auto& a, auto& b) { a -= b; });
}

void checkMultiply(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a * b; }, [](auto& a, auto& b) { a *= b; });
    EXPECT_EQ(number(f[1]) * number(f[0]), number(f[2]));
}

void checkAnd(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a & b; }, [](auto& a, auto& b) { a &= b; });
}

void checkOr(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a | b; }, [](auto& a, auto& b) { a |= b; });
}

void checkXor(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a ^ b; }, [](auto& a, auto& b) { a ^= b; });
}

void checkModulo(Fields const& f) {
    checkBinary(
        f, [](auto const& a, auto const& b) { return a % b; }, [](auto& a, auto& b) { a %= b; });
}

void checkSquare(Fields const& f) {
    LargeInteger const a = number(f[0]);
    EXPECT_EQ(a * a, number(f[1]));
}

void checkModularProduct(Fields const& f) {
    EXPECT_EQ(number(f[0]) * number(f[1]) % number(f[2]), number(f[3]));
}

void checkDivide(Fields const& f) {
    LargeInteger const a = number(f[0]);
    LargeInteger const b = number(f[1]);
    LargeInteger quotient(a);
    LargeInteger remainder;
    quotient.divideBy(b, remainder);
    EXPECT_EQ(quotient, number(f[2]));
    EXPECT_EQ(remainder, number(f[3]));
    EXPECT_EQ(a / b, number(f[2]));
    EXPECT_EQ(a % b, number(f[3]));
    LargeInteger both(b);
    LargeInteger dividend(a);
    dividend.divideBy(both, both);
    EXPECT_EQ(dividend, number(f[2]));
    EXPECT_EQ(both, number(f[3]));
}

void checkGcd(Fields const& f) {
    EXPECT_EQ(number(f[0]).findGreatestCommonDivisor(number(f[1])), number(f[2]));
    EXPECT_EQ(number(f[1]).findGreatestCommonDivisor(number(f[0])), number(f[2]));
}

void checkInverse(Fields const& f) {
    LargeInteger v = number(f[0]);
    v.inverseModulo(number(f[1]));
    EXPECT_EQ(v, number(f[2]));
}

void checkEvenInverseIsRefused(Fields const& f) {
    LargeInteger v = number(f[0]);
    v.inverseModulo(number(f[1]));
    EXPECT_TRUE(v.isZero());
}

LargeInteger power(Fields const& f) {
    LargeInteger v = number(f[0]);
    v.exponentModulo(number(f[1]), number(f[2]));
    return v;
}

void checkPower(Fields const& f) {
    EXPECT_EQ(power(f), number(f[3]));
}

/// The fourth field is the mathematical value, the fifth ours, where the two differ.
void checkPowerOfReducedExponent(Fields const& f) {
    EXPECT_EQ(power(f), number(f[4]));
}

void checkShiftLeft(Fields const& f) {
    EXPECT_EQ(number(f[0]) << position(f[1]), number(f[2]));
    EXPECT_EQ(number(f[0]) >> -position(f[1]), number(f[2]));
}

void checkShiftRight(Fields const& f) {
    EXPECT_EQ(number(f[0]) >> position(f[1]), number(f[2]));
    EXPECT_EQ(number(f[0]) << -position(f[1]), number(f[2]));
}

void checkToString(Fields const& f) {
    EXPECT_EQ(number(f[0]).toString(std::stoi(f[1])), f[2]);
}

void checkParse(Fields const& f) {
    LargeInteger v;
    v.parseString(f[1], std::stoi(f[0]));
    EXPECT_EQ(v, number(f[2]));
}

void checkDecimal(Fields const& f) {
    LargeInteger v;
    v.parseString(f[0], 10);
    EXPECT_EQ(v, number(f[1]));
    EXPECT_EQ(v.toString(10), v.isZero() ? "" : f[0]);
}

std::vector<Operation> const ownOperations = {
    {"add.txt", 3, checkAdd},           {"sub.txt", 3, checkSubtract},
    {"mul.txt", 3, checkMultiply},      {"div.txt", 4, checkDivide},
    {"and.txt", 3, checkAnd},           {"or.txt", 3, checkOr},
    {"xor.txt", 3, checkXor},           {"gcd.txt", 3, checkGcd},
    {"inverse.txt", 3, checkInverse},   {"modexp.txt", 4, checkPower},
    {"shl.txt", 3, checkShiftLeft},     {"shr.txt", 3, checkShiftRight},
    {"tostring.txt", 3, checkToString}, {"parse.txt", 3, checkParse},
};

/// Files that only other folders have.
std::vector<Operation> const foreignOperations = {
    {"sqr.txt", 2, checkSquare},
    {"mod.txt", 3, checkModulo},
    {"modmul.txt", 4, checkModularProduct},
    {"inverse-long.txt", 4, checkInverse},
    {"gcd-long.txt", 4, checkGcd},
    {"inverse-even.txt", 3, checkEvenInverseIsRefused},
    {"modexp-other.txt", 5, checkPowerOfReducedExponent},
    {"radix10.txt", 2, checkDecimal},
};

std::vector<Operation> operations() {
    std::vector<Operation> all = ownOperations;
    if (std::getenv("QEL_VECTORS") != nullptr)
        all.insert(all.end(), foreignOperations.begin(), foreignOperations.end());
    return vector_files::present(all);
}

class Vectors : public testing::TestWithParam<Operation> {};

TEST_P(Vectors, Agree) {
    vector_files::run(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Arithmetic, Vectors, testing::ValuesIn(operations()),
                         vector_files::nameOf);

}  // namespace
