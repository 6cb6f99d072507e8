// The variants of the kernels that this processor runs, to be tested one after the other.
#pragma once

#include "bigint/limbs/Kernels.h"
#include "bigint/limbs/LaneKernels.h"

#include <iostream>
#include <vector>

namespace limb_test {

struct Variant {
    char const* name;
    qel::limbs::Kernels const* kernels;
    qel::limbs::LaneKernels const* lanes = &qel::limbs::portableLanes;
};

/// The variants that this processor runs; the first call prints them, and those left out.
inline std::vector<Variant> const& variants() {
    static std::vector<Variant> const runnable = [] {
        std::vector<Variant> list{{"portable", &qel::limbs::portableKernels}};
        if (qel::limbs::hasAdx())
            list.push_back({"adx", &qel::limbs::adxKernels});
        else
            std::cout << "[ NOT TESTED ] this processor cannot run the adx variant\n";
        for (Variant const& variant : list)
            std::cout << "[ VARIANT  ] " << variant.name << '\n';
        return list;
    }();
    return runnable;
}

/// The variants above, one number at a time; and eight at a time, for which the portable lanes,
/// too, are said to pay.
inline std::vector<Variant> const& paths() {
    static qel::limbs::LaneKernels const payingLanes = [] {
        qel::limbs::LaneKernels lanes = qel::limbs::portableLanes;
        lanes.pays = true;
        return lanes;
    }();
    static std::vector<Variant> const runnable = [] {
        std::vector<Variant> list = variants();
        list.push_back({"portable lanes", &qel::limbs::portableKernels, &payingLanes});
        if (qel::limbs::hasIfma())
            list.push_back({"ifma lanes", list[list.size() - 2].kernels, &qel::limbs::ifmaLanes});
        else
            std::cout << "[ NOT TESTED ] this processor cannot run the ifma lanes\n";
        return list;
    }();
    return runnable;
}

/// Puts a variant to use until the end of the block.
class Using {
  public:
    explicit Using(Variant const& variant) {
        qel::limbs::useKernels(variant.kernels);
        qel::limbs::useLaneKernels(variant.lanes);
    }
    ~Using() {
        qel::limbs::useKernels(nullptr);
        qel::limbs::useLaneKernels(nullptr);
    }
    Using(Using const&) = delete;
    Using& operator=(Using const&) = delete;
};

}  // namespace limb_test
