// The variants of the kernels that this processor runs, to be tested one after the other.
#pragma once

#include "bigint/limbs/Kernels.h"

#include <iostream>
#include <vector>

namespace limb_test {

struct Variant {
    char const* name;
    qel::limbs::Kernels const* kernels;
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

/// Puts a variant to use until the end of the block.
class Using {
  public:
    explicit Using(Variant const& variant) { qel::limbs::useKernels(variant.kernels); }
    ~Using() { qel::limbs::useKernels(nullptr); }
    Using(Using const&) = delete;
    Using& operator=(Using const&) = delete;
};

}  // namespace limb_test
