// Gcd, inverse and power against the plain model, where that takes few steps.
#include "InputChoices.h"

using bigint_test::Family;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::runSequence(data, size, {Family::numberTheory, Family::numberTheory, Family::storage});
    return 0;
}
