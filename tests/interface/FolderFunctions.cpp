// Folders: making them, the working and the home folder. Those of whole paths are in
// FolderPathFunctions.cpp.
#include "FileFunctions.h"
#include "PathsOfAllKinds.h"
#include "WorkingDirectory.h"

#include "qel/Folder.h"

#include <filesystem>

#include <sys/stat.h>

namespace interface_test {

namespace {

using qel::Folder;
namespace filesystem = std::filesystem;

bool isFolder(std::string const& path) {
    std::error_code failure;
    filesystem::file_status const status = filesystem::status(path, failure);
    return filesystem::is_directory(status) || filesystem::is_socket(status)
           || filesystem::is_block_file(status);
}

/// Every text as a path below a missing folder, and then once more. Not every file system takes
/// every name.
void makeFolders(Results& results) {
    for (bool const relative : {false, true}) {
        Scratch const scratch;
        int number = 0;
        for (std::string const& name : texts()) {
            std::string const front = std::to_string(number++);
            std::string const path =
                (relative ? scratch.relativePath(front) : scratch.path(front)) + '/' + name;
            bool const made = Folder::MakeDirectory(path.c_str());
            results.add("", name, relative, made, permissionsOf(scratch.path(front)),
                        permissionsOf(path));
            EXPECT_TRUE(!made || permissionsOf(path) != -1) << path;
            expectResult(results, Folder::MakeDirectory(path.c_str()), made || isFolder(path), name,
                         relative);
        }
    }
}

void makeDocumentedFolders(Results& results) {
    Scratch const scratch;
    mode_t const mask = umask(022);
    makeOrdinaryFile(scratch.path("file"), "");
    struct Case {
        char const* path;
        bool made;
    };
    for (auto const& [path, made] :
         {Case{"x/y/z", true}, Case{"x/y/z", true}, Case{"a/b/", false}, Case{"a/b/", true},
          Case{"a\\b", true}, Case{"file", false}, Case{"file/x", false}})
        expectResult(results, Folder::MakeDirectory(scratch.path(path).c_str()), made, path);
    umask(mask);
    expectResult(results, Folder::MakeDirectory(""), false, "");
}

void changeWorkingDirectory(Results& results) {
    PathsOfAllKinds const all;
    for (std::string const& path : all.paths()) {
        WorkingDirectory const atTheEnd;
        std::error_code failure;
        filesystem::path const expected = filesystem::canonical(path, failure);
        bool const isDirectory = filesystem::is_directory(path, failure);
        expectResult(results, Folder::SetCurrentWorkingDirectory(path.c_str()), isDirectory,
                     withoutTemporaryNames(path));
        if (isDirectory)
            expectResult(results, filesystem::current_path() == expected, true, "is there");
    }
}

void askForHome(Results& results) {
    char const* const home = std::getenv("HOME");
    expectResult(results, Folder::GetUserHomeDirectory(), home == nullptr ? "./" : home);
    for (std::string const& value : texts()) {
        Variable const variable("HOME", value.c_str());
        expectResult(results, Folder::GetUserHomeDirectory(), value, value);
    }
    Variable const unset("HOME", nullptr);
    expectResult(results, Folder::GetUserHomeDirectory(), "./", "unset");
}

}  // namespace

std::vector<Function> folderFunctions() {
    std::vector<Function> all = {
        {"Folder::IsFolder(char const*)",
         [](Results& results) { forEachPath(results, Folder::IsFolder, isFolder); },
         {State::workingDirectory}},
        {"Folder::MakeDirectory(char const*)",
         [](Results& results) {
             makeFolders(results);
             makeDocumentedFolders(results);
         },
         {State::workingDirectory, State::fileCreationMask}},
        {"Folder::SetCurrentWorkingDirectory(char const*)",
         changeWorkingDirectory,
         {State::workingDirectory}},
        {"Folder::GetCurrentWorkingDirectory()",
         [](Results& results) {
             std::string const directory = Folder::GetCurrentWorkingDirectory();
             EXPECT_EQ(directory, filesystem::current_path());
             results.add("", withoutTemporaryNames(directory));
         },
         {State::workingDirectory}},
        {"Folder::GetUserHomeDirectory()", askForHome, {State::homeVariable}},
    };
    std::vector<Function> const ofPaths = folderPathFunctions();
    all.insert(all.end(), ofPaths.begin(), ofPaths.end());
    return all;
}

}  // namespace interface_test
