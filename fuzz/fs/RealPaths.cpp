// Real paths of any text against the plain steps, in a temporary folder with some files, folders
// and links, which is removed at the end.
#include "Expect.h"
#include "Input.h"

#include "model/PlainPaths.h"
#include "qel/Folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

using namespace fuzz;
namespace filesystem = std::filesystem;

namespace {

/// The working directory.
class Playground {
  public:
    Playground() : folder_(make()) {
        filesystem::current_path(folder_);
        filesystem::create_directories("d/e");
        filesystem::create_directory("a~b");
        std::ofstream("d/f") << "content";
        std::ofstream("~") << "content";
        std::ofstream("a~b/~x") << "content";
        filesystem::create_symlink("d", "l");
        filesystem::create_symlink("missing", "m");
        filesystem::create_symlink("s", "s");
        filesystem::create_symlink("d/f", "~l");
        filesystem::create_symlink("../a~b", "d/t");
    }
    Playground(Playground const&) = delete;
    Playground& operator=(Playground const&) = delete;
    ~Playground() {
        filesystem::current_path("/");
        filesystem::remove_all(folder_);
    }

  private:
    static filesystem::path make() {
        std::string name = filesystem::canonical(filesystem::temp_directory_path()) / "qel-XXXXXX";
        expect(mkdtemp(name.data()) != nullptr, "temporary folder");
        return name;
    }

    filesystem::path folder_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static Playground const playground;
    Input input(data, size);
    std::string const home = input.text();
    std::string const part = input.text();
    std::string path;
    for (int times = 1 + input.below(32); times > 0; --times)
        path += part;
    path += input.text();
    expectEqual(setenv("HOME", home.c_str(), 1), 0, "home folder");
    expectEqual(qel::Folder::GetUserHomeDirectory(), home, "home folder");
    expectEqual(qel::Folder::GetRealPath(path.c_str()), model::realPath(path, home), "real path");
    return 0;
}
