// The rows of LargeInteger.
#include "Rows.h"

namespace {

[[maybe_unused]] bool const registered = (qel::bench::registerRows<qel::bench::Own>(), true);

}  // namespace
