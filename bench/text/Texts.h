// The texts that the rows of this folder are called with.
#ifndef QEL_BENCH_TEXT_TEXTS_H
#define QEL_BENCH_TEXT_TEXTS_H

#include "../StandardRows.h"

#include <string>
#include <vector>

namespace qel::bench {

inline std::vector<int> const textSizes = {16, 256, 4096, 65536};
/// For calls whose cost depends on no length.
inline std::vector<int> const noSize = {0};

struct Texts {
    char const* s() const { return text.c_str(); }
    /// Room for two texts; zeros unless written to.
    char* out() { return buffer.data(); }

    /// Letters of both cases, digits and spaces.
    std::string text;
    /// The same.
    std::string copy;
    /// The same in the other case.
    std::string otherCase;
    std::string buffer;
};

std::vector<Texts> texts(int size);
/// "[x]" stands in the text, at a quarter and at three quarters of it.
std::vector<Texts> textsWithMarks(int size);
/// A quarter of the text is white space, an eighth on either side.
std::vector<Texts> textsInSpaces(int size);
/// Pairs of hexadecimal digits, of bytes that are letters.
std::vector<Texts> hexTexts(int size);

/// Long texts tell no branch predictor anything, and would not fit into the caches.
std::size_t tableSizeFor(int size);

}  // namespace qel::bench

#endif
