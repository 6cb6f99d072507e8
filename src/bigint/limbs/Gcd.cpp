// Lehmer's algorithm ("Euclid's algorithm for large numbers", 1938; Knuth 4.5.2, Algorithm L) with
// steps of one limb: Euclid on the top 128 bits gives a 2 by 2 matrix of limbs that is applied to
// the whole numbers.
//
// Why the leading bits are enough. With A = floor(a / 2^k) and B = floor(b / 2^k) below 2^128,
// Euclid's steps give (A, B) = M (A', B') for a matrix M of non-negative entries and determinant 1.
// Where A' and B' are at least 2^64, every entry is at most A / 2^64 < 2^64, fits a limb, and
// (a', b') = M^-1 (a, b) differs from 2^k (A', B') by less than 2^64 2^k: both stay non-negative.
// A matrix of determinant 1 keeps the gcd. It is a product of subtractions, each of which leaves
// both numbers positive, by the same bound: so they are those that repeated subtraction takes.
//
// The 128 bits are taken in two halves in the same way, each by Euclid on single limbs. What is
// left at the end of a gcd is two limbs each, which the binary algorithm takes, unless it must be
// told where subtraction leaves the gcd.
#include "Gcd.h"

#include "Reciprocal.h"

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
    /// Subtracting b adds to the right column, subtracting a to the left one: the greater column is
    /// the last one.
    [[nodiscard]] bool decreasedSecondLast() const noexcept { return m00 >= m01 && m10 >= m11; }
};

Matrix operator*(Matrix const& x, Matrix const& y) noexcept {
    return {x.m00 * y.m00 + x.m01 * y.m10, x.m00 * y.m01 + x.m01 * y.m11,
            x.m10 * y.m00 + x.m11 * y.m10, x.m10 * y.m01 + x.m11 * y.m11};
}

/// larger %= smaller, for larger >= smaller, where that leaves at least `least`; columns likewise.
/// False elsewhere.
bool reduceOnce(Limb& larger, Limb smaller, Limb least, Limb& top, Limb& bottom, Limb otherTop,
                Limb otherBottom) noexcept {
    // Always a division: which quotients are small is what no branch can be trained for.
    Limb const q = larger / smaller;
    Limb const rest = larger - q * smaller;
    if (rest < least)
        return false;
    larger = rest;
    top += q * otherTop;
    bottom += q * otherBottom;
    return true;
}

/// Euclid on two limbs, while both stay at `least` or above; they may begin below.
Matrix limbSteps(Limb a, Limb b, Limb least) noexcept {
    Matrix m;
    if (a < least || b < least)
        return m;
    if (a < b && !reduceOnce(b, a, least, m.m00, m.m10, m.m01, m.m11))
        return m;
    while (reduceOnce(a, b, least, m.m01, m.m11, m.m00, m.m10)
           && reduceOnce(b, a, least, m.m00, m.m10, m.m01, m.m11)) {
    }
    return m;
}

/// Euclid on the leading bits, while both stay at 2^64 or above.
///
/// First on their upper halves: as above, those stay at 2^32 or above and entries below 2^32. Then
/// on what that leaves, a and b with their lower `shift` bits cut off. What these bits change is
/// less than 2^32 2^shift, and so the results stay at 2^64 or above. The shift is above 32, as the
/// lower halves do not make both sides smaller: m00 times the change of a plus m01 times that of b
/// is the lower half of a. (`half` below says so to tools that read the code.)
Matrix leadingSteps(DoubleLimb a, DoubleLimb b) noexcept {
    constexpr Limb half = Limb{1} << 32;
    Matrix const first = limbSteps(upperLimb(a), upperLimb(b), half);
    if (first.isIdentity())
        return first;
    DoubleLimb const restA = first.m11 * a - first.m01 * b;
    DoubleLimb const restB = first.m00 * b - first.m10 * a;
    int const zeros = std::countl_zero(upperLimb(std::max(restA, restB)) | half);
    int const shift = bitsPerLimb - zeros;
    Limb const least = half + (Limb{1} << zeros);
    return first
           * limbSteps(static_cast<Limb>(restA >> shift), static_cast<Limb>(restB >> shift), least);
}

/// The 128 bits of a that start `shift` bits below the top of limb `count` - 1.
DoubleLimb leading(Limb const* a, std::size_t count, int shift) noexcept {
    DoubleLimb const top = (DoubleLimb{a[count - 1]} << bitsPerLimb) | a[count - 2];
    if (shift == 0)
        return top;
    Limb const below = count > 2 ? a[count - 3] : 0;
    return (top << shift) | (below >> (bitsPerLimb - shift));
}

void storePair(Limb* out, DoubleLimb pair) noexcept {
    out[0] = low(pair);
    out[1] = high(pair);
}

void complement(Limb* out, Limb const* a, std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i)
        out[i] = ~a[i];
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
    Reduction(Side const& first, Side const& second, std::size_t cofactorLimbs,
              Limb* limbs) noexcept
        : a(first), b(second), cofactorCount(cofactorLimbs), scratch(limbs) {}

    /// Until one side is zero or neither has more than `most` limbs.
    void run(std::size_t most) noexcept {
        for (;;) {
            a.count = significant(a.number, a.count);
            b.count = significant(b.number, b.count);
            if (std::min(a.count, b.count) == 0 || std::max(a.count, b.count) <= most)
                return;
            step();
        }
    }

    Side a;
    Side b;
    /// For when both are equal, which only a matrix may leave them.
    bool decreasedSecondLast = false;

  private:
    void step() noexcept {
        std::size_t const count = std::max(a.count, b.count);
        if (a.count + 1 >= count && b.count + 1 >= count) {
            // Limbs above a side's count are zero: only reductions shorten it.
            int const shift = std::countl_zero(a.number[count - 1] | b.number[count - 1]);
            Matrix const m =
                leadingSteps(leading(a.number, count, shift), leading(b.number, count, shift));
            if (!m.isIdentity()) {
                applyInverse(count, m);
                decreasedSecondLast = m.decreasedSecondLast();
                if (a.cofactor != nullptr)
                    growCofactors(m);
                return;
            }
        }
        int const order = compareSides();
        bool const reduceSecond = order < 0 || (order == 0 && decreasedSecondLast);
        Side& larger = reduceSecond ? b : a;
        Side const& smaller = reduceSecond ? a : b;
        divide(larger, smaller);
    }

    /// (a, b) = (m11 a - m01 b, m00 b - m10 a), both known to be non-negative and below 2^(64
    /// count) = B, modulo which -y b is y (B - 1 - b) + y.
    void applyInverse(std::size_t count, Matrix const& m) noexcept {
        if (count == 2) {
            DoubleLimb const first = join(a.number[1], a.number[0]);
            DoubleLimb const second = join(b.number[1], b.number[0]);
            storePair(a.number, m.m11 * first - m.m01 * second);
            storePair(b.number, m.m00 * second - m.m10 * first);
            return;
        }
        Limb* const minusA = scratch;
        Limb* const minusB = scratch + count;
        complement(minusA, a.number, count);
        complement(minusB, b.number, count);
        multiplyLimb(a.number, a.number, count, m.m11);
        addMultiply(a.number, minusB, count, m.m01);
        addLimb(a.number, a.number, count, m.m01);
        multiplyLimb(b.number, b.number, count, m.m00);
        addMultiply(b.number, minusA, count, m.m10);
        addLimb(b.number, b.number, count, m.m10);
    }

    /// (s, t) = (m11 s + m01 t, m10 s + m00 t), which have two limbs more at most.
    void growCofactors(Matrix const& m) noexcept {
        std::size_t const count = std::min(cofactorUsed + 2, cofactorCount);
        Limb* const s = std::copy(a.cofactor, a.cofactor + count, scratch) - count;
        multiplyLimb(a.cofactor, a.cofactor, count, m.m11);
        addMultiply(a.cofactor, b.cofactor, count, m.m01);
        multiplyLimb(b.cofactor, b.cofactor, count, m.m00);
        addMultiply(b.cofactor, s, count, m.m10);
        cofactorUsed = std::max(significant(a.cofactor, count), significant(b.cofactor, count));
    }

    [[nodiscard]] int compareSides() const noexcept {
        if (a.count != b.count)
            return a.count < b.count ? -1 : 1;
        return compare(a.number, b.number, a.count);
    }

    /// larger %= smaller, for steps that the leading bits cannot decide.
    void divide(Side& larger, Side const& smaller) noexcept;

    std::size_t cofactorCount;
    std::size_t cofactorUsed = 1;
    Limb* scratch;
};

void Reduction::divide(Side& larger, Side const& smaller) noexcept {
    std::size_t const aCount = larger.count;
    std::size_t const count = smaller.count;
    Limb* const quotient = scratch;
    Limb* const dividend = scratch + aCount + 1;
    Limb* const divisor = dividend + aCount + 1;
    // Two numbers of one length have a small quotient, which subtraction finds.
    if (aCount == count && larger.number[count - 1] / smaller.number[count - 1] < 4) {
        quotient[0] = 0;
        do {
            subtract(larger.number, larger.number, smaller.number, count);
            ++quotient[0];
        } while (compare(larger.number, smaller.number, count) >= 0);
    } else if (count == 1) {
        larger.number[0] = divideLimb(quotient, larger.number, aCount, smaller.number[0]);
        std::fill(larger.number + 1, larger.number + aCount, Limb{0});
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
    // The sum is again the size of a cofactor, which is at most m: what stands above is zero. Two
    // long factors are so rare that rows will do.
    Limb const* rows = quotient;
    std::size_t rowCount = significant(quotient, aCount + 1 - count);
    Limb const* row = smaller.cofactor;
    std::size_t width = significant(row, cofactorUsed);
    if (rowCount > width) {
        std::swap(rows, row);
        std::swap(rowCount, width);
    }
    for (std::size_t i = 0; i < rowCount; ++i) {
        Limb* const above = larger.cofactor + i + width;
        Limb const carry = addMultiply(larger.cofactor + i, row, width, rows[i]);
        addLimb(above, above, cofactorCount - i - width, carry);
    }
    std::size_t const most = std::max(rowCount + width, cofactorUsed) + 1;
    cofactorUsed =
        std::max(cofactorUsed, significant(larger.cofactor, std::min(most, cofactorCount)));
}

/// The gcd of two odd limbs, by subtraction and shifts (Stein, "Computational problems associated
/// with Racah algebra", 1967). Which is greater is a coin's toss each time: no branch.
Limb gcdOfOddLimbs(Limb a, Limb b) noexcept {
    while (a != b) {
        DoubleLimb const signedDifference = DoubleLimb{a} - b;
        Limb const difference = low(signedDifference);
        Limb const mask = high(signedDifference);
        b += difference & mask;
        // The zeros of a - b are those of b - a.
        a = ((difference ^ mask) - mask) >> std::countr_zero(difference);
    }
    return b;
}

/// The same for two limbs each.
DoubleLimb gcdOfOddPairs(DoubleLimb a, DoubleLimb b) noexcept {
    Limb b0 = low(b);
    Limb b1 = high(b);
    while ((high(a) | b1) != 0) {
        DoubleLimb const difference = a - join(b1, b0);
        Limb const mask = 0 - static_cast<Limb>(a < join(b1, b0));
        Limb const lower = (low(difference) ^ mask) - mask;
        Limb const upper = high(difference) ^ mask;
        b0 ^= (low(a) ^ b0) & mask;
        b1 ^= (high(a) ^ b1) & mask;
        if (lower == 0) [[unlikely]] {
            Limb const rest = upper - mask;  // with the carry of the negation
            if (rest == 0)
                return join(b1, b0);
            a = rest >> std::countr_zero(rest);
        } else {
            int const zeros = std::countr_zero(low(difference));  // 1 to 63
            a = join(upper >> zeros, (lower >> zeros) | (upper << (bitsPerLimb - zeros)));
        }
    }
    return gcdOfOddLimbs(low(a), b0);
}

int trailingZeros(DoubleLimb a) noexcept {
    return low(a) != 0 ? std::countr_zero(low(a)) : bitsPerLimb + std::countr_zero(high(a));
}

/// The gcd g of two limbs, at least one not zero, as g = s v - t r or, where `negative`,
/// g = t r - s v; t <= v and s <= r.
struct LimbGcd {
    Limb gcd;
    Limb s;
    Limb t;
    bool negative;
};

/// larger %= smaller; false where nothing is left of it.
bool reduce(LimbGcd& larger, LimbGcd const& smaller) noexcept {
    Limb const q = larger.gcd / smaller.gcd;
    larger.gcd -= q * smaller.gcd;
    larger.s += q * smaller.s;
    larger.t += q * smaller.t;
    return larger.gcd != 0;
}

LimbGcd gcdOfLimbs(Limb v, Limb r) noexcept {
    LimbGcd first{v, 1, 0, false};
    LimbGcd second{r, 0, 1, true};
    if (r == 0)
        return first;
    while (reduce(first, second)) {
        if (!reduce(second, first))
            return first;
    }
    return second;
}

/// With m = q v + r and k r + 1 = j v the inverse of v is (k m + 1) / v = k q + j, which is below m
/// as k is below v.
bool inverseOfLimb(Limb* out, Limb v, Limb const* m, std::size_t count) noexcept {
    Limb const r = divideLimb(out, m, count, v);
    LimbGcd const one = gcdOfLimbs(v, r);
    if (one.gcd != 1)
        return false;
    Limb const k = one.negative ? v - one.t : one.t;
    Limb const j = one.negative ? r - one.s : one.s;
    multiplyLimb(out, out, count, k);
    addLimb(out, out, count, j);
    return true;
}

}  // namespace

DoubleLimb gcdOfPairs(DoubleLimb a, DoubleLimb b) noexcept {
    if (a == 0 || b == 0)
        return a | b;
    int const aZeros = trailingZeros(a);
    int const bZeros = trailingZeros(b);
    return gcdOfOddPairs(a >> aZeros, b >> bZeros) << std::min(aZeros, bZeros);
}

// A division step's quotient, dividend and divisor, or both sides of a matrix step.
std::size_t gcdScratch(std::size_t count) noexcept {
    return 3 * count + 2;
}

bool gcd(Limb* out, Limb* a, Limb* b, std::size_t count, Limb* scratch) noexcept {
    Reduction reduction({a, count, nullptr}, {b, count, nullptr}, 0, scratch);
    reduction.run(1);
    bool inSecond = reduction.a.count == 0;
    Side const& longer = inSecond ? reduction.b : reduction.a;
    std::copy(longer.number, longer.number + longer.count, out);
    std::fill(out + longer.count, out + count, Limb{0});
    if (reduction.a.count == 1 && reduction.b.count == 1) {
        LimbGcd const last = gcdOfLimbs(a[0], b[0]);
        out[0] = last.gcd;
        inSecond = a[0] == b[0] ? !reduction.decreasedSecondLast : last.negative;
    }
    return inSecond;
}

void gcdAlone(Limb* out, Limb* a, Limb* b, std::size_t count, Limb* scratch) noexcept {
    Reduction reduction({a, count, nullptr}, {b, count, nullptr}, 0, scratch);
    reduction.run(2);
    if (std::max(reduction.a.count, reduction.b.count) > 2) {
        std::copy_n(reduction.a.count == 0 ? b : a, count, out);
        return;
    }
    DoubleLimb const divisor = gcdOfPairs(join(a[1], a[0]), join(b[1], b[0]));
    std::fill(out, out + count, Limb{0});
    storePair(out, divisor);
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
    reduction.run(1);
    if (std::max(reduction.a.count, reduction.b.count) != 1)
        return false;
    LimbGcd const one = gcdOfLimbs(m[0], v[0]);
    if (one.gcd != 1)
        return false;
    // The side of m holds -ofM * v.
    multiplyLimb(ofM, ofM, cofactorCount, one.s);
    addMultiply(ofM, ofV, cofactorCount, one.t);
    if (one.negative)
        std::copy(ofM, ofM + count, out);
    else
        subtract(out, modulus, ofM, count);
    return true;
}

}  // namespace qel::limbs
