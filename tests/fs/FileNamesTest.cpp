// File names as text: separators, parents, extensions.
#include "qel/File.h"

#include "PlainFileNameDifference.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using qel::File;

struct Row {
    char const* path;
    char const* expected;
};

void checkRows(std::string (*function)(char const*), std::vector<Row> const& rows) {
    for (Row const& row : rows)
        EXPECT_EQ(function(row.path), row.expected) << '"' << row.path << '"';
}

// --- styles ------------------------------------------------------------------------------------

TEST(FileNames, UnixStyleTurnsEveryBackslash) {
    checkRows(File::ConvertFileNameToUnixStyle,
              {{"a\\b\\c", "a/b/c"}, {"\\\\x\\", "//x/"}, {"a/b", "a/b"}, {"", ""}});
}

TEST(FileNames, WindowsStyleTurnsEverySlash) {
    checkRows(File::ConvertFileNameToWindowsStyle,
              {{"a/b/c", "a\\b\\c"}, {"//x/", "\\\\x\\"}, {"a\\b", "a\\b"}, {"", ""}});
}

TEST(FileNames, TheNativeStyleIsTheUnixStyle) {
    checkRows(File::ConvertFileNameToNativeStyle, {{"a\\b/c", "a/b/c"}, {"", ""}});
    EXPECT_FALSE(File::IsFileNameNativeStyle("a\\b"));
    EXPECT_FALSE(File::IsFileNameNativeStyle("\\"));
    EXPECT_TRUE(File::IsFileNameNativeStyle("a/b"));
    EXPECT_TRUE(File::IsFileNameNativeStyle(""));
}

TEST(FileNames, CleanFileNameTurnsSpacesAndNothingElse) {
    checkRows(
        File::CleanFileName,
        {{"my file  name", "my_file__name"}, {" ", "_"}, {"a\tb\n/\\:", "a\tb\n/\\:"}, {"", ""}});
}

// --- parent and name ---------------------------------------------------------------------------

TEST(FileNames, TheParentIsTheTextBeforeTheLastSeparatorOfEitherKind) {
    checkRows(File::GetParentFolder, {{"dir/sub/file.txt", "dir/sub"},
                                      {"C:\\dir/file", "C:\\dir"},
                                      {"dir/sub\\file", "dir/sub"},
                                      {"dir\\file", "dir"},
                                      {"a//b", "a/"}});
}

TEST(FileNames, TheParentOfABareNameIsEmpty) {
    checkRows(File::GetParentFolder, {{"file", ""}, {"", ""}, {"..", ""}});
}

TEST(FileNames, ATrailingSeparatorIsTheLastOneToTheParent) {
    checkRows(File::GetParentFolder, {{"a/b/", "a/b"}, {"a\\b\\", "a\\b"}, {"a/", "a"}});
}

TEST(FileNames, TheParentOfANameInTheRootIsEmptyNotTheRoot) {
    checkRows(File::GetParentFolder, {{"/x", ""}, {"/", ""}, {"\\x", ""}});
}

TEST(FileNames, TheFileNameIsTheTextBehindTheLastSeparatorOfEitherKind) {
    checkRows(File::GetFileName, {{"dir\\sub/file.txt", "file.txt"},
                                  {"dir/sub\\file.txt", "file.txt"},
                                  {"file", "file"},
                                  {"dir/", ""},
                                  {"dir\\", ""},
                                  {"/x", "x"},
                                  {"", ""}});
}

// --- extensions --------------------------------------------------------------------------------

TEST(FileNames, TheExtensionIsWhatFollowsTheLastDotOfTheWholePath) {
    checkRows(File::GetExtension, {{"dir/file.tar.gz", "gz"},
                                   {"dir.d/file", "d/file"},
                                   {"my.folder/file", "folder/file"},
                                   {".profile", "profile"},
                                   {"..", ""},
                                   {"file.", ""},
                                   {"file", ""},
                                   {"", ""}});
}

TEST(FileNames, ADotAnywhereIsAnExtension) {
    for (char const* path : {"a.b", "a.", ".", "dir.d/file"})
        EXPECT_TRUE(File::HasExtension(path)) << path;
    for (char const* path : {"", "file", "dir/file"})
        EXPECT_FALSE(File::HasExtension(path)) << path;
}

TEST(FileNames, TheNameWithoutExtensionLooksForTheDotInTheNameOnly) {
    checkRows(File::GetFileNameWithoutExtension, {{"dir/file.txt", "file"},
                                                  {"archive.tar.gz", "archive.tar"},
                                                  {"my.folder/file", "file"},
                                                  {".profile", ""},
                                                  {"file.", "file"},
                                                  {"a.b.a.b", "a.b.a"},
                                                  {"dir/", ""},
                                                  {"", ""}});
}

TEST(FileNames, TheFullNameWithoutExtensionEndsAtADotInAFolderToo) {
    checkRows(File::GetFullFileNameWithoutExtension, {{"dir/file.txt", "dir/file"},
                                                      {"my.folder/file", "my"},
                                                      {"a/.profile", "a/"},
                                                      {"dir/file", "dir/file"},
                                                      {"file..", "file."},
                                                      {"", ""}});
}

TEST(FileNames, TextBeforeTheExtensionReplacesTheDot) {
    EXPECT_EQ(File::AppendStringBeforeExtension("file.txt", "_1"), "file_1txt");
    EXPECT_EQ(File::AppendStringBeforeExtension("report.txt", "_old"), "report_oldtxt");
    EXPECT_EQ(File::AppendStringBeforeExtension("my.folder/file", "_"), "my_folder/file");
    EXPECT_EQ(File::AppendStringBeforeExtension("file.txt", ""), "filetxt");
}

TEST(FileNames, TextBeforeNoExtensionIsAppended) {
    EXPECT_EQ(File::AppendStringBeforeExtension("file", "_1"), "file_1");
    EXPECT_EQ(File::AppendStringBeforeExtension("file.", "_1"), "file_1");
    EXPECT_EQ(File::AppendStringBeforeExtension("", ""), "");
}

TEST(FileNames, HasThisExtensionDropsOneLeadingDotAndHeedsTheCaseOnRequest) {
    for (char const* extension : {"TXT", ".TXT"}) {
        EXPECT_TRUE(File::HasThisExtension("a.TXT", extension, false));
        EXPECT_TRUE(File::HasThisExtension("a.txt", extension, true));
    }
    EXPECT_FALSE(File::HasThisExtension("a.TXT", ".txt", false));
    EXPECT_TRUE(File::HasThisExtension("a.TXT", ".txt", true));
    EXPECT_FALSE(File::HasThisExtension("a.txt", "..txt", true));
    EXPECT_FALSE(File::HasThisExtension("a.txt", "tx", true));
}

TEST(FileNames, APathWithoutADotHasTheEmptyExtension) {
    for (bool const ignoreCase : {false, true}) {
        EXPECT_TRUE(File::HasThisExtension("a", "", ignoreCase));
        EXPECT_TRUE(File::HasThisExtension("a", ".", ignoreCase));
        EXPECT_TRUE(File::HasThisExtension("a.", "", ignoreCase));
        EXPECT_FALSE(File::HasThisExtension("a.b", "", ignoreCase));
        EXPECT_FALSE(File::HasThisExtension("a", "a", ignoreCase));
    }
}

TEST(FileNames, AnExtensionOfTwoPartsNeverMatches) {
    EXPECT_FALSE(File::HasThisExtension("a.tar.gz", ".tar.gz", false));
    EXPECT_FALSE(File::HasThisExtension("a.tar.gz", "tar.gz", true));
    EXPECT_TRUE(File::HasThisExtension("a.tar.gz", "gz", false));
}

TEST(FileNames, OneOfTheExtensionsIsEnoughAndNoneNever) {
    EXPECT_TRUE(File::HasOneOfTheseExtensions("a.gz", {"zip", ".gz"}, false));
    EXPECT_TRUE(File::HasOneOfTheseExtensions("a.gz", {"gz", "zip"}, false));
    EXPECT_TRUE(File::HasOneOfTheseExtensions("a", {"gz", ""}, false));
    EXPECT_FALSE(File::HasOneOfTheseExtensions("a.gz", {"zip", "GZ"}, false));
    EXPECT_TRUE(File::HasOneOfTheseExtensions("a.gz", {"zip", "GZ"}, true));
    EXPECT_FALSE(File::HasOneOfTheseExtensions("a.gz", {}, true));
    EXPECT_FALSE(File::HasOneOfTheseExtensions("a", {}, true));
}

TEST(FileNames, AppendExtensionPutsOneDotBetween) {
    for (char const* extension : {"txt", ".txt"}) {
        EXPECT_EQ(File::AppendExtension("notes", extension), "notes.txt");
        EXPECT_EQ(File::AppendExtension("notes.", extension), "notes.txt");
        EXPECT_EQ(File::AppendExtension("notes.doc", extension), "notes.doc.txt");
        EXPECT_EQ(File::AppendExtension("", extension), ".txt");
    }
    EXPECT_EQ(File::AppendExtension("notes..", "txt"), "notes..txt");
    EXPECT_EQ(File::AppendExtension("my.folder/notes", "txt"), "my.folder/notes.txt");
}

TEST(FileNames, AppendExtensionLeavesAPathThatHasItInAnyCase) {
    EXPECT_EQ(File::AppendExtension("NOTES.TXT", "txt"), "NOTES.TXT");
    EXPECT_EQ(File::AppendExtension("notes.txt", ".TXT"), "notes.txt");
    EXPECT_EQ(File::AppendExtension("my.folder/notes", "folder/notes"), "my.folder/notes");
}

TEST(FileNames, TheEmptyExtensionIsThereUnlessThePathHasAnother) {
    EXPECT_EQ(File::AppendExtension("notes", ""), "notes");
    EXPECT_EQ(File::AppendExtension("notes.", "."), "notes.");
    EXPECT_EQ(File::AppendExtension("notes.txt", ""), "notes.txt.");
    EXPECT_EQ(File::AppendExtension("notes.txt", "."), "notes.txt.");
}

// --- full paths --------------------------------------------------------------------------------

TEST(FileNames, MakeFullPathTakesOnlyTheNameOfTheFile) {
    EXPECT_EQ(File::MakeFullPath("/x/y/name.dat", "/base"), "/base/name.dat");
    EXPECT_EQ(File::MakeFullPath("name.dat", "/base/"), "/base/name.dat");
    EXPECT_EQ(File::MakeFullPath("x\\name.dat", "base"), "base/name.dat");
    EXPECT_EQ(File::MakeFullPath("dir/", "base"), "base/");
}

TEST(FileNames, MakeFullPathInAnEmptyFolderIsTheBareName) {
    EXPECT_EQ(File::MakeFullPath("name.dat", ""), "name.dat");
    EXPECT_EQ(File::MakeFullPath("/x/name.dat", ""), "name.dat");
    EXPECT_EQ(File::MakeFullPath("", ""), "");
}

TEST(FileNames, MakeFullPathIsInUnixStyleAndOnlyASlashSeparates) {
    EXPECT_EQ(File::MakeFullPath("n", "C:\\d"), "C:/d/n");
    EXPECT_EQ(File::MakeFullPath("n", "C:\\d\\"), "C:/d//n");
    EXPECT_EQ(File::MakeFullPath("n", "a//"), "a//n");
}

// --- all of it, against the plain steps --------------------------------------------------------

/// Texts of the bytes that the functions look at, and some that they do not.
class RandomPaths {
  public:
    std::string next() {
        static constexpr std::string_view alphabet = "//\\\\...aAbB \xC9\xE9";
        std::string text;
        for (std::size_t length = random_() % 12; length > 0; --length)
            text += alphabet[random_() % alphabet.size()];
        return text;
    }

  private:
    std::mt19937 random_{521};
};

TEST(FileNames, AgreeWithThePlainStepsForRandomPaths) {
    RandomPaths paths;
    for (int i = 0; i < 200000; ++i) {
        std::string const path = paths.next();
        ASSERT_EQ(file_name_test::difference(path), "") << '"' << path << '"';
    }
}

TEST(FileNames, AgreeWithThePlainStepsForRandomPairs) {
    RandomPaths paths;
    for (int i = 0; i < 200000; ++i) {
        std::string const path = paths.next();
        std::string const other = i % 2 == 0 ? paths.next() : paths.next().substr(0, 2);
        ASSERT_EQ(file_name_test::difference(path, other), "")
            << '"' << path << "\" \"" << other << '"';
    }
}

}  // namespace
