// The C library's comparison in its "C" locale, which compares a vector of bytes at once.
#ifndef __APPLE__

#include "FoldedComparison.h"

#include <locale.h>
#include <strings.h>

namespace qel::internal {

namespace {

locale_t cLocale() noexcept {
    static locale_t const locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

}  // namespace

int compareFolded(char const* a, char const* b) noexcept {
    return strcasecmp_l(a, b, cLocale());
}

int compareFolded(char const* a, char const* b, std::size_t n) noexcept {
    return strncasecmp_l(a, b, n, cLocale());
}

}  // namespace qel::internal

#endif
