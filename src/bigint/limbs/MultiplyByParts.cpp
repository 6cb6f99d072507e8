// Products of numbers of one length: rows for short ones, three products of halves (Karatsuba and
// Ofman, 1962; the subtractive form of Knuth 4.3.3) or five products of thirds (Toom and Cook) for
// longer ones.
#include "MultiplyByParts.h"

#include "Kernels.h"
#include "Thresholds.h"

#include <algorithm>

namespace qel::limbs {

namespace {

/// |a0 - a1| for count limbs of a0 and fewer or as many of a1; true when a0 < a1.
bool absoluteDifference(Limb* out, Limb const* a0, std::size_t count, Limb const* a1,
                        std::size_t count1) noexcept {
    bool const longer = significant(a0 + count1, count - count1) != 0;
    if (!longer && compare(a0, a1, count1) < 0) {
        subtract(out, a1, a0, count1);
        std::fill(out + count1, out + count, Limb{0});
        return true;
    }
    Limb const borrow = subtract(out, a0, a1, count1);
    subtractLimb(out + count1, a0 + count1, count - count1, borrow);
    return false;
}

/// out[half, ...) += low + high - middle or, when `added`, low + high + middle, where low is
/// out[0, 2 half), high is out[2 half, 2 count) and middle has 2 half limbs. The sum is the cross
/// product of halves, so nothing is carried past the end. Scratch: 2 half limbs.
void foldMiddle(Limb* out, std::size_t count, std::size_t half, Limb const* middle, bool added,
                Limb* scratch) noexcept {
    std::size_t const highCount = 2 * (count - half);
    Limb carry = add(scratch, out, out + 2 * half, highCount);
    carry = addLimb(scratch + highCount, out + highCount, 2 * half - highCount, carry);
    if (added)
        carry += add(scratch, scratch, middle, 2 * half);
    else
        carry -= subtract(scratch, scratch, middle, 2 * half);
    carry += add(out + half, out + half, scratch, 2 * half);
    addLimb(out + 3 * half, out + 3 * half, 2 * count - 3 * half, carry);
}

void multiplyByHalves(Limb* out, Limb const* a, Limb const* b, std::size_t count,
                      Limb* scratch) noexcept {
    std::size_t const half = count - count / 2;
    Limb* const middle = scratch;
    Limb* const rest = scratch + 2 * half;
    bool const aSwapped = absoluteDifference(out, a, half, a + half, count - half);
    if (a == b) {
        multiplyByParts(middle, out, out, half, rest);
        multiplyByParts(out, a, a, half, rest);
        multiplyByParts(out + 2 * half, a + half, a + half, count - half, rest);
        foldMiddle(out, count, half, middle, false, rest);
        return;
    }
    bool const bSwapped = absoluteDifference(out + half, b, half, b + half, count - half);
    multiplyByParts(middle, out, out + half, half, rest);
    multiplyByParts(out, a, b, half, rest);
    multiplyByParts(out + 2 * half, a + half, b + half, count - half, rest);
    foldMiddle(out, count, half, middle, aSwapped != bSwapped, rest);
}

/// A number cut in three, a0 + a1 x + a2 x^2 for x = 2^(64 third): `third` limbs, `third` limbs and
/// fewer or as many.
struct Thirds {
    Limb const* a0;
    Limb const* a1;
    Limb const* a2;
    std::size_t third;
    std::size_t lastCount;

    Thirds(Limb const* a, std::size_t count) noexcept
        : a0(a), a1(a + (count + 2) / 3), a2(a + 2 * ((count + 2) / 3)), third((count + 2) / 3),
          lastCount(count - 2 * third) {}
};

/// What a number cut in three is at some x: `third` limbs and one more, which is small.
struct Value {
    Limb* limbs;
    Limb top;
    bool negative;
};

/// out = a0 + a2; returns the carry.
Limb sumOfOuter(Limb* out, Thirds const& a) noexcept {
    Limb const carry = add(out, a.a0, a.a2, a.lastCount);
    return addLimb(out + a.lastCount, a.a0 + a.lastCount, a.third - a.lastCount, carry);
}

Value atOne(Limb* out, Thirds const& a) noexcept {
    Limb const carry = sumOfOuter(out, a);
    return {out, carry + add(out, out, a.a1, a.third), false};
}

Value atMinusOne(Limb* out, Thirds const& a) noexcept {
    Limb const carry = sumOfOuter(out, a);
    if (carry == 0 && compare(out, a.a1, a.third) < 0) {
        subtract(out, a.a1, out, a.third);
        return {out, 0, true};
    }
    return {out, carry - subtract(out, out, a.a1, a.third), false};
}

/// a0 + 2 (a1 + 2 a2) = a0 + 2 a1 + 4 a2.
Value atTwo(Limb* out, Thirds const& a) noexcept {
    Limb carry = shiftLeft(out, a.a2, a.lastCount, 1);
    if (a.lastCount < a.third) {
        out[a.lastCount] = carry;
        std::fill(out + a.lastCount + 1, out + a.third, Limb{0});
        carry = 0;
    }
    carry += add(out, out, a.a1, a.third);
    carry = 2 * carry + shiftLeft(out, out, a.third, 1);
    return {out, carry + add(out, out, a.a0, a.third), false};
}

/// out[0, 2 third] = |a * b|. At most 7^2 times x^2, so that one more limb holds it.
void multiplyValues(Limb* out, Value const& a, Value const& b, std::size_t third,
                    Limb* scratch) noexcept {
    multiplyByParts(out, a.limbs, b.limbs, third, scratch);
    Limb top = a.top * b.top;
    if (a.top != 0)
        top += addMultiply(out + third, b.limbs, third, a.top);
    if (b.top != 0)
        top += addMultiply(out + third, a.limbs, third, b.top);
    out[2 * third] = top;
}

/// a /= 3, for a multiple of 3, from the lowest limb up. With B = 2^64 and M = (B - 1) / 3, -M is
/// the inverse of 3 modulo B. So a quotient's limb is q = (a[i] - r) / 3 = (r - a[i]) M modulo B,
/// where r is 0, 1 or 2, what the quotient below borrowed. `running` is r M, and the next r M is
/// M (3q - a[i] + r) / B = q - (q - (r - a[i]) M) / B.
void divideByThree(Limb* a, std::size_t count) noexcept {
    Limb running = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DoubleLimb const product = DoubleLimb{a[i]} * (~Limb{0} / 3);
        Limb const low = static_cast<Limb>(product);
        Limb const borrow = running < low ? 1 : 0;
        running -= low;
        a[i] = running;
        running -= static_cast<Limb>(product >> bitsPerLimb) + borrow;
    }
}

/// The coefficients of the product from its values at 0, 1, -1, 2 and infinity, in place of those
/// at 1, -1 and 2 (Bodrato and Zanoni, "Integer and polynomial multiplication: towards optimal
/// Toom-Cook matrices", 2007, section 5). No step leaves a negative number: the comments show all
/// as sums of coefficients c0 to c4.
void interpolate(Limb const* zero, Limb* one, Limb* minusOne, bool negative, Limb* two,
                 Limb const* infinity, std::size_t infinityCount, std::size_t count) noexcept {
    std::size_t const rest = count - infinityCount;
    // two = (two - minusOne) / 3 = c1 + c2 + 3 c3 + 5 c4; minusOne = (one - minusOne) / 2 = c1 + c3
    if (negative) {
        add(two, two, minusOne, count);
        add(minusOne, one, minusOne, count);
    } else {
        subtract(two, two, minusOne, count);
        subtract(minusOne, one, minusOne, count);
    }
    divideByThree(two, count);
    shiftRight(minusOne, minusOne, count, 1);
    // one = one - zero = c1 + c2 + c3 + c4
    one[count - 1] -= subtract(one, one, zero, count - 1);
    // two = (two - one) / 2 = c3 + 2 c4
    subtract(two, two, one, count);
    shiftRight(two, two, count, 1);
    // one = one - minusOne - infinity = c2
    subtract(one, one, minusOne, count);
    Limb borrow = subtract(one, one, infinity, infinityCount);
    subtractLimb(one + infinityCount, one + infinityCount, rest, borrow);
    // two = two - 2 infinity = c3
    for (int i = 0; i < 2; ++i) {
        borrow = subtract(two, two, infinity, infinityCount);
        subtractLimb(two + infinityCount, two + infinityCount, rest, borrow);
    }
    // minusOne = minusOne - two = c1
    subtract(minusOne, minusOne, two, count);
}

/// out += a, where what does not fit is zero.
void addAt(Limb* out, std::size_t outCount, Limb const* a, std::size_t count) noexcept {
    std::size_t const both = std::min(outCount, count);
    Limb const carry = add(out, out, a, both);
    addLimb(out + both, out + both, outCount - both, carry);
}

void multiplyByThirds(Limb* out, Limb const* a, Limb const* b, std::size_t count,
                      Limb* scratch) noexcept {
    Thirds const left(a, count);
    Thirds const right(b, count);
    std::size_t const third = left.third;
    std::size_t const valueCount = 2 * third + 1;
    Limb* const one = scratch;
    Limb* const minusOne = one + valueCount;
    Limb* const two = minusOne + valueCount;
    Limb* const rest = two + valueCount;
    // The factors are in out, until it is needed for the outer products.
    auto const productAt = [&](Value (*at)(Limb*, Thirds const&) noexcept, Limb* product) {
        Value const leftValue = at(out, left);
        Value const rightValue = a == b ? leftValue : at(out + third, right);
        multiplyValues(product, leftValue, rightValue, third, rest);
        return leftValue.negative != rightValue.negative;
    };
    productAt(atOne, one);
    bool const negative = productAt(atMinusOne, minusOne);
    productAt(atTwo, two);
    Limb* const infinity = out + 4 * third;
    std::size_t const infinityCount = 2 * left.lastCount;
    multiplyByParts(out, left.a0, right.a0, third, rest);
    multiplyByParts(infinity, left.a2, right.a2, left.lastCount, rest);
    interpolate(out, one, minusOne, negative, two, infinity, infinityCount, valueCount);
    std::copy(one, one + 2 * third, out + 2 * third);
    addLimb(infinity, infinity, infinityCount, one[2 * third]);
    addAt(out + third, 2 * count - third, minusOne, valueCount);
    addAt(out + 3 * third, 2 * count - 3 * third, two, valueCount);
}

}  // namespace

void multiplyByParts(Limb* out, Limb const* a, Limb const* b, std::size_t count,
                     Limb* scratch) noexcept {
    bool const isSquare = a == b;
    if (count < (isSquare ? halvesSquare : halvesMultiply)) {
        if (isSquare)
            kernels().squareRows(out, a, count);
        else
            kernels().multiplyRows(out, a, count, b, count);
    } else if (count < (isSquare ? thirdsSquare : thirdsMultiply)) {
        multiplyByHalves(out, a, b, count, scratch);
    } else {
        multiplyByThirds(out, a, b, count, scratch);
    }
}

// By induction: halves take count + 1 limbs for the middle and as many to fold it, or 4 half for
// the products of half = (count + 1) / 2 limbs: at most 3 count + 3. Thirds take 2 count + 7 limbs
// and 4 third for the products of third <= (count + 2) / 3 limbs: less than 4 count from 15 limbs
// on.
std::size_t partsScratch(std::size_t count) noexcept {
    static_assert(std::min({thirdsMultiply, thirdsSquare}) >= 15);
    return 4 * count;
}

}  // namespace qel::limbs
