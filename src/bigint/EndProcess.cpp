#include "EndProcess.h"

#include <cstdio>
#include <cstdlib>

namespace qel::internal {

void endProcess(char const* reason) noexcept {
    std::fputs("qel: ", stderr);
    std::fputs(reason, stderr);
    std::fputs("\n", stderr);
    std::abort();
}

void endProcessTooWide() noexcept {
    endProcess("a LargeInteger would be wider than an int can index");
}

}  // namespace qel::internal
