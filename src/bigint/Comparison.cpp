// Sign and small-value queries, and the order of values. A negative zero counts as zero.
#include "qel/LargeInteger.h"

#include "Representation.h"

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
    int const low = static_cast<int>(data[0] & 0x7FFFFFFF);
    return negative ? -low : low;
}

int LargeInteger::compareAbsolute(LargeInteger const& other) const noexcept {
    return compareMagnitudes(Representation::magnitude(*this), Representation::magnitude(other));
}

int LargeInteger::compare(LargeInteger const& other) const noexcept {
    Magnitude const a = Representation::magnitude(*this);
    Magnitude const b = Representation::magnitude(other);
    bool const below = negative && a.top >= 0;
    if (below != (other.negative && b.top >= 0))
        return below ? -1 : 1;
    int const absolute = compareMagnitudes(a, b);
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
