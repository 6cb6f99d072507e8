/// @file
/// File names as text, and small operations on files.
#ifndef QEL_FILE_H
#define QEL_FILE_H

#include <string>
#include <vector>

namespace qel {

/// File names, existence, size, deletion, and a file's text.
///
/// Paths are C strings of bytes and must not be null. The empty path names nothing. A failure
/// shows in the result only. The functions share no state; several writers of one file race.
class File {
  public:
    /// There are no instances: every function is static.
    File() = delete;

    /// @name File names
    /// Text only: the file system is never asked, and any text is taken. Slash and backslash both
    /// separate wherever a path is split.
    /// @{

    /// A copy with a slash for every backslash.
    [[nodiscard]] static std::string ConvertFileNameToUnixStyle(char const* path) noexcept;
    /// A copy with a backslash for every slash.
    [[nodiscard]] static std::string ConvertFileNameToWindowsStyle(char const* path) noexcept;
    /// A copy in the native style, which is the Unix style.
    [[nodiscard]] static std::string ConvertFileNameToNativeStyle(char const* path) noexcept;
    /// True when there is no backslash in the path.
    [[nodiscard]] static bool IsFileNameNativeStyle(char const* path) noexcept;
    /// The text before the last separator, even a trailing one: the parent of "a/b/" is "a/b", and
    /// the parent of "/x" is "", not "/". "" without any separator.
    [[nodiscard]] static std::string GetParentFolder(char const* path) noexcept;
    /// The text after the last separator, "" if the path ends in one; the whole path without any.
    [[nodiscard]] static std::string GetFileName(char const* path) noexcept;
    /// True for a dot anywhere in the path, in a folder's name too.
    [[nodiscard]] static bool HasExtension(char const* path) noexcept;
    /// What follows the last dot of the whole path, not of the file name: "my.folder/file" has the
    /// extension "folder/file". "" without a dot.
    [[nodiscard]] static std::string GetExtension(char const* path) noexcept;
    /// The file name before its last dot: "" for ".profile".
    [[nodiscard]] static std::string GetFileNameWithoutExtension(char const* path) noexcept;
    /// The path before its last dot, even one in a folder's name: "my" for "my.folder/file".
    [[nodiscard]] static std::string GetFullFileNameWithoutExtension(char const* path) noexcept;
    /// Leaves the dot out: "report.txt" with "_old" gives "report_oldtxt".
    [[nodiscard]] static std::string AppendStringBeforeExtension(char const* path,
                                                                 char const* text) noexcept;
    /// `path` with a dot and `extension`, which may bring its dot; `path` itself if it has that
    /// extension already, in upper or lower case. A dot at the end of `path` is not doubled.
    [[nodiscard]] static std::string AppendExtension(char const* path,
                                                     char const* extension) noexcept;
    /// True when `GetExtension(path)` is `extension`, whose one leading dot does not count:
    /// ".tar.gz" is no extension of any path, and a path without a dot has the extensions "" and
    /// ".".
    [[nodiscard]] static bool HasThisExtension(char const* path, char const* extension,
                                               bool ignoreCase) noexcept;
    /// True when `HasThisExtension` is for some element; false for none.
    [[nodiscard]] static bool HasOneOfTheseExtensions(char const* path,
                                                      std::vector<std::string> const& extensions,
                                                      bool ignoreCase) noexcept;
    /// The file comes first and the folder second, the other way round than in
    /// `Folder::ConcatenatePaths`; and only the name of `file` goes into `folder`, in Unix style.
    ///
    /// An empty `folder` gives the bare name. Only a slash at its end counts as a separator:
    /// behind a backslash comes one more.
    [[nodiscard]] static std::string MakeFullPath(char const* file, char const* folder) noexcept;
    /// A copy with an underscore for every space; nothing else changes.
    [[nodiscard]] static std::string CleanFileName(char const* name) noexcept;

    /// @}
    /// @name Files
    /// Relative paths go from the working directory. Links are followed; only `Delete` takes one
    /// itself. What the system does not let the process reach counts as not there; rights are
    /// those of the real user.
    /// @{

    /// True for anything that is there, files and folders alike; false for a dangling link.
    [[nodiscard]] static bool Exists(char const* path) noexcept;
    /// True for anything that exists and is no folder to `IsFolder`.
    [[nodiscard]] static bool ExistsAsFile(char const* path) noexcept;
    /// Tests the bit 0x4000 of the file mode alone, so that sockets and block devices are folders
    /// too.
    [[nodiscard]] static bool IsFolder(char const* path) noexcept;
    /// The size in bytes; 0 where there is nothing, as for an empty file. Folders have the size
    /// that the system reports for them.
    [[nodiscard]] static long long GetSize(char const* path) noexcept;
    /// True for a file whose path, not its name, begins with a dot: ".hidden" and "./notes" are
    /// invisible, "/home/u/.hidden" is not. False for a folder.
    [[nodiscard]] static bool IsInvisible(char const* path) noexcept;
    /// Changes nothing: a query with the answer of `IsInvisible`.
    [[nodiscard]] static bool SetInvisible(char const* path) noexcept;
    /// Leaves a folder alone, and calls that a success, as it does for what does not exist.
    ///
    /// A link to a file is deleted itself, not its target; one to a folder or to nothing is left.
    /// False only when the system refuses to delete a file.
    static bool Delete(char const* path) noexcept;
    /// False for a new file that is named without a folder, "f" or "/f": true when what exists can
    /// be written to, or else its parent, by `GetParentFolder`, can.
    [[nodiscard]] static bool HasWriteAccess(char const* path) noexcept;
    /// Reads the first word only: white space in front is skipped, and the next ends it.
    ///
    /// False for a folder and where there is nothing, with `text` as it was, and for a file that
    /// does not open, with `text` empty. True with an empty `text` when there is no word. White
    /// space is that of the "C" locale. `path` may be the text's own.
    ///
    /// A pipe that stays open is waited for until white space ends the word.
    [[nodiscard]] static bool ReadStringFromFile(std::string& text, char const* path) noexcept;
    /// Refuses a new file named without a folder, as `HasWriteAccess` does: "f" must be "./f".
    ///
    /// Appends the bytes of `text`, or else writes them into a new file in the old one's place: an
    /// existing file, or link to one, is deleted first. The new file has the permissions that the
    /// process's mask leaves of 0666; other names of the old one keep its text. False without
    /// `HasWriteAccess`, when the old file cannot be deleted, and when the file does not open. Once
    /// it is open the result is true, even if the disk fills up.
    [[nodiscard]] static bool WriteStringToFile(std::string const& text, char const* path,
                                                bool append) noexcept;

    /// @}
};

}  // namespace qel

#endif
