// Signed addition, subtraction and multiplication.
#include "qel/LargeInteger.h"

#include "Product.h"
#include "Representation.h"

#include <utility>

namespace qel {

using namespace internal;

namespace {

constexpr Limb one = 1;
constexpr Magnitude oneMagnitude{&one, 0};

/// out = a + b, which has one limb more than the longer of them; `out` may be either.
void addMagnitudes(Limb* out, Magnitude a, Magnitude b) noexcept {
    if (a.top < b.top)
        std::swap(a, b);
    std::size_t const count = a.count();
    std::size_t const common = b.count();
    if (common <= 1) {
        out[count] = limbs::addLimb(out, a.value, count, common == 0 ? 0 : b.value[0]);
        return;
    }
    Limb const carry = limbs::add(out, a.value, b.value, common);
    out[count] = common == count
                     ? carry
                     : limbs::addLimb(out + common, a.value + common, count - common, carry);
}

/// out = a - b for a >= b, which has the limbs of a; `out` may be either.
void subtractMagnitudes(Limb* out, Magnitude a, Magnitude b) noexcept {
    std::size_t const count = a.count();
    std::size_t const common = b.count();
    if (common <= 1) {
        limbs::subtractLimb(out, a.value, count, common == 0 ? 0 : b.value[0]);
        return;
    }
    Limb const borrow = limbs::subtract(out, a.value, b.value, common);
    if (common != count)
        limbs::subtractLimb(out + common, a.value + common, count - common, borrow);
}

}  // namespace

// The steps of a signed sum: magnitudes of one sign are added. Of two signs the smaller one is
// subtracted from the larger, which leaves the bound where it was. Where that is b, the object
// is what becomes of a copy of b: one sized by the top of b when its sign was dropped before or the
// object is negative, otherwise one sized by b's cached bound.
void internal::Representation::add(LargeInteger& a, Magnitude b, int bBound, bool bFlag,
                                   bool subtract) noexcept {
    bool const aNegative = a.isNegative();
    bool const bNegative = bFlag && b.top >= 0;
    if (bNegative)
        bBound = b.top;
    if (aNegative == (bNegative != subtract)) {
        int const oldBound = a.highestBit;
        long long const bound = std::max(oldBound, bBound) + 1LL;
        bool const toItself = b.value == a.data;
        reserve(a, wordIndex(bound) + 1);
        addMagnitudes(a.data, {a.data, oldBound}, toItself ? Magnitude{a.data, b.top} : b);
        refreshHighestBit(a, bound);  // a negative zero keeps its flag
        return;
    }
    Magnitude const old = magnitude(a);
    if (compareMagnitudes(old, b) >= 0) {
        subtractMagnitudes(a.data, old, b);
        if (aNegative)
            a.negative = !a.isZero();
    } else {
        a.size = tightSize(aNegative ? b.top : bBound);
        makeRoom(a, a.size);
        subtractMagnitudes(a.data, b, {a.data, old.top});
        std::fill(a.data + b.count(), a.data + bufferLimbs(a.size), Limb{0});
        a.highestBit = b.top;
        a.negative = !aNegative;
    }
}

// What a copy of the object becomes, copied.
LargeInteger internal::Representation::sum(LargeInteger const& a, LargeInteger const& b,
                                           bool subtract) noexcept {
    Magnitude const x = magnitude(a);
    Magnitude const y = magnitude(b);
    bool const xNegative = a.negative && x.top >= 0;
    bool const yNegative = b.negative && y.top >= 0;
    std::size_t const count = std::max(x.count(), y.count());
    ResultLimbs out(count + 1);
    if (xNegative == (yNegative != subtract)) {
        addMagnitudes(out.get(), x, y);
        return tight(out, count + 1, a.negative);
    }
    int const order = compareMagnitudes(x, y);
    if (order < 0) {
        subtractMagnitudes(out.get(), y, x);
        return sized(out, count, y.top, !xNegative);
    }
    subtractMagnitudes(out.get(), x, y);
    return sized(out, count, x.top, a.negative && !(xNegative && order == 0));
}

LargeInteger& LargeInteger::operator+=(LargeInteger const& b) noexcept {
    Representation::add(*this, Representation::magnitude(b), b.highestBit, b.negative, false);
    return *this;
}

LargeInteger& LargeInteger::operator-=(LargeInteger const& b) noexcept {
    Representation::add(*this, Representation::magnitude(b), b.highestBit, b.negative, true);
    return *this;
}

LargeInteger LargeInteger::operator+(LargeInteger const& b) const noexcept {
    return Representation::sum(*this, b, false);
}

LargeInteger LargeInteger::operator-(LargeInteger const& b) const noexcept {
    return Representation::sum(*this, b, true);
}

LargeInteger& LargeInteger::operator*=(LargeInteger const& b) noexcept {
    Magnitude const left = Representation::magnitude(*this);
    Magnitude const right = Representation::magnitude(b);
    bool const leftNegative = negative && left.top >= 0;
    // In x *= x the sign of b goes with the one of x before it is read, so the product keeps the
    // sign of x.
    bool const rightNegative = this != &b && b.negative && right.top >= 0;
    int const capacity = productCapacity(left, right.top);
    std::size_t const count = productLimbs(left, right);
    Workspace workspace(count);
    multiply(workspace.rest(), left, right);
    Representation::assign(*this, workspace.rest(),
                           checkedPosition(topBit(workspace.rest(), count)), capacity);
    negative = leftNegative != rightNegative;
    return *this;
}

LargeInteger LargeInteger::operator*(LargeInteger const& b) const noexcept {
    Magnitude const left = Representation::magnitude(*this);
    Magnitude const right = Representation::magnitude(b);
    std::size_t const count = productLimbs(left, right);
    ResultLimbs out(count);
    multiply(out.get(), left, right);
    bool const leftNegative = negative && left.top >= 0;
    bool const rightNegative = b.negative && right.top >= 0;
    return Representation::tight(out, count, leftNegative != rightNegative);
}

LargeInteger LargeInteger::operator-() const noexcept {
    LargeInteger opposite(*this);
    opposite.negate();
    return opposite;
}

LargeInteger& LargeInteger::addOne() noexcept {
    Representation::add(*this, oneMagnitude, 0, false, false);
    return *this;
}

LargeInteger& LargeInteger::subtractOne() noexcept {
    Representation::add(*this, oneMagnitude, 0, false, true);
    return *this;
}

LargeInteger LargeInteger::operator++(int) noexcept {
    LargeInteger old(*this);
    ++*this;
    return old;
}

LargeInteger LargeInteger::operator--(int) noexcept {
    LargeInteger old(*this);
    --*this;
    return old;
}

}  // namespace qel
