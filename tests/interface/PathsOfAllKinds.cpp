#include "PathsOfAllKinds.h"

#include "fs/TemporaryFolder.h"

namespace interface_test {

namespace filesystem = std::filesystem;

PathsOfAllKinds::PathsOfAllKinds() : paths_(texts()) {
    makeOrdinaryFile(scratch_.path("file"), "12345");
    makeOrdinaryFile(scratch_.path("R\xC3\x89SUM\xC3\x89.\xC3\x89"), "1");
    filesystem::create_directory(scratch_.path("folder"));
    filesystem::permissions(scratch_.path("folder"), filesystem::perms(0755));
    filesystem::create_symlink("file", scratch_.path("link"));
    filesystem::create_symlink("folder", scratch_.path("link to folder"));
    filesystem::create_symlink("nothing", scratch_.path("dangling"));
    makeSocket(scratch_.path("socket"));
    filesystem::permissions(scratch_.path("socket"), filesystem::perms(0755));
    for (std::string const name :
         {"file", "file/", "file/x", "folder", "folder/", "folder/.", "folder/new", "link",
          "link to folder", "dangling", "socket", "nothing", "r\xC3\xA9sum\xC3\xA9.\xC3\xA9"}) {
        paths_.push_back(scratch_.path(name));
        paths_.push_back(scratch_.relativePath(name));
    }
}

}  // namespace interface_test
