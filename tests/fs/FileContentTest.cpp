// Reading the first word of a file, and writing a string to one.
#include "qel/File.h"

#include "ShiftedBytes.h"
#include "TemporaryFolder.h"

#include <csignal>
#include <filesystem>
#include <locale>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace filesystem = std::filesystem;
using qel::File;

constexpr bool appending = true;
constexpr bool replacing = false;
constexpr std::size_t tenMegabytes = 10 * 1000 * 1000;

class FileContent : public TemporaryFolder {
  protected:
    /// What a file of `content` is read as, over a text that was there before.
    static std::string wordIn(std::string const& content) {
        makeFile("word", content);
        std::string text = "before";
        EXPECT_TRUE(File::ReadStringFromFile(text, "word"));
        return text;
    }

    static void expectUnreadAndUntouched(std::string const& path) {
        std::string text = "before";
        EXPECT_FALSE(File::ReadStringFromFile(text, path.c_str())) << path;
        EXPECT_EQ(text, "before") << path;
    }
};

// --- reading -----------------------------------------------------------------------------------

TEST_F(FileContent, OnlyTheFirstWordIsRead) {
    EXPECT_EQ(wordIn("  alpha beta\n"), "alpha");
    EXPECT_EQ(wordIn("alpha"), "alpha");
    EXPECT_EQ(wordIn("\n\n\talpha\nbeta"), "alpha");
}

TEST_F(FileContent, EachWhiteSpaceIsSkippedAndEndsTheWord) {
    for (char const space : {' ', '\t', '\n', '\v', '\f', '\r'})
        EXPECT_EQ(wordIn(std::string(3, space) + "ab" + space + "cd"), "ab") << int{space};
}

TEST_F(FileContent, EveryOtherByteBelongsToTheWord) {
    std::string word;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != ' ' && (byte < '\t' || byte > '\r'))
            word += static_cast<char>(byte);
    }
    ASSERT_EQ(word.size(), 250U);
    EXPECT_EQ(wordIn(' ' + word + ' ' + word), word);
}

TEST_F(FileContent, ZeroBytesAreRead) {
    EXPECT_EQ(wordIn(std::string("a\0b c", 5)), std::string("a\0b", 3));
    EXPECT_EQ(wordIn(std::string(2, '\0')), std::string(2, '\0'));
}

TEST_F(FileContent, AnEmptyFileIsReadAsTheEmptyText) {
    EXPECT_EQ(wordIn(""), "");
}

TEST_F(FileContent, AFileOfWhiteSpaceIsReadAsTheEmptyText) {
    EXPECT_EQ(wordIn(" \t\n\v\f\r "), "");
    EXPECT_EQ(wordIn(std::string(100000, ' ')), "");
}

TEST_F(FileContent, TenMegabytesAreOneWord) {
    std::string const word(tenMegabytes, 'w');
    EXPECT_TRUE(wordIn(word + " end") == word);
}

/// The files are read in blocks of 8192 bytes, and the bytes looked at in blocks of 16.
TEST_F(FileContent, WordsBeginAndEndAtAnyPlaceOfABlock) {
    for (std::size_t const begin : {0U, 1U, 8191U, 8192U, 8193U, 16384U}) {
        for (std::size_t const length : {1U, 2U, 15U, 16U, 17U, 31U, 8191U, 8192U, 8193U, 16384U}) {
            std::string const word(length, 'w');
            std::string const front(begin, ' ');
            EXPECT_TRUE(wordIn(front + word) == word) << begin << ", " << length;
            for (char const* end : {" ", "\n ", "\r rest and more"})
                EXPECT_TRUE(wordIn(front + word + end) == word) << begin << ", " << length;
        }
    }
}

TEST_F(FileContent, NothingIsReadFromWhereNoFileIs) {
    filesystem::create_directory("d");
    makeSocket("socket");
    filesystem::create_symlink("missing", "dangling");
    for (char const* path : {"", "missing", "d", "d/", "socket", "dangling", "missing/f"})
        expectUnreadAndUntouched(path);
    expectUnreadAndUntouched(std::string(256, 'n'));
    expectUnreadAndUntouched(std::string(5000, '/') + "etc");
}

TEST_F(FileContent, AFileThatDoesNotOpenLeavesTheTextEmpty) {
    asOrdinaryUser([] {
        makeFile("secret", "word");
        ASSERT_EQ(chmod("secret", 0), 0);
        std::string text = "before";
        EXPECT_FALSE(File::ReadStringFromFile(text, "secret"));
        EXPECT_EQ(text, "");
    });
}

TEST_F(FileContent, AFileThatCannotBeReadOnceOpenGivesTheEmptyText) {
    if (!File::ExistsAsFile("/proc/self/mem"))
        GTEST_SKIP() << "no such file here";
    std::string text = "before";
    EXPECT_TRUE(File::ReadStringFromFile(text, "/proc/self/mem"));
    EXPECT_EQ(text, "");
}

TEST_F(FileContent, AWordIsReadThroughALink) {
    makeFile("f", "linked word");
    filesystem::create_symlink("f", "link");
    std::string text;
    EXPECT_TRUE(File::ReadStringFromFile(text, "link"));
    EXPECT_EQ(text, "linked");
}

TEST_F(FileContent, AWordIsReadFromAPipeThatEnds) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    std::thread writer([] { makeFile("pipe", " piped word"); });
    std::string text;
    EXPECT_TRUE(File::ReadStringFromFile(text, "pipe"));
    EXPECT_EQ(text, "piped");
    int const reader = open("pipe", O_RDWR);  // without any, the writer would wait
    writer.join();
    close(reader);
}

/// Reads a pipe that has `content` and stays open. Ends the process, by a signal where the word
/// does not come in time.
[[noreturn]] void readOpenPipe(std::string const& content, unsigned int seconds) {
    int const pipe = open("pipe", O_RDWR);
    EXPECT_EQ(write(pipe, content.data(), content.size()), static_cast<ssize_t>(content.size()));
    alarm(seconds);
    std::string text;
    EXPECT_TRUE(File::ReadStringFromFile(text, "pipe"));
    EXPECT_EQ(text, "piped");
    leaveChild();
}

TEST_F(FileContent, AWordIsReadFromAnOpenPipeWithTheWhiteSpaceBehindIt) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EXIT(readOpenPipe(" piped ", 60), testing::ExitedWithCode(0), "");
}

TEST_F(FileContent, AnOpenPipeWithoutWhiteSpaceBehindTheWordIsWaitedFor) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EXIT(readOpenPipe(" piped", 1), testing::KilledBySignal(SIGALRM), "");
}

/// A locale to which x is white space.
class CrossesAreSpaces : public std::ctype<char> {
  public:
    CrossesAreSpaces() : std::ctype<char>(table()) {}

  private:
    static mask const* table() {
        static std::vector<mask> masks(classic_table(), classic_table() + table_size);
        masks['x'] = space;
        return masks.data();
    }
};

TEST_F(FileContent, AnApplicationsLocaleMakesNoWhiteSpace) {
    std::locale const previous =
        std::locale::global(std::locale(std::locale(), new CrossesAreSpaces));
    EXPECT_EQ(wordIn("xaxb c"), "xaxb");
    std::locale::global(previous);
}

TEST_F(FileContent, AnApplicationsLocaleChangesNoByteWritten) {
    filesystem::create_directory("dir");
    std::locale const previous = std::locale::global(std::locale(std::locale(), new ShiftedBytes));
    bool const written = File::WriteStringToFile("abc", "dir/f", replacing);
    std::locale::global(previous);
    EXPECT_TRUE(written);
    EXPECT_EQ(contentOf("dir/f"), "abc");
}

// --- writing -----------------------------------------------------------------------------------

TEST_F(FileContent, AppendingKeepsWhatIsThereAndReplacingDoesNot) {
    filesystem::create_directory("dir");
    EXPECT_TRUE(File::WriteStringToFile("a", "dir/f", appending));
    EXPECT_TRUE(File::WriteStringToFile("a", "dir/f", appending));
    EXPECT_EQ(contentOf("dir/f"), "aa");
    EXPECT_TRUE(File::WriteStringToFile("a", "dir/f", replacing));
    EXPECT_EQ(contentOf("dir/f"), "a");
    EXPECT_TRUE(File::WriteStringToFile("a", "dir/f", replacing));
    EXPECT_EQ(contentOf("dir/f"), "a");
}

TEST_F(FileContent, ABareNewNameIsNotWritten) {
    for (bool const append : {appending, replacing}) {
        EXPECT_FALSE(File::WriteStringToFile("text", "f", append));
        EXPECT_FALSE(File::WriteStringToFile("text", "", append));
        EXPECT_FALSE(File::WriteStringToFile("text", "/qel-is-not-there", append));
    }
    EXPECT_FALSE(filesystem::exists("f"));
    EXPECT_FALSE(filesystem::exists("/qel-is-not-there"));
}

TEST_F(FileContent, ABareNameIsWrittenWhereTheFileExists) {
    makeFile("f", "old");
    EXPECT_TRUE(File::WriteStringToFile("new", "f", appending));
    EXPECT_EQ(contentOf("f"), "oldnew");
    EXPECT_TRUE(File::WriteStringToFile("new", "f", replacing));
    EXPECT_EQ(contentOf("f"), "new");
}

TEST_F(FileContent, AllBytesAreWrittenAsTheyAreAndNothingBehindThem) {
    std::string text;
    for (int byte = 0; byte < 256; ++byte)
        text += static_cast<char>(byte);
    EXPECT_TRUE(File::WriteStringToFile(text, "./f", replacing));
    EXPECT_EQ(contentOf("f"), text);
    EXPECT_TRUE(File::WriteStringToFile(text, "./f", appending));
    EXPECT_EQ(contentOf("f"), text + text);
}

TEST_F(FileContent, TheEmptyTextMakesAnEmptyFile) {
    EXPECT_TRUE(File::WriteStringToFile("", "./appended", appending));
    EXPECT_TRUE(File::WriteStringToFile("", "./replaced", replacing));
    EXPECT_EQ(contentOf("appended"), "");
    EXPECT_EQ(contentOf("replaced"), "");
    makeFile("f", "old");
    EXPECT_TRUE(File::WriteStringToFile("", "f", appending));
    EXPECT_EQ(contentOf("f"), "old");
    EXPECT_TRUE(File::WriteStringToFile("", "f", replacing));
    EXPECT_EQ(contentOf("f"), "");
}

TEST_F(FileContent, TenMegabytesAreAppendedAndReplaced) {
    std::string const first(tenMegabytes, '1');
    std::string const second(tenMegabytes, '2');
    EXPECT_TRUE(File::WriteStringToFile(first, "./f", appending));
    EXPECT_TRUE(File::WriteStringToFile(second, "./f", appending));
    EXPECT_TRUE(contentOf("f") == first + second);
    EXPECT_TRUE(File::WriteStringToFile(second, "./f", replacing));
    EXPECT_TRUE(contentOf("f") == second);
}

TEST_F(FileContent, NothingIsWrittenWhereTheFileDoesNotOpen) {
    makeFile("f", "kept");
    filesystem::create_directory("d");
    makeSocket("socket");
    std::string const longName = "./" + std::string(256, 'n');
    for (bool const append : {appending, replacing}) {
        for (char const* path : {"d", "d/", "f/new", "missing/new", "socket", longName.c_str()})
            EXPECT_FALSE(File::WriteStringToFile("text", path, append)) << path;
    }
    EXPECT_EQ(contentOf("f"), "kept");
    EXPECT_TRUE(File::IsFolder("d"));
    EXPECT_TRUE(File::IsFolder("socket"));
}

TEST_F(FileContent, ReplacingMakesANewFileAndAppendingKeepsTheOld) {
    makeFile("f", "old");
    filesystem::create_hard_link("f", "other");
    EXPECT_TRUE(File::WriteStringToFile("+", "f", appending));
    EXPECT_EQ(contentOf("other"), "old+");
    EXPECT_TRUE(File::WriteStringToFile("new", "f", replacing));
    EXPECT_EQ(contentOf("f"), "new");
    EXPECT_EQ(contentOf("other"), "old+");
}

TEST_F(FileContent, ReplacingReplacesALinkAndAppendingFollowsIt) {
    makeFile("f", "old");
    filesystem::create_symlink("f", "link");
    EXPECT_TRUE(File::WriteStringToFile("+", "link", appending));
    EXPECT_EQ(contentOf("f"), "old+");
    EXPECT_TRUE(File::WriteStringToFile("new", "link", replacing));
    EXPECT_FALSE(filesystem::is_symlink("link"));
    EXPECT_EQ(contentOf("link"), "new");
    EXPECT_EQ(contentOf("f"), "old+");
}

TEST_F(FileContent, ADanglingLinkIsWrittenThrough) {
    for (bool const append : {appending, replacing}) {
        filesystem::create_symlink("target", "dangling");
        EXPECT_TRUE(File::WriteStringToFile("text", "./dangling", append));
        EXPECT_TRUE(filesystem::is_symlink("dangling"));
        EXPECT_EQ(contentOf("target"), "text");
        filesystem::remove("dangling");
        filesystem::remove("target");
    }
}

TEST_F(FileContent, AWriteThatFailsOnceTheFileIsOpenIsASuccess) {
    if (!File::ExistsAsFile("/dev/full"))
        GTEST_SKIP() << "no such device here";
    EXPECT_TRUE(File::WriteStringToFile("text", "/dev/full", appending));
    EXPECT_TRUE(File::WriteStringToFile(std::string(100000, 'x'), "/dev/full", appending));
}

TEST_F(FileContent, AReadOnlyFileIsNeitherAppendedToNorReplaced) {
    asOrdinaryUser([] {
        makeFile("f", "kept");
        ASSERT_EQ(chmod("f", 0444), 0);
        for (bool const append : {appending, replacing})
            EXPECT_FALSE(File::WriteStringToFile("text", "./f", append));
        EXPECT_EQ(contentOf("f"), "kept");
    });
}

TEST_F(FileContent, AReadOnlyFolderLetsItsFilesBeAppendedToButNotReplaced) {
    asOrdinaryUser([] {
        filesystem::create_directory("d");
        makeFile("d/f", "old");
        ASSERT_EQ(chmod("d", 0555), 0);
        EXPECT_FALSE(File::WriteStringToFile("new", "d/f", replacing));
        EXPECT_EQ(contentOf("d/f"), "old");
        EXPECT_TRUE(File::WriteStringToFile("+", "d/f", appending));
        EXPECT_EQ(contentOf("d/f"), "old+");
        for (bool const append : {appending, replacing})
            EXPECT_FALSE(File::WriteStringToFile("text", "d/new", append));
    });
}

TEST_F(FileContent, AFileIsReplacedWithoutTheRightToReadIt) {
    asOrdinaryUser([] {
        makeFile("f", "old");
        ASSERT_EQ(chmod("f", 0222), 0);
        EXPECT_TRUE(File::WriteStringToFile("new", "f", replacing));
        EXPECT_EQ(contentOf("f"), "new");
    });
}

}  // namespace
