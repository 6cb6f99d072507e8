// Sequences of all operations on large integers against the plain model, all four fields.
#include "InputChoices.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::runSequence(data, size, bigint_test::allFamilies);
    return 0;
}
