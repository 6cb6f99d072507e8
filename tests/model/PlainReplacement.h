// Replacement as documented, taken literally: after each step the whole text is searched again.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace model {

/// What is left when no occurrence of `old` is; nothing if that takes more than `steps`.
inline std::optional<std::string> replace(std::string text, std::string const& old,
                                          std::string const& replacement, std::size_t steps) {
    for (std::size_t step = 0; step <= steps; ++step) {
        std::size_t const position = text.rfind(old);
        if (position == std::string::npos)
            return text;
        text.replace(position, old.size(), replacement);
    }
    return std::nullopt;
}

}  // namespace model
