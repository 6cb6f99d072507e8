// File names as documented, taken literally: one documented step a line, on standard strings.
#pragma once

#include "PlainTextFunctions.h"

#include <cstddef>
#include <string>

namespace model {

inline std::string exchanged(std::string s, char from, char to) {
    for (char& c : s) {
        if (c == from)
            c = to;
    }
    return s;
}

inline std::size_t lastSeparator(std::string const& path) {
    std::size_t const slash = path.rfind('/');
    std::size_t const backslash = path.rfind('\\');
    if (slash == npos)
        return backslash;
    if (backslash == npos)
        return slash;
    return slash > backslash ? slash : backslash;
}

inline std::string parentFolder(std::string const& path) {
    std::size_t const position = lastSeparator(path);
    return position == npos ? "" : path.substr(0, position);
}

inline std::string fileName(std::string const& path) {
    std::size_t const position = lastSeparator(path);
    return position == npos ? path : path.substr(position + 1);
}

inline bool hasExtension(std::string const& path) {
    return path.find('.') != npos;
}

inline std::string extension(std::string const& path) {
    return hasExtension(path) ? path.substr(path.rfind('.') + 1) : "";
}

inline std::string fileNameWithoutExtension(std::string const& path) {
    std::string const name = fileName(path);
    return hasExtension(name) ? removeLast(name, '.' + extension(name)) : name;
}

inline std::string fullFileNameWithoutExtension(std::string const& path) {
    return hasExtension(path) ? removeLast(path, '.' + extension(path)) : path;
}

inline std::string appendBeforeExtension(std::string const& path, std::string const& text) {
    return fullFileNameWithoutExtension(path) + text + extension(path);
}

inline bool hasThisExtension(std::string const& path, std::string const& extensionText,
                             bool ignoreCase) {
    std::string wanted = extensionText;
    if (wanted.find('.') == 0)
        wanted = removeFirst(wanted, ".");
    if (ignoreCase)
        return lowerCase(extension(path)) == lowerCase(wanted);
    return extension(path) == wanted;
}

inline std::string appendExtension(std::string const& path, std::string const& extensionText) {
    if (hasThisExtension(path, extensionText, true))
        return path;
    std::string base = path;
    if (endsWith(base, "."))
        base = removeLast(base, ".");
    std::string const suffix = extensionText.find('.') == 0 ? extensionText : '.' + extensionText;
    return base + suffix;
}

inline std::string fullPath(std::string const& file, std::string const& folder) {
    std::string const name = fileName(file);
    std::string const path = endsWith(folder, "/") ? folder + name : folder + "/" + name;
    return exchanged(path, '\\', '/');
}

}  // namespace model
