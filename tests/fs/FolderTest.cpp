// Folders: making them, the working and the home folder.
#include "qel/Folder.h"

#include "HomeVariable.h"
#include "TemporaryFolder.h"

#include <filesystem>
#include <set>
#include <string>

#include <sys/stat.h>

namespace {

namespace filesystem = std::filesystem;
using qel::Folder;

class Folders : public TemporaryFolder {
  protected:
    /// All that is in the working directory, at any depth.
    static std::set<std::string> everything() {
        std::set<std::string> paths;
        for (auto const& entry : filesystem::recursive_directory_iterator("."))
            paths.insert(entry.path().string().substr(2));
        return paths;
    }
};

using Names = std::set<std::string>;

mode_t permissionsOf(char const* path) {
    struct stat status = {};
    EXPECT_EQ(stat(path, &status), 0) << path;
    return status.st_mode & 0777;
}

TEST_F(Folders, IsFolderAnswersAsForFiles) {
    makeFile("f");
    makeSocket("socket");
    filesystem::create_directory("d");
    filesystem::create_symlink("d", "link");
    for (char const* path : {"d", "d/", "link", ".", "..", "/", "socket"})
        EXPECT_TRUE(Folder::IsFolder(path)) << path;
    for (char const* path : {"", "f", "f/", "missing", "d/missing"})
        EXPECT_FALSE(Folder::IsFolder(path)) << path;
}

// --- making folders ----------------------------------------------------------------------------

TEST_F(Folders, EveryMissingFolderOnTheWayIsMade) {
    EXPECT_TRUE(Folder::MakeDirectory("x/y/z"));
    EXPECT_EQ(everything(), (Names{"x", "x/y", "x/y/z"}));
    EXPECT_TRUE(Folder::MakeDirectory("x/y/other/deeper"));
    EXPECT_EQ(everything(), (Names{"x", "x/y", "x/y/z", "x/y/other", "x/y/other/deeper"}));
}

TEST_F(Folders, AnAbsolutePathIsMadeFromTheFirstMissingFolder) {
    EXPECT_TRUE(Folder::MakeDirectory((here() + "/x/y").c_str()));
    EXPECT_EQ(everything(), (Names{"x", "x/y"}));
}

TEST_F(Folders, AnExistingFolderIsASuccessAndNothingIsMade) {
    filesystem::create_directory("d");
    filesystem::create_symlink("d", "link");
    for (char const* path : {"d", "d/", "d//", "./d", "d/..", ".", "/", "link"})
        EXPECT_TRUE(Folder::MakeDirectory(path)) << path;
    EXPECT_EQ(everything(), (Names{"d", "link"}));
}

TEST_F(Folders, AnExistingFolderNeedsNoRightToMakeIt) {
    asOrdinaryUser([] {
        filesystem::create_directories("d/e");
        ASSERT_EQ(chmod("d", 0555), 0);
        EXPECT_TRUE(Folder::MakeDirectory("d/e"));
        EXPECT_FALSE(Folder::MakeDirectory("d/f"));
    });
}

TEST_F(Folders, AnExistingFileIsAFailure) {
    makeFile("f", "kept");
    EXPECT_FALSE(Folder::MakeDirectory("f"));
    EXPECT_EQ(contentOf("f"), "kept");
}

TEST_F(Folders, ASocketIsAnExistingFolder) {
    makeSocket("socket");
    EXPECT_TRUE(Folder::MakeDirectory("socket"));
    EXPECT_FALSE(Folder::MakeDirectory("socket/d"));
}

TEST_F(Folders, TheEmptyPathIsAFailure) {
    EXPECT_FALSE(Folder::MakeDirectory(""));
}

TEST_F(Folders, ATrailingSlashFailsThoughTheFolderIsMade) {
    EXPECT_FALSE(Folder::MakeDirectory("a/b/"));
    EXPECT_EQ(everything(), (Names{"a", "a/b"}));
    EXPECT_TRUE(Folder::MakeDirectory("a/b/"));
}

TEST_F(Folders, AnyOtherWayToNameAFolderTwiceFailsToo) {
    struct Row {
        char const* path;
        Names made;
    };
    for (Row const& row : {
             Row{"a//b", {"a"}},
             Row{"a/./b", {"a"}},
             Row{"a/../b", {"a"}},
             Row{"a/b//", {"a", "a/b"}},
             Row{"a/.", {"a"}},
         }) {
        EXPECT_FALSE(Folder::MakeDirectory(row.path)) << row.path;
        EXPECT_EQ(everything(), row.made) << row.path;
        filesystem::remove_all("a");
    }
}

TEST_F(Folders, ABackslashMakesAFolderAndAnotherWithItInItsName) {
    EXPECT_TRUE(Folder::MakeDirectory("a\\b"));
    EXPECT_EQ(everything(), (Names{"a", "a\\b"}));
}

TEST_F(Folders, AFileOnTheWayIsAFailureAndNothingIsMade) {
    makeFile("f");
    EXPECT_FALSE(Folder::MakeDirectory("f/"));
    EXPECT_FALSE(Folder::MakeDirectory("f/x"));
    EXPECT_FALSE(Folder::MakeDirectory("f/x/y"));
    EXPECT_EQ(everything(), (Names{"f"}));
}

TEST_F(Folders, ALinkOnTheWayIsFollowed) {
    filesystem::create_directory("d");
    filesystem::create_symlink("d", "link");
    EXPECT_TRUE(Folder::MakeDirectory("link/x/y"));
    EXPECT_EQ(everything(), (Names{"d", "d/x", "d/x/y", "link"}));
}

TEST_F(Folders, ADanglingLinkIsAFailureAndItsTargetIsNotMade) {
    filesystem::create_symlink("target", "dangling");
    EXPECT_FALSE(Folder::MakeDirectory("dangling"));
    EXPECT_FALSE(Folder::MakeDirectory("dangling/x"));
    EXPECT_EQ(everything(), (Names{"dangling"}));
}

TEST_F(Folders, ALoopOfLinksIsAFailure) {
    filesystem::create_symlink("second", "first");
    filesystem::create_symlink("first", "second");
    EXPECT_FALSE(Folder::MakeDirectory("first"));
    EXPECT_FALSE(Folder::MakeDirectory("first/x"));
}

TEST_F(Folders, ANameOf255BytesIsMadeAndALongerOneIsNot) {
    std::string const longest(255, 'n');
    EXPECT_TRUE(Folder::MakeDirectory(longest.c_str()));
    EXPECT_FALSE(Folder::MakeDirectory((longest + 'n').c_str()));
    EXPECT_EQ(everything(), Names{longest});
}

TEST_F(Folders, TheLongestPathThatTheSystemTakesIsMadeAndALongerOneMakesNothing) {
    EXPECT_FALSE(Folder::MakeDirectory(pathInside(longestPath + 1).c_str()));
    EXPECT_EQ(everything(), Names());
    std::string const longest = pathInside(longestPath);
    EXPECT_TRUE(Folder::MakeDirectory(longest.c_str()));
    EXPECT_TRUE(filesystem::is_directory(longest));
}

TEST_F(Folders, FoldersAreOpenToAllButWritableToTheirOwnerAsTheMaskAllows) {
    mode_t const previous = umask(0);
    EXPECT_TRUE(Folder::MakeDirectory("open/deep"));
    umask(0077);
    EXPECT_TRUE(Folder::MakeDirectory("masked"));
    umask(previous);
    EXPECT_EQ(permissionsOf("open"), 0755U);
    EXPECT_EQ(permissionsOf("open/deep"), 0755U);
    EXPECT_EQ(permissionsOf("masked"), 0700U);
}

TEST_F(Folders, AFailureOnTheWayLeavesTheFoldersMadeBefore) {
    EXPECT_FALSE(Folder::MakeDirectory(("a/b/" + std::string(256, 'n')).c_str()));
    EXPECT_EQ(everything(), (Names{"a", "a/b"}));
}

TEST_F(Folders, AMaskThatForbidsWritingStopsAtTheFirstFolderMade) {
    asOrdinaryUser([] {
        umask(0222);
        EXPECT_FALSE(Folder::MakeDirectory("a/b/c"));
        EXPECT_EQ(everything(), (Names{"a"}));
    });
}

TEST_F(Folders, AFolderThatCannotBeSearchedIsAFailure) {
    asOrdinaryUser([] {
        filesystem::create_directory("closed");
        ASSERT_EQ(chmod("closed", 0600), 0);
        EXPECT_FALSE(Folder::MakeDirectory("closed/x"));
        EXPECT_FALSE(Folder::MakeDirectory("closed/x/y"));
        ASSERT_EQ(chmod("closed", 0700), 0);
        EXPECT_EQ(everything(), (Names{"closed"}));
    });
}

// --- working and home folder -------------------------------------------------------------------

TEST_F(Folders, TheWorkingDirectoryIsSetAndTold) {
    filesystem::create_directory("d");
    EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), here());
    std::string const inside = here() + "/d";
    EXPECT_TRUE(Folder::SetCurrentWorkingDirectory("d"));
    EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), inside);
}

TEST_F(Folders, TheWorkingDirectoryStaysWhereItCannotBeSet) {
    makeFile("f");
    for (char const* path : {"", "missing", "f", "f/"})
        EXPECT_FALSE(Folder::SetCurrentWorkingDirectory(path)) << path;
    EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), here());
}

TEST_F(Folders, TheWorkingDirectoryIsSetToTheLongestPathThatTheSystemTakes) {
    std::string const before = here();
    std::string const longest = makeFolderOfLength(longestPath);
    EXPECT_FALSE(Folder::SetCurrentWorkingDirectory((longest + '/').c_str()));
    EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), before);
    EXPECT_TRUE(Folder::SetCurrentWorkingDirectory(longest.c_str()));
    EXPECT_TRUE(filesystem::equivalent(".", longest));
    EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), longestPath < 1024 ? longest : "");
}

TEST_F(Folders, ADeletedWorkingDirectoryIsTheEmptyTextAndTakesNoFolder) {
    filesystem::create_directory("d");
    ASSERT_TRUE(Folder::SetCurrentWorkingDirectory("d"));
    filesystem::remove("../d");
    EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), "");
    EXPECT_FALSE(Folder::MakeDirectory("x"));
}

TEST_F(Folders, TheHomeFolderIsTheVariableAsItStands) {
    HomeVariable const home("/home/u");
    EXPECT_EQ(Folder::GetUserHomeDirectory(), "/home/u");
    for (std::string const odd : {"", " ", "~", "relative/", "/not//there/..", "\xE9\n"}) {
        HomeVariable::set(odd.c_str());
        EXPECT_EQ(Folder::GetUserHomeDirectory(), odd);
    }
    HomeVariable::set(std::string(10000, 'h').c_str());
    EXPECT_EQ(Folder::GetUserHomeDirectory(), std::string(10000, 'h'));
}

TEST_F(Folders, WithoutTheVariableTheHomeFolderIsHere) {
    HomeVariable const home(nullptr);
    EXPECT_EQ(Folder::GetUserHomeDirectory(), "./");
}

}  // namespace
