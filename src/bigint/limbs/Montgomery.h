// Products modulo an odd number (Montgomery, "Modular multiplication without trial division",
// 1985).
#pragma once

#include "Limbs.h"

namespace qel::limbs {

/// -1 / odd modulo 2^64.
[[nodiscard]] Limb negatedInverse(Limb odd) noexcept;

/// As the kernel `reduce`, for 2 limbs or more, by halves: the quotients of Hensel's division from
/// the lowest limb up, as long division has them by halves (Brent and Zimmermann, "Modern Computer
/// Arithmetic", 2.4).
void reduceByHalves(Limb* out, Limb* t, Limb const* modulus, std::size_t count, Limb negatedInverse,
                    Limb* scratch) noexcept;
std::size_t reduceByHalvesScratch(std::size_t count) noexcept;

/// Arithmetic modulo an odd number m of `count` limbs, the highest not zero. x is represented by
/// x * 2^(64 count) mod m; all numbers have `count` limbs and are below m.
class MontgomeryContext {
  public:
    /// @param productAndScratch montgomeryScratch(limbCount) limbs, which the context keeps
    MontgomeryContext(Limb const* m, std::size_t limbCount, Limb* productAndScratch) noexcept;

    void multiply(Limb* out, Limb const* a, Limb const* b) const noexcept;
    /// a = a^(2^times).
    void squareTimes(Limb* a, long long times) const noexcept;
    /// Into the representation, by one long division.
    void enter(Limb* out, Limb const* a) const noexcept;
    /// Out of it.
    void leave(Limb* out, Limb const* a) const noexcept;

  private:
    void reduce(Limb* out) const noexcept;

    Limb const* modulus;
    std::size_t count;
    Limb inverse;
    Limb* product;
    Limb* scratch;
};

std::size_t montgomeryScratch(std::size_t count) noexcept;

}  // namespace qel::limbs
