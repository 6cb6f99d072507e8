// What is at a path, and reading and writing a file's text. No function tests for the empty path:
// to the system it is one at which nothing exists.
#include "qel/File.h"

#include <fstream>
#include <locale>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace qel {

namespace {

/// Set for folders, and for sockets (0xC000) and block devices (0x6000) too.
constexpr mode_t folderBit = 0x4000;

/// A stream takes any exception for a failure of its own, exhausted memory too: half a word would
/// pass for a whole one. So it hands exceptions on, and only its own mean what they meant.
void readWord(std::istream& file, std::string& word) {
    try {
        file.exceptions(std::ios::badbit);
        file >> word;
    } catch (std::ios::failure const&) {
        // What could be read is the word.
    }
}

}  // namespace

bool File::Exists(char const* path) noexcept {
    return access(path, F_OK) == 0;
}

bool File::ExistsAsFile(char const* path) noexcept {
    return Exists(path) && !IsFolder(path);
}

bool File::IsFolder(char const* path) noexcept {
    struct stat status = {};
    return stat(path, &status) == 0 && (status.st_mode & folderBit) != 0;
}

long long File::GetSize(char const* path) noexcept {
    struct stat status = {};
    static_assert(sizeof status.st_size == sizeof(long long));
    return stat(path, &status) == 0 ? status.st_size : 0;
}

bool File::IsInvisible(char const* path) noexcept {
    return *path == '.' && ExistsAsFile(path);
}

bool File::SetInvisible(char const* path) noexcept {
    return IsInvisible(path);
}

bool File::Delete(char const* path) noexcept {
    return !ExistsAsFile(path) || std::remove(path) == 0;
}

bool File::HasWriteAccess(char const* path) noexcept {
    return access(Exists(path) ? path : GetParentFolder(path).c_str(), W_OK) == 0;
}

bool File::ReadStringFromFile(std::string& text, char const* path) noexcept {
    if (!ExistsAsFile(path))
        return false;
    std::ifstream file(path);
    text.clear();  // not before: the path may be the text's own
    if (!file.good())
        return false;
    file.imbue(std::locale::classic());
    readWord(file, text);
    return true;
}

bool File::WriteStringToFile(std::string const& text, char const* path, bool append) noexcept {
    if (!HasWriteAccess(path))
        return false;
    if (!append && !Delete(path))
        return false;
    std::ofstream file;
    file.imbue(std::locale::classic());
    file.open(path, append ? std::ios::out | std::ios::app : std::ios::out);
    if (!file.is_open())
        return false;
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    return true;
}

}  // namespace qel
