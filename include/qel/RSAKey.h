/// @file
/// RSA key pairs.
#ifndef QEL_RSAKEY_H
#define QEL_RSAKEY_H

#include "qel/LargeInteger.h"

#include <string>

namespace qel {

/// One half of an RSA key pair: an exponent and a modulus.
///
/// Which half is called public is the application's choice; applying one half undoes the other.
/// Keys are deterministic by design: whoever knows the seeds has both keys. This is raw RSA
/// without padding, no way to keep secrets by itself. A key may be read by several threads at
/// once.
class RSAKey {
  public:
    /// A key with zero in both fields, which applyToValue refuses.
    RSAKey() noexcept;
    /// Reads the text form and reports nothing: without a comma both fields are zero.
    ///
    /// Digits are read as leniently as LargeInteger::parseString does in radix 16, and further
    /// commas are skipped. With a text from outside compare what toString() writes, and look that
    /// neither number has a "-", that the modulus is as wide as it was made, and that the exponent
    /// is below it: with "3,1" applyToValue runs for ever.
    /// @param text must not be null; a literal 0 is a null text too, and what `RSAKey(0)` and
    ///     `RSAKey key = 0` do is not defined.
    RSAKey(char const* text) noexcept;

    /// The exponent in hexadecimal, a comma, the modulus in hexadecimal; "," for a default key.
    [[nodiscard]] std::string toString() const noexcept;

    /// True when both exponents and both moduli are equal.
    [[nodiscard]] bool operator==(RSAKey const& other) const noexcept;
    /// True when the exponents or the moduli differ.
    [[nodiscard]] bool operator!=(RSAKey const& other) const noexcept;

    /// Raises each digit of `value` in base modulus to the exponent, and reverses their order.
    ///
    /// `value` becomes the result. The other key of the pair reverses the digits again and restores
    /// the value. A value below the modulus comes back exactly; a multiple of the modulus loses the
    /// zero digits at its low end. Costs one modular power a digit.
    /// @return false, with `value` cleared to zero, when it is zero or negative or when a field of
    ///     this key is zero.
    /// @pre The modulus is 2 or more, the exponent positive and below it; with a modulus of 1 or -1
    /// the call runs for ever (an assert says so first).
    [[nodiscard]] bool applyToValue(LargeInteger& value) const noexcept;

    /// Not a divisor of anything: the first of 3, 5, 9, 17, ..., 65537 (2^k + 1, composites
    /// included) that shares no factor with either argument; when there is none, the first such
    /// number from 4 up.
    /// @pre Both arguments are positive; otherwise the call can run for ever (an assert says so
    /// first for a zero).
    [[nodiscard]] static LargeInteger findBestCommonDivisor(LargeInteger const& first,
                                                            LargeInteger const& second) noexcept;

    /// Creates the pair that the seeds determine: the same width and seeds give the same pair, on
    /// every machine.
    ///
    /// The first half of the seeds draws one prime, the rest the other; each prime is tested with
    /// 30 witnesses. One seed alone leaves none for the first prime, which then is the same for
    /// everyone. The first key takes a small exponent, the second one its inverse. Nothing checks
    /// that the primes differ: seeds of which both halves draw the same start give a useless
    /// modulus. When a prime search fails, both keys come out as default keys. The time is that of
    /// two prime searches: many modular powers of half the width, in the order of the fourth power
    /// of `bitCount`.
    /// @param firstKey becomes (small exponent, modulus); what it held before does not matter.
    /// @param secondKey becomes (inverse of that exponent, modulus).
    /// @param bitCount the width of the modulus, give or take a bit; small widths come out wider.
    /// @param seeds `seedCount` integers; may be null when `seedCount` is 0.
    /// @param seedCount 0 or more
    static void createKeyPair(RSAKey& firstKey, RSAKey& secondKey, int bitCount, int const* seeds,
                              int seedCount) noexcept;

  private:
    RSAKey(LargeInteger const& exponent, LargeInteger const& modulus) noexcept;

    LargeInteger exponent;
    LargeInteger modulus;
};

}  // namespace qel

#endif
