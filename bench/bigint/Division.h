// What a division with both results gives, for every library.
#ifndef QEL_BENCH_BIGINT_DIVISION_H
#define QEL_BENCH_BIGINT_DIVISION_H

namespace qel::bench {

template <typename Value>
struct Division {
    Value quotient;
    Value remainder;
};

}  // namespace qel::bench

#endif
