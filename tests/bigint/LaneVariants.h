// What the tests of the lanes share: the variants of their kernels, and numbers of limbs as
// LargeIntegers.
#pragma once

#include "LargeIntegerPeer.h"
#include "LimbTables.h"

#include "bigint/limbs/LaneKernels.h"

namespace limb_test {

struct LaneVariant {
    char const* name;
    qel::limbs::LaneKernels const* kernels;
};

/// The variants that this processor runs; the first call prints them, and those left out.
inline std::vector<LaneVariant> const& laneVariants() {
    static std::vector<LaneVariant> const runnable = [] {
        std::vector<LaneVariant> list{{"portable lanes", &qel::limbs::portableLanes}};
        if (qel::limbs::hasIfma())
            list.push_back({"ifma lanes", &qel::limbs::ifmaLanes});
        else
            std::cout << "[ NOT TESTED ] this processor cannot run the ifma variant of the lanes\n";
        for (LaneVariant const& variant : list)
            std::cout << "[ VARIANT  ] " << variant.name << '\n';
        return list;
    }();
    return runnable;
}

/// Puts a variant to use until the end of the block.
class UsingLanes {
  public:
    explicit UsingLanes(LaneVariant const& variant) { qel::limbs::useLaneKernels(variant.kernels); }
    ~UsingLanes() { qel::limbs::useLaneKernels(nullptr); }
    UsingLanes(UsingLanes const&) = delete;
    UsingLanes& operator=(UsingLanes const&) = delete;
};

inline qel::LargeInteger integerOf(Limbs const& a) {
    std::string digits = text(a).substr(2);
    std::erase(digits, '\'');
    return bigint_test::hex(digits);
}

}  // namespace limb_test
