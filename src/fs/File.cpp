// What is at a path, and reading and writing a file's text. No function tests for the empty path:
// to the system it is one at which nothing exists.
#include "qel/File.h"

#include "../text/Ascii.h"
#include "../text/Blocks.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qel {

using namespace internal;

namespace {

/// Set for folders, and for sockets (0xC000) and block devices (0x6000) too.
constexpr mode_t folderBit = 0x4000;

/// The bytes that `transfer`, a call of read or write, has moved; 0 or less at the end and where it
/// fails for another reason than a signal.
template <typename Transfer>
ssize_t uninterrupted(Transfer transfer) noexcept {
    ssize_t count = 0;
    do {
        count = transfer();
    } while (count < 0 && errno == EINTR);
    return count;
}

/// `end` where there is none.
char const* findWhiteSpace(char const* begin, char const* end) noexcept {
    constexpr auto step = static_cast<std::ptrdiff_t>(blockSize);
    auto const areSpaces = [](Block const& bytes) -> Block {
        return (bytes == repeated(' ')) | (bytes - repeated('\t') < Block{} + 5);
    };
    while (end - begin >= step && !any(areSpaces(blockAt(begin))))
        begin += step;
    return std::find_if(begin, end, isWhiteSpace);
}

/// Reads on until white space ends the word. What could be read before a failure is the word.
void readWord(int file, std::string& word) {
    std::array<char, 8192> block;
    for (;;) {
        ssize_t const count = uninterrupted([&] { return read(file, block.data(), block.size()); });
        if (count <= 0)
            return;
        char const* begin = block.data();
        char const* const end = begin + count;
        if (word.empty())
            begin = std::find_if_not(begin, end, isWhiteSpace);
        char const* const wordEnd = findWhiteSpace(begin, end);
        word.append(begin, wordEnd);
        if (wordEnd != end)
            return;
    }
}

void writeAll(int file, std::string_view text) noexcept {
    while (!text.empty()) {
        ssize_t const count = uninterrupted([&] { return write(file, text.data(), text.size()); });
        if (count <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(count));
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
    if (access(path, W_OK) == 0)
        return true;
    bool const isThere = errno != ENOENT && Exists(path);
    return !isThere && access(GetParentFolder(path).c_str(), W_OK) == 0;
}

bool File::ReadStringFromFile(std::string& text, char const* path) noexcept {
    if (!ExistsAsFile(path))
        return false;
    int const file = open(path, O_RDONLY);
    text.clear();  // not before: the path may be the text's own
    if (file < 0)
        return false;
    readWord(file, text);
    close(file);
    return true;
}

bool File::WriteStringToFile(std::string const& text, char const* path, bool append) noexcept {
    if (!HasWriteAccess(path))
        return false;
    if (!append && !Delete(path))
        return false;
    int const file = open(path, O_WRONLY | O_CREAT | (append ? O_APPEND : O_TRUNC), 0666);
    if (file < 0)
        return false;
    writeAll(file, text);
    close(file);
    return true;
}

}  // namespace qel
