// Reading and writing a file's text, the path being a part of that text too.
#include "FileFunctions.h"
#include "PathsOfAllKinds.h"
#include "model/PlainTextFunctions.h"

#include "qel/File.h"

#include <sys/stat.h>
#include <unistd.h>

namespace interface_test {

namespace {

using qel::File;

std::string firstWord(std::string const& content) {
    std::string word = model::trimLeft(content);
    std::size_t end = 0;
    while (end < word.size() && !model::isSpace(word[end]))
        ++end;
    return word.substr(0, end);
}

void readWords(Results& results) {
    Scratch const scratch;
    std::vector<std::string> contents = texts();
    contents.push_back(std::string("\0a\0b c", 6));
    for (std::string const& content : contents) {
        makeOrdinaryFile(scratch.path("file"), content);
        std::string text = "before";
        expectResult(results, File::ReadStringFromFile(text, scratch.path("file").c_str()), true,
                     content);
        expectResult(results, text, firstWord(content), content);
    }
}

/// Texts that name no file to read, and so stay as they are.
void readNothing(Results& results) {
    for (std::string const& path : texts()) {
        std::string text = "before";
        expectResult(results, File::ReadStringFromFile(text, path.c_str()), false, path);
        expectResult(results, text, "before", path);
        std::string itself = path;
        expectResult(results, File::ReadStringFromFile(itself, itself.c_str()), false, path);
        expectResult(results, itself, path);
    }
}

/// The path is the text that the word goes to, or the end of it; it counts as it was.
void readIntoThePath(Results& results) {
    Scratch const scratch;
    makeOrdinaryFile(scratch.path("file"), " a-word-that-is-longer-than-many-a-path-to-a-file");
    for (std::string const& path : {scratch.path("file"), scratch.relativePath("file")}) {
        for (std::string const front : {"", "front"}) {
            std::string text = front + path;
            bool const isThere = access(path.c_str(), F_OK) == 0;
            expectResult(results, File::ReadStringFromFile(text, text.c_str() + front.size()),
                         isThere, withoutTemporaryNames(path), front);
            if (isThere)
                expectResult(results, text, "a-word-that-is-longer-than-many-a-path-to-a-file",
                             withoutTemporaryNames(path), front);
        }
    }
}

/// The bytes, whatever permissions the file was made with; those are a result.
std::string contentAndPermissions(Results& results, std::string const& path) {
    results.add("permissions", permissionsOf(path));
    chmod(path.c_str(), 0600);
    return bytesOf(path);
}

void writeTexts(Results& results) {
    Scratch const scratch;
    std::string const path = scratch.path("file");
    for (bool const append : {false, true}) {
        for (std::string const& text : texts()) {
            unlink(path.c_str());
            expectResult(results, File::WriteStringToFile(text, path.c_str(), append), true, text,
                         append);
            expectResult(results, contentAndPermissions(results, path), text, text, append);
            expectResult(results, File::WriteStringToFile("more", path.c_str(), append), true, text,
                         append);
            expectResult(results, contentAndPermissions(results, path),
                         append ? text + "more" : "more", text, append);
        }
    }
}

/// The texts themselves name no folder that is there.
void writeNowhere(Results& results) {
    for (bool const append : {false, true}) {
        for (std::string const& path : texts())
            expectResult(results, File::WriteStringToFile(path, path.c_str(), append), false, path,
                         append);
    }
}

/// The text to write is the path.
void writeThePath(Results& results) {
    for (bool const append : {false, true}) {
        Scratch const scratch;
        for (std::string const& text : {scratch.path("file"), scratch.relativePath("file")}) {
            std::string const shown = withoutTemporaryNames(text);
            bool const written = File::WriteStringToFile(text, text.c_str(), append);
            results.add("", shown, append, written);
            if (written)
                expectResult(results, withoutTemporaryNames(contentAndPermissions(results, text)),
                             shown, append);
            unlink(text.c_str());
        }
    }
}

}  // namespace

std::vector<Function> fileContentFunctions() {
    return {
        {"File::ReadStringFromFile(std::string&, char const*)",
         [](Results& results) {
             readWords(results);
             readNothing(results);
             readIntoThePath(results);
         },
         {State::workingDirectory}},
        {"File::WriteStringToFile(std::string const&, char const*, bool)",
         [](Results& results) {
             writeTexts(results);
             writeNowhere(results);
             writeThePath(results);
         },
         {State::workingDirectory, State::fileCreationMask}},
    };
}

}  // namespace interface_test
