// Keys in each library, and how a row finds those of its table.
#ifndef QEL_BENCH_CRYPTO_KNOWNKEYS_H
#define QEL_BENCH_CRYPTO_KNOWNKEYS_H

#include "../Rows.h"
#include "../bigint/Operands.h"

#include <array>
#include <string>
#include <utility>

namespace qel::bench {

/// What a key is in a library without a class for them.
template <typename Value>
struct PlainKey {
    Value exponent;
    Value modulus;

    bool operator==(PlainKey const& other) const {
        return exponent == other.exponent && modulus == other.modulus;
    }
    bool operator!=(PlainKey const& other) const { return !(*this == other); }
};

template <typename Library>
struct PlainKeys {
    using Value = typename Library::Value;
    using Key = PlainKey<Value>;

    static Value apply(Arguments<Value> const& x) { return Library::powerOf(x.a, x.b, x.c); }
    static std::string textOf(Key const& key) {
        return Library::textOf(key.exponent, 16) + "," + Library::textOf(key.modulus, 16);
    }
    static Key keyOf(std::string const& text) {
        std::size_t const comma = text.find(',');
        return {Library::valueOf(text.substr(0, comma), 16),
                Library::valueOf(text.substr(comma + 1), 16)};
    }
};

/// The keys of a table, each made when it is first asked for.
template <typename Key>
class KnownKeys {
  public:
    template <typename Keys, typename Value>
    Key const& find(Keys const& keys, Arguments<Value> const& x) {
        auto& [bits, key] = known[static_cast<std::size_t>(x.position)];
        if (bits != x.bits) {
            key = keys.keyOf(x.text);
            bits = x.bits;
        }
        return key;
    }

  private:
    std::array<std::pair<int, Key>, tableSize> known{};
};

/// A library with its keys, and the functions that only this folder calls.
template <typename Library, typename Keys, typename Functions>
struct WithKeys : Library, Functions {
    Keys keys;
    KnownKeys<typename Keys::Key> known;
    KnownKeys<typename Keys::Key> others;
};

}  // namespace qel::bench

#endif
