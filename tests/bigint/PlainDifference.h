// The library's integer and the plain model's, field by field.
#pragma once

#include "LargeIntegerPeer.h"

#include "model/PlainInteger.h"

#include <sstream>
#include <string>

namespace bigint_test {

/// Empty when all four fields agree, and all words up to the capacity.
inline std::string difference(LargeInteger const& fast, plain::LargeInteger const& plain) {
    Representation const model{plain.size, plain.highestBit, plain.negative};
    std::ostringstream text;
    if (!(representation(fast) == model)) {
        text << "representation " << representation(fast) << ", not " << model;
        return text.str();
    }
    for (int i = 0; i < plain.size; ++i) {
        if (LargeIntegerPeer::word(fast, i) != plain.data[i])
            text << " word " << i << ": " << LargeIntegerPeer::word(fast, i) << ", not "
                 << plain.data[i];
    }
    return text.str();
}

}  // namespace bigint_test
