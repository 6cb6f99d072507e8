// The rows of OpenSSL's BN.
#include "AllRows.h"
#include "OpenSsl.h"

namespace {

[[maybe_unused]] bool const registered =
    (benchmark::AddCustomContext("peer openssl", OpenSSL_version(OPENSSL_VERSION)),
     qel::bench::registerAllRows<qel::bench::OpenSsl>(), true);

}  // namespace
