// The C library's comparison in its "C" locale, which compares a vector of bytes at once.
#ifndef __APPLE__

#include "FoldedComparison.h"

#include <locale.h>
#include <strings.h>

namespace qel::internal {

int compareFolded(char const* a, char const* b) noexcept {
    static locale_t const cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strcasecmp_l(a, b, cLocale);
}

}  // namespace qel::internal

#endif
