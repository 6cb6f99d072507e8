// Products by transforms modulo three primes (Pollard, "The fast Fourier transform in a finite
// field", 1971): the numbers are polynomials at 2^bits, whose product is taken modulo each prime
// and put together by Garner's method (Knuth 4.3.2).
//
// The transform reduces a polynomial modulo x^size - c, then modulo the factors x^(size/2) - w and
// x^(size/2) + w with w^2 = c, and so on. The factors' w, in the order they come, are the same in
// every length: one table serves all. The butterflies are Harvey's ("Faster arithmetic for
// number-theoretic transforms", 2014), products by table entries are Shoup's: numbers stay below
// 4p < 2^64 and are fully reduced only at the end.
#include "Transform.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

constexpr Limb high(DoubleLimb x) noexcept {
    return static_cast<Limb>(x >> bitsPerLimb);
}

/// A factor with the quotient factor * 2^64 / p, rounded down.
struct Factor {
    Limb value;
    Limb quotient;
};

/// Primes of the form 2^62 - k * 2^32 + 1, and an element of order 2^32.
struct Prime {
    Limb p;
    Limb root;
};

constexpr Prime primes[] = {{0x3fffffee00000001, 0xf6ad935336aad2},
                            {0x3fffffb400000001, 0x2efbcbd1f80b862f},
                            {0x3fffffa000000001, 0x2e0d2163d8fd7ce1}};

/// Arithmetic modulo primes[which].
template <int which>
struct Field {
    static constexpr Limb p = primes[which].p;
    static constexpr int orderBits = 32;
    /// 2^128 / p - 4 * 2^64, as 2^64 / p is a little above 4.
    static constexpr Limb reciprocal = static_cast<Limb>(~DoubleLimb{0} / p);

    static constexpr Limb inverseOfP() noexcept {
        Limb inverse = p;  // to 3 bits
        for (int bits = 3; bits < bitsPerLimb; bits *= 2)
            inverse *= 2 - p * inverse;
        return inverse;
    }

    /// x or x - bound, for an x < 2 * bound.
    static constexpr Limb reduce(Limb x, Limb bound) noexcept { return x >= bound ? x - bound : x; }

    /// x * factor, below 2p, for any x: the quotient x * factor / p is met or missed by one.
    static constexpr Limb multiply(Limb x, Factor factor) noexcept {
        return x * factor.value - high(DoubleLimb{x} * factor.quotient) * p;
    }

    /// For a value < p. The first quotient is short by at most one: `reciprocal` is by less than 1
    /// and value < 2^62.
    static constexpr Factor factor(Limb value) noexcept {
        Limb const quotient = 4 * value + high(DoubleLimb{value} * reciprocal);
        Limb const rest = 0 - quotient * p;
        return {value, rest >= p ? quotient + 1 : quotient};
    }

    /// x / 2^64 (Montgomery), below 2p for an x < p * 2^64.
    static constexpr Limb shrink(DoubleLimb x) noexcept {
        Limb const multiple = static_cast<Limb>(x) * inverseOfP();
        return high(x) + p - high(DoubleLimb{multiple} * p);
    }

    static constexpr Limb product(Limb a, Limb b) noexcept {
        return static_cast<Limb>(DoubleLimb{a} * b % p);
    }

    static constexpr Limb power(Limb base, Limb exponent) noexcept {
        Limb result = 1;
        for (; exponent != 0; exponent /= 2, base = product(base, base)) {
            if (exponent % 2 != 0)
                result = product(result, base);
        }
        return result;
    }

    static constexpr Factor inverse(Limb value) noexcept { return factor(power(value % p, p - 2)); }
};

/// Transforms modulo one prime.
template <int which>
class Transform {
  public:
    using F = Field<which>;

    /// `count` entries, a power of two.
    Transform(Factor* table, std::size_t count) noexcept : w(table) {
        table[0] = F::factor(1);
        int log = 0;
        for (std::size_t block = 1; block < count; block *= 2, ++log) {
            // Entry `block` has order 4 * block, the others of its block are multiples.
            Factor const first =
                F::factor(F::power(primes[which].root, Limb{1} << (F::orderBits - 2 - log)));
            for (std::size_t i = 0; i < block; ++i)
                table[block + i] = F::factor(F::reduce(F::multiply(table[i].value, first), F::p));
        }
    }

    /// Reduces modulo all factors of x^size - c, where c belongs to `node`: 1 for node 0, i for
    /// node 2. In: below 4p; out: below 4p.
    void forward(Limb* x, std::size_t size, std::size_t node) const noexcept {
        if (size <= 2) {
            if (size == 2)
                split(x, 1, node);
            return;
        }
        if (size > depthFirst) {
            splitTwice(x, size / 4, node);
            for (std::size_t i = 0; i < 4; ++i)
                forward(x + i * (size / 4), size / 4, 4 * node + i);
            return;
        }
        std::size_t quarter = size / 4;
        std::size_t nodes = 1;
        for (; quarter > 0; quarter /= 4, nodes *= 4) {
            for (std::size_t j = 0; j < nodes; ++j)
                splitTwice(x + 4 * quarter * j, quarter, nodes * node + j);
        }
        if (nodes < size) {
            for (std::size_t j = 0; j < nodes; ++j)
                split(x + 2 * j, 1, nodes * node + j);
        }
    }

    /// Undoes `forward`, times size. In: below 2p; out: below 2p.
    void backward(Limb* x, std::size_t size, std::size_t node) const noexcept {
        if (size <= 2) {
            if (size == 2)
                join(x, 1, node);
            return;
        }
        if (size > depthFirst) {
            for (std::size_t i = 0; i < 4; ++i)
                backward(x + i * (size / 4), size / 4, 4 * node + i);
            joinTwice(x, size / 4, node);
            return;
        }
        std::size_t nodes = size / 4;
        std::size_t quarter = 1;
        if (std::countr_zero(size) % 2 != 0) {
            for (std::size_t j = 0; j < size / 2; ++j)
                join(x + 2 * j, 1, size / 2 * node + j);
            nodes = size / 8;
            quarter = 2;
        }
        for (; nodes > 0; nodes /= 4, quarter *= 4) {
            for (std::size_t j = 0; j < nodes; ++j)
                joinTwice(x + 4 * quarter * j, quarter, nodes * node + j);
        }
    }

    /// i, a square root of -1.
    [[nodiscard]] Factor i() const noexcept { return w[1]; }

  private:
    /// Up to so many points the levels are done one after the other.
    static constexpr std::size_t depthFirst = 4096;

    // In: any below 4p; out: below 4p.
    static void butterfly(Limb& a, Limb& b, Factor factor) noexcept {
        Limb const even = F::reduce(a, 2 * F::p);
        Limb const odd = F::multiply(b, factor);
        a = even + odd;
        b = even + 2 * F::p - odd;
    }

    // In: below 2p; out: below 2p. The factor is negated, so the difference is, too.
    static void joinPair(Limb& a, Limb& b, Factor negated) noexcept {
        Limb const difference = b + 2 * F::p - a;
        a = F::reduce(a + b, 2 * F::p);
        b = F::multiply(difference, negated);
    }

    void split(Limb* x, std::size_t half, std::size_t node) const noexcept {
        for (std::size_t i = 0; i < half; ++i)
            butterfly(x[i], x[i + half], w[node]);
    }

    void join(Limb* x, std::size_t half, std::size_t node) const noexcept {
        for (std::size_t i = 0; i < half; ++i)
            joinPair(x[i], x[i + half], negatedInverse(node));
    }

    void splitTwice(Limb* x, std::size_t quarter, std::size_t node) const noexcept {
        Factor const first = w[node];
        Factor const left = w[2 * node];
        Factor const right = w[2 * node + 1];
        for (std::size_t i = 0; i < quarter; ++i) {
            Limb a = x[i];
            Limb b = x[i + quarter];
            Limb c = x[i + 2 * quarter];
            Limb d = x[i + 3 * quarter];
            butterfly(a, c, first);
            butterfly(b, d, first);
            butterfly(a, b, left);
            butterfly(c, d, right);
            x[i] = a;
            x[i + quarter] = b;
            x[i + 2 * quarter] = c;
            x[i + 3 * quarter] = d;
        }
    }

    void joinTwice(Limb* x, std::size_t quarter, std::size_t node) const noexcept {
        Factor const first = negatedInverse(node);
        Factor const left = negatedInverse(2 * node);
        Factor const right = negatedInverse(2 * node + 1);
        for (std::size_t i = 0; i < quarter; ++i) {
            Limb a = x[i];
            Limb b = x[i + quarter];
            Limb c = x[i + 2 * quarter];
            Limb d = x[i + 3 * quarter];
            joinPair(a, b, left);
            joinPair(c, d, right);
            joinPair(a, c, first);
            joinPair(b, d, first);
            x[i] = a;
            x[i + quarter] = b;
            x[i + 2 * quarter] = c;
            x[i + 3 * quarter] = d;
        }
    }

    /// -1 / w[node]. Bit t of a node stands for the angle 2^-(t + 2) of a turn; with the bits below
    /// the highest inverted, two angles add up to one half, and the product is -1.
    [[nodiscard]] Factor negatedInverse(std::size_t node) const noexcept {
        if (node == 0)
            return F::factor(F::p - 1);
        return w[3 * std::bit_floor(node) - 1 - node];
    }

    Factor const* w;
};

// --- the polynomials
// ------------------------------------------------------------------------------

/// How a product is cut: coefficients of `bits` bits, `aCount` and `bCount` of them, and `size`
/// points, a power of two or three times one.
struct Plan {
    int bits;
    std::size_t aCount;
    std::size_t bCount;
    std::size_t size;

    [[nodiscard]] bool whole() const noexcept { return std::has_single_bit(size); }
    /// What the values come out multiplied by.
    [[nodiscard]] std::size_t scale() const noexcept { return whole() ? size : size / 3 * 4; }
    /// The nodes of the last level; of node 2 the lower half of a block, whose inverses are in the
    /// upper half.
    [[nodiscard]] std::size_t factors() const noexcept { return whole() ? size / 2 : size / 3 * 2; }
};

std::size_t pieces(std::size_t count, int bits) noexcept {
    return (count * bitsPerLimb - 1) / static_cast<std::size_t>(bits) + 1;
}

/// A coefficient of the product is below n 2^(2 bits) for the shorter operand's n, and must be
/// below the product of the primes, which is above 2^186 / (1 + 2^-20).
Plan makePlan(std::size_t aCount, std::size_t bCount) noexcept {
    int bits = 86;
    std::size_t const shorter = std::min(aCount, bCount);
    while (pieces(shorter, bits) * 1025 / 1024 + 1 >= std::size_t{1} << (186 - 2 * bits))
        --bits;
    Plan plan{bits, pieces(aCount, bits), pieces(bCount, bits), 0};
    std::size_t const least = std::max<std::size_t>(plan.aCount + plan.bCount, 16);
    plan.size = std::bit_ceil(least);
    if (plan.size / 4 * 3 >= least)
        plan.size = plan.size / 4 * 3;
    return plan;
}

/// Coefficient j of a: bits [bits * j, bits * (j + 1)), for bits between 64 and 127.
DoubleLimb coefficient(Limb const* a, std::size_t count, std::size_t j, int bits) noexcept {
    std::size_t const position = j * static_cast<std::size_t>(bits);
    std::size_t const i = position / bitsPerLimb;
    unsigned const shift = position % bitsPerLimb;
    Limb const a0 = a[i];
    Limb const a1 = i + 1 < count ? a[i + 1] : 0;
    Limb const a2 = i + 2 < count ? a[i + 2] : 0;
    DoubleLimb value = ((DoubleLimb{a1} << bitsPerLimb) | a0) >> shift;
    if (shift != 0)
        value |= DoubleLimb{a2} << (2 * bitsPerLimb - shift);
    return value & ((DoubleLimb{1} << bits) - 1);
}

template <int which>
void load(Limb* x, std::size_t size, Limb const* a, std::size_t count, std::size_t coefficients,
          int bits) noexcept {
    for (std::size_t j = 0; j < coefficients; ++j)
        x[j] = Field<which>::shrink(coefficient(a, count, j, bits));
    std::fill(x + coefficients, x + size, Limb{0});
}

/// Of 3m points, f0 + f1 y + f2 y^2 with y = x^m, the first 2m become f modulo y^2 - 1 and the
/// others f modulo y - i. In and out: below 2p.
template <int which>
void cut(Limb* x, std::size_t m, Factor i) noexcept {
    using F = Field<which>;
    for (std::size_t j = 0; j < m; ++j) {
        Limb const f0 = x[j];
        Limb const f2 = x[j + 2 * m];
        Limb const turned = F::multiply(x[j + m], i);
        x[j] = F::reduce(f0 + f2, 2 * F::p);
        x[j + 2 * m] = F::reduce(F::reduce(f0 + 2 * F::p - f2, 2 * F::p) + turned, 2 * F::p);
    }
}

/// Undoes `cut` for parts that are 2m and m times what they were: 4m times. Out: below 4p.
template <int which>
void mend(Limb* x, std::size_t m, Factor i) noexcept {
    using F = Field<which>;
    for (std::size_t j = 0; j < m; ++j) {
        Limb const sum = x[j];  // f0 + f2
        Limb const f1 = x[j + m];
        Limb const twice = F::reduce(2 * x[j + 2 * m], 2 * F::p);
        Limb const difference =
            F::reduce(twice + 2 * F::p - F::multiply(f1, i), 2 * F::p);  // f0 - f2
        x[j] = sum + difference;
        x[j + m] = 2 * f1;
        x[j + 2 * m] = sum + 2 * F::p - difference;
    }
}

template <int which>
void transform(Transform<which> const& engine, Limb* x, Plan const& plan) noexcept {
    if (plan.whole()) {
        engine.forward(x, plan.size, 0);
        return;
    }
    std::size_t const m = plan.size / 3;
    cut<which>(x, m, engine.i());
    engine.forward(x, 2 * m, 0);
    engine.forward(x + 2 * m, m, 2);
}

/// x = the coefficients of the product modulo the prime, fully reduced.
template <int which>
void convolve(Limb* x, Limb* y, Limb* tableMemory, Plan const& plan, Limb const* a,
              std::size_t aCount, Limb const* b, std::size_t bCount) noexcept {
    using F = Field<which>;
    Transform<which> const engine(reinterpret_cast<Factor*>(tableMemory), plan.factors());
    load<which>(x, plan.size, a, aCount, plan.aCount, plan.bits);
    transform(engine, x, plan);
    if (a == b && aCount == bCount) {
        y = x;
    } else {
        load<which>(y, plan.size, b, bCount, plan.bCount, plan.bits);
        transform(engine, y, plan);
    }
    for (std::size_t j = 0; j < plan.size; ++j) {
        Limb const left = F::reduce(x[j], 2 * F::p);
        Limb const right = F::reduce(y[j], 2 * F::p);
        x[j] = F::shrink(DoubleLimb{left} * right);
    }
    if (plan.whole()) {
        engine.backward(x, plan.size, 0);
    } else {
        std::size_t const m = plan.size / 3;
        engine.backward(x, 2 * m, 0);
        engine.backward(x + 2 * m, m, 2);
        mend<which>(x, m, engine.i());
    }
    // Three times 2^64 was divided out: by each operand's load, and by the products.
    Limb const shrunk = F::power(2, 3 * bitsPerLimb);
    Factor const last =
        F::factor(F::product(shrunk, F::inverse(static_cast<Limb>(plan.scale())).value));
    for (std::size_t j = 0; j < plan.aCount + plan.bCount; ++j)
        x[j] = F::reduce(F::multiply(x[j], last), F::p);
}

/// A sum that moves up the limbs of a result.
class Accumulator {
  public:
    Accumulator(Limb* result, std::size_t limbCount) noexcept : out(result), count(limbCount) {}

    /// Adds value * 2^position, where positions rise and the limbs below are final.
    void add(Limb const (&value)[3], std::size_t position) noexcept {
        for (std::size_t const limb = position / bitsPerLimb; done < limb;)
            emit();
        unsigned const shift = position % bitsPerLimb;
        Limb carry = 0;
        Limb below = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            Limb const limb = i < 3 ? value[i] : 0;
            Limb const shifted = (limb << shift) | (shift == 0 ? 0 : below >> (64 - shift));
            DoubleLimb const total = DoubleLimb{sum[i]} + shifted + carry;
            sum[i] = static_cast<Limb>(total);
            carry = high(total);
            below = limb;
        }
    }

    void finish() noexcept {
        while (done < count)
            emit();
    }

  private:
    void emit() noexcept {
        if (done < count)
            out[done] = sum[0];
        ++done;
        sum = {sum[1], sum[2], sum[3], 0};
    }

    Limb* out;
    std::size_t count;
    std::size_t done = 0;
    std::array<Limb, 4> sum{};
};

/// out = the sum of the coefficients, each known modulo the three primes, at their positions.
void recombine(Limb* out, std::size_t count, Limb const* r0, Limb const* r1, Limb const* r2,
               Plan const& plan) noexcept {
    using F1 = Field<1>;
    using F2 = Field<2>;
    constexpr Limb p0 = primes[0].p;
    constexpr Limb p1 = primes[1].p;
    constexpr Factor inverse01 = F1::inverse(p0);
    constexpr Factor inverse02 = F2::inverse(p0);
    constexpr Factor inverse12 = F2::inverse(p1);
    constexpr DoubleLimb both = DoubleLimb{p0} * p1;
    Accumulator sum(out, count);
    for (std::size_t j = 0; j < plan.aCount + plan.bCount; ++j) {
        // d0 + p0 (d1 + p1 d2), with p0 > p1 > p2 and p0 < 2 p2.
        Limb const d0 = r0[j];
        Limb const d1 = F1::reduce(F1::multiply(r1[j] + 2 * F1::p - d0, inverse01), F1::p);
        Limb const partial = F2::multiply(r2[j] + 2 * F2::p - d0, inverse02);
        Limb const d2 = F2::reduce(F2::multiply(partial + 2 * F2::p - d1, inverse12), F2::p);
        DoubleLimb const low = DoubleLimb{d2} * static_cast<Limb>(both);
        DoubleLimb const middle = DoubleLimb{d2} * high(both);
        DoubleLimb const small = DoubleLimb{d1} * p0 + d0;
        DoubleLimb const first = DoubleLimb{static_cast<Limb>(low)} + static_cast<Limb>(small);
        DoubleLimb const rest = middle + high(low) + high(small) + high(first);
        Limb const value[3] = {static_cast<Limb>(first), static_cast<Limb>(rest), high(rest)};
        sum.add(value, j * static_cast<std::size_t>(plan.bits));
    }
    sum.finish();
}

}  // namespace

// A transform for each prime, one for the other operand, and the table.
std::size_t transformScratch(std::size_t aCount, std::size_t bCount) noexcept {
    Plan const plan = makePlan(aCount, bCount);
    return 4 * plan.size + 2 * plan.factors();
}

void multiplyByTransform(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                         std::size_t bCount, Limb* scratch) noexcept {
    Plan const plan = makePlan(aCount, bCount);
    Limb* const other = scratch + 3 * plan.size;
    Limb* const table = scratch + 4 * plan.size;
    convolve<0>(scratch, other, table, plan, a, aCount, b, bCount);
    convolve<1>(scratch + plan.size, other, table, plan, a, aCount, b, bCount);
    convolve<2>(scratch + 2 * plan.size, other, table, plan, a, aCount, b, bCount);
    recombine(out, aCount + bCount, scratch, scratch + plan.size, scratch + 2 * plan.size, plan);
}

}  // namespace qel::limbs
