// And, or, exclusive or: limb by limb on the magnitudes; the left operand's sign flag stays.
#include "qel/LargeInteger.h"

#include "Representation.h"

#include <functional>
#include <utility>

namespace qel {

using namespace internal;

namespace {

/// The bits of both values combined, where what the longer one has alone stays.
template <typename Operation>
LargeInteger combined(Magnitude a, Magnitude b, bool flag, Operation operation) noexcept {
    if (a.top < b.top)
        std::swap(a, b);
    ResultLimbs out(a.count());
    std::transform(b.value, b.value + b.count(), a.value, out.get(), operation);
    std::copy(a.value + b.count(), a.value + a.count(), out.get() + b.count());
    return Representation::tight(out, a.count(), flag);
}

}  // namespace

LargeInteger& LargeInteger::operator&=(LargeInteger const& b) noexcept {
    int const bound = std::min(highestBit, b.highestBit);
    std::size_t const common = limbCount(bound);
    std::transform(data, data + common, b.data, data, std::bit_and<>());
    std::fill(data + common, data + limbCount(highestBit), Limb{0});
    Representation::refreshHighestBit(*this, bound);
    return *this;
}

LargeInteger& LargeInteger::operator|=(LargeInteger const& b) noexcept {
    if (b.highestBit < 0)
        return *this;
    Representation::reserve(*this, wordIndex(b.highestBit));
    std::transform(data, data + limbCount(b.highestBit), b.data, data, std::bit_or<>());
    Representation::refreshHighestBit(*this, std::max(highestBit, b.highestBit));
    return *this;
}

LargeInteger& LargeInteger::operator^=(LargeInteger const& b) noexcept {
    if (b.highestBit < 0)
        return *this;
    Representation::reserve(*this, wordIndex(b.highestBit));
    std::transform(data, data + limbCount(b.highestBit), b.data, data, std::bit_xor<>());
    Representation::refreshHighestBit(*this, std::max(highestBit, b.highestBit));
    return *this;
}

// The binary operators return what a copy of the assigning form's result would be, which has an
// exact bound and a tight buffer.

LargeInteger LargeInteger::operator&(LargeInteger const& b) const noexcept {
    std::size_t const count = limbCount(std::min(highestBit, b.highestBit));
    ResultLimbs out(count);
    std::transform(data, data + count, b.data, out.get(), std::bit_and<>());
    return Representation::tight(out, count, negative);
}

LargeInteger LargeInteger::operator|(LargeInteger const& b) const noexcept {
    return combined(Representation::magnitude(*this), Representation::magnitude(b), negative,
                    std::bit_or<>());
}

LargeInteger LargeInteger::operator^(LargeInteger const& b) const noexcept {
    return combined(Representation::magnitude(*this), Representation::magnitude(b), negative,
                    std::bit_xor<>());
}

}  // namespace qel
