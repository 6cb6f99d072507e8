// File names as text beside std::filesystem::path and the string functions.
#include "Paths.h"

#include "qel/File.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <strings.h>

namespace qel::bench {
namespace {

constexpr char const* separators = "/\\";

std::string replaced(std::string text, char old, char replacement) {
    std::replace(text.begin(), text.end(), old, replacement);
    return text;
}

void addStyleRows() {
    addRows(
        {"ConvertFileNameToUnixStyle", {"File::ConvertFileNameToUnixStyle(char const*)"}}, noSize,
        windowsNames, [](auto& x) { return File::ConvertFileNameToUnixStyle(x.s()); },
        Peer{"replace", [](auto& x) { return replaced(x.s(), '\\', '/'); }});
    addRows(
        {"ConvertFileNameToWindowsStyle", {"File::ConvertFileNameToWindowsStyle(char const*)"}},
        noSize, names, [](auto& x) { return File::ConvertFileNameToWindowsStyle(x.s()); },
        Peer{"replace", [](auto& x) { return replaced(x.s(), '/', '\\'); }});
    addRows(
        {"ConvertFileNameToNativeStyle", {"File::ConvertFileNameToNativeStyle(char const*)"}},
        noSize, windowsNames, [](auto& x) { return File::ConvertFileNameToNativeStyle(x.s()); },
        Peer{"replace", [](auto& x) { return replaced(x.s(), '\\', '/'); }});
    addRows(
        {"IsFileNameNativeStyle", {"File::IsFileNameNativeStyle(char const*)"}}, noSize, names,
        [](auto& x) { return File::IsFileNameNativeStyle(x.s()); },
        Peer{"strchr", [](auto& x) { return std::strchr(x.s(), '\\') == nullptr; }});
    addRows(
        {"CleanFileName", {"File::CleanFileName(char const*)"}}, noSize, names,
        [](auto& x) { return File::CleanFileName(x.s()); },
        Peer{"replace", [](auto& x) { return replaced(x.s(), ' ', '_'); }});
}

std::string_view fileName(std::string_view path) {
    return path.substr(path.find_last_of(separators) + 1);
}

void addPartRows() {
    addRows(
        {"GetParentFolder", {"File::GetParentFolder(char const*)"}}, noSize, names,
        [](auto& x) { return File::GetParentFolder(x.s()); },
        Peer{"find_last_of",
             [](auto& x) {
                 std::string_view const path(x.s());
                 return std::string(path.substr(0, path.find_last_of(separators)));
             }},
        Peer{"filesystem",
             [](auto& x) { return std::filesystem::path(x.s()).parent_path().string(); }});
    addRows(
        {"GetFileName", {"File::GetFileName(char const*)"}}, noSize, names,
        [](auto& x) { return File::GetFileName(x.s()); },
        Peer{"find_last_of", [](auto& x) { return std::string(fileName(x.s())); }},
        Peer{"filesystem",
             [](auto& x) { return std::filesystem::path(x.s()).filename().string(); }});
    addRows(
        {"HasExtension", {"File::HasExtension(char const*)"}}, noSize, names,
        [](auto& x) { return File::HasExtension(x.s()); },
        Peer{"strchr", [](auto& x) { return std::strchr(x.s(), '.') != nullptr; }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::path(x.s()).has_extension(); }});
    addRows(
        {"GetExtension", {"File::GetExtension(char const*)"}}, noSize, names,
        [](auto& x) { return File::GetExtension(x.s()); },
        Peer{"strrchr", [](auto& x) { return std::string(std::strrchr(x.s(), '.') + 1); }},
        Peer{"filesystem",
             [](auto& x) { return std::filesystem::path(x.s()).extension().string().substr(1); }});
    addRows(
        {"GetFileNameWithoutExtension", {"File::GetFileNameWithoutExtension(char const*)"}}, noSize,
        names, [](auto& x) { return File::GetFileNameWithoutExtension(x.s()); },
        Peer{"find_last_of",
             [](auto& x) {
                 std::string_view const name = fileName(x.s());
                 return std::string(name.substr(0, name.rfind('.')));
             }},
        Peer{"filesystem", [](auto& x) { return std::filesystem::path(x.s()).stem().string(); }});
    addRows(
        {"GetFullFileNameWithoutExtension", {"File::GetFullFileNameWithoutExtension(char const*)"}},
        noSize, names, [](auto& x) { return File::GetFullFileNameWithoutExtension(x.s()); },
        Peer{"rfind",
             [](auto& x) {
                 std::string_view const path(x.s());
                 return std::string(path.substr(0, path.rfind('.')));
             }},
        Peer{"filesystem",
             [](auto& x) { return std::filesystem::path(x.s()).replace_extension().string(); }});
}

bool hasExtension(char const* path, char const* extension) {
    char const* const dot = std::strrchr(path, '.');
    return dot != nullptr && strcasecmp(dot + 1, extension) == 0;
}

std::vector<std::string> const imageExtensions = {"png", "gif", "jpeg", "tiff"};

void addExtensionRows() {
    addRows(
        {"AppendStringBeforeExtension",
         {"File::AppendStringBeforeExtension(char const*, char const*)"}},
        noSize, names, [](auto& x) { return File::AppendStringBeforeExtension(x.s(), "_old"); },
        Peer{"rfind", [](auto& x) {
                 std::string text(x.s());
                 return text.replace(text.rfind('.'), 1, "_old");
             }});
    addRows(
        {"AppendExtension", {"File::AppendExtension(char const*, char const*)"}}, noSize, names,
        [](auto& x) { return File::AppendExtension(x.s(), "bak"); },
        Peer{"string +", [](auto& x) {
                 std::string text(x.s());
                 return hasExtension(x.s(), "bak") ? text : text + ".bak";
             }});
    addRows(
        {"HasThisExtension", {"File::HasThisExtension(char const*, char const*, bool)"}}, noSize,
        names, [](auto& x) { return File::HasThisExtension(x.s(), "TXT", true); },
        Peer{"strcasecmp", [](auto& x) { return hasExtension(x.s(), "TXT"); }});
    addRows(
        {"HasOneOfTheseExtensions",
         {"File::HasOneOfTheseExtensions(char const*, std::vector<std::string> const&, bool)"}},
        noSize, names,
        [](auto& x) { return File::HasOneOfTheseExtensions(x.s(), imageExtensions, true); },
        Peer{"strcasecmp", [](auto& x) {
                 return std::any_of(
                     imageExtensions.begin(), imageExtensions.end(),
                     [&](std::string const& e) { return hasExtension(x.s(), e.c_str()); });
             }});
    addRows(
        {"MakeFullPath", {"File::MakeFullPath(char const*, char const*)"}}, noSize, names,
        [](auto& x) { return File::MakeFullPath(x.s(), "/var/backups"); },
        Peer{"string +",
             [](auto& x) {
                 std::string path("/var/backups");
                 path.append("/").append(fileName(x.s()));
                 return path;
             }},
        Peer{"filesystem", [](auto& x) {
                 return (std::filesystem::path("/var/backups")
                         / std::filesystem::path(x.s()).filename())
                     .string();
             }});
}

[[maybe_unused]] bool const registered = (addStyleRows(), addPartRows(), addExtensionRows(), true);

}  // namespace
}  // namespace qel::bench
