// Comparing texts without the case of ASCII letters, whatever locale the application sets.
#pragma once

namespace qel::internal {

/// The difference of the first bytes that differ, as unsigned numbers and with `A` to `Z` lowered;
/// 0 when the texts end before they differ.
[[nodiscard]] int compareFolded(char const* a, char const* b) noexcept;

}  // namespace qel::internal
