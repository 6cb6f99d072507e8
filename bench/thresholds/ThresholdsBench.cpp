// Where one algorithm should take over from another: for each threshold, both are called directly
// at lengths around it. The names are threshold/algorithm/limbs, the algorithm for shorter numbers
// first; bench/report finds the crossings.
#include "bigint/limbs/DivideByHalves.h"
#include "bigint/limbs/DivideByReciprocal.h"
#include "bigint/limbs/Kernels.h"
#include "bigint/limbs/Montgomery.h"
#include "bigint/limbs/MultiplyByParts.h"
#include "bigint/limbs/Thresholds.h"
#include "bigint/limbs/Transform.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace qel::limbs;

/// What the algorithms work on, for a length of n limbs: a has 4 n, b has 2 n, both with the top
/// bit of each limb at n, 2 n and so on set; a's uppermost limb is below b's.
struct Operands {
    explicit Operands(std::size_t n)
        : a(draw(4 * n, n)), b(draw(2 * n, n)), out(4 * n), scratch(100 * n + 10000) {
        a.back() = 1;
    }

    static std::vector<Limb> draw(std::size_t count, std::size_t n) {
        static std::mt19937_64 random(1);
        std::vector<Limb> limbs(count);
        std::generate(limbs.begin(), limbs.end(), [] { return random(); });
        for (std::size_t i = n; i <= count; i += n)
            limbs[i - 1] |= Limb{1} << (bitsPerLimb - 1);
        return limbs;
    }

    /// The lower `count` limbs of a, and a 1 on top, to be used up.
    Limb* dividend(std::size_t count) {
        used.assign(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(count));
        used.back() = 1;
        return used.data();
    }

    std::vector<Limb> a;
    std::vector<Limb> b;
    std::vector<Limb> out;
    std::vector<Limb> scratch;
    std::vector<Limb> used;
    Limb inverse = 12345;
};

using Algorithm = void (*)(Operands&, std::size_t n);

struct Threshold {
    char const* name;
    std::size_t limbs;
    char const* shorter;
    Algorithm runShorter;
    char const* longer;
    Algorithm runLonger;
    /// Below this length the second algorithm is the first one.
    std::size_t least = 4;
};

// A row for each threshold. An algorithm that calls itself for parts is one level of it, with the
// choice below left as it is.
Threshold const thresholds[] = {
    {"halvesMultiply", halvesMultiply, "rows",
     [](Operands& x, std::size_t n) {
         kernels().multiplyRows(x.out.data(), x.a.data(), n, x.b.data(), n);
     },
     "parts",
     [](Operands& x, std::size_t n) {
         multiplyByParts(x.out.data(), x.a.data(), x.b.data(), n, x.scratch.data());
     },
     halvesMultiply},
    {"halvesSquare", halvesSquare, "rows",
     [](Operands& x, std::size_t n) { kernels().squareRows(x.out.data(), x.a.data(), n); }, "parts",
     [](Operands& x, std::size_t n) {
         multiplyByParts(x.out.data(), x.a.data(), x.a.data(), n, x.scratch.data());
     },
     halvesSquare},
    {"transformMultiply", transformMultiply, "parts",
     [](Operands& x, std::size_t n) {
         multiplyByParts(x.out.data(), x.a.data(), x.b.data(), n, x.scratch.data());
     },
     "transforms",
     [](Operands& x, std::size_t n) {
         multiplyByTransform(x.out.data(), x.a.data(), n, x.b.data(), n, x.scratch.data());
     }},
    {"transformSquare", transformSquare, "parts",
     [](Operands& x, std::size_t n) {
         multiplyByParts(x.out.data(), x.a.data(), x.a.data(), n, x.scratch.data());
     },
     "transforms",
     [](Operands& x, std::size_t n) {
         multiplyByTransform(x.out.data(), x.a.data(), n, x.a.data(), n, x.scratch.data());
     }},
    {"divideSplit", divideSplit, "digit by digit",
     [](Operands& x, std::size_t n) {
         divideNormalized(x.out.data(), x.dividend(3 * n), 3 * n, x.b.data(), 2 * n);
     },
     "halves",
     [](Operands& x, std::size_t n) {
         divideByUpperPart(x.out.data(), x.dividend(3 * n), x.b.data(), 2 * n, n, x.scratch.data());
     }},
    {"divideReciprocal", divideReciprocal, "halves",
     [](Operands& x, std::size_t n) {
         divideByHalves(x.out.data(), x.dividend(2 * n), 2 * n, x.b.data(), n, x.scratch.data());
     },
     "reciprocal",
     [](Operands& x, std::size_t n) {
         divideByReciprocal(x.out.data(), x.dividend(2 * n), 2 * n, x.b.data(), n,
                            x.scratch.data());
     }},
    {"reduceSplit", reduceSplit, "row by row",
     [](Operands& x, std::size_t n) {
         kernels().reduce(x.out.data(), x.dividend(2 * n), x.b.data(), n, x.inverse);
     },
     "halves",
     [](Operands& x, std::size_t n) {
         reduceByHalves(x.out.data(), x.dividend(2 * n), x.b.data(), n, x.inverse,
                        x.scratch.data());
     },
     reduceSplit},
    {"reciprocalNewton", reciprocalNewton, "quotient",
     [](Operands& x, std::size_t n) {
         reciprocalByDivision(x.out.data(), x.b.data(), n, x.scratch.data());
     },
     "iteration",
     [](Operands& x, std::size_t n) {
         reciprocalByNewton(x.out.data(), x.b.data(), n, x.scratch.data());
     }},
};

void measure(Threshold const& threshold, char const* name, Algorithm run, std::size_t n) {
    std::string const title = std::string(threshold.name) + "/" + name + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(title.c_str(), [run, n](benchmark::State& state) {
        Operands operands(n);
        for (auto _ : state) {
            run(operands, n);
            benchmark::ClobberMemory();
        }
    });
}

/// Lengths from a third of the threshold to three times it.
std::vector<std::size_t> lengths(Threshold const& threshold) {
    std::vector<std::size_t> all;
    for (std::size_t percent : {33U, 50U, 65U, 80U, 90U, 100U, 110U, 125U, 150U, 200U, 300U}) {
        std::size_t const n = threshold.limbs * percent / 100;
        if (n >= threshold.least)
            all.push_back(n);
    }
    return all;
}

[[maybe_unused]] bool const registered = [] {
    for (Threshold const& threshold : thresholds) {
        benchmark::AddCustomContext(std::string("threshold ") + threshold.name,
                                    std::to_string(threshold.limbs));
        for (std::size_t const n : lengths(threshold)) {
            measure(threshold, threshold.shorter, threshold.runShorter, n);
            measure(threshold, threshold.longer, threshold.runLonger, n);
        }
    }
    return true;
}();

}  // namespace
