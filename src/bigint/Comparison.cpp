// Sign and small-value queries, and the order of values. A negative zero counts as zero.
#include "qel/LargeInteger.h"

#include "Words.h"

namespace qel {

using namespace internal;

void LargeInteger::setNegative(bool flag) noexcept {
    negative = flag;
}

bool LargeInteger::isZero() const noexcept {
    return getHighestBit() < 0;
}

bool LargeInteger::isOne() const noexcept {
    return !negative && getHighestBit() == 0;
}

bool LargeInteger::isNegative() const noexcept {
    return negative && !isZero();
}

bool LargeInteger::negate() noexcept {
    negative = !isNegative() && !isZero();
    return negative;
}

int LargeInteger::toInteger() const noexcept {
    int const low = static_cast<int>(data[0] & 0x7FFFFFFFU);
    return negative ? -low : low;
}

int LargeInteger::compareAbsolute(LargeInteger const& other) const noexcept {
    int const top = getHighestBit();
    int const otherTop = other.getHighestBit();
    if (top != otherTop)
        return top > otherTop ? 1 : -1;
    for (int i = wordIndex(top); i >= 0; --i) {
        if (data[i] != other.data[i])
            return data[i] > other.data[i] ? 1 : -1;
    }
    return 0;
}

int LargeInteger::compare(LargeInteger const& other) const noexcept {
    bool const below = isNegative();
    if (below != other.isNegative())
        return below ? -1 : 1;
    int const absolute = compareAbsolute(other);
    return below ? -absolute : absolute;
}

bool LargeInteger::operator==(LargeInteger const& other) const noexcept {
    return compare(other) == 0;
}

bool LargeInteger::operator!=(LargeInteger const& other) const noexcept {
    return compare(other) != 0;
}

bool LargeInteger::operator<(LargeInteger const& other) const noexcept {
    return compare(other) < 0;
}

bool LargeInteger::operator<=(LargeInteger const& other) const noexcept {
    return compare(other) <= 0;
}

bool LargeInteger::operator>(LargeInteger const& other) const noexcept {
    return compare(other) > 0;
}

bool LargeInteger::operator>=(LargeInteger const& other) const noexcept {
    return compare(other) >= 0;
}

}  // namespace qel
