// The order of values. A negative zero counts as zero.
#include "qel/LargeInteger.h"

#include "Representation.h"

namespace qel {

using namespace internal;

int LargeInteger::compareAbsolute(LargeInteger const& other) const noexcept {
    return compareMagnitudes(Representation::magnitude(*this), Representation::magnitude(other));
}

bool LargeInteger::isSame(LargeInteger const& other) const noexcept {
    int const top = getHighestBit();
    if (top != other.getHighestBit() || (negative != other.negative && top >= 0))
        return false;
    return std::memcmp(data, other.data, limbCount(top) * sizeof(Limb)) == 0;
}

int LargeInteger::compareAll(LargeInteger const& other) const noexcept {
    if (negative == other.negative) {
        int const absolute = compareAbsolute(other);
        return negative ? -absolute : absolute;
    }
    if (isZero() && other.isZero())
        return 0;
    return negative ? -1 : 1;
}

}  // namespace qel
