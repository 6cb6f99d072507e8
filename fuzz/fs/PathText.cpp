// Paths of any text, joined, judged and translated, against the plain steps.
#include "Expect.h"
#include "Input.h"

#include "model/PlainPaths.h"
#include "qel/Folder.h"

using namespace fuzz;
using qel::Folder;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static model::MacRoman const macRoman(QEL_TEST_DATA "/mac_roman.txt");
    Input input(data, size);
    int const times = 1 + input.below(64);
    std::string const part = input.text();
    std::string path;
    for (int i = 0; i < times; ++i)
        path += part;
    path += input.text();
    std::string const name = input.text();
    expectEqual(Folder::ConcatenatePaths(part.c_str(), name.c_str()),
                model::concatenatedPaths(part, name), "joined");
    expectEqual(Folder::IsPathAbsolute(part.c_str()), model::isPathAbsolute(part), "absolute");
    expectEqual(Folder::TranslateAbsolutePath(path.c_str()), model::translatedPath(path, macRoman),
                "translated");
    return 0;
}
