// Whole operations of LargeInteger on each variant of the kernels, against the plain model.
#include "LargeIntegerPeer.h"
#include "LimbTables.h"

#include "model/PlainInteger.h"

namespace {

using namespace limb_test;

/// Hexadecimal digits for `count` limbs, the highest not zero.
std::string digits(Operands& operands, Pattern pattern, std::size_t count) {
    Limbs a = operands.make(pattern, count);
    a.back() |= 1;
    std::string out = text(a).substr(2);
    std::erase(out, '\'');
    return out;
}

/// Products, quotients, remainders and powers of a and b, in hexadecimal.
template <typename Integer>
std::vector<std::string> results(std::string const& a, std::string const& b) {
    Integer x;
    Integer y;
    x.parseString(a, 16);
    y.parseString(b, 16);
    Integer power(x);
    Integer odd(y);
    odd.setBit(0);
    power.exponentModulo(y, odd);
    std::vector<std::string> out;
    for (Integer const& result :
         {Integer(x * y), Integer(x * x), Integer(x / y), Integer(x % y), power})
        out.push_back(result.toString(16));
    return out;
}

TEST(LimbVariants, GiveWholeOperationsTheResultsOfThePlainModel) {
    Operands operands(110);
    for (std::size_t const count : {1U, 2U, 5U, 9U, 12U}) {
        for (Pattern const pattern : patterns) {
            std::string const a = digits(operands, pattern, 2 * count);
            std::string const b = digits(operands, Pattern::uniform, count);
            std::vector<std::string> const expected = results<plain::LargeInteger>(a, b);
            for (Variant const& variant : variants()) {
                Using const use(variant);
                ASSERT_EQ(results<qel::LargeInteger>(a, b), expected)
                    << variant.name << "\n  a = 0x" << a << "\n  b = 0x" << b;
            }
        }
    }
}

// Too long for the plain model; the product of quotient and divisor must be found again.
TEST(LimbVariants, AgreeOnLongNumbers) {
    Operands operands(111);
    for (std::size_t const count : {32U, 50U}) {
        std::string const a = digits(operands, Pattern::uniform, 2 * count);
        std::string const b = digits(operands, Pattern::runs, count);
        std::vector<std::string> expected;
        for (Variant const& variant : variants()) {
            Using const use(variant);
            std::vector<std::string> const found = results<qel::LargeInteger>(a, b);
            if (expected.empty())
                expected = found;
            ASSERT_EQ(found, expected) << variant.name << "\n  a = 0x" << a << "\n  b = 0x" << b;
            EXPECT_EQ(bigint_test::hex(found[2]) * bigint_test::hex(b) + bigint_test::hex(found[3]),
                      bigint_test::hex(a))
                << variant.name;
        }
    }
}

}  // namespace
