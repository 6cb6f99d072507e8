// What the library asks of the system about paths beyond POSIX: where aliases lead, and the UTF-8
// form of old path texts. Everything else in this folder is the same on every system.
#pragma once

#include <string>

namespace qel::internal {

/// Bytes for a path, and for a text converted to UTF-8, each with its terminator.
constexpr unsigned int pathCapacity = 1024;
constexpr unsigned int textCapacity = 4096;

/// Follows the alias at `path`, and the chain of aliases that it may lead to. True when the target
/// is in `target`: with a terminator if it has less than `size` bytes. `isAlias` is set in any
/// case, and may be true where the target is not found.
[[nodiscard]] bool findAliasTarget(char const* path, char* target, unsigned int size,
                                   bool& isAlias) noexcept;

/// "" for a text that takes `textCapacity` bytes or more in UTF-8.
[[nodiscard]] std::string utf8FromMacRoman(std::string const& text) noexcept;

}  // namespace qel::internal
