// The plain prime search: verdicts and searches written step by step, as documented, with the
// library's integers (which PlainInteger.h is the model of).
#pragma once

#include "qel/LargeInteger.h"

namespace plain {

bool isProbablyPrime(qel::LargeInteger const& n, int witnessCount) noexcept;

qel::LargeInteger createProbablePrime(int bitCount, int witnessCount, int const* seeds,
                                      int seedCount) noexcept;

}  // namespace plain
