// Sums, products and shifts.
#include "IntegerRows.h"
#include "LargeIntegerFunctions.h"

namespace interface_test {

namespace {

std::vector<Function> sumsAndProducts() {
    return {
        binary(
            "LargeInteger::operator+=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a += b; }),
        binary(
            "LargeInteger::operator-=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a -= b; }),
        binary(
            "LargeInteger::operator*=(LargeInteger const&)",
            [](auto& a, auto const& b) -> auto& { return a *= b; }),
        binary("LargeInteger::operator+(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a + b; }),
        binary("LargeInteger::operator-(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a - b; }),
        binary("LargeInteger::operator*(LargeInteger const&)",
               [](auto const& a, auto const& b) { return a * b; }),
        unary("LargeInteger::operator-()", [](auto const& x) { return -x; }),
        unary(
            "LargeInteger::operator++()", [](auto& x) -> auto& { return ++x; }),
        unary(
            "LargeInteger::operator--()", [](auto& x) -> auto& { return --x; }),
        unary("LargeInteger::operator++(int)", [](auto& x) { return x++; }),
        unary("LargeInteger::operator--(int)", [](auto& x) { return x--; }),
    };
}

/// A value whose bound is -1 stays as it is; any other, a zero too, grows by as many bits: of 2^31
/// bits it has 256 MB.
bool growsLittle(qel::LargeInteger const& x, long long count) {
    return count <= 65536 || bigint_test::representation(x).highestBit < 0;
}

std::vector<Function> shifts() {
    auto const left = [](auto const& x, int n) { return growsLittle(x, n); };
    auto const right = [](auto const& x, int n) { return growsLittle(x, -1LL * n); };
    return {
        unary<int, int>(
            "LargeInteger::shiftBits(int, int)",
            [](auto& x, int count, int from) { x.shiftBits(count, from); },
            [](auto const& x, int count, int from) {
                bool const moves = from <= 0 || x.findNextSetBit(from) >= 0;
                return !moves || growsLittle(x, count);
            }),
        unary<int>(
            "LargeInteger::operator<<=(int)", [](auto& x, int n) -> auto& { return x <<= n; },
            left),
        unary<int>(
            "LargeInteger::operator>>=(int)", [](auto& x, int n) -> auto& { return x >>= n; },
            right),
        unary<int>(
            "LargeInteger::operator<<(int)", [](auto const& x, int n) { return x << n; }, left),
        unary<int>(
            "LargeInteger::operator>>(int)", [](auto const& x, int n) { return x >> n; }, right),
        // A false bit may be inserted anywhere: none of the operands has a bit as high.
        unary<int, bool>(
            "LargeInteger::insertBit(int, bool)",
            [](auto& x, int pos, bool value) { x.insertBit(pos, value); },
            [](auto const&, int pos, bool value) { return !value || pos <= 65535; }),
    };
}

}  // namespace

std::vector<Function> arithmeticFunctions() {
    std::vector<Function> all = sumsAndProducts();
    auto const more = shifts();
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

}  // namespace interface_test
