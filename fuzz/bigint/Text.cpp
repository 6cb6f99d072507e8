// Texts of numbers, read and written, against the plain model.
#include "InputChoices.h"

using bigint_test::Family;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::runSequence(data, size, {Family::text, Family::text, Family::bits});
    return 0;
}
