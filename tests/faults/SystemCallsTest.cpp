// Every call of the system that an operation makes fails in turn: the result is the documented
// one, and no file stays open.
#include "FailingCalls.h"

#include "fs/HomeVariable.h"
#include "fs/TemporaryFolder.h"

#include "qel/File.h"
#include "qel/Folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace filesystem = std::filesystem;
using qel::File;
using qel::Folder;

/// A call, and the result of the operation when that call fails.
struct Fault {
    char const* call;
    char const* result;
};

struct Row {
    char const* name;
    std::string (*operation)();
    char const* result;
    std::vector<Fault> faults;  // for each call that is made, in their order
};

std::string show(bool result) {
    return result ? "true" : "false";
}

/// "gone" for no file; otherwise its content in quotes.
std::string show(bool result, char const* path) {
    auto const state = filesystem::exists(path) ? '"' + contentOf(path) + '"' : "gone";
    return show(result) + ' ' + state;
}

/// The text says at first what it says when it is left alone.
std::string readWord(char const* path) {
    std::string text = "untouched";
    bool const result = File::ReadStringFromFile(text, path);
    return show(result) + " \"" + text + '"';
}

std::string replace() {
    return show(File::WriteStringToFile("new", "d/old", false));
}

std::vector<Row> allRows() {
    return {
        {"exists", [] { return show(File::Exists("f")); }, "true", {{"access", "false"}}},
        {"is a file",
         [] { return show(File::ExistsAsFile("f")); },
         "true",
         {{"access", "false"}, {"stat", "true"}}},
        {"is a folder", [] { return show(File::IsFolder("d")); }, "true", {{"stat", "false"}}},
        {"is a folder too",
         [] { return show(Folder::IsFolder("d")); },
         "true",
         {{"stat", "false"}}},
        {"size", [] { return std::to_string(File::GetSize("f")); }, "9", {{"stat", "0"}}},
        {"invisible",
         [] { return show(File::IsInvisible("./f")); },
         "true",
         {{"access", "false"}, {"stat", "true"}}},
        {"set invisible",
         [] { return show(File::SetInvisible("./f")); },
         "true",
         {{"access", "false"}, {"stat", "true"}}},
        {"delete",
         [] { return show(File::Delete("f")); },
         "true",
         {{"access", "true"}, {"stat", "true"}, {"remove", "false"}}},
        {"write access",
         [] { return show(File::HasWriteAccess("d/old")); },
         "true",
         {{"access", "false"}}},
        {"write access to a new file",
         [] { return show(File::HasWriteAccess("d/new")); },
         "true",
         {{"access", "true"}, {"access", "false"}}},
        {"link", [] { return show(Folder::IsSymlink("f")); }, "false", {{"stat", "false"}}},
        {"read",
         [] { return readWord("f"); },
         R"(true "word")",
         {{"access", R"(false "untouched")"},
          {"stat", R"(true "word")"},
          {"open", R"(false "")"},
          {"read", R"(true "")"},
          {"close", R"(true "word")"}}},
        {"append",
         [] { return show(File::WriteStringToFile("new", "d/old", true)); },
         "true",
         {{"access", "false"}, {"open", "false"}, {"write", "true"}, {"close", "true"}}},
        {"replace",
         replace,
         "true",
         {{"access", "false"},
          {"access", "true"},
          {"stat", "true"},
          {"remove", "false"},
          {"open", "false"},
          {"write", "true"},
          {"close", "true"}}},
        {"make",
         [] { return show(Folder::MakeDirectory("d/x/y")); },
         "true",
         {{"stat", "true"},
          {"access", "true"},
          {"stat", "false"},
          {"stat", "false"},
          {"stat", "false"},
          {"mkdir", "false"},
          {"mkdir", "false"}}},
        {"change folder",
         [] { return show(Folder::SetCurrentWorkingDirectory(".")); },
         "true",
         {{"chdir", "false"}}},
        {"working folder",
         [] { return show(Folder::GetCurrentWorkingDirectory().empty()); },
         "false",
         {{"getcwd", "true"}}},
        {"real path", [] { return Folder::GetRealPath("/."); }, "/", {{"realpath", "/."}}},
        {"real path of home",
         [] { return Folder::GetRealPath("~/.."); },
         "/home/of/nobody/..",
         {{"realpath", "/home/of/nobody/.."}}},
    };
}

class SystemCalls : public TemporaryFolder {
  protected:
    /// What all operations find.
    static void prepare() {
        for (auto const& entry : filesystem::directory_iterator("."))
            filesystem::remove_all(entry);
        makeFile("f", "word rest");
        filesystem::create_directory("d");
        makeFile("d/old", "old");
    }

    static std::ptrdiff_t openFiles() {
        return std::distance(filesystem::directory_iterator("/proc/self/fd"), {});
    }

    /// Prepares, and runs with the n-th call failing. No file is left open.
    template <typename Operation>
    std::string run(int n, int error, Operation operation) {
        prepare();
        std::ptrdiff_t const open = openFiles();
        faults::failCall(n, error);
        std::string const result = operation();
        calls = faults::stopCalls();
        EXPECT_EQ(openFiles(), open) << "left open";
        return result;
    }

    std::vector<std::string> calls;

  private:
    HomeVariable home_{"/home/of/nobody"};
};

TEST_F(SystemCalls, EachFailureGivesTheDocumentedResult) {
    for (Row const& row : allRows()) {
        EXPECT_EQ(run(0, 0, row.operation), row.result) << row.name;
        std::vector<std::string> names;
        for (Fault const& fault : row.faults)
            names.emplace_back(fault.call);
        EXPECT_EQ(calls, names) << row.name;
        for (int const error : {EIO, EACCES, ENOMEM, EMFILE, ENOSPC, ELOOP, ENAMETOOLONG}) {
            for (int n = 1; n <= static_cast<int>(row.faults.size()); ++n) {
                Fault const& fault = row.faults[static_cast<std::size_t>(n) - 1];
                EXPECT_EQ(run(n, error, row.operation), fault.result)
                    << row.name << ": " << fault.call << ", call " << n << ", error " << error;
            }
        }
    }
}

// --- what is on the disk then ------------------------------------------------------------------

TEST_F(SystemCalls, AFileWhoseKindIsUnknownIsDeleted) {
    EXPECT_EQ(run(2, EIO, [] { return show(File::Delete("f")); }), "true");
    EXPECT_EQ(calls, (std::vector<std::string>{"access", "stat", "remove"}));
    EXPECT_FALSE(filesystem::exists("f"));
}

TEST_F(SystemCalls, AFileThatIsNotSeenIsNotDeleted) {
    EXPECT_EQ(run(1, EIO, [] { return show(File::Delete("f")); }), "true");
    EXPECT_TRUE(filesystem::exists("f"));
}

TEST_F(SystemCalls, WhatReplacingLeavesWhenACallFails) {
    struct {
        int call;
        char const* left;
    } const rows[] = {
        {1, R"(false "old")"},  // no access
        {2, R"(true "new")"},   // not seen, and so not deleted, but emptied
        {3, R"(true "new")"},   // of unknown kind
        {4, R"(false "old")"},  // not deleted
        {5, "false gone"},      // deleted, and not opened
        {6, R"(true "")"},      // opened, and not written
        {7, R"(true "new")"},   // not closed well
    };
    for (auto const& row : rows) {
        bool const result = run(row.call, EIO, replace) == "true";
        EXPECT_EQ(show(result, "d/old"), row.left) << "call " << row.call;
    }
}

TEST_F(SystemCalls, AFolderOnTheWayThatIsNotSeenIsMadeAgainInVain) {
    for (int const error : {ENOENT, ENOTDIR}) {
        // The calls are IsFolder's and Exists', then the walk from d/x/y to d.
        EXPECT_EQ(run(5, error, [] { return show(Folder::MakeDirectory("d/x/y")); }), "false");
        EXPECT_EQ(calls.back(), "mkdir");
        EXPECT_FALSE(filesystem::exists("d/x"));
        EXPECT_EQ(run(4, error, [] { return show(Folder::MakeDirectory("d/x/y")); }), "true");
        EXPECT_TRUE(filesystem::exists("d/x/y"));
    }
}

TEST_F(SystemCalls, FoldersMadeBeforeAFailureStay) {
    EXPECT_EQ(run(7, ENOSPC, [] { return show(Folder::MakeDirectory("d/x/y")); }), "false");
    EXPECT_TRUE(filesystem::exists("d/x"));
    EXPECT_FALSE(filesystem::exists("d/x/y"));
}

TEST_F(SystemCalls, WhatWasReadBeforeAFailureIsTheWord) {
    std::string const word(100000, 'w');
    makeFile("../long", word);
    std::string const all = "true \"" + word + '"';
    EXPECT_EQ(run(0, 0, [] { return readWord("../long"); }), all);
    auto const count = static_cast<int>(calls.size());
    EXPECT_GT(count, 10);
    for (int n = 5; n < count - 1; ++n) {  // from the second block on; the last call closes
        std::string const part = run(n, EIO, [] { return readWord("../long"); });
        EXPECT_EQ(part.substr(0, part.size() - 1), all.substr(0, part.size() - 1));
        EXPECT_GT(part.size(), 1000U);
        EXPECT_LT(part.size(), all.size());
    }
    filesystem::remove("../long");
}

// --- interruptions -----------------------------------------------------------------------------

TEST_F(SystemCalls, InterruptedReadsAndWritesGoOn) {
    EXPECT_EQ(run(4, EINTR, [] { return readWord("f"); }), R"(true "word")");
    EXPECT_EQ(calls[3] + calls[4], "readread");
    EXPECT_EQ(run(6, EINTR, replace), "true");
    EXPECT_EQ(calls[5] + calls[6], "writewrite");
    EXPECT_EQ(contentOf("d/old"), "new");
}

TEST_F(SystemCalls, AnInterruptedOpeningIsAFailure) {
    EXPECT_EQ(run(3, EINTR, [] { return readWord("f"); }), R"(false "")");
    EXPECT_EQ(run(2, EINTR, [] { return show(File::WriteStringToFile("new", "d/old", true)); }),
              "false");
    EXPECT_EQ(contentOf("d/old"), "old");
}

}  // namespace
