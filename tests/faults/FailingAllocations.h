// Memory that runs out when a test says so: the n-th allocation from now fails, whoever makes it by
// malloc, calloc, realloc or operator new in a statically linked part of the program.
#pragma once

namespace faults {

/// Counts from 1, beginning now; 0 for no failure.
void failAllocation(int n) noexcept;

/// How many there were since the last call of failAllocation.
[[nodiscard]] int allocations() noexcept;

}  // namespace faults
