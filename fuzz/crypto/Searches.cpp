// Prime searches of small widths against the plain model.
#include "Expect.h"
#include "Input.h"

#include "model/PlainPrimes.h"
#include "qel/PrimesNumber.h"

#include <vector>

using namespace fuzz;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    int const bitCount = input.below(100) - 2;
    int const witnessCount = input.below(10) - 1;
    std::vector<int> seeds(static_cast<std::size_t>(input.below(5)));
    for (int& seed : seeds)
        seed = input.number<int>();
    int const seedCount = static_cast<int>(seeds.size());
    auto const prime =
        qel::PrimesNumber::createProbablePrime(bitCount, witnessCount, seeds.data(), seedCount);
    auto const expected =
        plain::createProbablePrime(bitCount, witnessCount, seeds.data(), seedCount);
    expectEqual(prime.toString(16), expected.toString(16), "prime");
    return 0;
}
