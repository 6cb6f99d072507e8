// The dates that the rows of this folder are called with, and the C library's way to their fields.
#ifndef QEL_BENCH_TIME_INSTANTS_H
#define QEL_BENCH_TIME_INSTANTS_H

#include "../StandardRows.h"

#include "qel/Date.h"

#include <ctime>
#include <string>
#include <vector>

namespace qel::bench {

inline std::vector<int> const noSize = {0};

struct Instant {
    long long count;
    Date date;
    /// Local fields.
    std::tm fields;
    /// "21/11/2012".
    std::string text;
};

/// Between 1971 and 2037, where the C library does the work.
std::vector<Instant> inside(int);
/// Before 1970.
std::vector<Instant> before(int);
/// After 2037.
std::vector<Instant> after(int);

std::tm brokenDown(long long count);

std::string formatted(std::tm const& fields, char const* format);

}  // namespace qel::bench

#endif
