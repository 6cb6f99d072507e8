// A scratch folder with something of every kind, and paths that lead to it or to nothing.
#pragma once

#include "Expectations.h"
#include "Surroundings.h"

#include <string>
#include <vector>

namespace interface_test {

class PathsOfAllKinds {
  public:
    PathsOfAllKinds();

    /// All texts as they are, and absolute and relative paths into the folder.
    [[nodiscard]] std::vector<std::string> const& paths() const { return paths_; }

  private:
    Scratch scratch_;
    std::vector<std::string> paths_;
};

template <typename Call, typename Model>
void forEachPath(Results& results, Call call, Model model) {
    PathsOfAllKinds const all;
    for (std::string const& path : all.paths())
        expectResult(results, call(path.c_str()), model(path), withoutTemporaryNames(path));
}

}  // namespace interface_test
