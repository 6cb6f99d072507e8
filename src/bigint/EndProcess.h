// How the library gives up: one line on the standard error, then abort. For exhausted memory and
// widths that no int can index; there is no other error that ends the process.
#pragma once

namespace qel::internal {

[[noreturn]] void endProcess(char const* reason) noexcept;

/// For a bit index above the largest int.
[[noreturn]] void endProcessTooWide() noexcept;

}  // namespace qel::internal
