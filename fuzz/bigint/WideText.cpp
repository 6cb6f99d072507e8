// Text of wide numbers, which reads back as the number; and decimal text by its remainder.
#include "Expect.h"
#include "WideNumber.h"

using namespace fuzz;
using qel::LargeInteger;

namespace {

std::uint64_t decimalRemainder(std::string const& digits) {
    std::uint64_t remainder = 0;
    for (char const c : digits)
        remainder =
            (modularProduct(remainder, 10) + static_cast<unsigned int>(c - '0')) % mersenne61;
    return remainder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    LargeInteger const number = wideNumber(input, 1500);
    std::string const decimal = number.toString(10);
    expectEqual(decimalRemainder(decimal), plainRemainder(number), "decimal digits");
    for (int const radix : {2, 8, 10, 16}) {
        std::string const digits = number.toString(radix);
        LargeInteger again(-5);
        again.parseString(digits, radix);
        expect(again == number, "text reads back");
        again.parseString('-' + digits, radix);
        expect(number.isZero() || again == -number, "text of the negative number reads back");
    }
    return 0;
}
