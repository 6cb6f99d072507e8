// Bits, ranges of them, and the bitwise operators.
//
// No bit is set far above the widest operand: numbers of 2^31 bits are of 256 MB.
#include "IntegerRows.h"
#include "LargeIntegerFunctions.h"

namespace interface_test {

namespace {

constexpr int farEnough = 65535;

std::vector<Function> singleBits() {
    return {
        unary("LargeInteger::getHighestBit()", [](auto const& x) { return x.getHighestBit(); }),
        unary<int>("LargeInteger::operator[](int)", [](auto const& x, int i) { return x[i]; }),
        unary<int>(
            "LargeInteger::setBit(int)", [](auto& x, int i) { x.setBit(i); },
            [](auto const&, int i) { return i <= farEnough; }),
        unary<int, bool>(
            "LargeInteger::setBit(int, bool)",
            [](auto& x, int i, bool value) { x.setBit(i, value); },
            [](auto const&, int i, bool value) { return !value || i <= farEnough; }),
        unary<int>("LargeInteger::clearBit(int)", [](auto& x, int i) { x.clearBit(i); }),
        unary<int>("LargeInteger::findNextSetBit(int)",
                   [](auto const& x, int start) { return x.findNextSetBit(start); }),
        unary<int>("LargeInteger::findNextClearBit(int)",
                   [](auto const& x, int start) { return x.findNextClearBit(start); }),
        unary("LargeInteger::countNumberOfSetBits()",
              [](auto const& x) { return x.countNumberOfSetBits(); }),
    };
}

std::vector<Function> ranges() {
    return {
        unary<int, int, bool>(
            "LargeInteger::setRange(int, int, bool)",
            [](auto& x, int start, int count, bool value) { x.setRange(start, count, value); },
            [](auto const&, int start, int count, bool value) {
                return !value || count <= 0 || 0LL + start + count <= 2LL * farEnough;
            }),
        unary<int, int>(
            "LargeInteger::getBitRangeAsInt(int, int)",
            [](auto const& x, int start, int count) { return x.getBitRangeAsInt(start, count); }),
        unary<int, int, unsigned int>(
            "LargeInteger::setBitRangeAsInt(int, int, unsigned int)",
            [](auto& x, int start, int count, unsigned int value) {
                x.setBitRangeAsInt(start, count, value);
            },
            [](auto const&, int start, int count, unsigned int value) {
                return start <= farEnough || count <= 0 || value == 0;
            }),
        unary<int, int>(
            "LargeInteger::getBitRange(int, int)",
            [](auto const& x, int start, int count) { return x.getBitRange(start, count); }),
    };
}

std::vector<Function> bitwiseOperators() {
    return {
        binary(
            "LargeInteger::operator&=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a &= b; }),
        binary(
            "LargeInteger::operator|=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a |= b; }),
        binary(
            "LargeInteger::operator^=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a ^= b; }),
        binary("LargeInteger::operator&(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a & b; }),
        binary("LargeInteger::operator|(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a | b; }),
        binary("LargeInteger::operator^(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a ^ b; }),
    };
}

}  // namespace

std::vector<Function> bitFunctions() {
    std::vector<Function> all = singleBits();
    for (auto const& more : {ranges(), bitwiseOperators()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

}  // namespace interface_test
