// The library's own rows: by its own choice, and forced to each path through its kernels.
#include "OwnKeys.h"

#include "bigint/limbs/Kernels.h"
#include "bigint/limbs/LaneKernels.h"
#include "qel/RSAKey.h"

namespace qel::bench {

namespace {

struct Path {
    char const* name;
    limbs::Kernels const* kernels;
    limbs::LaneKernels const* laneKernels;
    bool available;
};

// The library's own choice, made once: null would have it ask the processor anew, each time.
Path const ownChoice = {"qel", &limbs::kernels(), &limbs::laneKernels(), true};

Path const paths[] = {
    ownChoice,
    {"qel portable", &limbs::portableKernels, &limbs::portableLanes, true},
    {"qel adx", &limbs::adxKernels, &limbs::portableLanes, limbs::hasAdx()},
    {"qel batch of eight", &limbs::kernels(), &limbs::ifmaLanes, limbs::hasIfma()},
};

KeyTexts createKeys(Path const& path, int bits, SeedTable const& seeds) {
    limbs::useKernels(path.kernels);
    limbs::useLaneKernels(path.laneKernels);
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
