// Takes a path apart and prints its pieces.
#include "qel/File.h"
#include "qel/Folder.h"

#include <iomanip>
#include <iostream>
#include <string>

namespace {

constexpr int exitBadUsage = 2;
constexpr char const* usage = "usage: qel-paths PATH\n";

void printPiece(char const* name, std::string const& value) {
    std::cout << std::left << std::setw(34) << name << value << '\n';
}

void printPieces(char const* path) {
    using qel::File;
    using qel::Folder;
    printPiece("path", path);
    printPiece("parent folder", File::GetParentFolder(path));
    printPiece("file name", File::GetFileName(path));
    printPiece("extension", File::GetExtension(path));
    printPiece("file name without extension", File::GetFileNameWithoutExtension(path));
    printPiece("full file name without extension", File::GetFullFileNameWithoutExtension(path));
    printPiece("absolute", Folder::IsPathAbsolute(path) ? "yes" : "no");
    printPiece("real path", Folder::GetRealPath(path));
    printPiece("Unix style", File::ConvertFileNameToUnixStyle(path));
    printPiece("Windows style", File::ConvertFileNameToWindowsStyle(path));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "qel-paths: takes one path, not " << argc - 1 << "; " << usage;
        return exitBadUsage;
    }
    if (argv[1] == std::string("--help")) {
        std::cout << usage;
        return 0;
    }
    printPieces(argv[1]);
    return 0;
}
