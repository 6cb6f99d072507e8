// Division by halves and by a reciprocal: operands built from quotient and remainder give both
// back, with exactly the scratch that is asked for.
#include "LimbTables.h"

#include "bigint/limbs/DivideByHalves.h"
#include "bigint/limbs/DivideByReciprocal.h"
#include "bigint/limbs/Thresholds.h"

namespace {

using namespace limb_test;
using namespace qel::limbs;

Limbs normalized(std::size_t count, Pattern pattern, Operands& operands) {
    Limbs divisor = operands.make(pattern, count);
    divisor.back() |= topBit;
    return divisor;
}

struct Method {
    char const* name;
    void (*divide)(Limb*, Limb*, std::size_t, Limb const*, std::size_t, Limb*) noexcept;
    std::size_t (*scratch)(std::size_t) noexcept;
};

constexpr Method chosen{"chosen", divide, divideScratch};
constexpr Method halves{"halves", divideByHalves, divideByHalvesScratch};
constexpr Method byReciprocal{"reciprocal", divideByReciprocal, divideByReciprocalScratch};

/// Divides quotient * divisor + remainder and expects them back.
void expectDivision(Method const& method, Limbs const& quotient, Limbs const& divisor,
                    Limbs const& remainder) {
    std::size_t const count = divisor.size();
    Limbs dividend(quotient.size() + count);
    for (std::size_t i = 0; i < quotient.size(); ++i)
        dividend[i + count] = addMultiply(dividend.data() + i, divisor.data(), count, quotient[i]);
    Limb const carry = add(dividend.data(), dividend.data(), remainder.data(), count);
    addLimb(dividend.data() + count, dividend.data() + count, quotient.size(), carry);
    Fenced a(dividend);
    Fenced out(quotient.size());
    Fenced scratch(method.scratch(count));
    method.divide(out.data(), a.data(), dividend.size(), divisor.data(), count, scratch.data());
    Limbs rest = remainder;
    rest.resize(dividend.size());
    ASSERT_EQ(out.values(), quotient)
        << method.name << ' ' << text(dividend) << " by " << text(divisor);
    ASSERT_EQ(a.values(), rest) << method.name << ' ' << text(dividend) << " by " << text(divisor);
    ASSERT_TRUE(a.intact() && out.intact() && scratch.intact()) << method.name << text(dividend);
}

Limbs oneLess(Limbs value) {
    subtractLimb(value.data(), value.data(), value.size(), 1);
    return value;
}

/// One below, at and above a threshold.
void addAround(std::vector<std::size_t>& lengths, std::size_t threshold) {
    lengths.insert(lengths.end(), {threshold - 1, threshold, threshold + 1});
}

std::vector<std::size_t> lengthsByHalves() {
    std::vector<std::size_t> all{
        2,   2 * divideSplit - 1,      100, 2 * divideSplit, 4 * divideSplit,
        257, 2 * transformMultiply + 3};
    addAround(all, divideSplit);
    return all;
}

/// Blocks are halves of the divisor, so that reciprocals of up to twice their threshold are
/// quotients; from there on the iteration takes one step and, twice as far, two.
std::vector<std::size_t> lengthsByReciprocal() {
    std::vector<std::size_t> all{4, 5, 6, 7, 31, 64, 85, 86, 171, 172, 300};
    addAround(all, 2 * reciprocalNewton);
    addAround(all, divideReciprocal);
    all.push_back(4 * reciprocalNewton + 1);
    return all;
}

/// Fewer where building the operands takes long.
std::vector<std::size_t> digitsFor(std::size_t count) {
    if (count > 1000)
        return {count / 2 + 1, count, count + 1};
    return {2, count / 2, count / 2 + 1, count - 1, count, count + 1, 2 * count + count / 3};
}

std::vector<Pattern> patternsFor(std::size_t count) {
    if (count > 1000)
        return {Pattern::uniform, Pattern::runs, Pattern::power};
    return {std::begin(patterns), std::end(patterns)};
}

/// Quotients by divisors of each pattern, with the smallest and the largest remainders.
void expectAll(Method const& method, std::size_t count, Operands& operands) {
    for (std::size_t digits : digitsFor(count)) {
        for (Pattern pattern : patternsFor(count)) {
            Limbs const divisor = normalized(count, pattern, operands);
            Limbs const quotient = operands.any(digits);
            expectDivision(method, quotient, divisor, Limbs(count));
            expectDivision(method, quotient, divisor, oneLess(divisor));
        }
        if (testing::Test::HasFailure())
            return;
    }
}

std::vector<std::size_t> correctedDigitsFor(std::size_t count) {
    if (count > 1000)
        return {count / 2 + 1};
    return {count / 2 + 1, count, 2 * count};
}

/// A divisor 2^63 B^(n - 1) + (B^l - 1), whose lower part the estimate from the upper one misses,
/// and quotients of ones: the corrections, and upper parts that are equal.
void expectCorrections(Method const& method, std::size_t count) {
    for (std::size_t lower : {std::size_t{1}, count / 2, count - 1}) {
        Limbs divisor(count);
        std::fill_n(divisor.begin(), lower, allOnes);
        divisor.back() |= topBit;
        for (std::size_t digits : correctedDigitsFor(count)) {
            Limbs const ones(digits, allOnes);
            expectDivision(method, ones, divisor, oneLess(divisor));
            expectDivision(method, ones, divisor, Limbs(count));
            expectDivision(method, oneLess(ones), divisor, Limbs(count));
            expectDivision(method, Limbs(digits), divisor, oneLess(divisor));
        }
    }
}

TEST(LongDivision, ByHalvesGivesBackQuotientAndRemainder) {
    Operands operands(1);
    for (std::size_t count : lengthsByHalves())
        expectAll(halves, count, operands);
}

TEST(LongDivision, ByHalvesCorrectsEstimatesThatAreTooLarge) {
    for (std::size_t count : lengthsByHalves())
        expectCorrections(halves, count);
}

TEST(LongDivision, ByReciprocalGivesBackQuotientAndRemainder) {
    Operands operands(2);
    for (std::size_t count : lengthsByReciprocal())
        expectAll(byReciprocal, count, operands);
}

TEST(LongDivision, ByReciprocalCorrectsEstimatesThatAreWrong) {
    for (std::size_t count : lengthsByReciprocal())
        expectCorrections(byReciprocal, count);
}

TEST(LongDivision, TheMethodChangesWhereDigitsAndDivisorAreBothLong) {
    Operands operands(3);
    for (std::size_t threshold : {divideSplit, divideReciprocal}) {
        for (std::size_t count : {threshold - 1, threshold, threshold + 1}) {
            for (std::size_t digits : {std::size_t{1}, threshold - 1, threshold, 2 * threshold}) {
                Limbs const divisor = normalized(count, Pattern::runs, operands);
                expectDivision(chosen, operands.any(digits), divisor, oneLess(divisor));
            }
        }
    }
}

// --- reciprocals --------------------------------------------------------------------------------

using ReciprocalKernel = void (*)(Limb*, Limb const*, std::size_t, Limb*);

/// a X < B^(2 n) <= a (X + 2) for X = B^n + x.
void expectReciprocal(Limbs const& a, ReciprocalKernel kernel = reciprocal) {
    std::size_t const count = a.size();
    Fenced x(count);
    Fenced scratch(reciprocalScratch(count));
    kernel(x.data(), a.data(), count, scratch.data());
    ASSERT_TRUE(x.intact() && scratch.intact()) << text(a);
    Limbs product(2 * count + 1);
    std::copy(a.begin(), a.end(), product.begin() + static_cast<std::ptrdiff_t>(count));
    for (std::size_t i = 0; i < count; ++i) {
        Limb const carry = addMultiply(product.data() + i, a.data(), count, x.values()[i]);
        addLimb(product.data() + i + count, product.data() + i + count, count + 1 - i, carry);
    }
    ASSERT_EQ(product.back(), 0U) << text(a);
    for (int i = 0; i < 2; ++i) {
        Limb const carry = add(product.data(), product.data(), a.data(), count);
        addLimb(product.data() + count, product.data() + count, count + 1, carry);
    }
    ASSERT_EQ(product.back(), 1U) << text(a);
}

TEST(Reciprocal, IsTooSmallByLessThanTwo) {
    Operands operands(4);
    for (std::size_t count :
         {std::size_t{2}, std::size_t{3}, std::size_t{40}, reciprocalNewton - 1, reciprocalNewton,
          reciprocalNewton + 1, 2 * reciprocalNewton - 2, 2 * reciprocalNewton - 1,
          2 * reciprocalNewton, 4 * reciprocalNewton + 3}) {
        for (Pattern pattern : patternsFor(count))
            expectReciprocal(normalized(count, pattern, operands));
        expectReciprocal(oneLess(Limbs(count, allOnes)));
        Limbs smallest = with(Limbs(count - 1), topBit);
        smallest[0] = 1;
        expectReciprocal(smallest);
    }
}

// What the upper part of the divisor gives is often too large for the whole of it.
TEST(Reciprocal, ByNewtonIsTooSmallByLessThanTwoForShortNumbers) {
    Operands operands(5);
    for (std::size_t count = 3; count <= 40; ++count) {
        for (int i = 0; i < 20; ++i) {
            for (Pattern pattern : patterns)
                expectReciprocal(normalized(count, pattern, operands), reciprocalByNewton);
        }
    }
}

/// floor(sqrt(a)), for an even number of limbs.
Limbs squareRoot(Limbs const& a) {
    Limbs root(a.size() / 2);
    for (std::size_t bit = 64 * root.size(); bit-- > 0;) {
        Limb const one = Limb{1} << (bit % 64);
        root[bit / 64] += one;
        if (less(a, product(root, root)))
            root[bit / 64] -= one;
    }
    return root;
}

/// B^n / 2 + c for c = floor(sqrt(m B^n / 8)) - m: B^2n / a is 2 B^n - 4 c + m less very little.
Limbs divisorOfNearlyWhole(std::size_t count, Limb m) {
    Limbs square(count + 1 + (count + 1) % 2);
    square[count - 1] = m << 61;
    square[count] = m >> 3;
    Limbs a = squareRoot(square);
    subtractLimb(a.data(), a.data(), a.size(), m);
    a.resize(count);
    a.back() += topBit;
    return a;
}

// The upper part counts in the lower one as it is after its correction, or a lower part that is
// nearly whole comes out as the next whole number.
TEST(Reciprocal, ByNewtonIsNotTooLargeForQuotientsThatAreNearlyWhole) {
    for (std::size_t count = 5; count <= 9; ++count) {
        for (Limb m = 2; m <= 100; ++m)
            expectReciprocal(divisorOfNearlyWhole(count, m), reciprocalByNewton);
    }
}

// As above, with a smaller c for which 4 c - m is a multiple of B.
TEST(Reciprocal, ByNewtonMayEndInALimbOfOnes) {
    for (std::size_t count = 5; count <= 9; ++count) {
        for (Limb m = 4; m <= 100; m += 4) {
            Limbs a = divisorOfNearlyWhole(count, m);
            Limb const excess = (a[0] - m / 4) % (Limb{1} << 62);
            subtractLimb(a.data(), a.data(), count, excess);
            expectReciprocal(a, reciprocalByNewton);
        }
    }
}

}  // namespace
