/// @file
/// The seeded generator.
#ifndef QEL_RANDOM_H
#define QEL_RANDOM_H

namespace qel {

class LargeInteger;

/// A small deterministic generator: the same seed gives the same sequence on every machine.
///
/// The 48-bit linear congruential generator of the POSIX drand48 family. It exists so that keys
/// can be re-created from their seeds; it is no source of cryptographic randomness, and takes
/// nothing from the operating system. One generator may be used by one thread at a time.
class Random {
  public:
    /// Starts from `initialSeed` as it is, unmixed; its bits above bit 47 influence nothing.
    Random(long long initialSeed) noexcept : seed(initialSeed) {}

    /// The next 32 bits as any `int`, negative ones included: bits 47 to 16 of the new state.
    ///
    /// The first numbers of neighbouring seeds are 384748 or 384749 apart, and the seed 0 begins
    /// with 0.
    int nextInt() noexcept { return static_cast<int>(static_cast<unsigned int>(step() >> 16)); }
    /// The next bit: bit 47 of the new state.
    bool nextBool() noexcept { return ((step() >> 47) & 1) != 0; }
    /// Writes `bitCount` random bits to the positions from `firstBit` up, the last few of them in
    /// descending order; other bits stay. Bits below position 0 are drawn and lost.
    ///
    /// Bits below the first multiple of 32 cost one step each, upward; then 32 bits cost one step;
    /// the rest costs one step each, downward from the top. A `bitCount` below 1 draws nothing; it
    /// still sets bit `firstBit + bitCount - 1` where that is a position.
    void fillBitsRandomly(LargeInteger& value, int firstBit, int bitCount) noexcept;

  private:
    static constexpr unsigned long long multiplier = 0x5DEECE66DULL;
    static constexpr unsigned long long increment = 11;

    /// Advances the state. The bits above 47 of the result are not part of it, and nobody reads
    /// them.
    unsigned long long step() noexcept {
        unsigned long long const product =
            static_cast<unsigned long long>(seed) * multiplier + increment;
        seed = static_cast<long long>(product & 0xFFFFFFFFFFFFULL);
        return product;
    }
    void fillLimbs(LargeInteger& value, long long firstLimb, long long count) noexcept;

    long long seed;
};

}  // namespace qel

#endif
