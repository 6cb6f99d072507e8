// Whole paths.
#include "Arguments.h"
#include "FileFunctions.h"
#include "PathsOfAllKinds.h"
#include "model/PlainPaths.h"

#include "qel/Folder.h"

#include <algorithm>

namespace interface_test {

namespace {

using qel::Folder;

void findRealPaths(Results& results) {
    PathsOfAllKinds const all;
    char const* const home = std::getenv("HOME");
    for (std::string const& path : all.paths()) {
        std::string const real = Folder::GetRealPath(path.c_str());
        EXPECT_EQ(real, model::realPath(path, home == nullptr ? "./" : home)) << path;
        results.add("", withoutTemporaryNames(path), withoutTemporaryNames(real));
    }
    // Every text that names nothing, behind a tilde.
    for (std::string const& text : texts()) {
        std::string const path = '~' + text;
        expectResult(results, Folder::GetRealPath(path.c_str()),
                     model::realPath(path, home == nullptr ? "./" : home), path);
    }
}

/// None of the paths is an alias: they are copied whole, whatever size is told.
void resolve(Results& results) {
    for (int const resolvedSize : extremeInts) {
        for (std::string const& path : texts()) {
            std::string resolved(path.size() + 1 + 1024, '.');
            std::string const expected = path + '\0' + std::string(1024, '.');
            bool wasAlias = true;
            Folder::ResolveIfAlias(path.c_str(), resolved.data(), wasAlias, resolvedSize);
            expectResult(results, resolved, expected, path, resolvedSize);
            expectResult(results, wasAlias, false, path, resolvedSize);
            // The result's place may be the path's own.
            wasAlias = true;
            Folder::ResolveIfAlias(resolved.c_str(), resolved.data(), wasAlias, resolvedSize);
            expectResult(results, resolved, expected, "itself", path, resolvedSize);
            expectResult(results, wasAlias, false, path, resolvedSize);
        }
    }
}

}  // namespace

std::vector<Function> folderPathFunctions() {
    return {
        {"Folder::ConcatenatePaths(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, Folder::ConcatenatePaths, model::concatenatedPaths);
         }},
        {"Folder::IsPathAbsolute(char const*)",
         [](Results& results) {
             forEachText(results, Folder::IsPathAbsolute, model::isPathAbsolute);
         }},
        {"Folder::IsSymlink(char const*)",
         [](Results& results) {
             forEachPath(results, Folder::IsSymlink, [](std::string const&) { return false; });
         }},
        {"Folder::TranslateAbsolutePath(char const*)",
         [](Results& results) {
             static model::MacRoman const macRoman(QEL_TEST_DATA "/mac_roman.txt");
             forEachText(results, Folder::TranslateAbsolutePath, [](std::string const& path) {
                 return model::translatedPath(path, macRoman);
             });
         }},
        {"Folder::GetRealPath(char const*)",
         findRealPaths,
         {State::workingDirectory, State::homeVariable}},
        {"Folder::ResolveIfAlias(char const*, char*, bool&, int)", resolve},
    };
}

}  // namespace interface_test
