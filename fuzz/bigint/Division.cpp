// Sequences of divisions against the plain model, with additions that spoil their operands.
#include "InputChoices.h"

using bigint_test::Family;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::runSequence(data, size, {Family::division, Family::division, Family::arithmetic});
    return 0;
}
