// Quotients of wide numbers: dividend = quotient * divisor + remainder, and the remainder is below
// the divisor and has the dividend's sign.
#include "Expect.h"
#include "WideNumber.h"

using namespace fuzz;
using qel::LargeInteger;

namespace {

void expectIdentity(LargeInteger const& dividend, LargeInteger const& divisor) {
    LargeInteger quotient(dividend);
    LargeInteger remainder;
    quotient.divideBy(divisor, remainder);
    expect(remainder.compareAbsolute(divisor) < 0, "the remainder is below the divisor");
    // In this order: a zero quotient may be a negative zero, to which nothing positive can be
    // added.
    expectEqual(text(remainder + quotient * divisor), text(dividend), "dividend");
    expect(remainder.isZero() || remainder.isNegative() == dividend.isNegative(),
           "the remainder has the dividend's sign");
    expectEqual(text(dividend / divisor), text(quotient), "quotient alone");
    expectEqual(text(dividend % divisor), text(remainder), "remainder alone");
}

/// A number that estimates of a quotient go wrong for: a multiple, and a little more or less.
LargeInteger nearMultiple(LargeInteger const& divisor, Input& input) {
    LargeInteger const factor = wideNumber(input, 900);
    return divisor * factor + LargeInteger(input.below(5) - 2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    bool const isNearMultiple = input.flag();
    LargeInteger divisor = wideNumber(input, 900);
    LargeInteger dividend = isNearMultiple ? nearMultiple(divisor, input) : wideNumber(input, 2000);
    divisor.setNegative(input.flag());
    dividend.setNegative(input.flag());
    if (!divisor.isZero())
        expectIdentity(dividend, divisor);
    return 0;
}
