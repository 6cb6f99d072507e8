// Comparing texts without the case of ASCII letters, whatever locale the application sets.
#pragma once

#include <cstddef>

namespace qel::internal {

/// The difference of the first bytes that differ, as unsigned numbers and with `A` to `Z` lowered;
/// 0 when the texts end before they differ.
[[nodiscard]] int compareFolded(char const* a, char const* b) noexcept;
/// The same of at most the first `n` bytes.
[[nodiscard]] int compareFolded(char const* a, char const* b, std::size_t n) noexcept;

}  // namespace qel::internal
