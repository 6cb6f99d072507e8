// OpenSSL's BN as a peer of the search. Numbers and the pool of temporaries live as long as they
// can, and a candidate keeps its BN_MONT_CTX.
#ifndef QEL_BENCH_CRYPTO_OPENSSLPEER_H
#define QEL_BENCH_CRYPTO_OPENSSLPEER_H

#include "KeySearch.h"

#include <openssl/bn.h>

#include <memory>

namespace qel::bench {

struct OpenSslRelease {
    void operator()(BIGNUM* value) const { BN_free(value); }
    void operator()(BN_CTX* pool) const { BN_CTX_free(pool); }
    void operator()(BN_MONT_CTX* modulus) const { BN_MONT_CTX_free(modulus); }
    void operator()(char* text) const { OPENSSL_free(text); }
};

/// A BIGNUM that is there from the start.
struct OpenSslInteger {
    operator BIGNUM*() const { return value.get(); }

    std::unique_ptr<BIGNUM, OpenSslRelease> value{BN_new()};
};

/// All but the powers.
struct OpenSslPeer {
    using Integer = OpenSslInteger;

    struct Candidate {
        Integer n;
        Integer minusOne;
        Integer oddPart;
        int twos = 0;
        std::unique_ptr<BN_MONT_CTX, OpenSslRelease> montgomery{BN_MONT_CTX_new()};
    };

    static BN_CTX* pool();

    static Integer take(Words const& words);
    static std::string text(Integer const& a);

    static void add(Integer& a, unsigned long b) { BN_add_word(a, b); }
    static unsigned long remainder(Integer const& a, unsigned long b) { return BN_mod_word(a, b); }
    static Integer product(Integer const& a, Integer const& b);
    static Integer inverse(unsigned long a, Integer const& modulus);

    static void prepare(Candidate& candidate, Integer const& base, unsigned long offset);
    static void squareModulo(Integer& a, Candidate const& candidate) {
        BN_mod_sqr(a, a, candidate.n, pool());
    }
    static bool isOne(Integer const& a) { return BN_is_one(a) != 0; }
    static bool areEqual(Integer const& a, Integer const& b) { return BN_cmp(a, b) == 0; }

    /// n - a: as long as n, as the functions for fixed lengths want it. The exponent is odd, so its
    /// power is the negative of a's; the test finds the same in both.
    static void negative(Integer& out, std::uint32_t a, Candidate const& candidate) {
        BN_copy(out, candidate.n);
        BN_sub_word(out, a);
    }
};

}  // namespace qel::bench

#endif
