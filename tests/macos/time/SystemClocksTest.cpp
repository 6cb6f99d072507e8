// The counter of macOS: two halves of 32 bits.
#include "time/SystemClocks.h"

#include "FakeFrameworks.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemClocks, TheCountersHalvesArePutTogether) {
    struct Row {
        UnsignedWide counter;  // the lower half first
        unsigned long long microseconds;
    };
    for (Row const& row : {
             Row{{0, 0}, 0},
             Row{{1, 0}, 1},
             Row{{0, 1}, 0x100000000},
             Row{{0xFFFFFFFF, 0}, 0xFFFFFFFF},
             Row{{0x89ABCDEF, 0x01234567}, 0x0123456789ABCDEF},
             Row{{0x80000000, 0x80000000}, 0x8000000080000000},
             Row{{0xFFFFFFFF, 0xFFFFFFFF}, 0xFFFFFFFFFFFFFFFF},
         }) {
        frameworks = FakeFrameworks();
        frameworks.counter = row.counter;
        EXPECT_EQ(qel::internal::microsecondsSinceStartup(), row.microseconds);
        EXPECT_EQ(frameworks.calls, std::vector<std::string>{"Microseconds"});
    }
}

}  // namespace
