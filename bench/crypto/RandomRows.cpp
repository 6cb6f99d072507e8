// The seeded generator beside those of the C and C++ libraries. The 48-bit one of the standard
// library, with the same constants, gives the same numbers.
#include "../StandardRows.h"

#include "qel/Random.h"

#include <cstdlib>
#include <random>

namespace qel::bench {
namespace {

using Congruential =
    std::linear_congruential_engine<unsigned long long, 0x5DEECE66DULL, 11, 1ULL << 48>;

struct Generators {
    long long seed;
    Random own;
    Congruential congruential;
    std::mt19937 mersenne;
    unsigned short state[3];
};

std::vector<Generators> generators(int) {
    std::vector<Generators> table;
    for (std::size_t i = 0; i < tableSize; ++i) {
        auto const seed = static_cast<unsigned int>(i * 7919 + 1);
        table.push_back(
            {static_cast<long long>(seed),
             Random(static_cast<long long>(seed)),
             Congruential(seed),
             std::mt19937(seed),
             {static_cast<unsigned short>(seed), static_cast<unsigned short>(seed >> 16), 0}});
    }
    return table;
}

/// One generator, whose numbers hang together.
std::vector<Generators> oneGenerator(int) {
    return {generators(0).front()};
}

int upper32(unsigned long long state) {
    return static_cast<int>(static_cast<unsigned int>(state >> 16));
}

[[maybe_unused]] bool const registered = [] {
    std::vector<int> const noSize = {0};
    addRows(
        {"nextInt", {"Random::nextInt()"}}, noSize, oneGenerator,
        [](auto& x) { return x.own.nextInt(); },
        Peer{"linear_congruential", [](auto& x) { return upper32(x.congruential()); }},
        Peer{"jrand48", [](auto& x) { return static_cast<int>(jrand48(x.state)); }});
    addRows(
        {"nextInt, beside another generator"}, noSize, oneGenerator,
        [](auto& x) { return Incomparable{x.own.nextInt()}; },
        Peer{"mt19937", [](auto& x) { return Incomparable{x.mersenne()}; }});
    addRows(
        {"nextBool", {"Random::nextBool()"}}, noSize, oneGenerator,
        [](auto& x) { return x.own.nextBool(); },
        Peer{"linear_congruential", [](auto& x) { return x.congruential() >> 47 != 0; }},
        Peer{"jrand48", [](auto& x) { return jrand48(x.state) < 0; }});
    addRows(
        {"seed and nextInt", {"Random::Random(long long)"}}, noSize, generators,
        [](auto& x) { return Random(x.seed).nextInt(); },
        Peer{"linear_congruential", [](auto& x) {
                 return upper32(Congruential(static_cast<unsigned long long>(x.seed))());
             }});
    return true;
}();

}  // namespace
}  // namespace qel::bench
