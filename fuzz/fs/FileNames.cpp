// File names of any text against the plain steps.
#include "Expect.h"
#include "Input.h"

#include "fs/PlainFileNameDifference.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::Input input(data, size);
    std::string const path = input.text();
    fuzz::expectEqual(file_name_test::difference(path), "", "names of a path");
    fuzz::expectEqual(file_name_test::difference(path, input.text()), "", "names of two texts");
    return 0;
}
