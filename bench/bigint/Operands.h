// The numbers that every library computes with: drawn once from fixed seeds, the same for all.
#ifndef QEL_BENCH_BIGINT_OPERANDS_H
#define QEL_BENCH_BIGINT_OPERANDS_H

#include "qel/LargeInteger.h"

#include <string>
#include <vector>

namespace qel::bench {

using Operands = std::vector<LargeInteger>;

/// How an operand reaches the other libraries, and how results are compared. Linear, unlike what
/// is measured: the text of a number that is not negative, without leading zeros.
std::string hexDigits(LargeInteger const& value);

/// Two numbers of `bits` bits.
Operands two(int bits);
/// A number of `bits` bits.
Operands one(int bits);
/// A number of 2 * `bits` bits, and one of `bits`.
Operands dividendAndDivisor(int bits);
/// A base, an exponent and an odd modulus, all of `bits` bits, the modulus being the largest.
Operands baseExponentModulus(int bits);
/// 65537 and an even modulus without that factor.
Operands smallValueAndEvenModulus(int bits);
/// An odd value of `bits` bits and a larger even modulus, without a common factor.
Operands valueAndEvenModulus(int bits);

}  // namespace qel::bench

#endif
