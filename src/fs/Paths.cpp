// Whole paths: joined, absolute, real, and what an alias leads to.
#include "qel/Folder.h"

#include "PathServices.h"
#include "qel/CharFunctions.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>

namespace qel {

namespace {

/// "Disk:/x" as a path below the folder of all volumes.
std::string belowVolumes(std::string const& path) {
    std::size_t const colon = path.find(':');
    // Without a colon the volume is the whole text, and so is the rest: the no-position value plus
    // one is 0.
    return "/Volumes/" + path.substr(0, colon) + path.substr(colon + 1);
}

/// Nothing for a path that does not resolve, or to more bytes than the documented buffer has.
std::optional<std::string> canonicalPath(char const* path) {
    // The system allocates: into a buffer of ours it would write as much as its own limit allows.
    std::unique_ptr<char, void (*)(void*)> const resolved(realpath(path, nullptr), std::free);
    if (resolved == nullptr || CharFunctions::Length(resolved.get()) >= internal::pathCapacity)
        return std::nullopt;
    return resolved.get();
}

}  // namespace

std::string Folder::ConcatenatePaths(char const* folder, char const* name) noexcept {
    std::string path(folder);
    if (!path.empty() && path.back() == '\\') {
        path.back() = '/';
    } else if (!path.empty() && path.back() != '/') {
        path += '/';
    }
    return path += name;
}

std::string Folder::TranslateAbsolutePath(char const* path) noexcept {
    return internal::utf8FromMacRoman(*path == '/' ? path : belowVolumes(path));
}

std::string Folder::GetRealPath(char const* path) noexcept {
    std::string text = canonicalPath(path).value_or(path);
    if (!CharFunctions::StartsWith(path, "~"))
        return text;
    return GetUserHomeDirectory() + CharFunctions::RemoveFirstOccurence(text.c_str(), "~");
}

void Folder::ResolveIfAlias(char const* path, char* resolved, bool& wasAlias,
                            int resolvedSize) noexcept {
    char target[internal::pathCapacity];
    auto const size =
        static_cast<unsigned int>(std::clamp(resolvedSize, 0, int{internal::pathCapacity}));
    if (internal::findAliasTarget(path, target, size, wasAlias)) {
        CharFunctions::Copy(resolved, target, size);
    } else {
        CharFunctions::Copy(resolved, path);
    }
}

}  // namespace qel
