// Where the tests of files and folders happen: each in a folder of its own, which is the working
// directory while the test runs and removed behind it. A program with a folder left at its end
// fails; see TemporaryFolder.cpp.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

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

/// A folder inside the working directory whose path has exactly `length` bytes, made with nothing
/// of the library. At most 4095.
std::string makeFolderOfLength(std::size_t length);

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
