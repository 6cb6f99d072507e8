// createKeyPair's keys, by the path that the library chooses for the processor.
#ifndef QEL_BENCH_CRYPTO_OWNKEYS_H
#define QEL_BENCH_CRYPTO_OWNKEYS_H

#include "KeyRows.h"

namespace qel::bench {

KeyTexts createOwnKeys(int bits, SeedTable const& seeds);

}  // namespace qel::bench

#endif
