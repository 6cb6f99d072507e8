// The rows of GMP.
#include "KeySearch.h"
#include "PlainScreening.h"
#include "WideScreening.h"

#include <benchmark/benchmark.h>
#include <gmpxx.h>

namespace {

struct GmpPeer {
    using Integer = mpz_class;
    static constexpr std::size_t lanes = 1;

    struct Candidate {
        Integer n;
        Integer minusOne;
        Integer oddPart;
        mp_bitcnt_t twos = 0;
    };

    static Integer take(qel::bench::Words const& words) {
        Integer out;
        mpz_import(out.get_mpz_t(), words.size(), -1, sizeof(words[0]), 0, 0, words.data());
        return out;
    }
    static std::string text(Integer const& a) { return a.get_str(16); }

    static void add(Integer& a, unsigned long b) { a += b; }
    static unsigned long remainder(Integer const& a, unsigned long b) {
        return mpz_fdiv_ui(a.get_mpz_t(), b);
    }
    static Integer product(Integer const& a, Integer const& b) { return a * b; }
    static Integer inverse(unsigned long a, Integer const& modulus) {
        Integer out;
        mpz_invert(out.get_mpz_t(), Integer(a).get_mpz_t(), modulus.get_mpz_t());
        return out;
    }

    /// The candidate base + offset.
    static void prepare(Candidate& candidate, Integer const& base, unsigned long offset) {
        candidate.n = base + offset;
        candidate.minusOne = candidate.n - 1;
        candidate.twos = mpz_scan1(candidate.minusOne.get_mpz_t(), 0);
        candidate.oddPart = candidate.minusOne >> candidate.twos;
    }
    /// powers[lane] = bases[lane]^oddPart modulo n, or its negative.
    static void raise(std::array<Integer, lanes>& powers,
                      std::array<std::uint32_t, lanes> const& bases,
                      std::array<Candidate const*, lanes> const& candidates) {
        mpz_powm(powers[0].get_mpz_t(), Integer(bases[0]).get_mpz_t(),
                 candidates[0]->oddPart.get_mpz_t(), candidates[0]->n.get_mpz_t());
    }
    static void squareModulo(Integer& a, Candidate const& candidate) { a = a * a % candidate.n; }
    static bool isOne(Integer const& a) { return a == 1; }
    static bool areEqual(Integer const& a, Integer const& b) { return a == b; }
};

using namespace qel::bench;

[[maybe_unused]] bool const registered = [] {
    benchmark::AddCustomContext("peer gmp", std::string("GMP ") + gmp_version);
    registerKeyRows("gmp", keyWidthsUpTo(2048), createKeys<GmpPeer, PlainScreening<GmpPeer>>);
    registerKeyRows("gmp screened", keyWidthsUpTo(4096), createKeys<GmpPeer, WideScreening>);
    return true;
}();

}  // namespace
