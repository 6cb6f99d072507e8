// Where the tests of files and folders happen: each in a folder of its own, which is the working
// directory while the test runs and removed behind it. A program with a folder left at its end
// fails; see TemporaryFolder.cpp.
#pragma once

#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <string>
#include <vector>

/// A new folder among the temporary files, with the permissions of an ordinary one.
std::filesystem::path makeTemporaryFolder();

/// Removes the folder with all that is in it, whatever the permissions of that are.
void removeFolder(std::filesystem::path const& folder);

class TemporaryFolder : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// The canonical path of the folder.
    [[nodiscard]] static std::string here();

  private:
    std::filesystem::path folder_;
};

/// The file's bytes, read with nothing of the library; fails where there is no file.
std::string contentOf(std::string const& path);

void makeFile(std::string const& path, std::string const& content = "");

void makeSocket(std::string const& path);

/// The bytes of the longest path that the system takes: 4095 on Linux, 1023 on macOS.
constexpr std::size_t longestPath = PATH_MAX - 1;

/// A path inside the working directory of exactly `length` bytes. Its names are ones that the
/// system takes.
std::string pathInside(std::size_t length);

/// A folder at `pathInside(length)`, made with nothing of the library. At most `longestPath`.
std::string makeFolderOfLength(std::size_t length);

/// Goes down into new folders until the path of the working directory has exactly `length` bytes,
/// more than `longestPath` too: each step is short. At its end it comes back and removes them.
class DeepFolder {
  public:
    explicit DeepFolder(std::size_t length);
    DeepFolder(DeepFolder const&) = delete;
    DeepFolder& operator=(DeepFolder const&) = delete;
    ~DeepFolder();

    /// The path of the working directory.
    [[nodiscard]] std::string const& path() const { return path_; }

  private:
    std::string path_;
    std::vector<std::string> names_;
};

/// What `asOrdinaryUser` does before its steps and behind them.
void giveUpSuperuser();
[[noreturn]] void leaveChild();

/// Runs `steps` in a process without a superuser's rights, to whom permissions matter. The working
/// directory belongs to its user.
template <typename Steps>
void asOrdinaryUser(Steps steps) {
    auto const run = [&steps] {
        giveUpSuperuser();
        steps();
        leaveChild();
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}
