// Single bits and ranges of bits.
#ifndef QEL_BENCH_BIGINT_BITROWS_H
#define QEL_BENCH_BIGINT_BITROWS_H

#include "Rows.h"

namespace qel::bench {

template <typename Library>
void registerSingleBitRows() {
    using Value = typename Library::Value;
    addRow<Library>({"getHighestBit", {"LargeInteger::getHighestBit()"}}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.highestBit(x.a); });
    addRow<Library>({"a[i]", {"LargeInteger::operator[](int)"}}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.bit(x.a, x.position); });
    addRow<Library>(
        {"setBit and clearBit", {"LargeInteger::setBit(int)", "LargeInteger::clearBit(int)"}},
        allSizes, pairs, [](auto& library, auto& x) -> auto& {
            library.setBit(x.a, x.position);
            library.clearBit(x.a, x.position);
            return x.a;
        });
    if constexpr (requires(Value & v) { Library::setBitTo(v, 1, true); })
        addRow<Library>(
            {"setBit to a value", {"LargeInteger::setBit(int, bool)"}}, allSizes, pairs,
            [](auto& library, auto& x) -> auto& {
                library.setBitTo(x.a, x.position, x.position % 2 == 0);
                return x.a;
            });
}

template <typename Library>
void registerBitSearchRows() {
    auto const nextSet = [](auto& library, auto& x) { return library.nextSetBit(x.a, 0); };
    addRow<Library>({"findNextSetBit, sparse", {"LargeInteger::findNextSetBit(int)"}}, allSizes,
                    sparse, nextSet);
    addRow<Library>({"findNextSetBit, random"}, allSizes, pairs,
                    [](auto& library, auto& x) { return library.nextSetBit(x.a, x.position); });
    addRow<Library>({"findNextClearBit, dense", {"LargeInteger::findNextClearBit(int)"}}, allSizes,
                    dense, [](auto& library, auto& x) { return library.nextClearBit(x.a, 0); });
    addRow<Library>({"countNumberOfSetBits", {"LargeInteger::countNumberOfSetBits()"}}, allSizes,
                    pairs, [](auto& library, auto& x) { return library.countBits(x.a); });
}

template <typename Library>
void registerBitRangeRows() {
    addRow<Library>(
        {"setRange, set and clear", {"LargeInteger::setRange(int, int, bool)"}}, allSizes, pairs,
        [](auto& library, auto& x) -> auto& {
            library.setRange(x.a, x.bits / 4, x.bits / 2, true);
            library.setRange(x.a, x.bits / 4, x.bits / 2, false);
            return x.a;
        });
    addRow<Library>({"getBitRangeAsInt", {"LargeInteger::getBitRangeAsInt(int, int)"}}, allSizes,
                    pairs,
                    [](auto& library, auto& x) { return library.rangeAsInt(x.a, x.position, 32); });
    addRow<Library>(
        {"setBitRangeAsInt", {"LargeInteger::setBitRangeAsInt(int, int, unsigned int)"}}, allSizes,
        pairs, [](auto& library, auto& x) -> auto& {
            library.setRangeAsInt(x.a, x.position, 20, 0xABCDEU);
            return x.a;
        });
    addRow<Library>(
        {"getBitRange", {"LargeInteger::getBitRange(int, int)"}}, allSizes, pairs,
        [](auto& library, auto& x) { return library.range(x.a, x.bits / 4 + 1, x.bits / 2); });
    addRow<Library>(
        {"shiftBits from the middle", {"LargeInteger::shiftBits(int, int)"}}, allSizes, pairs,
        [](auto& library, auto& x) -> auto& {
            x.c = x.a;
            library.shiftFrom(x.c, 5, x.bits / 2 + 1);
            return x.c;
        });
    addRow<Library>(
        {"insertBit", {"LargeInteger::insertBit(int, bool)"}}, allSizes, pairs,
        [](auto& library, auto& x) -> auto& {
            x.c = x.a;
            library.insertBit(x.c, x.position, x.position % 2 == 0);
            return x.c;
        });
}

template <typename Library>
void registerBitRows() {
    using Value = typename Library::Value;
    registerSingleBitRows<Library>();
    if constexpr (requires(Value const& v) { Library::nextSetBit(v, 0); })
        registerBitSearchRows<Library>();
    if constexpr (requires(Value const& v) { Library::range(v, 0, 1); })
        registerBitRangeRows<Library>();
}

}  // namespace qel::bench

#endif
