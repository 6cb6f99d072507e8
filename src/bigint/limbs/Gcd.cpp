// Lehmer's algorithm ("Euclid's algorithm for large numbers", 1938; Knuth 4.5.2, Algorithm L) with
// steps of one limb: Euclid on the top 128 bits gives a 2 by 2 matrix of limbs that is applied to
// the whole numbers.
//
// Why the leading bits are enough. With A = floor(a / 2^k) and B = floor(b / 2^k) below 2^128,
// Euclid's steps give (A, B) = M (A', B') for a matrix M of non-negative entries and determinant 1.
// They stop while A' and B' are at least 2^64, so every entry is at most A / 2^64 < 2^64, fits a
// limb, and (a', b') = M^-1 (a, b) differs from 2^k (A', B') by less than 2^64 2^k: both stay
// non-negative. A matrix of determinant 1 keeps the gcd, whatever the true quotients are.
#include "Gcd.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace qel::limbs {

namespace {

struct Matrix {
    Limb m00 = 1;
    Limb m01 = 0;
    Limb m10 = 0;
    Limb m11 = 1;

    [[nodiscard]] bool isIdentity() const noexcept { return m01 == 0 && m10 == 0; }
};

constexpr DoubleLimb half = DoubleLimb{1} << bitsPerLimb;

/// larger -= q * smaller for the largest q that leaves at least 2^64; columns likewise. False when
/// there is no such q above 0.
bool reduceOnce(DoubleLimb& larger, DoubleLimb smaller, Limb& top, Limb& bottom, Limb otherTop,
                Limb otherBottom) noexcept {
    if (larger < smaller || larger - smaller < half)
        return false;
    // Quotients are 1, 2 or 3 two times in three.
    Limb q = 1;
    larger -= smaller;
    for (; q < 4 && larger >= smaller && larger - smaller >= half; ++q)
        larger -= smaller;
    if (q == 4 && larger >= smaller && larger - smaller >= half) {
        Limb const more = static_cast<Limb>((larger - half) / smaller);
        larger -= more * smaller;
        q += more;
    }
    top += q * otherTop;
    bottom += q * otherBottom;
    return true;
}

/// Euclid on the leading bits, while both stay at 2^64 or above.
Matrix leadingSteps(DoubleLimb a, DoubleLimb b) noexcept {
    Matrix m;
    bool reduced = a >= half && b >= half;
    while (reduced) {
        reduced = a >= b ? reduceOnce(a, b, m.m01, m.m11, m.m00, m.m10)
                         : reduceOnce(b, a, m.m00, m.m10, m.m01, m.m11);
    }
    return m;
}

/// The 128 bits of a that start `shift` bits below the top of limb `count` - 1.
DoubleLimb leading(Limb const* a, std::size_t count, int shift) noexcept {
    DoubleLimb const top = (DoubleLimb{a[count - 1]} << bitsPerLimb) | a[count - 2];
    if (shift == 0)
        return top;
    Limb const below = count > 2 ? a[count - 3] : 0;
    return (top << shift) | (below >> (bitsPerLimb - shift));
}

/// (a, b) = (m11 a - m01 b, m00 b - m10 a), both known to be non-negative and below 2^(64 count).
void applyInverse(Limb* a, Limb* b, std::size_t count, Matrix const& m) noexcept {
    Limb aCarry = 0;
    Limb aBorrow = 0;
    Limb bCarry = 0;
    Limb bBorrow = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const plusA = DoubleLimb{m.m11} * a[i] + aCarry;
        DoubleLimb const minusA = DoubleLimb{m.m01} * b[i] + aBorrow;
        DoubleLimb const plusB = DoubleLimb{m.m00} * b[i] + bCarry;
        DoubleLimb const minusB = DoubleLimb{m.m10} * a[i] + bBorrow;
        Limb const aLow = static_cast<Limb>(plusA);
        Limb const aMinus = static_cast<Limb>(minusA);
        Limb const bLow = static_cast<Limb>(plusB);
        Limb const bMinus = static_cast<Limb>(minusB);
        a[i] = aLow - aMinus;
        b[i] = bLow - bMinus;
        aCarry = static_cast<Limb>(plusA >> bitsPerLimb);
        aBorrow = static_cast<Limb>(minusA >> bitsPerLimb) + (aLow < aMinus ? 1 : 0);
        bCarry = static_cast<Limb>(plusB >> bitsPerLimb);
        bBorrow = static_cast<Limb>(minusB >> bitsPerLimb) + (bLow < bMinus ? 1 : 0);
    }
}

/// (s, t) = (m11 s + m01 t, m10 s + m00 t).
void applySums(Limb* s, Limb* t, std::size_t count, Matrix const& m) noexcept {
    Limb sCarry = 0;
    Limb sHigh = 0;
    Limb tCarry = 0;
    Limb tHigh = 0;
    for (std::size_t i = 0; i < count; ++i) {
        Limb const sLimb = s[i];
        Limb const tLimb = t[i];
        DoubleLimb const s1 = DoubleLimb{m.m11} * sLimb + sCarry;
        DoubleLimb const s2 = DoubleLimb{m.m01} * tLimb + sHigh + static_cast<Limb>(s1);
        DoubleLimb const t1 = DoubleLimb{m.m10} * sLimb + tCarry;
        DoubleLimb const t2 = DoubleLimb{m.m00} * tLimb + tHigh + static_cast<Limb>(t1);
        s[i] = static_cast<Limb>(s2);
        t[i] = static_cast<Limb>(t2);
        sCarry = static_cast<Limb>(s1 >> bitsPerLimb);
        sHigh = static_cast<Limb>(s2 >> bitsPerLimb);
        tCarry = static_cast<Limb>(t1 >> bitsPerLimb);
        tHigh = static_cast<Limb>(t2 >> bitsPerLimb);
    }
}

/// A number that shrinks, and the size of its cofactor: with m and v the numbers at the start, one
/// side is -cofactor * v and the other cofactor * v, modulo m. The signs stay as they are: both
/// kinds of steps only add sizes.
struct Side {
    Limb* number;
    std::size_t count;
    Limb* cofactor;  // null when nobody asks for it
};

class Reduction {
  public:
    Reduction(Side first, Side second, std::size_t cofactorLimbs, Limb* limbs) noexcept
        : a(first), b(second), cofactorCount(cofactorLimbs), scratch(limbs) {}

    /// Until one side is zero; returns the other.
    Side& run() noexcept {
        for (;;) {
            a.count = significant(a.number, a.count);
            b.count = significant(b.number, b.count);
            if (a.count == 0)
                return b;
            if (b.count == 0)
                return a;
            step();
        }
    }

  private:
    void step() noexcept {
        std::size_t const count = std::max(a.count, b.count);
        if (count >= 2 && a.count + 1 >= count && b.count + 1 >= count) {
            // Limbs above a side's count are zero: only reductions shorten it.
            int const shift = std::countl_zero(a.number[count - 1] | b.number[count - 1]);
            Matrix const m =
                leadingSteps(leading(a.number, count, shift), leading(b.number, count, shift));
            if (!m.isIdentity()) {
                applyInverse(a.number, b.number, count, m);
                if (a.cofactor != nullptr)
                    applySums(a.cofactor, b.cofactor, cofactorCount, m);
                return;
            }
        }
        bool const aIsLess = isLess(a, b);
        Side& larger = aIsLess ? b : a;
        Side& smaller = aIsLess ? a : b;
        if (count == 1)
            divideOneLimb(larger, smaller);
        else
            divide(larger, smaller);
    }

    static bool isLess(Side const& x, Side const& y) noexcept {
        return x.count != y.count ? x.count < y.count : compare(x.number, y.number, x.count) < 0;
    }

    void divideOneLimb(Side& larger, Side const& smaller) noexcept;
    /// larger %= smaller, for steps that the leading bits cannot decide.
    void divide(Side& larger, Side const& smaller) noexcept;

    Side a;
    Side b;
    std::size_t cofactorCount;
    Limb* scratch;
};

void Reduction::divideOneLimb(Side& larger, Side const& smaller) noexcept {
    Limb const quotient = larger.number[0] / smaller.number[0];
    larger.number[0] -= quotient * smaller.number[0];
    if (larger.cofactor != nullptr)
        addMultiply(larger.cofactor, smaller.cofactor, cofactorCount, quotient);
}

void Reduction::divide(Side& larger, Side const& smaller) noexcept {
    std::size_t const aCount = larger.count;
    std::size_t const count = smaller.count;
    Limb* const quotient = scratch;
    Limb* const dividend = scratch + aCount + 1;
    Limb* const divisor = dividend + aCount + 1;
    if (count == 1) {
        larger.number[0] = divideLimb(quotient, larger.number, aCount, smaller.number[0]);
        std::fill(larger.number + 1, larger.number + aCount, Limb{0});
        quotient[aCount] = 0;
    } else {
        int const shift = std::countl_zero(smaller.number[count - 1]);
        std::copy(larger.number, larger.number + aCount, dividend);
        std::copy(smaller.number, smaller.number + count, divisor);
        dividend[aCount] = 0;
        if (shift != 0) {
            dividend[aCount] = shiftLeft(dividend, dividend, aCount, shift);
            shiftLeft(divisor, divisor, count, shift);
        }
        divideNormalized(quotient, dividend, aCount + 1, divisor, count);
        if (shift != 0)
            shiftRight(dividend, dividend, count, shift);
        std::copy(dividend, dividend + count, larger.number);
        std::fill(larger.number + count, larger.number + aCount, Limb{0});
    }
    if (larger.cofactor == nullptr)
        return;
    // The sum is again the size of a cofactor, which is at most m: what stands above is zero. Long
    // quotients are so rare that rows will do.
    std::size_t const quotientCount = significant(quotient, aCount + 1 - count);
    std::size_t const other = significant(smaller.cofactor, cofactorCount);
    for (std::size_t i = 0; i < quotientCount; ++i) {
        Limb* const above = larger.cofactor + i + other;
        Limb const carry = addMultiply(larger.cofactor + i, smaller.cofactor, other, quotient[i]);
        addLimb(above, above, cofactorCount - i - other, carry);
    }
}

/// k and j with k r + 1 = j v and 0 < k < v, for r < v; k = 0 where r and v have a common factor.
struct Cofactors {
    Limb k;
    Limb j;
};

/// Euclid on (v, r), whose remainders are, with changing signs, s v - t r and t r - s v.
Cofactors cofactorsOfLimbs(Limb v, Limb r) noexcept {
    Limb larger = v;
    Limb smaller = r;
    Limb s = 1;
    Limb t = 0;
    Limb nextS = 0;
    Limb nextT = 1;
    bool negative = true;  // whether `smaller` is t r - s v
    while (smaller > 1) {
        Limb const quotient = larger / smaller;
        larger = std::exchange(smaller, larger - quotient * smaller);
        s = std::exchange(nextS, s + quotient * nextS);
        t = std::exchange(nextT, t + quotient * nextT);
        negative = !negative;
    }
    if (smaller == 0)
        return {0, 0};
    return negative ? Cofactors{v - nextT, r - nextS} : Cofactors{nextT, nextS};
}

/// With m = q v + r and k r + 1 = j v the inverse of v is (k m + 1) / v = k q + j, which is below m
/// as k is below v.
bool inverseOfLimb(Limb* out, Limb v, Limb const* m, std::size_t count) noexcept {
    Limb const rest = divideLimb(out, m, count, v);
    Cofactors const cofactors = cofactorsOfLimbs(v, rest);
    if (cofactors.k == 0)
        return false;
    multiplyLimb(out, out, count, cofactors.k);
    addLimb(out, out, count, cofactors.j);
    return true;
}

}  // namespace

// A division step's quotient, dividend and divisor.
std::size_t gcdScratch(std::size_t count) noexcept {
    return 3 * count + 2;
}

void gcd(Limb* out, Limb* a, Limb* b, std::size_t count, Limb* scratch) noexcept {
    Reduction reduction({a, count, nullptr}, {b, count, nullptr}, 0, scratch);
    Side const& rest = reduction.run();
    std::copy(rest.number, rest.number + rest.count, out);
    std::fill(out + rest.count, out + count, Limb{0});
}

// Both cofactors with a limb to spare, the modulus, and a division step.
std::size_t inverseScratch(std::size_t count) noexcept {
    return 3 * count + 2 + gcdScratch(count);
}

bool inverse(Limb* out, Limb* v, Limb* m, std::size_t count, Limb* scratch) noexcept {
    if (significant(v, count) == 1)
        return inverseOfLimb(out, v[0], m, count);
    std::size_t const cofactorCount = count + 1;
    Limb* const ofM = scratch;
    Limb* const ofV = scratch + cofactorCount;
    std::fill(ofM, ofM + 2 * cofactorCount, Limb{0});
    ofV[0] = 1;
    Limb* const modulus = scratch + 2 * cofactorCount;
    std::copy(m, m + count, modulus);
    Reduction reduction({m, count, ofM}, {v, count, ofV}, cofactorCount, modulus + count);
    Side const& rest = reduction.run();
    if (rest.count != 1 || rest.number[0] != 1)
        return false;
    // The side of m holds -cofactor * v.
    if (rest.cofactor == ofM)
        subtract(out, modulus, ofM, count);
    else
        std::copy(ofV, ofV + count, out);
    return true;
}

}  // namespace qel::limbs
