/// @file
/// Folders, and whole paths.
#ifndef QEL_FOLDER_H
#define QEL_FOLDER_H

#include <cstring>
#include <string>

namespace qel {

/// Folders, the working and the home folder, joined, absolute and real paths, aliases.
///
/// Paths are C strings of bytes with `/` between their parts, and must not be null. A failure
/// shows in the result only. Relative paths go from the working directory, which belongs to the
/// process: callers see to it that none changes it while another depends on it.
class Folder {
  public:
    /// There are no instances: every function is static.
    Folder() = delete;

    /// @name Folders
    /// @{

    /// The answer of `File::IsFolder`: sockets and block devices included.
    [[nodiscard]] static bool IsFolder(char const* path) noexcept;
    /// Makes every missing folder on the way. Fails for a path with a trailing slash, though it
    /// makes that folder too; and behind a missing folder for an empty part, "." or "..", without
    /// making what follows. For an existing folder such a path is fine.
    ///
    /// Missing folders are those of `File::GetParentFolder`, from the top down, so that a
    /// backslash makes a folder as well. True when all were made, or `path` is a folder already.
    /// False for "", for an existing file, and at the first that cannot be made or looked at;
    /// those made before it stay. Each has the permissions that the process's mask leaves of 0755.
    static bool MakeDirectory(char const* path) noexcept;
    /// Changes the working directory of the whole process. False for "" and when the system
    /// refuses.
    static bool SetCurrentWorkingDirectory(char const* path) noexcept;
    /// The working directory; "" when it has been deleted or takes 1024 bytes or more.
    [[nodiscard]] static std::string GetCurrentWorkingDirectory() noexcept;
    /// The environment variable "HOME" as it stands, even empty; "./" when it is not set. No other
    /// thread may change the environment meanwhile.
    [[nodiscard]] static std::string GetUserHomeDirectory() noexcept;

    /// @}
    /// @name Paths
    /// @{

    /// Both with one slash between them, in place of a backslash at the end of `folder`. The folder
    /// comes first, the other way round than in `File::MakeFullPath`.
    ///
    /// An empty `folder` gives `name`, which is never looked at: "a/" and "/b" give "a//b".
    [[nodiscard]] static std::string ConcatenatePaths(char const* folder,
                                                      char const* name) noexcept;
    /// True for a `/` in front, and for a ":/" anywhere, as behind a volume's name.
    [[nodiscard]] static bool IsPathAbsolute(char const* path) noexcept {
        return *path == '/' || std::strstr(path, ":/") != nullptr;
    }
    /// Always false: the test follows links before it looks. Whoever needs to know asks the system.
    [[nodiscard]] static bool IsSymlink(char const* path) noexcept;
    /// "/Volumes/" before a path that does not begin with `/`, whose first ":" is left out; then
    /// from Mac OS Roman to UTF-8.
    ///
    /// "Disk:/Users/me" gives "/Volumes/Disk/Users/me". Without a ":" the text comes twice: "Disk"
    /// gives "/Volumes/DiskDisk". A result of 4096 bytes or more gives "".
    [[nodiscard]] static std::string TranslateAbsolutePath(char const* path) noexcept;
    /// The canonical path; `path` itself, and no failure, where nothing exists, for a loop of
    /// links, where permission or memory is wanting, or where the canonical path has 1024 bytes or
    /// more.
    ///
    /// For a `path` that begins with `~` the home folder, and what follows the first `~` of that
    /// text: "~user" is the home folder followed by "user", and need not exist. A real path
    /// without any `~` comes whole behind the home folder.
    [[nodiscard]] static std::string GetRealPath(char const* path) noexcept;
    /// Copies `path` to `resolved` without a bound where it is no alias that resolves:
    /// `resolvedSize` does not limit that copy, only that of an alias's target.
    ///
    /// A Finder alias is followed through a whole chain of aliases, on macOS; elsewhere there are
    /// none. A target of exactly `resolvedSize` bytes is not terminated, a shorter one is filled
    /// up with zero bytes.
    ///
    /// @param path      what may be an alias
    /// @param resolved  has room for `path` with its terminator and for `resolvedSize` bytes, and
    ///                  does not overlap with `path`
    /// @param wasAlias  whether `path` is an alias, even one that does not resolve
    /// @param resolvedSize  0 to 1024
    static void ResolveIfAlias(char const* path, char* resolved, bool& wasAlias,
                               int resolvedSize) noexcept;

    /// @}
};

}  // namespace qel

#endif
