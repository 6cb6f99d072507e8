// What is at a path. The model asks the standard library.
#include "FileFunctions.h"
#include "PathsOfAllKinds.h"
#include "model/PlainFileNames.h"

#include "qel/File.h"

#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

namespace interface_test {

namespace {

using qel::File;
namespace filesystem = std::filesystem;

bool exists(std::string const& path) {
    std::error_code failure;
    return filesystem::exists(path, failure);
}

bool isFolder(std::string const& path) {
    std::error_code failure;
    filesystem::file_status const status = filesystem::status(path, failure);
    return filesystem::is_directory(status) || filesystem::is_socket(status)
           || filesystem::is_block_file(status);
}

bool isFile(std::string const& path) {
    return exists(path) && !isFolder(path);
}

bool isInvisible(std::string const& path) {
    return isFile(path) && path.find('.') == 0;
}

void compareSizes(Results& results) {
    PathsOfAllKinds const all;
    for (std::string const& path : all.paths()) {
        struct stat status = {};
        long long const expected = stat(path.c_str(), &status) == 0 ? status.st_size : 0;
        long long const actual = File::GetSize(path.c_str());
        EXPECT_EQ(actual, expected) << path;
        // A folder's size is the system's affair.
        if (!isFolder(path))
            results.add("", withoutTemporaryNames(path), actual);
    }
}

/// Each kind by its own folder's path: the results tell what is gone.
void deleteAllKinds(Results& results) {
    for (bool const relative : {false, true}) {
        Scratch const scratch;
        makeOrdinaryFile(scratch.path("file"), "");
        makeOrdinaryFile(scratch.path("target"), "");
        filesystem::create_directory(scratch.path("folder"));
        filesystem::create_symlink("target", scratch.path("link"));
        filesystem::create_symlink("nothing", scratch.path("dangling"));
        for (std::string const name : {"file", "folder", "link", "dangling", "nothing", "file"}) {
            std::string const path = relative ? scratch.relativePath(name) : scratch.path(name);
            bool const isDeleted = isFile(path);
            bool const wasThere =
                filesystem::is_symlink(scratch.path(name)) || exists(scratch.path(name));
            expectResult(results, File::Delete(path.c_str()), true, name, relative);
            bool const isThere =
                filesystem::is_symlink(scratch.path(name)) || exists(scratch.path(name));
            expectResult(results, isThere, wasThere && !isDeleted, name, relative);
        }
        expectResult(results, exists(scratch.path("target")), true, relative);
    }
}

}  // namespace

std::vector<Function> fileQueryFunctions() {
    std::set<State> const followed = {State::workingDirectory};
    return {
        {"File::Exists(char const*)",
         [](Results& results) { forEachPath(results, File::Exists, exists); }, followed},
        {"File::ExistsAsFile(char const*)",
         [](Results& results) { forEachPath(results, File::ExistsAsFile, isFile); }, followed},
        {"File::IsFolder(char const*)",
         [](Results& results) { forEachPath(results, File::IsFolder, isFolder); }, followed},
        {"File::GetSize(char const*)", compareSizes, followed},
        {"File::IsInvisible(char const*)",
         [](Results& results) { forEachPath(results, File::IsInvisible, isInvisible); }, followed},
        {"File::SetInvisible(char const*)",
         [](Results& results) { forEachPath(results, File::SetInvisible, isInvisible); }, followed},
        {"File::Delete(char const*)",
         [](Results& results) {
             deleteAllKinds(results);
             // None of the texts names a file.
             for (std::string const& path : texts())
                 expectResult(results, File::Delete(path.c_str()), true, path);
         },
         followed},
        {"File::HasWriteAccess(char const*)",
         [](Results& results) {
             forEachPath(results, File::HasWriteAccess, [](std::string const& path) {
                 std::string const asked = exists(path) ? path : model::parentFolder(path);
                 return access(asked.c_str(), W_OK) == 0;
             });
         },
         followed},
    };
}

}  // namespace interface_test
