// The row of OpenSSL's powers in pairs (AVX-512), which came with version 3: two candidates at a
// time, then two witnesses of one.
#include "OpenSslPeer.h"
#include "WideScreening.h"

namespace qel::bench {

namespace {

struct PairedPowers : OpenSslPeer {
    static constexpr std::size_t lanes = 2;

    static void raise(std::array<Integer, 2>& powers, std::array<std::uint32_t, 2> const& bases,
                      std::array<Candidate const*, 2> const& candidates) {
        Candidate const& first = *candidates[0];
        Candidate const& second = *candidates[1];
        negative(powers[0], bases[0], first);
        negative(powers[1], bases[1], second);
        BN_mod_exp_mont_consttime_x2(powers[0], powers[0], first.oddPart, first.n,
                                     first.montgomery.get(), powers[1], powers[1], second.oddPart,
                                     second.n, second.montgomery.get(), pool());
    }
};

/// Keys whose primes have 1024 bits; version 3.0 takes powers of other widths one by one.
constexpr int pairedWidth = 2048;

[[maybe_unused]] bool const registered =
    (registerKeyRows("openssl pairs", {pairedWidth}, createKeys<PairedPowers, WideScreening>),
     true);

}  // namespace

}  // namespace qel::bench
