// The rows of the benchmark: key pairs of each width from the seed tables, by whoever creates them.
#ifndef QEL_BENCH_CRYPTO_KEYROWS_H
#define QEL_BENCH_CRYPTO_KEYROWS_H

#include "SeedTables.h"

#include <functional>
#include <string>
#include <vector>

namespace qel::bench {

inline constexpr char const* keyRow = "/create key pairs";

/// Both keys of a pair as RSAKey::toString writes them.
struct KeyTexts {
    bool operator==(KeyTexts const&) const = default;

    std::string first;
    std::string second;
};

using CreateKeys = std::function<KeyTexts(int bits, SeedTable const& seeds)>;

/// The widths of keys from the narrowest up to `widest`.
std::vector<int> keyWidthsUpTo(int widest);

/// One iteration creates the key pairs of all seed tables for the width; the keys that come out of
/// a measurement are compared with createKeyPair's.
void registerKeyRows(std::string const& library, std::vector<int> const& widths,
                     CreateKeys const& create);

}  // namespace qel::bench

#endif
