// The same key pairs as createKeyPair's, by the documented steps written plainly on GMP. That they
// are the same is checked before anything is measured.
#include "SeedTables.h"

#include "qel/RSAKey.h"

#include <benchmark/benchmark.h>
#include <gmpxx.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr int screeningLimit = 15000;
constexpr int witnessesPerPrime = 30;

/// Whether each number below `limit` is 0 or composite; 1 is not.
std::vector<bool> sieveBelow(int limit) {
    std::vector<bool> composite(static_cast<std::size_t>(limit), false);
    composite[0] = true;
    for (int p = 2; p <= limit / 2; ++p) {
        for (int i = 2 * p; !composite[static_cast<std::size_t>(p)] && i < limit; i += p)
            composite[static_cast<std::size_t>(i)] = true;
    }
    return composite;
}

std::vector<unsigned long> oddPrimesBelow(int limit) {
    std::vector<bool> const composite = sieveBelow(limit);
    std::vector<unsigned long> primes;
    for (std::size_t i = 3; i < composite.size(); ++i) {
        if (!composite[i])
            primes.push_back(i);
    }
    return primes;
}

/// `n` is above 2047, as every candidate of these widths.
bool isProbablyPrime(mpz_class const& n) {
    if (mpz_gcd_ui(nullptr, n.get_mpz_t(), 223092870) != 1)
        return false;
    static std::vector<unsigned long> const witnesses = oddPrimesBelow(256);
    mpz_class const m = n - 1;
    mp_bitcnt_t const s = mpz_scan1(m.get_mpz_t(), 0);
    mpz_class const d = m >> s;
    mpz_class y;
    for (std::size_t w = 0; w < witnessesPerPrime; ++w) {
        mpz_class const a = witnesses[w];
        mpz_powm(y.get_mpz_t(), a.get_mpz_t(), d.get_mpz_t(), n.get_mpz_t());
        if (y == 1 || y == m)
            continue;
        for (mp_bitcnt_t j = 0; j < s && y != m; ++j)
            y = y * y % n;
        if (y != m)
            return false;
    }
    return true;
}

/// The widths here are multiples of 32, so every seed fills whole words.
mpz_class startFrom(int const* seeds, int seedCount, int bitCount) {
    mpz_class start;
    for (int i = 0; i < seedCount; ++i) {
        auto state = static_cast<unsigned long long>(seeds[i]);
        mpz_class fill;
        for (int position = 0; position < bitCount; position += 32) {
            state = (state * 0x5DEECE66D + 11) & 0xFFFFFFFFFFFF;
            fill |= mpz_class(static_cast<unsigned long>(state >> 16))
                    << static_cast<mp_bitcnt_t>(position);
        }
        start ^= fill;
    }
    mpz_setbit(start.get_mpz_t(), static_cast<mp_bitcnt_t>(bitCount - 1));
    mpz_clrbit(start.get_mpz_t(), 0);
    return start;
}

/// Which of the `length` odd numbers above `base`, which is even, have a screening divisor.
std::vector<bool> screen(mpz_class const& base, std::size_t length) {
    static std::vector<bool> const composite = sieveBelow(screeningLimit);
    std::vector<bool> struck(length, false);
    for (unsigned long p = 1; p < screeningLimit; ++p) {
        if (composite[p])
            continue;
        unsigned long const q = 2 * p + 1;
        unsigned long const k = q - mpz_fdiv_ui(base.get_mpz_t(), q);
        for (std::size_t i = k % 2 != 0 ? (k - 1) / 2 : (k + q - 1) / 2; i < length; i += q)
            struck[i] = true;
    }
    return struck;
}

/// Zero when the search leaves the width.
mpz_class createProbablePrime(int bitCount, int const* seeds, int seedCount) {
    auto const length = static_cast<std::size_t>(std::max(1024, bitCount / 20 * 64));
    mpz_class base = startFrom(seeds, seedCount, bitCount);
    while (mpz_sizeinbase(base.get_mpz_t(), 2) <= static_cast<std::size_t>(bitCount)) {
        base += 2 * length;
        std::vector<bool> const struck = screen(base, length);
        for (std::size_t i = 0; i < length; ++i) {
            if (struck[i])
                continue;
            mpz_class const candidate = base + (2 * i + 1);
            if (isProbablyPrime(candidate))
                return candidate;
        }
    }
    return 0;
}

/// For these widths the list always has an exponent that serves.
unsigned long findExponent(mpz_class const& first, mpz_class const& second) {
    unsigned long power = 2;
    while (mpz_gcd_ui(nullptr, first.get_mpz_t(), power | 1) != 1
           || mpz_gcd_ui(nullptr, second.get_mpz_t(), power | 1) != 1)
        power *= 2;
    return power | 1;
}

struct Keys {
    mpz_class firstExponent;
    mpz_class secondExponent;
    mpz_class modulus;
};

Keys createKeys(int bitCount, qel::bench::SeedTable const& seeds) {
    int const count = static_cast<int>(seeds.size());
    mpz_class const p = createProbablePrime(bitCount / 2, seeds.data(), count / 2);
    mpz_class const q =
        createProbablePrime(bitCount - bitCount / 2, seeds.data() + count / 2, count - count / 2);
    mpz_class const phi = (p - 1) * (q - 1);
    Keys keys;
    keys.modulus = p * q;
    keys.firstExponent = findExponent(p - 1, q - 1);
    mpz_invert(keys.secondExponent.get_mpz_t(), keys.firstExponent.get_mpz_t(), phi.get_mpz_t());
    return keys;
}

std::string text(mpz_class const& exponent, mpz_class const& modulus) {
    return exponent.get_str(16).append(",").append(modulus.get_str(16));
}

bool equalsCreateKeyPair(Keys const& keys, int bitCount, qel::bench::SeedTable const& seeds) {
    qel::RSAKey first, second;
    qel::RSAKey::createKeyPair(first, second, bitCount, seeds.data(),
                               static_cast<int>(seeds.size()));
    return first.toString() == text(keys.firstExponent, keys.modulus)
           && second.toString() == text(keys.secondExponent, keys.modulus);
}

bool isCheckedFor(int bitCount) {
    static std::vector<int> checked;
    if (std::find(checked.begin(), checked.end(), bitCount) != checked.end())
        return true;
    for (qel::bench::SeedTable const& seeds : qel::bench::seedTables) {
        if (!equalsCreateKeyPair(createKeys(bitCount, seeds), bitCount, seeds))
            return false;
    }
    checked.push_back(bitCount);
    return true;
}

void createKeyPairs(benchmark::State& state) {
    int const bits = static_cast<int>(state.range(0));
    if (!isCheckedFor(bits))
        return state.SkipWithError("the keys are not createKeyPair's");
    for (auto _ : state) {
        for (qel::bench::SeedTable const& seeds : qel::bench::seedTables)
            benchmark::DoNotOptimize(createKeys(bits, seeds));
    }
}

[[maybe_unused]] auto const registered = [] {
    benchmark::AddCustomContext("peer gmp", std::string("GMP ") + gmp_version);
    auto* row = benchmark::RegisterBenchmark("gmp/create key pairs", createKeyPairs);
    for (int const bits : qel::bench::keyWidths)
        row->Arg(bits);
    return row;
}();

}  // namespace
