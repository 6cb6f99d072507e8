// What is at a path: existence, kind, size, invisibility, deletion, write access.
#include "qel/File.h"

#include "TemporaryFolder.h"

#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace {

namespace filesystem = std::filesystem;
using qel::File;

class Files : public TemporaryFolder {};

struct Kind {
    bool exists;
    bool isFile;
    bool isFolder;
};

constexpr Kind nothing = {false, false, false};
constexpr Kind file = {true, true, false};
constexpr Kind folder = {true, false, true};

void expectKind(std::string const& path, Kind const& kind) {
    EXPECT_EQ(File::Exists(path.c_str()), kind.exists) << path;
    EXPECT_EQ(File::ExistsAsFile(path.c_str()), kind.isFile) << path;
    EXPECT_EQ(File::IsFolder(path.c_str()), kind.isFolder) << path;
}

// --- existence and kind ------------------------------------------------------------------------

TEST_F(Files, TheEmptyPathNamesNothing) {
    expectKind("", nothing);
    EXPECT_EQ(File::GetSize(""), 0);
    EXPECT_FALSE(File::IsInvisible(""));
    EXPECT_FALSE(File::SetInvisible(""));
    EXPECT_FALSE(File::HasWriteAccess(""));
    EXPECT_TRUE(File::Delete(""));
}

TEST_F(Files, AFileAFolderAndNothingAreToldApart) {
    makeFile("f");
    filesystem::create_directory("d");
    expectKind("f", file);
    expectKind("d", folder);
    expectKind("d/", folder);
    expectKind(".", folder);
    expectKind("missing", nothing);
    expectKind("d/missing", nothing);
    expectKind("f/", nothing);
    expectKind("f/x", nothing);
}

TEST_F(Files, ASocketIsAFolder) {
    makeSocket("socket");
    expectKind("socket", folder);
}

TEST_F(Files, ABlockDeviceIsAFolder) {
    constexpr dev_t someDevice = 0x7FA;
    if (mknod("block", S_IFBLK | 0600, someDevice) != 0)
        GTEST_SKIP() << "only a superuser makes devices";
    expectKind("block", folder);
}

TEST_F(Files, APipeAndACharacterDeviceAreFiles) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    expectKind("pipe", file);
    expectKind("/dev/null", file);
}

TEST_F(Files, LinksCountAsWhatTheyLeadTo) {
    makeFile("f");
    filesystem::create_directory("d");
    filesystem::create_symlink("f", "to-file");
    filesystem::create_symlink("d", "to-folder");
    filesystem::create_symlink("to-file", "to-link");
    expectKind("to-file", file);
    expectKind("to-folder", folder);
    expectKind("to-link", file);
}

TEST_F(Files, ADanglingLinkAndALoopNameNothing) {
    filesystem::create_symlink("missing", "dangling");
    filesystem::create_symlink("second", "first");
    filesystem::create_symlink("first", "second");
    filesystem::create_symlink("self", "self");
    expectKind("dangling", nothing);
    expectKind("first", nothing);
    expectKind("self", nothing);
}

TEST_F(Files, NamesReach255Bytes) {
    std::string const longest(255, 'n');
    makeFile(longest, "abc");
    expectKind(longest, file);
    EXPECT_EQ(File::GetSize(longest.c_str()), 3);
    expectKind(longest + 'n', nothing);
    EXPECT_EQ(File::GetSize((longest + 'n').c_str()), 0);
}

TEST_F(Files, APathHasTheBytesThatTheSystemTakesAndNotOneMore) {
    std::string const deep = makeFolderOfLength(longestPath - 2);
    std::string const longest = deep + "/f";
    makeFile(longest, "abc");
    expectKind(deep, folder);
    expectKind(longest, file);
    EXPECT_EQ(File::GetSize(longest.c_str()), 3);
    std::string const tooLong = deep + "//f";
    expectKind(tooLong, nothing);
    EXPECT_EQ(File::GetSize(tooLong.c_str()), 0);
    EXPECT_TRUE(File::Delete(tooLong.c_str()));
    expectKind(longest, file);
    EXPECT_TRUE(File::Delete(longest.c_str()));
    expectKind(longest, nothing);
}

TEST_F(Files, BytesInNamesAreOpaque) {
    makeFile("\x01 \xE9\n*", "ab");
    expectKind("\x01 \xE9\n*", file);
    EXPECT_EQ(File::GetSize("\x01 \xE9\n*"), 2);
}

TEST_F(Files, AFileInAFolderThatCannotBeSearchedIsNotThere) {
    asOrdinaryUser([] {
        filesystem::create_directory("closed");
        makeFile("closed/f", "abc");
        ASSERT_EQ(chmod("closed", 0600), 0);
        expectKind("closed", folder);
        expectKind("closed/f", nothing);
        EXPECT_EQ(File::GetSize("closed/f"), 0);
        EXPECT_TRUE(File::Delete("closed/f"));
        ASSERT_EQ(chmod("closed", 0700), 0);
        expectKind("closed/f", file);
    });
}

// --- size --------------------------------------------------------------------------------------

TEST_F(Files, SizesAreInBytesAndMissingOnesZero) {
    makeFile("empty");
    makeFile("three", std::string("a\0b", 3));
    makeFile("four", std::string("a\0b\n", 4));
    EXPECT_EQ(File::GetSize("empty"), 0);
    EXPECT_EQ(File::GetSize("three"), 3);
    EXPECT_EQ(File::GetSize("four"), 4);
    EXPECT_EQ(File::GetSize("missing"), 0);
}

TEST_F(Files, SizesPassFourGibibytes) {
    makeFile("sparse");
    filesystem::resize_file("sparse", 5368709123);
    EXPECT_EQ(File::GetSize("sparse"), 5368709123);
}

TEST_F(Files, TheSizeOfAFolderIsTheSystems) {
    struct stat status = {};
    ASSERT_EQ(stat(".", &status), 0);
    EXPECT_EQ(File::GetSize("."), status.st_size);
}

TEST_F(Files, TheSizeOfALinkIsThatOfItsTarget) {
    makeFile("f", std::string(1000, 'x'));
    filesystem::create_symlink("f", "link");
    EXPECT_EQ(File::GetSize("link"), 1000);
}

// --- invisibility ------------------------------------------------------------------------------

TEST_F(Files, InvisibleIsAFileWhosePathBeginsWithADot) {
    filesystem::create_directory("dir");
    makeFile(".cfg");
    makeFile("dir/.cfg");
    makeFile("notes");
    EXPECT_TRUE(File::IsInvisible(".cfg"));
    EXPECT_TRUE(File::IsInvisible("./notes"));
    EXPECT_TRUE(File::IsInvisible("./dir/.cfg"));
    EXPECT_FALSE(File::IsInvisible("dir/.cfg"));
    EXPECT_FALSE(File::IsInvisible((here() + "/.cfg").c_str()));
    EXPECT_FALSE(File::IsInvisible("notes"));
}

TEST_F(Files, AFolderOrWhatIsMissingIsNeverInvisible) {
    filesystem::create_directory(".cfg");
    makeSocket(".socket");
    for (char const* path : {".cfg", ".", "..", ".socket", ".missing"}) {
        EXPECT_FALSE(File::IsInvisible(path)) << path;
        EXPECT_FALSE(File::SetInvisible(path)) << path;
    }
}

TEST_F(Files, SetInvisibleAnswersAndChangesNothing) {
    makeFile("data", "kept");
    makeFile(".data", "kept too");
    EXPECT_FALSE(File::SetInvisible("data"));
    EXPECT_TRUE(File::SetInvisible(".data"));
    EXPECT_EQ(contentOf("data"), "kept");
    EXPECT_EQ(contentOf(".data"), "kept too");
    auto const entries = filesystem::directory_iterator(".");
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);
}

// --- deletion ----------------------------------------------------------------------------------

TEST_F(Files, DeleteRemovesAFile) {
    makeFile("f");
    EXPECT_TRUE(File::Delete("f"));
    expectKind("f", nothing);
}

TEST_F(Files, DeleteOfAMissingFileSucceeds) {
    EXPECT_TRUE(File::Delete("missing"));
    EXPECT_TRUE(File::Delete("missing/f"));
}

TEST_F(Files, DeleteOfAFolderSucceedsAndLeavesIt) {
    filesystem::create_directory("d");
    makeFile("d/f");
    EXPECT_TRUE(File::Delete("d"));
    EXPECT_TRUE(File::Delete("d/"));
    expectKind("d", folder);
    expectKind("d/f", file);
}

TEST_F(Files, DeleteOfASocketSucceedsAndLeavesIt) {
    makeSocket("socket");
    EXPECT_TRUE(File::Delete("socket"));
    expectKind("socket", folder);
}

TEST_F(Files, DeleteRemovesAPipe) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_TRUE(File::Delete("pipe"));
    expectKind("pipe", nothing);
}

TEST_F(Files, DeleteRemovesALinkToAFileAndLeavesTheFile) {
    makeFile("f");
    filesystem::create_symlink("f", "link");
    EXPECT_TRUE(File::Delete("link"));
    EXPECT_FALSE(filesystem::is_symlink("link"));
    expectKind("f", file);
}

TEST_F(Files, DeleteLeavesALinkToAFolderOrToNothing) {
    filesystem::create_directory("d");
    filesystem::create_symlink("d", "to-folder");
    filesystem::create_symlink("missing", "dangling");
    EXPECT_TRUE(File::Delete("to-folder"));
    EXPECT_TRUE(File::Delete("dangling"));
    EXPECT_TRUE(filesystem::is_symlink("to-folder"));
    EXPECT_TRUE(filesystem::is_symlink("dangling"));
}

TEST_F(Files, DeleteFailsWhereTheFolderIsReadOnly) {
    asOrdinaryUser([] {
        filesystem::create_directory("d");
        makeFile("d/f", "kept");
        ASSERT_EQ(chmod("d", 0555), 0);
        EXPECT_FALSE(File::Delete("d/f"));
        EXPECT_EQ(contentOf("d/f"), "kept");
    });
}

TEST_F(Files, DeleteAsksTheFolderNotTheFileForPermission) {
    asOrdinaryUser([] {
        makeFile("f");
        ASSERT_EQ(chmod("f", 0), 0);
        EXPECT_TRUE(File::Delete("f"));
        expectKind("f", nothing);
    });
}

// --- write access ------------------------------------------------------------------------------

TEST_F(Files, WriteAccessOfWhatExistsIsItsOwn) {
    asOrdinaryUser([] {
        makeFile("open");
        makeFile("locked");
        filesystem::create_directory("open-folder");
        filesystem::create_directory("locked-folder");
        makeFile("locked-folder/open");
        ASSERT_EQ(chmod("locked", 0444), 0);
        ASSERT_EQ(chmod("locked-folder", 0555), 0);
        for (char const* path : {"open", "./open", "open-folder", "locked-folder/open"})
            EXPECT_TRUE(File::HasWriteAccess(path)) << path;
        for (char const* path : {"locked", "./locked", "locked-folder", "/"})
            EXPECT_FALSE(File::HasWriteAccess(path)) << path;
    });
}

TEST_F(Files, WriteAccessOfWhatIsMissingIsItsParents) {
    asOrdinaryUser([] {
        filesystem::create_directory("open");
        filesystem::create_directory("locked");
        ASSERT_EQ(chmod("locked", 0555), 0);
        EXPECT_TRUE(File::HasWriteAccess("open/new"));
        EXPECT_TRUE(File::HasWriteAccess("./new"));
        EXPECT_FALSE(File::HasWriteAccess("locked/new"));
        EXPECT_FALSE(File::HasWriteAccess("missing/new"));
    });
}

TEST_F(Files, ANewFileMustBeNamedWithAFolder) {
    EXPECT_FALSE(File::HasWriteAccess("new"));
    EXPECT_FALSE(File::HasWriteAccess("/qel-is-not-there"));
    makeFile("new");
    EXPECT_TRUE(File::HasWriteAccess("new"));
}

TEST_F(Files, TheParentOfAMissingPathMayBeAnyThingThatCanBeWritten) {
    makeFile("f");
    filesystem::create_directory("d");
    EXPECT_TRUE(File::HasWriteAccess("f/new"));
    EXPECT_TRUE(File::HasWriteAccess("d\\new"));
    EXPECT_TRUE(File::HasWriteAccess(("d/" + std::string(256, 'n')).c_str()));
}

}  // namespace
