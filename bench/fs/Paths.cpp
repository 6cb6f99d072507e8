// How the paths are drawn, and the folder of the files.
#include "Paths.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace qel::bench {
namespace {

/// Removed at the end of the program.
class WorkFolder {
  public:
    WorkFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "qel-bench-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            std::abort();
        folder = name;
    }
    WorkFolder(WorkFolder const&) = delete;
    WorkFolder& operator=(WorkFolder const&) = delete;
    ~WorkFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string const& path() const { return folder; }

  private:
    std::string folder;
};

std::string const& workFolder() {
    static WorkFolder const folder;
    return folder.path();
}

std::vector<Path> inWorkFolder(std::string const& name, std::string const& extension) {
    std::vector<Path> table;
    for (std::size_t i = 0; i < tableSize; ++i)
        table.push_back({workFolder() + "/" + name + std::to_string(i) + extension});
    return table;
}

}  // namespace

std::vector<Path> names(int) {
    std::vector<std::string> const words = {"home",   "user", "project", "reports",
                                            "a",      "x",    "summary", "photographs",
                                            "backup", "tmp",  "2012",    "documents"};
    std::vector<std::string> const extensions = {".txt", ".cpp", ".h", ".jpeg"};
    std::mt19937 random(1);
    std::vector<Path> table(tableSize);
    for (Path& path : table) {
        for (std::size_t i = 2 + random() % 4; i > 0; --i)
            path.text.append("/").append(words[random() % words.size()]);
        path.text.append(extensions[random() % extensions.size()]);
    }
    return table;
}

std::vector<Path> windowsNames(int) {
    std::vector<Path> table = names(0);
    for (Path& path : table)
        std::replace(path.text.begin(), path.text.end(), '/', '\\');
    return table;
}

std::vector<Path> files(int size) {
    std::vector<Path> const table = inWorkFolder("file" + std::to_string(size) + "-", ".txt");
    for (Path const& path : table)
        std::ofstream(path.text) << std::string(static_cast<std::size_t>(size), 'w');
    return table;
}

std::vector<Path> newNames(int) {
    return inWorkFolder("new", ".txt");
}

std::vector<Path> folders(int) {
    std::vector<Path> const table = inWorkFolder("folder", "");
    for (Path const& path : table)
        std::filesystem::create_directory(path.text);
    return table;
}

}  // namespace qel::bench
