// Paths of every length from 0 to 5,000 bytes through every function: the texts against the plain
// model, the files against what the system takes.
#include "qel/File.h"
#include "qel/Folder.h"

#include "HomeVariable.h"
#include "TemporaryFolder.h"
#include "model/PlainFileNames.h"
#include "model/PlainPaths.h"

#include "Thoroughness.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <unistd.h>

namespace {

using qel::File;
using qel::Folder;

constexpr std::size_t longest = 5000;
constexpr std::size_t step = thoroughness::cases(1, 7);

class PathLengths : public TemporaryFolder {};

/// A path with all that the functions look for, here and there.
std::string patchwork(std::size_t length) {
    constexpr char piece[] = "folder.d/sub folder\\na.me:~";
    std::string path;
    while (path.size() < length)
        path += piece;
    path.resize(length);
    return path;
}

TEST_F(PathLengths, FileNamesFollowThePlainModel) {
    for (std::size_t length = 0; length <= longest; length += step) {
        std::string const path = patchwork(length);
        char const* const p = path.c_str();
        SCOPED_TRACE(length);
        ASSERT_EQ(File::ConvertFileNameToUnixStyle(p), model::exchanged(path, '\\', '/'));
        ASSERT_EQ(File::ConvertFileNameToWindowsStyle(p), model::exchanged(path, '/', '\\'));
        ASSERT_EQ(File::ConvertFileNameToNativeStyle(p), model::exchanged(path, '\\', '/'));
        ASSERT_EQ(File::IsFileNameNativeStyle(p), path.find('\\') == model::npos);
        ASSERT_EQ(File::GetParentFolder(p), model::parentFolder(path));
        ASSERT_EQ(File::GetFileName(p), model::fileName(path));
        ASSERT_EQ(File::HasExtension(p), model::hasExtension(path));
        ASSERT_EQ(File::GetExtension(p), model::extension(path));
        ASSERT_EQ(File::GetFileNameWithoutExtension(p), model::fileNameWithoutExtension(path));
        ASSERT_EQ(File::GetFullFileNameWithoutExtension(p),
                  model::fullFileNameWithoutExtension(path));
        ASSERT_EQ(File::AppendStringBeforeExtension(p, p),
                  model::appendBeforeExtension(path, path));
        ASSERT_EQ(File::AppendExtension(p, p), model::appendExtension(path, path));
        ASSERT_EQ(File::HasThisExtension(p, p, true), model::hasThisExtension(path, path, true));
        ASSERT_EQ(File::HasOneOfTheseExtensions(p, {"x", path}, false),
                  model::hasThisExtension(path, path, false)
                      || model::hasThisExtension(path, "x", false));
        ASSERT_EQ(File::MakeFullPath(p, p), model::fullPath(path, path));
        ASSERT_EQ(File::CleanFileName(p), model::exchanged(path, ' ', '_'));
    }
}

TEST_F(PathLengths, WholePathsAreJoinedTranslatedAndCopied) {
    std::vector<char> resolved(longest + 1);
    for (std::size_t length = 1; length <= longest; length += step) {
        std::string const path = patchwork(length);
        SCOPED_TRACE(length);
        std::string joined = path;
        if (joined.back() == '\\')
            joined.back() = '/';
        else if (joined.back() != '/')
            joined += '/';
        ASSERT_EQ(Folder::ConcatenatePaths(path.c_str(), path.c_str()), joined + path);
        std::size_t const colon = path.find(':');
        std::string const rest = colon == model::npos ? path : path.substr(colon + 1);
        std::string const translated = "/Volumes/" + path.substr(0, colon) + rest;
        ASSERT_EQ(Folder::TranslateAbsolutePath(path.c_str()),
                  translated.size() < 4096 ? translated : "");
        bool wasAlias = true;
        Folder::ResolveIfAlias(path.c_str(), resolved.data(), wasAlias, 1024);
        ASSERT_FALSE(wasAlias);
        ASSERT_EQ(resolved.data(), path);
        ASSERT_FALSE(Folder::IsPathAbsolute(path.c_str()));
        ASSERT_TRUE(Folder::IsPathAbsolute(('/' + path).c_str()));
    }
}

/// Names the file or folder `name` of one byte by a path of that length.
std::string pathOfLength(std::size_t length, char name) {
    if (length == 0)
        return {};
    std::string path(length, '/');
    path.front() = '.';
    path.back() = name;
    return path;
}

/// With two bytes the file would be hidden ".f", which does not exist.
bool isTaken(std::size_t length) {
    return length != 0 && length != 2 && length <= longestPath;
}

TEST_F(PathLengths, FilesAreFoundByPathsThatTheSystemTakes) {
    makeFile("f", "word");
    for (std::size_t length = 0; length <= longest; length += step) {
        std::string const path = pathOfLength(length, 'f');
        char const* const p = path.c_str();
        bool const taken = isTaken(length);
        SCOPED_TRACE(length);
        ASSERT_EQ(File::Exists(p), taken);
        ASSERT_EQ(File::ExistsAsFile(p), taken);
        ASSERT_FALSE(File::IsFolder(p));
        ASSERT_EQ(File::GetSize(p), taken ? 4 : 0);
        ASSERT_EQ(File::IsInvisible(p), taken && length > 2);
        ASSERT_EQ(File::SetInvisible(p), taken && length > 2);
        // A path that names nothing is a new file in its parent, "." and slashes or "".
        ASSERT_EQ(File::HasWriteAccess(p), taken || (length > 2 && length - 2 <= longestPath));
        std::string text = "before";
        ASSERT_EQ(File::ReadStringFromFile(text, p), taken);
        ASSERT_EQ(text, taken ? "word" : "before");
        ASSERT_FALSE(Folder::IsSymlink(p));
        if (length != 0) {
            ASSERT_EQ(Folder::MakeDirectory(p), length == 2);  // makes ".f"
            rmdir(".f");
        }
        ASSERT_EQ(Folder::GetRealPath(p), model::systemRealPath(path));
    }
}

TEST_F(PathLengths, FilesAreWrittenAndDeletedByPathsThatTheSystemTakes) {
    for (std::size_t length = 3; length <= longest; length += step) {
        std::string const path = pathOfLength(length, 'f');
        bool const taken = isTaken(length);
        SCOPED_TRACE(length);
        ASSERT_EQ(File::WriteStringToFile("new", path.c_str(), false), taken);
        ASSERT_EQ(File::WriteStringToFile("er", path.c_str(), true), taken);
        if (taken) {
            ASSERT_EQ(contentOf("f"), "newer");
        }
        ASSERT_TRUE(File::Delete(path.c_str()));
        ASSERT_FALSE(std::filesystem::exists("f"));
    }
}

TEST_F(PathLengths, FoldersAreFoundAndEnteredByPathsThatTheSystemTakes) {
    std::filesystem::create_directory("d");
    std::string const folder = here();
    for (std::size_t length = 0; length <= longest; length += step) {
        std::string const path = pathOfLength(length, 'd');
        char const* const p = path.c_str();
        bool const taken = isTaken(length);
        SCOPED_TRACE(length);
        ASSERT_EQ(Folder::IsFolder(p), taken);
        ASSERT_EQ(Folder::MakeDirectory(p), taken || length == 2);
        ASSERT_EQ(Folder::GetRealPath(p), model::systemRealPath(path));
        rmdir(".d");
        ASSERT_EQ(Folder::SetCurrentWorkingDirectory(p), taken);
        ASSERT_EQ(Folder::GetCurrentWorkingDirectory(), taken ? folder + "/d" : folder);
        std::filesystem::current_path(folder);
    }
}

TEST_F(PathLengths, HomesOfEveryLengthStandBeforeTheRest) {
    for (std::size_t length = 0; length <= longest; length += step) {
        std::string const home = patchwork(length);
        HomeVariable const variable(home.c_str());
        ASSERT_EQ(Folder::GetUserHomeDirectory(), home);
        ASSERT_EQ(Folder::GetRealPath("~/missing"), home + "/missing");
        ASSERT_EQ(Folder::GetRealPath(('~' + home).c_str()), home + home);
    }
}

TEST_F(PathLengths, TheWorkingDirectoryIsToldUpTo1023BytesWhateverItsLength) {
    for (std::size_t const length :
         {200UL, 1022UL, 1023UL, 1024UL, 1025UL, 4095UL, 4096UL, longest}) {
        SCOPED_TRACE(length);
        DeepFolder const folder(length);
        EXPECT_EQ(Folder::GetCurrentWorkingDirectory(), length < 1024 ? folder.path() : "");
        EXPECT_EQ(Folder::GetRealPath("."), length < 1024 ? folder.path() : ".");
    }
}

}  // namespace
