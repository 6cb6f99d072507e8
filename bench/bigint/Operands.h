// The numbers that every library computes with: drawn once from fixed seeds, the same for all.
#ifndef QEL_BENCH_BIGINT_OPERANDS_H
#define QEL_BENCH_BIGINT_OPERANDS_H

#include "qel/LargeInteger.h"

#include <string>
#include <vector>

namespace qel::bench {

/// What one call takes, in the type of a library. Operations that work in place change them.
template <typename Value>
struct Arguments {
    Value a;
    Value b;
    Value c;
    int bits = 0;
    /// Below bits - 31.
    int position = 0;
    /// `a` as text, in the radix of the row.
    std::string text = {};
};

using Operands = std::vector<Arguments<LargeInteger>>;

/// A table of `bits` bits, whose length depends on `bits` only.
using Draw = Operands (*)(int bits);

/// The table of `draw`, drawn once.
Operands const& drawn(Draw draw, int bits);

/// How an operand reaches the other libraries, and how results are compared. Linear, unlike what
/// is measured: the text of a number without leading zeros.
std::string hexDigits(LargeInteger const& value);

/// a and b of `bits` bits.
Operands pairs(int bits);
/// a and b are equal.
Operands equalPairs(int bits);
/// a and b differ in the lowest bit.
Operands closePairs(int bits);
/// a and b as `pairs` has them, with the text of a.
template <int radix>
Operands texts(int bits) {
    Operands table = pairs(bits);
    for (Arguments<LargeInteger>& x : table)
        x.text = x.a.toString(radix);
    return table;
}
/// Only the highest bit of a is set.
Operands sparse(int bits);
/// All bits of a are set.
Operands dense(int bits);
/// a of 2 * `bits` bits, b of `bits`.
Operands dividendsAndDivisors(int bits);
/// A base a, an exponent b and an odd modulus c, all of `bits` bits, the modulus being the largest.
Operands basesExponentsModuli(int bits);
/// The same with 65537 for an exponent.
Operands basesAndModuli(int bits);
/// a is 65537, b an even modulus without that factor.
Operands smallValuesAndEvenModuli(int bits);
/// An odd a of `bits` bits and a larger even modulus b, without a common factor.
Operands valuesAndEvenModuli(int bits);
/// An odd modulus b and a = b - 2.
Operands oddModuliAndTwoLess(int bits);

}  // namespace qel::bench

#endif
