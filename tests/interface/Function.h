// The table of all public functions: how each is called with every argument that is at the end of
// its range, and which state of the process its results follow.
//
// A row calls its function with the integers of Arguments.h in each integer argument, with every
// choice of arguments that are the same object, and with values whose representation is unusual. It
// compares the results with a model where there is one. What it leaves out is named in the row with
// the reason: a result of gigabytes, or one that never comes.
#pragma once

#include "Results.h"

#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace interface_test {

/// State that belongs to the whole process, and that an application may change at any time.
enum class State {
    cLocale,
    cxxLocale,
    timeZone,
    fileCreationMask,
    workingDirectory,
    homeVariable,
    roundingMode,
    errorNumber,
    closedStreams
};

struct Function {
    /// As public-functions.awk tells it.
    std::string name;
    /// Calls the function and checks what comes out; the results are the same in each run.
    void (*exercise)(Results& results);
    /// The documented dependences: in every other state the results stay as they are.
    std::set<State> follows = {};
};

// GoogleTest finds this one by its name.
inline void PrintTo(Function const& function, std::ostream* out) {
    *out << function.name;
}

[[nodiscard]] std::vector<Function> charFunctions();
[[nodiscard]] std::vector<Function> dateFunctions();
[[nodiscard]] std::vector<Function> fileFunctions();
[[nodiscard]] std::vector<Function> folderFunctions();
[[nodiscard]] std::vector<Function> largeIntegerFunctions();
[[nodiscard]] std::vector<Function> cryptoFunctions();
[[nodiscard]] std::vector<Function> versionFunctions();

/// All of them.
[[nodiscard]] std::vector<Function> publicFunctions();

}  // namespace interface_test
