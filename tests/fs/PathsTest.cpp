// Whole paths: joined, absolute, real, and what an alias leads to.
#include "qel/Folder.h"

#include "HomeVariable.h"
#include "TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace {

namespace filesystem = std::filesystem;
using qel::Folder;

class Paths : public TemporaryFolder {};

// --- text --------------------------------------------------------------------------------------

TEST(PathText, ConcatenatedPathsHaveOneSeparatorBetweenThem) {
    EXPECT_EQ(Folder::ConcatenatePaths("", "x"), "x");
    EXPECT_EQ(Folder::ConcatenatePaths("a\\", "x"), "a/x");
    EXPECT_EQ(Folder::ConcatenatePaths("a/", "x"), "a/x");
    EXPECT_EQ(Folder::ConcatenatePaths("a", "x"), "a/x");
    EXPECT_EQ(Folder::ConcatenatePaths("a", ""), "a/");
    EXPECT_EQ(Folder::ConcatenatePaths("", ""), "");
}

TEST(PathText, OnlyOneBackslashIsReplacedAndOnlyAtTheEnd) {
    EXPECT_EQ(Folder::ConcatenatePaths("a\\\\", "x"), "a\\/x");
    EXPECT_EQ(Folder::ConcatenatePaths("a\\b", "x"), "a\\b/x");
    EXPECT_EQ(Folder::ConcatenatePaths("\\", "x"), "/x");
    EXPECT_EQ(Folder::ConcatenatePaths("a/\\", "x"), "a//x");
}

TEST(PathText, TheNameIsNeverLookedAt) {
    EXPECT_EQ(Folder::ConcatenatePaths("a/", "/b"), "a//b");
    EXPECT_EQ(Folder::ConcatenatePaths("a", "/b"), "a//b");
    EXPECT_EQ(Folder::ConcatenatePaths("a", "\\b"), "a/\\b");
    EXPECT_EQ(Folder::ConcatenatePaths("", "/b"), "/b");
    EXPECT_EQ(Folder::ConcatenatePaths("/", "b"), "/b");
}

TEST(PathText, AbsoluteIsALeadingSlashOrAColonWithASlashAnywhere) {
    for (char const* path : {"/", "/x", "Disk:/x", ":/", "a/b:/c", "https://x"})
        EXPECT_TRUE(Folder::IsPathAbsolute(path)) << path;
    for (char const* path : {"", "Disk:x", "x/", "Disk:\\x", "a: /b", "\\x", ":"})
        EXPECT_FALSE(Folder::IsPathAbsolute(path)) << path;
}

TEST(PathText, APathFromTheRootIsTranslatedToItself) {
    for (char const* path : {"/x", "/", "/a:b/c", "/Volumes/Disk"})
        EXPECT_EQ(Folder::TranslateAbsolutePath(path), path);
}

TEST(PathText, AVolumesPathIsTranslatedWithoutItsFirstColonOnly) {
    EXPECT_EQ(Folder::TranslateAbsolutePath("Disk:/Users/me"), "/Volumes/Disk/Users/me");
    EXPECT_EQ(Folder::TranslateAbsolutePath("V:/a:b"), "/Volumes/V/a:b");
    EXPECT_EQ(Folder::TranslateAbsolutePath("V:a"), "/Volumes/Va");
    EXPECT_EQ(Folder::TranslateAbsolutePath("V:"), "/Volumes/V");
    EXPECT_EQ(Folder::TranslateAbsolutePath(":/a"), "/Volumes//a");
    EXPECT_EQ(Folder::TranslateAbsolutePath(":"), "/Volumes/");
}

TEST(PathText, WithoutAColonTheTextComesTwice) {
    EXPECT_EQ(Folder::TranslateAbsolutePath("Disk"), "/Volumes/DiskDisk");
    EXPECT_EQ(Folder::TranslateAbsolutePath("a/b"), "/Volumes/a/ba/b");
    EXPECT_EQ(Folder::TranslateAbsolutePath(""), "/Volumes/");
}

TEST(PathText, MacOsRomanIsTranslatedToUtf8) {
    EXPECT_EQ(Folder::TranslateAbsolutePath("/caf\x8E"), "/caf\xC3\xA9");
    EXPECT_EQ(Folder::TranslateAbsolutePath("\xDB:/\xF0"), "/Volumes/\xE2\x82\xAC/\xEF\xA3\xBF");
}

TEST(PathText, ATranslationOf4096BytesWithItsTerminatorFitsAndALongerOneIsEmpty) {
    std::string const fits = '/' + std::string(4094, 'a');
    EXPECT_EQ(Folder::TranslateAbsolutePath(fits.c_str()), fits);
    EXPECT_EQ(Folder::TranslateAbsolutePath((fits + 'a').c_str()), "");
    // The same with a byte that becomes two, and one that becomes three.
    EXPECT_EQ(Folder::TranslateAbsolutePath(('/' + std::string(4092, 'a') + '\x8E').c_str()),
              '/' + std::string(4092, 'a') + "\xC3\xA9");
    EXPECT_EQ(Folder::TranslateAbsolutePath(('/' + std::string(4093, 'a') + '\x8E').c_str()), "");
    EXPECT_EQ(Folder::TranslateAbsolutePath(('/' + std::string(4091, 'a') + '\xDB').c_str()),
              '/' + std::string(4091, 'a') + "\xE2\x82\xAC");
    EXPECT_EQ(Folder::TranslateAbsolutePath(('/' + std::string(4092, 'a') + '\xDB').c_str()), "");
    EXPECT_EQ(Folder::TranslateAbsolutePath(std::string(1000000, 'a').c_str()), "");
}

// --- links -------------------------------------------------------------------------------------

TEST_F(Paths, NothingIsASymlinkNotEvenALink) {
    makeFile("f");
    filesystem::create_directory("d");
    filesystem::create_symlink("f", "to-file");
    filesystem::create_symlink("d", "to-folder");
    filesystem::create_symlink("to-file", "to-link");
    filesystem::create_symlink("missing", "dangling");
    filesystem::create_symlink("self", "self");
    makeSocket("socket");
    for (char const* path : {"f", "d", "to-file", "to-folder", "to-folder/", "to-link", "dangling",
                             "self", "socket", "missing", ""})
        EXPECT_FALSE(Folder::IsSymlink(path)) << path;
}

TEST_F(Paths, WhatIsNoAliasIsCopiedWithoutABound) {
    makeFile("f");
    filesystem::create_symlink("f", "link");
    for (std::string const path : {"f", "link", ".", "missing", ""}) {
        std::string resolved(10, '#');
        bool wasAlias = true;
        Folder::ResolveIfAlias(path.c_str(), resolved.data(), wasAlias, 2);
        EXPECT_EQ(resolved, path + '\0' + std::string(9 - path.size(), '#'));
        EXPECT_FALSE(wasAlias);
    }
}

// --- real paths --------------------------------------------------------------------------------

TEST_F(Paths, TheRealPathIsCanonical) {
    filesystem::create_directories("d/e");
    makeFile("d/f");
    filesystem::create_symlink("d", "link");
    EXPECT_EQ(Folder::GetRealPath("."), Folder::GetCurrentWorkingDirectory());
    EXPECT_EQ(Folder::GetRealPath("."), here());
    EXPECT_EQ(Folder::GetRealPath("d/"), here() + "/d");
    EXPECT_EQ(Folder::GetRealPath(".//d/e/../f"), here() + "/d/f");
    EXPECT_EQ(Folder::GetRealPath("link/e/.."), here() + "/d");
    EXPECT_EQ(Folder::GetRealPath("/"), "/");
}

TEST_F(Paths, APathWithoutARealOneStaysAsItIs) {
    makeFile("f");
    filesystem::create_symlink("missing", "dangling");
    filesystem::create_symlink("self", "self");
    for (char const* path : {"no/such/path", "", "./missing", "f/", "f/x", "dangling", "self"})
        EXPECT_EQ(Folder::GetRealPath(path), path);
    std::string const longName(256, 'n');
    EXPECT_EQ(Folder::GetRealPath(longName.c_str()), longName);
}

TEST_F(Paths, ARealPathHasUpTo1023Bytes) {
    std::string const folder = makeFolderOfLength(1000);
    filesystem::create_symlink(folder, "link");
    for (std::size_t const length : {1022UL, 1023UL, 1024UL, 1025UL, 1200UL}) {
        std::string const name(length - folder.size() - 1, 'n');
        std::string const path = "link/" + name;
        filesystem::create_directory(path);
        EXPECT_EQ(Folder::GetRealPath(path.c_str()), length < 1024 ? folder + '/' + name : path);
        filesystem::remove(path);  // now, by a path that every system takes
    }
}

TEST_F(Paths, ALongPathMayHaveAShortRealOne) {
    std::string path = ".";
    while (path.size() < 1023)
        path += "/.";
    EXPECT_EQ(Folder::GetRealPath(path.c_str()), here());
}

TEST_F(Paths, APathOver4096BytesThatIsNotThereStaysAsItIs) {
    std::string path = "./x";
    while (path.size() <= 4096)
        path += "/x";
    EXPECT_EQ(Folder::GetRealPath(path.c_str()), path);
}

TEST_F(Paths, InADeletedWorkingDirectoryNoRelativePathIsReal) {
    filesystem::create_directory("d");
    filesystem::current_path("d");
    filesystem::remove("../d");
    EXPECT_EQ(Folder::GetRealPath("."), ".");
    EXPECT_EQ(Folder::GetRealPath("x"), "x");
    EXPECT_EQ(Folder::GetRealPath("/"), "/");
}

TEST_F(Paths, ATildeInFrontIsTheHomeFolderThatNeedNotExist) {
    HomeVariable const home("/not/there");
    EXPECT_EQ(Folder::GetRealPath("~"), "/not/there");
    EXPECT_EQ(Folder::GetRealPath("~/Documents"), "/not/there/Documents");
    EXPECT_EQ(Folder::GetRealPath("~user"), "/not/thereuser");
    EXPECT_EQ(Folder::GetRealPath("~/a~b/.."), "/not/there/a~b/..");
    EXPECT_EQ(Folder::GetRealPath("~~"), "/not/there~");
}

TEST_F(Paths, ATildeElsewhereIsNoHomeFolder) {
    HomeVariable const home("/not/there");
    makeFile("a~");
    for (char const* path : {"x/~", "/~", "\\~", " ~"})
        EXPECT_EQ(Folder::GetRealPath(path), path);
    EXPECT_EQ(Folder::GetRealPath("a~"), here() + "/a~");
    makeFile("~here");
    EXPECT_EQ(Folder::GetRealPath("./~here"), here() + "/~here");
}

TEST_F(Paths, ATildeExpandsToTheVariableHoweverOdd) {
    HomeVariable const home(nullptr);
    EXPECT_EQ(Folder::GetRealPath("~"), "./");
    EXPECT_EQ(Folder::GetRealPath("~/x"), ".//x");
    HomeVariable::set("");
    EXPECT_EQ(Folder::GetRealPath("~"), "");
    EXPECT_EQ(Folder::GetRealPath("~/x"), "/x");
    HomeVariable::set("~");
    EXPECT_EQ(Folder::GetRealPath("~/x"), "~/x");
}

TEST_F(Paths, OfAnExistingFileWithATildeInFrontTheHomeFolderTakesTheRest) {
    HomeVariable const home("/home/u");
    makeFile("~notes");
    EXPECT_EQ(Folder::GetRealPath("~notes"), "/home/unotes");
    filesystem::create_directory("~");
    makeFile("~/f");
    EXPECT_EQ(Folder::GetRealPath("~/f"), "/home/u/f");
}

TEST_F(Paths, TheFirstTildeOfTheRealPathCountsEvenInAFolderAbove) {
    HomeVariable const home("/home/u");
    filesystem::create_directory("a~b");
    filesystem::current_path("a~b");
    makeFile("~notes");
    EXPECT_EQ(Folder::GetRealPath("~notes"), "/home/ub/~notes");
    filesystem::current_path("..");
}

TEST_F(Paths, ARealPathWithoutATildeComesWholeBehindTheHomeFolder) {
    HomeVariable const home("/home/u");
    makeFile("f");
    filesystem::create_symlink("f", "~link");
    EXPECT_EQ(Folder::GetRealPath("~link"), "/home/u" + here() + "/f");
}

}  // namespace
