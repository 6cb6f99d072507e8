// The library's own rows: by its own choice, and forced to each path through its kernels.
#include "OwnKeys.h"

#include "bigint/limbs/Kernels.h"
#include "qel/RSAKey.h"

namespace qel::bench {

namespace {

struct Path {
    char const* name;
    void (*force)();
    bool available;
};

Path const ownChoice = {"qel", [] { limbs::useKernels(nullptr); }, true};

Path const paths[] = {
    ownChoice,
    {"qel portable", [] { limbs::useKernels(&limbs::portableKernels); }, true},
    {"qel adx", [] { limbs::useKernels(&limbs::adxKernels); }, limbs::hasAdx()},
};

KeyTexts createKeys(Path const& path, int bits, SeedTable const& seeds) {
    path.force();
    RSAKey first, second;
    RSAKey::createKeyPair(first, second, bits, seeds.data(), static_cast<int>(seeds.size()));
    return {first.toString(), second.toString()};
}

[[maybe_unused]] bool const registered = [] {
    for (Path const& path : paths) {
        if (path.available)
            registerKeyRows(
                path.name, keyWidthsUpTo(4096),
                [path](int bits, SeedTable const& seeds) { return createKeys(path, bits, seeds); });
    }
    return true;
}();

}  // namespace

KeyTexts createOwnKeys(int bits, SeedTable const& seeds) {
    return createKeys(ownChoice, bits, seeds);
}

}  // namespace qel::bench
