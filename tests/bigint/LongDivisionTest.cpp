// Division by halves against the digits of the schoolbook, and operands built from quotient and
// remainder, with exactly the scratch that is asked for.
#include "LimbTables.h"

#include "bigint/limbs/Thresholds.h"

namespace {

using namespace limb_test;
using namespace qel::limbs;

Limbs normalized(std::size_t count, Pattern pattern, Operands& operands) {
    Limbs divisor = operands.make(pattern, count);
    divisor.back() |= topBit;
    return divisor;
}

/// Divides quotient * divisor + remainder and expects them back.
void expectDivision(Limbs const& quotient, Limbs const& divisor, Limbs const& remainder) {
    std::size_t const count = divisor.size();
    Limbs dividend(quotient.size() + count);
    for (std::size_t i = 0; i < quotient.size(); ++i)
        dividend[i + count] = addMultiply(dividend.data() + i, divisor.data(), count, quotient[i]);
    Limb const carry = add(dividend.data(), dividend.data(), remainder.data(), count);
    addLimb(dividend.data() + count, dividend.data() + count, quotient.size(), carry);
    Fenced a(dividend);
    Fenced out(quotient.size());
    Fenced scratch(divideScratch(count));
    divide(out.data(), a.data(), dividend.size(), divisor.data(), count, scratch.data());
    Limbs rest = remainder;
    rest.resize(dividend.size());
    ASSERT_EQ(out.values(), quotient) << text(dividend) << " by " << text(divisor);
    ASSERT_EQ(a.values(), rest) << text(dividend) << " by " << text(divisor);
    ASSERT_TRUE(a.intact() && out.intact() && scratch.intact()) << text(dividend);
}

Limbs oneLess(Limbs value) {
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

TEST(LongDivision, GivesBackQuotientAndRemainder) {
    Operands operands(1);
    for (std::size_t count : lengths()) {
        for (std::size_t digits :
             {std::size_t{1}, count / 2, count - 1, count, count + 1, 2 * count + count / 3}) {
            for (Pattern pattern : patterns) {
                Limbs const divisor = normalized(count, pattern, operands);
                Limbs const quotient = operands.any(digits);
                expectDivision(quotient, divisor, Limbs(count));
                expectDivision(quotient, divisor, oneLess(divisor));
            }
        }
    }
}

/// A divisor 2^63 B^(n - 1) + (B^l - 1), whose lower part the estimate from the upper one misses,
/// and quotients of ones: the corrections, and upper parts that are equal.
TEST(LongDivision, CorrectsEstimatesThatAreTooLarge) {
    for (std::size_t count : lengths()) {
        for (std::size_t lower : {std::size_t{1}, count / 2, count - 1}) {
            Limbs divisor(count);
            std::fill(divisor.begin(), divisor.begin() + static_cast<std::ptrdiff_t>(lower),
                      allOnes);
            divisor.back() |= topBit;
            for (std::size_t digits : {count / 2 + 1, count, 2 * count}) {
                Limbs const ones(digits, allOnes);
                expectDivision(ones, divisor, oneLess(divisor));
                expectDivision(ones, divisor, Limbs(count));
                expectDivision(oneLess(ones), divisor, Limbs(count));
            }
        }
    }
}

}  // namespace
