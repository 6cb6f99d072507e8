// Shifts: of the whole value, and of the bits from a position up.
#include "qel/LargeInteger.h"

#include "Representation.h"

namespace qel {

using namespace internal;

namespace {

/// out[0, count + distance / 64) = a << distance, for a `count` above 0; returns the limb above.
/// `out` may be a.
Limb shiftLimbsLeft(Limb* out, Limb const* a, std::size_t count, long long distance) noexcept {
    std::size_t const whole = limbIndex(distance);
    auto const bits = static_cast<int>(distance % limbs::bitsPerLimb);
    Limb above = 0;
    if (bits != 0) {
        above = a[count - 1] >> (limbs::bitsPerLimb - bits);
        for (std::size_t i = count; i-- > 1;)
            out[i + whole] = (a[i] << bits) | (a[i - 1] >> (limbs::bitsPerLimb - bits));
        out[whole] = a[0] << bits;
    } else if (out + whole != a) {
        std::copy_backward(a, a + count, out + whole + count);
    }
    std::fill_n(out, whole, Limb{0});
    return above;
}

/// out[0, count - distance / 64) = a >> distance, for a distance below 64 count. `out` may be a.
void shiftLimbsRight(Limb* out, Limb const* a, std::size_t count, long long distance) noexcept {
    std::size_t const whole = limbIndex(distance);
    auto const bits = static_cast<int>(distance % limbs::bitsPerLimb);
    if (bits != 0)
        limbs::shiftRight(out, a + whole, count - whole, bits);
    else if (whole != 0 || out != a)
        std::copy(a + whole, a + count, out);
}

/// Takes the bits below a position out of its limb, and puts them back in the end.
class BitsBelow {
  public:
    BitsBelow(Limb& whole, int position) noexcept
        : limb(whole), mask((Limb{1} << (position % limbs::bitsPerLimb)) - 1), bits(whole & mask) {
        limb &= ~mask;
    }
    ~BitsBelow() { limb = (limb & ~mask) | bits; }

    BitsBelow(BitsBelow const&) = delete;
    BitsBelow& operator=(BitsBelow const&) = delete;

  private:
    Limb& limb;
    Limb mask;
    Limb bits;
};

}  // namespace

void LargeInteger::shiftBits(int count, int from) noexcept {
    Representation::shiftBy(*this, count, from);
}

/// The distance is 64 bits wide so that it can always be negated.
void internal::Representation::shiftBy(LargeInteger& a, long long distance, int from) noexcept {
    if (a.highestBit < 0 || distance == 0)
        return;
    if (from <= 0) {
        if (distance > 0)
            shiftLeft(a, distance);
        else
            shiftRight(a, -distance);
    } else {
        if (distance > 0)
            shiftLeftFrom(a, from, distance);
        else
            shiftRightFrom(a, from, -distance);
    }
}

void internal::Representation::shiftLeft(LargeInteger& a, long long count) noexcept {
    Magnitude const old = magnitude(a);
    requireIndex(old.top + count);
    reserve(a, wordIndex(a.highestBit + count) + 1);
    if (old.top < 0) {
        a.highestBit = -1;
        return;
    }
    Limb const above = shiftLimbsLeft(a.data, a.data, old.count(), count);
    if (above != 0)
        a.data[old.count() + limbIndex(count)] = above;
    a.highestBit = static_cast<int>(old.top + count);
}

// The bound decides whether nothing is left, and with it the flag.
void internal::Representation::shiftRight(LargeInteger& a, long long count) noexcept {
    if (a.highestBit < count) {
        a.clear();
        return;
    }
    Magnitude const old = magnitude(a);
    std::size_t const whole = std::min(limbIndex(count), old.count());
    if (whole < old.count())
        shiftLimbsRight(a.data, a.data, old.count(), count);
    std::fill_n(a.data + (old.count() - whole), whole, Limb{0});
    a.highestBit = old.top < count ? -1 : static_cast<int>(old.top - count);
}

// The bound follows the highest bit that moves, and is not rescanned.
void internal::Representation::shiftLeftFrom(LargeInteger& a, int from, long long count) noexcept {
    Magnitude const old = magnitude(a);
    if (old.top < from)
        return;
    int const top = checkedPosition(old.top + count);
    if (top > a.highestBit) {
        a.ensureSize(wordIndex(top));
        a.highestBit = top;
    }
    Limb* const moving = a.data + limbIndex(from);
    std::size_t const movingCount = old.count() - limbIndex(from);
    BitsBelow const below(*moving, from);
    Limb const above = shiftLimbsLeft(moving, moving, movingCount, count);
    if (above != 0)
        moving[movingCount + limbIndex(count)] = above;
}

void internal::Representation::shiftRightFrom(LargeInteger& a, int from, long long count) noexcept {
    Magnitude const old = magnitude(a);
    if (old.top >= from) {
        Limb* const moving = a.data + limbIndex(from);
        std::size_t const movingCount = old.count() - limbIndex(from);
        std::size_t const whole = std::min(limbIndex(count), movingCount);
        BitsBelow const below(*moving, from);
        if (whole < movingCount)
            shiftLimbsRight(moving, moving, movingCount, count);
        std::fill_n(moving + (movingCount - whole), whole, Limb{0});
    }
    refreshHighestBit(a, old.top);
}

// What a shifted copy is, copied.
LargeInteger internal::Representation::shifted(LargeInteger const& a, long long distance) noexcept {
    Magnitude const old = magnitude(a);
    std::size_t const count = old.count();
    if (count == 0)
        return copied(a.data, 0, -1, a.negative);
    if (old.top + distance < 0)
        return LargeInteger();
    if (distance < 0) {
        std::size_t const left = count - limbIndex(-distance);
        ResultLimbs out(left);
        shiftLimbsRight(out.get(), a.data, count, -distance);
        return tight(out, left, a.negative);
    }
    requireIndex(old.top + distance);
    std::size_t const used = count + limbIndex(distance) + 1;
    ResultLimbs out(used);
    out.get()[used - 1] = shiftLimbsLeft(out.get(), a.data, count, distance);
    return tight(out, used, a.negative);
}

LargeInteger& LargeInteger::operator<<=(int n) noexcept {
    shiftBits(n, 0);
    return *this;
}

LargeInteger& LargeInteger::operator>>=(int n) noexcept {
    Representation::shiftBy(*this, -static_cast<long long>(n), 0);
    return *this;
}

LargeInteger LargeInteger::operator<<(int n) const noexcept {
    return Representation::shifted(*this, n);
}

LargeInteger LargeInteger::operator>>(int n) const noexcept {
    return Representation::shifted(*this, -static_cast<long long>(n));
}

void LargeInteger::insertBit(int pos, bool value) noexcept {
    if (pos < 0)
        return;
    shiftBits(1, pos);
    setBit(pos, value);
}

}  // namespace qel
