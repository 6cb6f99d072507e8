// The library's file names and the plain steps', function by function.
#pragma once

#include "model/PlainFileNames.h"
#include "qel/File.h"

#include <sstream>
#include <string>

namespace file_name_test {

/// What differs is written behind the name of its function.
class Difference {
  public:
    template <typename Value>
    void compare(char const* function, Value const& actual, Value const& expected) {
        if (actual != expected)
            text_ << function << ": " << actual << ", not " << expected << "; ";
    }

    [[nodiscard]] std::string text() const { return text_.str(); }

  private:
    std::ostringstream text_;
};

/// Empty when all functions of one path agree.
inline std::string difference(std::string const& path) {
    using qel::File;
    char const* const p = path.c_str();
    Difference found;
    found.compare("ConvertFileNameToUnixStyle", File::ConvertFileNameToUnixStyle(p),
                  model::exchanged(path, '\\', '/'));
    found.compare("ConvertFileNameToWindowsStyle", File::ConvertFileNameToWindowsStyle(p),
                  model::exchanged(path, '/', '\\'));
    found.compare("CleanFileName", File::CleanFileName(p), model::exchanged(path, ' ', '_'));
    found.compare("IsFileNameNativeStyle", File::IsFileNameNativeStyle(p),
                  path.find('\\') == std::string::npos);
    found.compare("GetParentFolder", File::GetParentFolder(p), model::parentFolder(path));
    found.compare("GetFileName", File::GetFileName(p), model::fileName(path));
    found.compare("HasExtension", File::HasExtension(p), model::hasExtension(path));
    found.compare("GetExtension", File::GetExtension(p), model::extension(path));
    found.compare("GetFileNameWithoutExtension", File::GetFileNameWithoutExtension(p),
                  model::fileNameWithoutExtension(path));
    found.compare("GetFullFileNameWithoutExtension", File::GetFullFileNameWithoutExtension(p),
                  model::fullFileNameWithoutExtension(path));
    return found.text();
}

/// Empty when all functions of a path and another text agree.
inline std::string difference(std::string const& path, std::string const& other) {
    using qel::File;
    char const* const p = path.c_str();
    char const* const o = other.c_str();
    Difference found;
    found.compare("AppendStringBeforeExtension", File::AppendStringBeforeExtension(p, o),
                  model::appendBeforeExtension(path, other));
    found.compare("AppendExtension", File::AppendExtension(p, o),
                  model::appendExtension(path, other));
    found.compare("MakeFullPath", File::MakeFullPath(p, o), model::fullPath(path, other));
    for (bool const ignoreCase : {false, true}) {
        bool const hasOther = model::hasThisExtension(path, other, ignoreCase);
        found.compare("HasThisExtension", File::HasThisExtension(p, o, ignoreCase), hasOther);
        found.compare("HasOneOfTheseExtensions",
                      File::HasOneOfTheseExtensions(p, {"a", other}, ignoreCase),
                      hasOther || model::hasThisExtension(path, "a", ignoreCase));
    }
    return found.text();
}

}  // namespace file_name_test
