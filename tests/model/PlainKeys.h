// The plain keys: their creation and their use written step by step, as documented, with the plain
// integers.
#pragma once

#include "PlainInteger.h"

#include <string>

namespace plain {

struct Key {
    LargeInteger exponent;
    LargeInteger modulus;

    Key() = default;
    Key(LargeInteger const& e, LargeInteger const& n) : exponent(e), modulus(n) {}
    explicit Key(std::string const& text);

    [[nodiscard]] std::string toString() const;
    bool operator==(Key const& other) const;

    /// The modulus is 2 or more.
    [[nodiscard]] bool applyToValue(LargeInteger& value) const;
};

/// Both are positive.
LargeInteger findBestCommonDivisor(LargeInteger const& first, LargeInteger const& second);

void createKeyPair(Key& firstKey, Key& secondKey, int bitCount, int const* seeds, int seedCount);

}  // namespace plain
