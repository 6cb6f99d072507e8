// Folders in the file system: making them, the working and the home folder.
#include "qel/Folder.h"

#include "PathServices.h"
#include "qel/CharFunctions.h"
#include "qel/File.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace qel {

namespace {

constexpr mode_t folderPermissions = 0755;
constexpr mode_t typeBits = 0xF000;
constexpr mode_t linkType = 0xA000;

/// The missing ones of `path` and its parents, the longest first; nothing when the system cannot
/// tell about one. Existing parents do not end the search.
std::optional<std::vector<std::string>> missingFolders(char const* path) {
    std::vector<std::string> missing;
    for (std::string current(path); !current.empty();
         current = File::GetParentFolder(current.c_str())) {
        struct stat status = {};
        if (stat(current.c_str(), &status) == 0)
            continue;
        if (errno != ENOENT && errno != ENOTDIR)
            return std::nullopt;
        missing.push_back(current);
    }
    return missing;
}

}  // namespace

bool Folder::IsFolder(char const* path) noexcept {
    return File::IsFolder(path);
}

bool Folder::MakeDirectory(char const* path) noexcept {
    if (IsFolder(path))
        return true;
    if (CharFunctions::IsEmpty(path) || File::Exists(path))
        return false;
    std::optional<std::vector<std::string>> const missing = missingFolders(path);
    return missing
           && std::all_of(missing->rbegin(), missing->rend(), [](std::string const& folder) {
                  return mkdir(folder.c_str(), folderPermissions) == 0;
              });
}

bool Folder::IsSymlink(char const* path) noexcept {
    struct stat status = {};
    return stat(path, &status) == 0 && (status.st_mode & typeBits) == linkType;
}

bool Folder::SetCurrentWorkingDirectory(char const* path) noexcept {
    return !CharFunctions::IsEmpty(path) && chdir(path) == 0;
}

std::string Folder::GetCurrentWorkingDirectory() noexcept {
    char buffer[internal::pathCapacity];
    return getcwd(buffer, sizeof buffer) == nullptr ? "" : buffer;
}

std::string Folder::GetUserHomeDirectory() noexcept {
    char const* const home = std::getenv("HOME");
    return home == nullptr ? "./" : home;
}

}  // namespace qel
