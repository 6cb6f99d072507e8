// Signed addition, subtraction and multiplication.
#include "qel/LargeInteger.h"

#include "Product.h"
#include "Representation.h"

#include <algorithm>

namespace qel {

using namespace internal;

/// |a| + |b|; the flag stays.
void internal::Representation::addMagnitude(LargeInteger& a, LargeInteger const& b) noexcept {
    long long const bound = std::max(a.highestBit, b.highestBit) + 1LL;
    int const top = wordIndex(bound) + 1;
    a.ensureSize(top);
    std::uint64_t sum = 0;
    for (int i = 0; i <= top; ++i) {
        sum += a.data[i];
        if (i < b.size)
            sum += b.data[i];
        a.data[i] = static_cast<std::uint32_t>(sum);
        sum >>= bitsPerWord;
    }
    refreshHighestBit(a, bound);
}

/// |a| - |b| for |a| >= |b|; the flag and the cached bound stay, which may leave the bound too
/// high.
void internal::Representation::subtractMagnitude(LargeInteger& a, LargeInteger const& b) noexcept {
    int const top = wordIndex(a.highestBit);
    int const bTop = wordIndex(b.highestBit);
    std::uint64_t borrow = 0;
    for (int i = 0; i <= top; ++i) {
        std::uint64_t const sub = borrow + (i <= bTop ? b.data[i] : 0U);
        borrow = a.data[i] < sub ? 1 : 0;
        a.data[i] = static_cast<std::uint32_t>(a.data[i] - sub);
    }
}

LargeInteger& LargeInteger::operator+=(LargeInteger const& b) noexcept {
    if (b.isNegative())
        return *this -= -b;
    if (!isNegative()) {
        Representation::addMagnitude(*this, b);  // a negative zero keeps its flag: -0 + 5 is -5
        return *this;
    }
    if (compareAbsolute(b) >= 0) {
        negative = false;
        *this -= b;
        negative = !isZero();
    } else {
        LargeInteger const absolute = -*this;
        *this = b;
        *this -= absolute;
    }
    return *this;
}

LargeInteger& LargeInteger::operator-=(LargeInteger const& b) noexcept {
    if (b.isNegative())
        return *this += -b;
    if (isNegative()) {
        negative = false;
        *this += b;
        negative = !isZero();
    } else if (compareAbsolute(b) >= 0) {
        Representation::subtractMagnitude(*this, b);
    } else {
        LargeInteger smaller(b);
        swapWith(smaller);
        *this -= smaller;
        negate();
    }
    return *this;
}

LargeInteger& LargeInteger::operator*=(LargeInteger const& b) noexcept {
    Magnitude const left = Representation::magnitude(*this);
    Magnitude const right = Representation::magnitude(b);
    bool const leftNegative = negative && left.top >= 0;
    // In x *= x the sign of b goes with the one of x before it is read, so the product keeps the
    // sign of x.
    bool const rightNegative = this != &b && b.negative && right.top >= 0;
    Product const product(left, right);
    int const capacity = productCapacity(left, right.top);
    std::uint32_t* const words = zeroedBuffer(capacity);
    storeWords(words, product.value, product.top);
    std::free(data);
    data = words;
    size = capacity;
    highestBit = product.top;
    negative = leftNegative != rightNegative;
    return *this;
}

// The binary operators return a copy of the working value, not the value itself: a copy has an
// exact bound and a tight buffer.

LargeInteger LargeInteger::operator+(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work += b);
}

LargeInteger LargeInteger::operator-(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work -= b);
}

LargeInteger LargeInteger::operator*(LargeInteger const& b) const noexcept {
    Product const product(Representation::magnitude(*this), Representation::magnitude(b));
    return Representation::tight(product.value, product.top, isNegative() != b.isNegative());
}

LargeInteger LargeInteger::operator-() const noexcept {
    LargeInteger opposite(*this);
    opposite.negate();
    return opposite;
}

LargeInteger& LargeInteger::operator++() noexcept {
    return *this += LargeInteger(1);
}

LargeInteger& LargeInteger::operator--() noexcept {
    return *this -= LargeInteger(1);
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
