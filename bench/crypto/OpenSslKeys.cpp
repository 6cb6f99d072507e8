// The rows of OpenSSL's BN, one power at a time.
#include "OpenSslPeer.h"
#include "PlainScreening.h"
#include "WideScreening.h"

#include <benchmark/benchmark.h>
#include <openssl/crypto.h>

#include <cctype>

namespace qel::bench {

BN_CTX* OpenSslPeer::pool() {
    static std::unique_ptr<BN_CTX, OpenSslRelease> const shared(BN_CTX_new());
    return shared.get();
}

OpenSslInteger OpenSslPeer::take(Words const& words) {
    Integer out;
    BN_lebin2bn(reinterpret_cast<unsigned char const*>(words.data()),
                static_cast<int>(words.size() * sizeof(words[0])), out);
    return out;
}

std::string OpenSslPeer::text(Integer const& a) {
    std::string digits = std::unique_ptr<char, OpenSslRelease>(BN_bn2hex(a)).get();
    digits.erase(0, digits.find_first_not_of('0'));
    for (char& c : digits)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return digits;
}

OpenSslInteger OpenSslPeer::product(Integer const& a, Integer const& b) {
    Integer out;
    BN_mul(out, a, b, pool());
    return out;
}

OpenSslInteger OpenSslPeer::inverse(unsigned long a, Integer const& modulus) {
    Integer out;
    BN_set_word(out, a);
    BN_mod_inverse(out, out, modulus, pool());
    return out;
}

void OpenSslPeer::prepare(Candidate& candidate, Integer const& base, unsigned long offset) {
    BN_copy(candidate.n, base);
    BN_add_word(candidate.n, offset);
    BN_copy(candidate.minusOne, candidate.n);
    BN_clear_bit(candidate.minusOne, 0);
    for (candidate.twos = 1; BN_is_bit_set(candidate.minusOne, candidate.twos) == 0;)
        ++candidate.twos;
    BN_rshift(candidate.oddPart, candidate.minusOne, candidate.twos);
    BN_MONT_CTX_set(candidate.montgomery.get(), candidate.n, pool());
}

namespace {

/// The power that one takes first.
struct UsualPowers : OpenSslPeer {
    static constexpr std::size_t lanes = 1;

    static void raise(std::array<Integer, 1>& powers, std::array<std::uint32_t, 1> const& bases,
                      std::array<Candidate const*, 1> const& candidates) {
        Candidate const& c = *candidates[0];
        BN_set_word(powers[0], bases[0]);
        BN_mod_exp_mont(powers[0], powers[0], c.oddPart, c.n, pool(), c.montgomery.get());
    }
};

/// For each width the fastest power of a small base that BN offers.
struct BestPowers : OpenSslPeer {
    static constexpr std::size_t lanes = 1;
    static constexpr int fixedWidth = 512;
    static constexpr int narrowestForWords = 768;

    static void raise(std::array<Integer, 1>& powers, std::array<std::uint32_t, 1> const& bases,
                      std::array<Candidate const*, 1> const& candidates) {
        Candidate const& c = *candidates[0];
        int const bits = BN_num_bits(c.n);
        if (bits == fixedWidth) {
            negative(powers[0], bases[0], c);
            BN_mod_exp_mont_consttime(powers[0], powers[0], c.oddPart, c.n, pool(),
                                      c.montgomery.get());
        } else if (bits >= narrowestForWords) {
            BN_mod_exp_mont_word(powers[0], bases[0], c.oddPart, c.n, pool(), c.montgomery.get());
        } else {
            UsualPowers::raise(powers, bases, candidates);
        }
    }
};

[[maybe_unused]] bool const registered = [] {
    benchmark::AddCustomContext("peer openssl", OpenSSL_version(OPENSSL_VERSION));
    registerKeyRows("openssl", keyWidthsUpTo(2048),
                    createKeys<UsualPowers, PlainScreening<UsualPowers>>);
    registerKeyRows("openssl screened", keyWidthsUpTo(4096), createKeys<BestPowers, WideScreening>);
    return true;
}();

}  // namespace

}  // namespace qel::bench
