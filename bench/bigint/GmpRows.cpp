// The rows of GMP.
#include "AllRows.h"
#include "Gmp.h"

namespace {

[[maybe_unused]] bool const registered =
    (benchmark::AddCustomContext("peer gmp", std::string("GMP ") + gmp_version),
     qel::bench::registerAllRows<qel::bench::Gmp>(), true);

}  // namespace
