// Products of wide numbers by their remainders, and by the identities of sums and squares.
#include "Expect.h"
#include "WideNumber.h"

using namespace fuzz;
using qel::LargeInteger;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    constexpr int mostWords = 2500;
    Input input(data, size);
    LargeInteger const a = wideNumber(input, mostWords);
    LargeInteger const b = wideNumber(input, mostWords);

    LargeInteger const product = a * b;
    expectEqual(plainRemainder(product), modularProduct(plainRemainder(a), plainRemainder(b)),
                "product");
    expectEqual(text(product), text(b * a), "the other way round");

    LargeInteger square(a);
    square *= square;
    LargeInteger const same(a);
    expectEqual(text(square), text(a * same), "square");

    LargeInteger const sum = a + b;
    expectEqual(text(sum - b), text(a), "sum and difference");
    LargeInteger const squareOfSum = sum * sum;
    expectEqual(text(squareOfSum), text(square + (product << 1) + b * b), "square of a sum");
    return 0;
}
