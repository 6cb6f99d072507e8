/// @file
/// Large integers in text streams. A header of its own, for programs that write to streams: no
/// other header of the library includes one.
#ifndef QEL_LARGEINTEGERSTREAM_H
#define QEL_LARGEINTEGERSTREAM_H

#include "qel/LargeInteger.h"

#include <ostream>
#include <string>

namespace qel {

/// Writes the value as a stream writes an `int`: zero is "0", unlike LargeInteger::toString's.
///
/// In decimal, or as `std::hex` and `std::oct` say, behind a "-" when negative; in the width and
/// with the fill of the stream. Other manipulators (`std::showbase`, `std::uppercase`,
/// `std::showpos`, `std::internal`) and the locale's digit grouping change nothing. The cost is
/// that of toString.
///
/// Throws only where the stream does, by its own `exceptions()`.
inline std::ostream& operator<<(std::ostream& out, LargeInteger const& value) {
    std::ios_base::fmtflags const base = out.flags() & std::ios_base::basefield;
    int const radix = base == std::ios_base::hex ? 16 : base == std::ios_base::oct ? 8 : 10;
    std::string const digits = value.toString(radix);
    return digits.empty() ? out << '0' : out << digits;
}

}  // namespace qel

#endif
