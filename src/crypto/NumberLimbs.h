// The limbs of a LargeInteger, for what computes below it.
#pragma once

#include "qel/LargeInteger.h"

#include "../bigint/limbs/Limbs.h"

namespace qel::internal {

/// Copies the lowest `count` limbs of the magnitude, zeros above it.
inline void copyLimbs(limbs::Limb* out, std::size_t count, LargeInteger const& n) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        int const position = static_cast<int>(i) * limbs::bitsPerLimb;
        limbs::Limb const low = static_cast<unsigned int>(n.getBitRangeAsInt(position, 32));
        limbs::Limb const high = static_cast<unsigned int>(n.getBitRangeAsInt(position + 32, 32));
        out[i] = high << 32 | low;
    }
}

}  // namespace qel::internal
