// And, or, exclusive or: word by word on the magnitudes; the left operand's sign flag stays.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <algorithm>

namespace qel {

using namespace internal;

LargeInteger& LargeInteger::operator&=(LargeInteger const& b) noexcept {
    for (int i = size - 1; i >= b.size; --i)
        data[i] = 0;
    for (int i = std::min(size, b.size) - 1; i >= 0; --i)
        data[i] &= b.data[i];
    Representation::refreshHighestBit(*this, std::min(highestBit, b.highestBit));
    return *this;
}

LargeInteger& LargeInteger::operator|=(LargeInteger const& b) noexcept {
    if (b.highestBit < 0)
        return *this;
    ensureSize(wordIndex(b.highestBit));
    for (int i = wordIndex(b.highestBit); i >= 0; --i)
        data[i] |= b.data[i];
    Representation::refreshHighestBit(*this, std::max(highestBit, b.highestBit));
    return *this;
}

LargeInteger& LargeInteger::operator^=(LargeInteger const& b) noexcept {
    if (b.highestBit < 0)
        return *this;
    ensureSize(wordIndex(b.highestBit));
    for (int i = wordIndex(b.highestBit); i >= 0; --i)
        data[i] ^= b.data[i];
    Representation::refreshHighestBit(*this, std::max(highestBit, b.highestBit));
    return *this;
}

// The binary operators return a copy of the working value, not the value itself: a copy has an
// exact bound and a tight buffer.

LargeInteger LargeInteger::operator&(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work &= b);
}

LargeInteger LargeInteger::operator|(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work |= b);
}

LargeInteger LargeInteger::operator^(LargeInteger const& b) const noexcept {
    LargeInteger work(*this);
    return LargeInteger(work ^= b);
}

}  // namespace qel
