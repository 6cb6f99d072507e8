// The rows of Boost.Multiprecision's cpp_int.
#include "AllRows.h"
#include "Boost.h"

namespace {

[[maybe_unused]] bool const registered =
    (benchmark::AddCustomContext("peer boost", "Boost " BOOST_LIB_VERSION),
     qel::bench::registerAllRows<qel::bench::Boost>(), true);

}  // namespace
