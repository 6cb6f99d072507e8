// The rows of LargeInteger, and which compiler it was built with.
#include "AllRows.h"

namespace {

#ifdef __clang__
constexpr char const* compiler = "clang++ " __clang_version__;
#else
constexpr char const* compiler = "g++ " __VERSION__;
#endif

[[maybe_unused]] bool const registered = (benchmark::AddCustomContext("compiler", compiler),
                                          qel::bench::registerAllRows<qel::bench::Own>(), true);

}  // namespace
