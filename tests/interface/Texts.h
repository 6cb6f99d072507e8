// Texts that functions may treat in different ways, and that locales do.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace interface_test {

/// Every byte.
inline constexpr std::array<char, 256> allCharacters = [] {
    std::array<char, 256> characters{};
    for (std::size_t i = 0; i < characters.size(); ++i)
        characters[i] = static_cast<char>(i);
    return characters;
}();

/// The bytes of Latin-1 that an 8-bit locale has letters, case and white space for are among them,
/// and the dotted and dotless i of Turkish.
[[nodiscard]] std::vector<std::string> const& texts();

/// A few, for functions of three.
[[nodiscard]] std::vector<std::string> const& fewTexts();

/// Numbers, what nearly is one, and what rounds.
[[nodiscard]] std::vector<std::string> const& numberTexts();

}  // namespace interface_test
