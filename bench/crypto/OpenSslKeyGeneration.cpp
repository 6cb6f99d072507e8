// OpenSSL's own RSA keys, with 65537 as the first exponent. This is other work: its primes come
// from random numbers, with the tests and checks that its standard asks for, and no two runs create
// the same keys. One iteration creates as many pairs as there are seed tables.
#include "KeyRows.h"

#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <openssl/rsa.h>

#include <cstdint>
#include <memory>

namespace {

using namespace qel::bench;

struct Release {
    void operator()(EVP_PKEY_CTX* context) const { EVP_PKEY_CTX_free(context); }
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};

using Key = std::unique_ptr<EVP_PKEY, Release>;

/// 65537 is the default exponent.
Key generateKey(int bits) {
    std::unique_ptr<EVP_PKEY_CTX, Release> const context(
        EVP_PKEY_CTX_new_id(EVP_PKEY_RSA, nullptr));
    EVP_PKEY* key = nullptr;
    EVP_PKEY_keygen_init(context.get());
    EVP_PKEY_CTX_set_rsa_keygen_bits(context.get(), bits);
    EVP_PKEY_keygen(context.get(), &key);
    return Key(key);
}

void generateKeys(benchmark::State& state) {
    int const bits = static_cast<int>(state.range(0));
    std::size_t const pairs = seedTablesFor(bits).size();
    for (auto _ : state) {
        for (std::size_t i = 0; i < pairs; ++i) {
            if (generateKey(bits) == nullptr)
                return state.SkipWithError("no key came out");
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(pairs));
}

constexpr int narrowest = 512;

[[maybe_unused]] bool const registered = [] {
    auto* row = benchmark::RegisterBenchmark((std::string("openssl keygen") + keyRow).c_str(),
                                             generateKeys);
    for (int const bits : keyWidthsUpTo(2048)) {
        if (bits >= narrowest)
            row->Arg(bits);
    }
    return true;
}();

}  // namespace
