// The documented search for a key pair, written once for all peers and both screenings.
//
// A peer is a class that computes with large numbers of one type:
//   Integer              the type; Integer() is a variable to write to
//   lanes                how many powers it raises at once
//   Candidate            an odd n with what powers modulo n need: n, minusOne = n - 1 and
//                        oddPart = minusOne / 2^twos
// and the static functions of GmpPeer.
#ifndef QEL_BENCH_CRYPTO_KEYSEARCH_H
#define QEL_BENCH_CRYPTO_KEYSEARCH_H

#include "KeyRows.h"
#include "SearchSteps.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace qel::bench {

/// Miller-Rabin, with as many witnesses or candidates at once as the peer has lanes.
template <typename Peer>
class PrimeTest {
  public:
    static constexpr std::size_t lanes = Peer::lanes;
    using Candidate = typename Peer::Candidate;
    using Candidates = std::array<Candidate const*, lanes>;

    /// Which of the candidates pass the first witness.
    std::array<bool, lanes> passFirstWitness(Candidates const& candidates) {
        std::array<std::uint32_t, lanes> first;
        first.fill(witnesses().front());
        return pass(candidates, first);
    }

    bool passesTheOtherWitnesses(Candidate const& candidate) {
        Candidates same;
        same.fill(&candidate);
        for (std::size_t w = 1; w < witnessesPerPrime; w += lanes) {
            std::array<std::uint32_t, lanes> next;
            for (std::size_t lane = 0; lane < lanes; ++lane)
                next[lane] = witnesses()[std::min(w + lane, witnessesPerPrime - 1)];
            std::array<bool, lanes> const passed = pass(same, next);
            if (!std::all_of(passed.begin(), passed.end(), [](bool each) { return each; }))
                return false;
        }
        return true;
    }

  private:
    std::array<bool, lanes> pass(Candidates const& candidates,
                                 std::array<std::uint32_t, lanes> const& bases) {
        Peer::raise(powers, bases, candidates);
        std::array<bool, lanes> passed;
        for (std::size_t lane = 0; lane < lanes; ++lane)
            passed[lane] = reachesMinusOne(powers[lane], *candidates[lane]);
        return passed;
    }

    /// One squaring fewer than documented: the last never gives -1.
    static bool reachesMinusOne(typename Peer::Integer& y, Candidate const& candidate) {
        if (Peer::isOne(y))
            return true;
        for (auto left = candidate.twos; !Peer::areEqual(y, candidate.minusOne); --left) {
            if (left == 1)
                return false;
            Peer::squareModulo(y, candidate);
        }
        return true;
    }

    std::array<typename Peer::Integer, lanes> powers;
};

/// Goes through the candidates of a block.
template <typename Peer, typename Screening>
class BlockSearch {
  public:
    using Candidate = typename Peer::Candidate;

    /// The first prime among base + 1, base + 3, ..., or null.
    Candidate* findPrime(typename Peer::Integer const& base, std::size_t length,
                         Screening const& screening) {
        std::size_t filled = 0;
        for (std::size_t i = 0; i < length; ++i) {
            if (screening.rejects(base, i))
                continue;
            Peer::prepare(candidates[filled++], base, 2 * i + 1);
            if (filled < Peer::lanes)
                continue;
            if (Candidate* const prime = firstPrime(filled))
                return prime;
            filled = 0;
        }
        return filled == 0 ? nullptr : firstPrime(filled);
    }

  private:
    /// Lanes that are not filled repeat the last candidate.
    Candidate* firstPrime(std::size_t filled) {
        typename PrimeTest<Peer>::Candidates tested;
        for (std::size_t lane = 0; lane < Peer::lanes; ++lane)
            tested[lane] = &candidates[std::min(lane, filled - 1)];
        auto const passed = test.passFirstWitness(tested);
        for (std::size_t lane = 0; lane < filled; ++lane) {
            if (passed[lane] && test.passesTheOtherWitnesses(candidates[lane]))
                return &candidates[lane];
        }
        return nullptr;
    }

    PrimeTest<Peer> test;
    std::array<Candidate, Peer::lanes> candidates;
};

/// The prime as a candidate. No search from the tables here leaves its width.
template <typename Peer, typename Screening>
typename Peer::Candidate findPrime(int bitCount, std::span<int const> seeds) {
    Words const start = startFrom(seeds, bitCount);
    std::size_t const length = blockLength(bitCount);
    Screening screening(start, length);
    BlockSearch<Peer, Screening> search;
    typename Peer::Integer base = Peer::take(start);
    for (;;) {
        Peer::add(base, 2 * length);
        screening.enterBlock(base);
        if (auto* const prime = search.findPrime(base, length, screening))
            return std::move(*prime);
    }
}

/// For these widths the list always has an exponent that serves.
template <typename Peer>
unsigned long findExponent(typename Peer::Integer const& first,
                           typename Peer::Integer const& second) {
    auto const isCoprimeTo = [](unsigned long x, typename Peer::Integer const& value) {
        return std::gcd(Peer::remainder(value, x), x) == 1;
    };
    unsigned long power = 2;
    while (!isCoprimeTo(power | 1, first) || !isCoprimeTo(power | 1, second))
        power *= 2;
    return power | 1;
}

template <typename Peer, typename Screening>
KeyTexts createKeys(int bits, SeedTable const& seeds) {
    std::span<int const> const all = seeds;
    auto const p = findPrime<Peer, Screening>(bits / 2, all.first(all.size() / 2));
    auto const q = findPrime<Peer, Screening>(bits - bits / 2, all.subspan(all.size() / 2));
    unsigned long const e = findExponent<Peer>(p.minusOne, q.minusOne);
    auto const d = Peer::inverse(e, Peer::product(p.minusOne, q.minusOne));
    std::string const modulus = Peer::text(Peer::product(p.n, q.n));
    std::string const exponent = Peer::text(Peer::take({static_cast<std::uint32_t>(e)}));
    return {exponent + "," + modulus, Peer::text(d) + "," + modulus};
}

}  // namespace qel::bench

#endif
