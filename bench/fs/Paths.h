// The paths that the rows of this folder are called with.
#ifndef QEL_BENCH_FS_PATHS_H
#define QEL_BENCH_FS_PATHS_H

#include "../StandardRows.h"

#include <string>
#include <vector>

namespace qel::bench {

inline std::vector<int> const noSize = {0};

struct Path {
    char const* s() const { return text.c_str(); }

    std::string text;
};

/// Names like "/home/user/project/reports/summary.txt", of which nothing exists.
std::vector<Path> names(int);
/// The same with backslashes.
std::vector<Path> windowsNames(int);

/// Files of `size` bytes, without white space, in a folder that lives as long as the program.
std::vector<Path> files(int size);
/// New names in the same folder.
std::vector<Path> newNames(int);
/// Folders.
std::vector<Path> folders(int);

}  // namespace qel::bench

#endif
