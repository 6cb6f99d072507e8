// Numbers and keys that the rows of this folder are called with.
#ifndef QEL_BENCH_CRYPTO_CRYPTOOPERANDS_H
#define QEL_BENCH_CRYPTO_CRYPTOOPERANDS_H

#include "../bigint/Operands.h"

namespace qel::bench {

/// a is a prime of about `bits` bits.
Operands primes(int bits);
/// a is a random odd number.
Operands oddNumbers(int bits);
/// In turn.
Operands primesAndOddNumbers(int bits);
/// A value a, and a key of exponent b and modulus c; b is the small one. The text is the key's.
Operands valuesAndPublicKeys(int bits);
/// b is the large one.
Operands valuesAndPrivateKeys(int bits);
/// a and b are even, as the numbers one below a prime.
Operands evenPairs(int bits);

}  // namespace qel::bench

#endif
