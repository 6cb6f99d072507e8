#include "EndProcess.h"

#include <cstdio>
#include <cstdlib>

namespace qel::internal {

void endProcess(char const* reason) noexcept {
    static_cast<void>(std::fprintf(stderr, "qel: %s\n", reason));
    std::abort();
}

void endProcessTooWide() noexcept {
    endProcess("a LargeInteger would be wider than an int can index");
}

}  // namespace qel::internal
