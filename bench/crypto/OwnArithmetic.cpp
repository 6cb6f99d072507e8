// Our rows.
#include "ArithmeticRows.h"

namespace {

[[maybe_unused]] bool const registered =
    (qel::bench::registerArithmeticRows<qel::bench::OwnArithmetic>(), true);

}  // namespace
