// Division by halves against the digits of the schoolbook, and operands built from quotient and
// remainder, with exactly the scratch that is asked for.
#include "LimbTesting.h"

#include "bigint/limbs/Thresholds.h"

namespace {

using namespace limbs_test;
using namespace qel::limbs;

Number normalized(std::size_t count, Pattern pattern, std::mt19937_64& random) {
    Number divisor = number(count, pattern, random);
    divisor.back() |= Limb{1} << 63;
    return divisor;
}

/// Divides quotient * divisor + remainder and expects them back.
void expectDivision(Number const& quotient, Number const& divisor, Number const& remainder) {
    std::size_t const count = divisor.size();
    Number product(quotient.size() + count);
    for (std::size_t i = 0; i < quotient.size(); ++i)
        product[i + count] = addMultiply(product.data() + i, divisor.data(), count, quotient[i]);
    Limb const carry = add(product.data(), product.data(), remainder.data(), count);
    addLimb(product.data() + count, product.data() + count, quotient.size(), carry);
    Fenced a(product);
    Fenced out(quotient.size());
    Fenced scratch(divideScratch(count));
    divide(out.data(), a.data(), product.size(), divisor.data(), count, scratch.data());
    Number rest = remainder;
    rest.resize(product.size());
    ASSERT_EQ(out.value(), quotient) << show(product) << " by " << show(divisor);
    ASSERT_EQ(a.value(), rest) << show(product) << " by " << show(divisor);
    ASSERT_TRUE(a.intact() && out.intact() && scratch.intact()) << show(product);
}

Number oneLess(Number value) {
    subtractLimb(value.data(), value.data(), value.size(), 1);
    return value;
}

std::vector<std::size_t> const& lengths() {
    static std::vector<std::size_t> const all{2,
                                              divideSplit - 1,
                                              divideSplit,
                                              divideSplit + 1,
                                              2 * divideSplit - 1,
                                              100,
                                              2 * divideSplit,
                                              4 * divideSplit,
                                              257,
                                              2 * transformMultiply + 3};
    return all;
}

TEST(LimbDivision, GivesBackQuotientAndRemainder) {
    std::mt19937_64 random(1);
    for (std::size_t count : lengths()) {
        for (std::size_t digits :
             {std::size_t{1}, count / 2, count - 1, count, count + 1, 2 * count + count / 3}) {
            for (Pattern pattern : patterns) {
                Number const divisor = normalized(count, pattern, random);
                Number const quotient = anyNumber(digits, random);
                expectDivision(quotient, divisor, Number(count));
                expectDivision(quotient, divisor, oneLess(divisor));
            }
        }
    }
}

/// A divisor 2^63 B^(n - 1) + (B^l - 1), whose lower part the estimate from the upper one misses,
/// and quotients of ones: the corrections, and upper parts that are equal.
TEST(LimbDivision, CorrectsEstimatesThatAreTooLarge) {
    for (std::size_t count : lengths()) {
        for (std::size_t lower : {std::size_t{1}, count / 2, count - 1}) {
            Number divisor(count);
            std::fill(divisor.begin(), divisor.begin() + static_cast<std::ptrdiff_t>(lower),
                      ~Limb{0});
            divisor.back() |= Limb{1} << 63;
            for (std::size_t digits : {count / 2 + 1, count, 2 * count}) {
                Number const ones(digits, ~Limb{0});
                expectDivision(ones, divisor, oneLess(divisor));
                expectDivision(ones, divisor, Number(count));
                expectDivision(oneLess(ones), divisor, Number(count));
            }
        }
    }
}

}  // namespace
