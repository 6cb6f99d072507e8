// File names as text: separators, parents, extensions. The file system is never asked.
#include "qel/File.h"

#include "../text/Joined.h"
#include "qel/CharFunctions.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace qel {

namespace {

/// The position of the last slash or backslash; when there is none the no-position value, one
/// before 0.
std::size_t lastSeparator(char const* path) noexcept {
    return std::string_view(path).find_last_of("/\\");
}

char const* fileName(char const* path) noexcept {
    return path + (lastSeparator(path) + 1);
}

char const* extensionOf(char const* path) noexcept {
    char const* const dot = std::strrchr(path, '.');
    return dot == nullptr ? path + std::strlen(path) : dot + 1;
}

/// `wanted` may begin with a dot.
bool isExtension(char const* own, char const* wanted, bool ignoreCase) noexcept {
    if (*wanted == '.')
        ++wanted;
    return ignoreCase ? CharFunctions::AreEqualIgnoreCase(own, wanted)
                      : CharFunctions::AreEqual(own, wanted);
}

/// The text up to its last dot. That is where the last occurrence of the dot and the extension
/// starts, and it ends the text: cutting it out leaves what stands before it.
std::string withoutExtension(char const* text) {
    char const* const dot = std::strrchr(text, '.');
    return dot == nullptr ? text : std::string(text, dot);
}

}  // namespace

std::string File::ConvertFileNameToUnixStyle(char const* path) noexcept {
    return CharFunctions::Replace(path, "\\", "/");
}

std::string File::ConvertFileNameToWindowsStyle(char const* path) noexcept {
    return CharFunctions::Replace(path, "/", "\\");
}

std::string File::ConvertFileNameToNativeStyle(char const* path) noexcept {
    return ConvertFileNameToUnixStyle(path);
}

bool File::IsFileNameNativeStyle(char const* path) noexcept {
    return std::strchr(path, '\\') == nullptr;
}

std::string File::GetParentFolder(char const* path) noexcept {
    std::size_t const separator = lastSeparator(path);
    return separator == std::string_view::npos ? std::string() : std::string(path, separator);
}

std::string File::GetFileName(char const* path) noexcept {
    return fileName(path);
}

bool File::HasExtension(char const* path) noexcept {
    return std::strchr(path, '.') != nullptr;
}

std::string File::GetExtension(char const* path) noexcept {
    return extensionOf(path);
}

std::string File::GetFileNameWithoutExtension(char const* path) noexcept {
    return withoutExtension(fileName(path));
}

std::string File::GetFullFileNameWithoutExtension(char const* path) noexcept {
    return withoutExtension(path);
}

std::string File::AppendStringBeforeExtension(char const* path, char const* text) noexcept {
    return withoutExtension(path) + text + extensionOf(path);
}

std::string File::AppendExtension(char const* path, char const* extension) noexcept {
    if (HasThisExtension(path, extension, true))
        return path;
    std::string_view stem(path);
    if (!stem.empty() && stem.back() == '.')
        stem.remove_suffix(1);
    return internal::joined(stem, *extension == '.' ? "" : ".", extension);
}

bool File::HasThisExtension(char const* path, char const* extension, bool ignoreCase) noexcept {
    return isExtension(extensionOf(path), extension, ignoreCase);
}

bool File::HasOneOfTheseExtensions(char const* path, std::vector<std::string> const& extensions,
                                   bool ignoreCase) noexcept {
    return std::any_of(extensions.begin(), extensions.end(),
                       [=, own = extensionOf(path)](std::string const& extension) {
                           return isExtension(own, extension.c_str(), ignoreCase);
                       });
}

std::string File::MakeFullPath(char const* file, char const* folder) noexcept {
    // The empty text ends with everything, and so no slash comes behind an empty folder.
    std::string path =
        internal::joined(folder, CharFunctions::EndsWith(folder, "/") ? "" : "/", fileName(file));
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string File::CleanFileName(char const* name) noexcept {
    return CharFunctions::Replace(name, " ", "_");
}

}  // namespace qel
