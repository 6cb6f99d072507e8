// File names as text.
#include "Expectations.h"
#include "FileFunctions.h"
#include "model/PlainFileNames.h"

#include "qel/File.h"

namespace interface_test {

namespace {

using qel::File;

void compareExtensions(Results& results) {
    for (bool const ignoreCase : {false, true}) {
        for (std::string const& path : texts()) {
            for (std::string const& extension : texts())
                expectResult(results,
                             File::HasThisExtension(path.c_str(), extension.c_str(), ignoreCase),
                             model::hasThisExtension(path, extension, ignoreCase), path, extension,
                             ignoreCase);
        }
    }
}

void compareWithListsOfExtensions(Results& results) {
    for (bool const ignoreCase : {false, true}) {
        for (std::string const& path : texts()) {
            char const* const p = path.c_str();
            expectResult(results, File::HasOneOfTheseExtensions(p, {}, ignoreCase), false, path);
            for (std::string const& extension : texts()) {
                // The path is an element's own text.
                std::vector<std::string> const extensions = {"gif", path, extension};
                bool const expected = model::hasThisExtension(path, "gif", ignoreCase)
                                      || model::hasThisExtension(path, path, ignoreCase)
                                      || model::hasThisExtension(path, extension, ignoreCase);
                expectResult(
                    results,
                    File::HasOneOfTheseExtensions(extensions[1].c_str(), extensions, ignoreCase),
                    expected, path, extension, ignoreCase);
            }
        }
    }
}

std::vector<Function> functionsOfTwoTexts() {
    return {
        {"File::AppendStringBeforeExtension(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, File::AppendStringBeforeExtension, model::appendBeforeExtension);
         }},
        {"File::AppendExtension(char const*, char const*)",
         [](Results& results) {
             forEachPair(results, File::AppendExtension, model::appendExtension);
         }},
        {"File::HasThisExtension(char const*, char const*, bool)", compareExtensions},
        {"File::HasOneOfTheseExtensions(char const*, std::vector<std::string> const&, bool)",
         compareWithListsOfExtensions},
        {"File::MakeFullPath(char const*, char const*)",
         [](Results& results) { forEachPair(results, File::MakeFullPath, model::fullPath); }},
    };
}

}  // namespace

std::vector<Function> fileNameFunctions() {
    std::vector<Function> all = {
        {"File::ConvertFileNameToUnixStyle(char const*)",
         [](Results& results) {
             forEachText(results, File::ConvertFileNameToUnixStyle,
                         [](std::string const& s) { return model::exchanged(s, '\\', '/'); });
         }},
        {"File::ConvertFileNameToWindowsStyle(char const*)",
         [](Results& results) {
             forEachText(results, File::ConvertFileNameToWindowsStyle,
                         [](std::string const& s) { return model::exchanged(s, '/', '\\'); });
         }},
        {"File::ConvertFileNameToNativeStyle(char const*)",
         [](Results& results) {
             forEachText(results, File::ConvertFileNameToNativeStyle,
                         [](std::string const& s) { return model::exchanged(s, '\\', '/'); });
         }},
        {"File::IsFileNameNativeStyle(char const*)",
         [](Results& results) {
             forEachText(results, File::IsFileNameNativeStyle,
                         [](std::string const& s) { return s.find('\\') == model::npos; });
         }},
        {"File::GetParentFolder(char const*)",
         [](Results& results) {
             forEachText(results, File::GetParentFolder, model::parentFolder);
         }},
        {"File::GetFileName(char const*)",
         [](Results& results) { forEachText(results, File::GetFileName, model::fileName); }},
        {"File::HasExtension(char const*)",
         [](Results& results) { forEachText(results, File::HasExtension, model::hasExtension); }},
        {"File::GetExtension(char const*)",
         [](Results& results) { forEachText(results, File::GetExtension, model::extension); }},
        {"File::GetFileNameWithoutExtension(char const*)",
         [](Results& results) {
             forEachText(results, File::GetFileNameWithoutExtension,
                         model::fileNameWithoutExtension);
         }},
        {"File::GetFullFileNameWithoutExtension(char const*)",
         [](Results& results) {
             forEachText(results, File::GetFullFileNameWithoutExtension,
                         model::fullFileNameWithoutExtension);
         }},
        {"File::CleanFileName(char const*)",
         [](Results& results) {
             forEachText(results, File::CleanFileName,
                         [](std::string const& s) { return model::exchanged(s, ' ', '_'); });
         }},
    };
    std::vector<Function> const ofTwo = functionsOfTwoTexts();
    all.insert(all.end(), ofTwo.begin(), ofTwo.end());
    return all;
}

}  // namespace interface_test
