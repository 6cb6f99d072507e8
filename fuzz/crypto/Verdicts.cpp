// Verdicts on primes against the plain model: of any number, and of products of two.
#include "Expect.h"
#include "Input.h"

#include "model/PlainPrimes.h"
#include "qel/PrimesNumber.h"

using namespace fuzz;
using qel::LargeInteger;
using qel::PrimesNumber;

namespace {

LargeInteger number(Input& input, int mostBytes) {
    LargeInteger value;
    int const bytes = input.below(mostBytes + 1);
    for (int i = 0; i < bytes; ++i)
        value.setBitRangeAsInt(8 * i, 8, input.byte());
    return LargeInteger(value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    int const witnessCount = input.below(40) - 2;
    LargeInteger n = number(input, 20);
    if (input.flag())
        n *= number(input, 20);
    if (input.flag())
        n.setBit(0);
    expectEqual(PrimesNumber::isProbablyPrime(n, witnessCount),
                plain::isProbablyPrime(n, witnessCount), "verdict");
    return 0;
}
