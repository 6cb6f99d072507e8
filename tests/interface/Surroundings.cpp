#include "Surroundings.h"

#include "fs/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string_view>

#include <sys/stat.h>

namespace interface_test {

namespace filesystem = std::filesystem;

Surroundings::Surroundings()
    : previousDirectory_(filesystem::current_path()), previousMask_(umask(022)),
      folder_(makeTemporaryFolder()), home_("HOME", "/home/ordinary"), zone_("UTC0") {
    filesystem::create_directories(elsewhere());
    filesystem::create_directory(folder_ / "ordinary");
    filesystem::current_path(folder_ / "ordinary");
}

Surroundings::~Surroundings() {
    filesystem::current_path(previousDirectory_);
    umask(previousMask_);
    removeFolder(folder_);
}

Scratch::Scratch() : folder_(makeTemporaryFolder()) {}

Scratch::~Scratch() {
    removeFolder(folder_);
}

std::string Scratch::relativePath(std::string const& name) const {
    return filesystem::path("../..") / folder_.filename() / name;
}

std::string withoutTemporaryNames(std::string text) {
    constexpr std::string_view prefix = "qel-fs-";
    constexpr std::size_t randomLetters = 6;
    for (std::size_t at = text.find(prefix); at != std::string::npos;
         at = text.find(prefix, at + 1))
        text.erase(at + prefix.size(), randomLetters);
    return text;
}

void makeOrdinaryFile(std::string const& path, std::string const& content) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr) << path;
    EXPECT_EQ(std::fwrite(content.data(), 1, content.size(), file), content.size());
    EXPECT_EQ(std::fclose(file), 0);
    EXPECT_EQ(chmod(path.c_str(), 0644), 0);
}

std::string bytesOf(std::string const& path) {
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return "unreadable";
    std::string bytes;
    for (int c; (c = std::fgetc(file)) != EOF;)
        bytes += static_cast<char>(c);
    std::fclose(file);
    return bytes;
}

int permissionsOf(std::string const& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
}

}  // namespace interface_test
