#include "WideScreening.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace qel::bench {

namespace {

constexpr std::uint16_t unmarked = 0;
constexpr std::uint16_t struck = 1;

/// Divisors have 16 bits and words 32, so that many products of the two fit into 64 bits.
constexpr std::uint32_t divisorLimit = 1U << 16;
constexpr std::size_t largestWordCount = 64;

/// For numbers of up to largestWordCount words, whose remainder takes one division.
struct Reducer {
    explicit Reducer(std::uint32_t divisor) : value(divisor) {
        std::uint64_t power = 1;
        for (std::uint16_t& out : powers) {
            out = static_cast<std::uint16_t>(power);
            power = (power << 32) % divisor;
        }
    }

    [[nodiscard]] std::uint32_t remainder(Words const& number) const {
        std::uint64_t sum = 0;
        for (std::size_t j = 0; j < number.size(); ++j)
            sum += std::uint64_t{number[j]} * powers[j];
        return static_cast<std::uint32_t>(sum % value);
    }

    std::uint32_t value;
    /// 2^(32 j) modulo the divisor.
    std::uint16_t powers[largestWordCount];
};

/// What the documented screening and its test for the primes up to 23 strike; a divisor that
/// another divides would strike nothing new.
std::vector<std::uint32_t> strikingDivisors() {
    std::vector<std::uint32_t> all = {13, 17, 19};
    all.insert(all.end(), screeningDivisors().begin(), screeningDivisors().end());
    std::sort(all.begin(), all.end());
    std::vector<std::uint32_t> kept;
    for (std::uint32_t const d : all) {
        if (std::none_of(kept.begin(), kept.end(), [d](std::uint32_t k) { return d % k == 0; }))
            kept.push_back(d);
    }
    return kept;
}

std::vector<std::uint32_t> askingDivisors() {
    std::vector<std::uint32_t> const primes = oddPrimesBelow(divisorLimit);
    std::vector<std::uint32_t> const others = strikingDivisors();
    std::vector<std::uint32_t> kept;
    std::set_difference(primes.begin(), primes.end(), others.begin(), others.end(),
                        std::back_inserter(kept));
    return kept;
}

std::vector<Reducer> reducers(std::vector<std::uint32_t> const& divisors) {
    return std::vector<Reducer>(divisors.begin(), divisors.end());
}

/// As far as a further divisor spares more than it costs: measured, and flat around the best.
std::uint32_t askingLimit(std::size_t wordCount) {
    return static_cast<std::uint32_t>(
        std::min<std::size_t>(divisorLimit, 128 * wordCount * wordCount));
}

std::uint32_t powerModulo(std::uint32_t base, std::uint32_t exponent, std::uint32_t r) {
    std::uint32_t result = 1;
    for (std::uint32_t square = base % r; exponent != 0;
         exponent >>= 1, square = square * square % r)
        result = exponent % 2 != 0 ? result * square % r : result;
    return result;
}

}  // namespace

WideScreening::WideScreening(Words startingWords, std::size_t blockSize)
    : start(std::move(startingWords)), length(blockSize) {
    static std::vector<Reducer> const strikers = reducers(strikingDivisors());
    static std::vector<Reducer> const askers = reducers(askingDivisors());
    for (Reducer const& reducer : strikers)
        striking.push_back({reducer.value, reducer.remainder(start)});
    std::uint32_t const limit = askingLimit(start.size());
    for (Reducer const& reducer : askers) {
        if (reducer.value >= limit)
            break;
        asking.push_back({reducer.value, reducer.remainder(start)});
    }
}

void WideScreening::enterBlock() {
    distance += 2 * length;
    marks.assign(length, unmarked);
    for (Divisor const divisor : asking)
        mark(divisor, static_cast<std::uint16_t>(divisor.value));
    for (Divisor const divisor : striking)
        mark(divisor, struck);
}

void WideScreening::mark(Divisor divisor, std::uint16_t with) {
    auto const remainder =
        static_cast<std::uint32_t>((divisor.remainder + distance) % divisor.value);
    for (std::size_t i = firstMultiple(divisor.value, remainder); i < length; i += divisor.value)
        marks[i] = with;
}

std::uint32_t WideScreening::startModulo(std::uint32_t divisor) const {
    std::uint64_t remainder = 0;
    for (std::size_t j = start.size(); j-- > 0;)
        remainder = (remainder << 32 | start[j]) % divisor;
    return static_cast<std::uint32_t>(remainder);
}

// A candidate n passes a witness a only if a^(n-1) = 1 modulo n, and then modulo each r that
// divides n. (One that passes with a^(n-1) = -1 does not exist: the order of a modulo each prime
// factor p of n would take one 2 more than n - 1 has, and so would p - 1, and then n - 1 as well.)
bool WideScreening::rejects(std::size_t i) const {
    std::uint32_t const r = marks[i];
    if (r == unmarked || r == struck)
        return r == struck;
    auto const exponent =
        static_cast<std::uint32_t>((startModulo(r - 1) + distance + 2 * i) % (r - 1));
    std::span<std::uint32_t const> const asked = witnesses().first(3);
    return std::any_of(asked.begin(), asked.end(), [=](std::uint32_t witness) {
        return powerModulo(witness, exponent, r) != 1;
    });
}

}  // namespace qel::bench
