// Folders and whole paths beside std::filesystem and the system's own calls.
#include "Paths.h"

#include "qel/Folder.h"

#include <cstdlib>
#include <filesystem>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qel::bench {
namespace {

std::vector<Path> newFolders(int) {
    std::vector<Path> table = folders(0);
    for (Path& path : table)
        path.text += "/new";
    return table;
}

std::string currentFolder() {
    char path[PATH_MAX];
    return getcwd(path, sizeof path) == nullptr ? "" : path;
}

std::string realPath(char const* path) {
    char real[PATH_MAX];
    return realpath(path, real) == nullptr ? path : real;
}

void addFolderRows() {
    addRows(
        {"Folder::IsFolder", {"Folder::IsFolder(char const*)"}}, noSize, folders,
        [](auto& x) { return Folder::IsFolder(x.s()); },
        Peer{"stat",
             [](auto& x) {
                 struct stat status;
                 return stat(x.s(), &status) == 0 && S_ISDIR(status.st_mode);
             }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::is_directory(x.text); }});
    addRows(
        {"MakeDirectory and rmdir", {"Folder::MakeDirectory(char const*)"}}, noSize, newFolders,
        [](auto& x) {
            bool const isMade = Folder::MakeDirectory(x.s());
            return rmdir(x.s()) == 0 && isMade;
        },
        Peer{"filesystem", [](auto& x) {
                 bool const isMade = std::filesystem::create_directories(x.text);
                 return rmdir(x.s()) == 0 && isMade;
             }});
    addRows(
        {"SetCurrentWorkingDirectory", {"Folder::SetCurrentWorkingDirectory(char const*)"}}, noSize,
        folders, [](auto& x) { return Folder::SetCurrentWorkingDirectory(x.s()); },
        Peer{"chdir", [](auto& x) { return chdir(x.s()) == 0; }});
    addRows(
        {"GetCurrentWorkingDirectory", {"Folder::GetCurrentWorkingDirectory()"}}, noSize, folders,
        [](auto&) { return Folder::GetCurrentWorkingDirectory(); },
        Peer{"getcwd", [](auto&) { return currentFolder(); }},
        Peer{"filesystem", [](auto&) { return std::filesystem::current_path().string(); }});
    addRows(
        {"GetUserHomeDirectory", {"Folder::GetUserHomeDirectory()"}}, noSize, folders,
        [](auto&) { return Folder::GetUserHomeDirectory(); },
        Peer{"getenv", [](auto&) {
                 char const* const home = std::getenv("HOME");
                 return std::string(home == nullptr ? "./" : home);
             }});
}

void addPathRows() {
    addRows(
        {"ConcatenatePaths", {"Folder::ConcatenatePaths(char const*, char const*)"}}, noSize, names,
        [](auto& x) { return Folder::ConcatenatePaths(x.s(), "notes.txt"); },
        Peer{"string +",
             [](auto& x) {
                 std::string path(x.s());
                 if (!path.empty() && path.back() != '/')
                     path += '/';
                 return path.append("notes.txt");
             }},
        Peer{"filesystem",
             [](auto& x) { return (std::filesystem::path(x.s()) / "notes.txt").string(); }});
    addRows(
        {"IsPathAbsolute", {"Folder::IsPathAbsolute(char const*)"}}, noSize, names,
        [](auto& x) { return Folder::IsPathAbsolute(x.s()); },
        Peer{"first byte", [](auto& x) { return *x.s() == '/'; }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::path(x.s()).is_absolute(); }});
    addRows(
        {"IsSymlink", {"Folder::IsSymlink(char const*)"}}, noSize, folders,
        [](auto& x) { return Folder::IsSymlink(x.s()); },
        Peer{"lstat",
             [](auto& x) {
                 struct stat status;
                 return lstat(x.s(), &status) == 0 && S_ISLNK(status.st_mode);
             }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::is_symlink(x.text); }});
    addRows(
        {"GetRealPath", {"Folder::GetRealPath(char const*)"}}, noSize, folders,
        [](auto& x) { return Folder::GetRealPath(x.s()); },
        Peer{"realpath", [](auto& x) { return realPath(x.s()); }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::canonical(x.text).string(); }});
}

[[maybe_unused]] bool const registered = (addFolderRows(), addPathRows(), true);

}  // namespace
}  // namespace qel::bench
