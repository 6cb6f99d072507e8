// Files beside std::filesystem, streams and the system's own calls.
#include "Paths.h"

#include "qel/File.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace qel::bench {
namespace {

std::vector<int> const fileSizes = {16, 256, 4096, 65536};

bool isThere(char const* path) {
    struct stat status;
    return stat(path, &status) == 0;
}

bool isFolder(char const* path) {
    struct stat status;
    return stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

bool isFile(char const* path) {
    struct stat status;
    return stat(path, &status) == 0 && !S_ISDIR(status.st_mode);
}

long long sizeOf(char const* path) {
    struct stat status;
    return stat(path, &status) == 0 ? static_cast<long long>(status.st_size) : 0;
}

std::vector<Path> smallFiles(int) {
    return files(16);
}

void addExistenceRows() {
    addRows(
        {"Exists", {"File::Exists(char const*)"}}, noSize, smallFiles,
        [](auto& x) { return File::Exists(x.s()); },
        Peer{"stat", [](auto& x) { return isThere(x.s()); }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::exists(x.text); }});
    addRows(
        {"Exists, no file"}, noSize, newNames, [](auto& x) { return File::Exists(x.s()); },
        Peer{"stat", [](auto& x) { return isThere(x.s()); }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::exists(x.text); }});
    addRows(
        {"ExistsAsFile", {"File::ExistsAsFile(char const*)"}}, noSize, smallFiles,
        [](auto& x) { return File::ExistsAsFile(x.s()); },
        Peer{"stat", [](auto& x) { return isFile(x.s()); }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::is_regular_file(x.text); }});
    addRows(
        {"File::IsFolder", {"File::IsFolder(char const*)"}}, noSize, folders,
        [](auto& x) { return File::IsFolder(x.s()); },
        Peer{"stat", [](auto& x) { return isFolder(x.s()); }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::is_directory(x.text); }});
}

void addPropertyRows() {
    addRows(
        {"GetSize", {"File::GetSize(char const*)"}}, noSize, smallFiles,
        [](auto& x) { return File::GetSize(x.s()); },
        Peer{"stat", [](auto& x) { return sizeOf(x.s()); }},
        Peer{"filesystem",
             [](auto& x) { return static_cast<long long>(std::filesystem::file_size(x.text)); }});
    addRows(
        {"IsInvisible", {"File::IsInvisible(char const*)"}}, noSize, smallFiles,
        [](auto& x) { return File::IsInvisible(x.s()); },
        Peer{"stat", [](auto& x) { return isFile(x.s()) && *x.s() == '.'; }});
    addRows(
        {"SetInvisible", {"File::SetInvisible(char const*)"}}, noSize, smallFiles,
        [](auto& x) { return File::SetInvisible(x.s()); },
        Peer{"stat", [](auto& x) { return isFile(x.s()) && *x.s() == '.'; }});
    addRows(
        {"HasWriteAccess", {"File::HasWriteAccess(char const*)"}}, noSize, smallFiles,
        [](auto& x) { return File::HasWriteAccess(x.s()); },
        Peer{"access", [](auto& x) { return access(x.s(), W_OK) == 0; }});
}

// --- contents ------------------------------------------------------------------------------------

std::string firstWord(char const* path) {
    std::ifstream file(path);
    std::string word;
    file >> word;
    return word;
}

std::string firstWordByRead(char const* path) {
    constexpr char const* whiteSpace = " \t\n\v\f\r";
    int const file = open(path, O_RDONLY);
    struct stat status;
    fstat(file, &status);
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    text.resize(static_cast<std::size_t>(read(file, text.data(), text.size())));
    close(file);
    text.erase(0, std::min(text.find_first_not_of(whiteSpace), text.size()));
    text.resize(std::strcspn(text.c_str(), whiteSpace));
    return text;
}

bool written(std::string const& text, char const* path, int flags) {
    int const file = open(path, O_WRONLY | O_CREAT | flags, 0666);
    bool const isComplete =
        write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    return close(file) == 0 && isComplete;
}

std::string const line = "2012-11-21 12:05:07 a line as a log has it\n";

void addContentRows() {
    addRows(
        {"ReadStringFromFile", {"File::ReadStringFromFile(std::string&, char const*)"}}, fileSizes,
        files,
        [](auto& x) {
            std::string text;
            benchmark::DoNotOptimize(File::ReadStringFromFile(text, x.s()));
            return text;
        },
        Peer{"ifstream", [](auto& x) { return firstWord(x.s()); }},
        Peer{"read", [](auto& x) { return firstWordByRead(x.s()); }});
    // An existing file is deleted and made again.
    addRows(
        {"WriteStringToFile", {"File::WriteStringToFile(std::string const&, char const*, bool)"}},
        noSize, newNames, [](auto& x) { return File::WriteStringToFile(line, x.s(), false); },
        Peer{"ofstream",
             [](auto& x) {
                 std::remove(x.s());
                 return (std::ofstream(x.s()) << line).good();
             }},
        Peer{"write", [](auto& x) {
                 unlink(x.s());
                 return written(line, x.s(), O_EXCL);
             }});
    addRows(
        {"WriteStringToFile, append"}, noSize, newNames,
        [](auto& x) { return File::WriteStringToFile(line, x.s(), true); },
        Peer{"ofstream",
             [](auto& x) { return (std::ofstream(x.s(), std::ios::app) << line).good(); }},
        Peer{"write", [](auto& x) { return written(line, x.s(), O_APPEND); }});
    addRows(
        {"make and Delete", {"File::Delete(char const*)"}}, noSize, newNames,
        [](auto& x) {
            close(open(x.s(), O_WRONLY | O_CREAT, 0666));
            return File::Delete(x.s());
        },
        Peer{"remove",
             [](auto& x) {
                 close(open(x.s(), O_WRONLY | O_CREAT, 0666));
                 return std::remove(x.s()) == 0;
             }},
        Peer{"filesystem", [](auto& x) {
                 close(open(x.s(), O_WRONLY | O_CREAT, 0666));
                 return std::filesystem::remove(x.text);
             }});
}

[[maybe_unused]] bool const registered =
    (addExistenceRows(), addPropertyRows(), addContentRows(), true);

}  // namespace
}  // namespace qel::bench
