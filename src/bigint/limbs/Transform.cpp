// Products by transforms modulo three primes (Pollard, "The fast Fourier transform in a finite
// field", 1971): the numbers are polynomials at 2^bits, whose product is taken modulo each prime
// and put together by Garner's method (Knuth 4.3.2).
#include "Transform.h"

#include "Butterflies.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

std::size_t pieces(std::size_t count, int bits) noexcept {
    return (count * bitsPerLimb - 1) / static_cast<std::size_t>(bits) + 1;
}

/// A coefficient of the product is below n 2^(2 bits) for the shorter operand's n, and must be
/// below the product of the primes, which is above 2^186 / (1 + 2^-20).
bool fits(std::size_t n, int bits) noexcept {
    return n * 1025 / 1024 + 1 < std::size_t{1} << (186 - 2 * bits);
}

/// The bits of a coefficient where that leaves room for the sums.
constexpr int mostBits = 86;

Shape makeShape(std::size_t aCount, std::size_t bCount) noexcept {
    int bits = mostBits;
    std::size_t const shorter = std::min(aCount, bCount);
    while (!fits(pieces(shorter, bits), bits))
        --bits;
    std::size_t const least =
        std::max<std::size_t>(pieces(aCount, bits) + pieces(bCount, bits), 16);
    std::size_t size = std::bit_ceil(least);
    if (size / 4 * 3 >= least)
        size = size / 4 * 3;
    return {bits, size, aCount + bCount};
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
void load(Limb* x, Shape const& shape, Limb const* a, std::size_t count) noexcept {
    std::size_t const coefficients = pieces(count, shape.bits);
    for (std::size_t j = 0; j < coefficients; ++j)
        x[j] = Field<which>::shrink(coefficient(a, count, j, shape.bits));
    std::fill(x + coefficients, x + shape.size, Limb{0});
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

/// x = the image of a modulo the prime.
template <int which>
void transform(Transform<which> const& engine, Limb* x, Shape const& shape, Limb const* a,
               std::size_t count) noexcept {
    load<which>(x, shape, a, count);
    if (shape.whole()) {
        engine.forward(x, shape.size, 0);
        return;
    }
    std::size_t const m = shape.size / 3;
    cut<which>(x, m, engine.i());
    engine.forward(x, 2 * m, 0);
    engine.forward(x + 2 * m, m, 2);
}

/// x, of an image as y, becomes the coefficients of the product modulo the prime, fully reduced.
template <int which>
void convolve(Transform<which> const& engine, Limb* x, Limb const* y, Shape const& shape) noexcept {
    using F = Field<which>;
    for (std::size_t j = 0; j < shape.size; ++j) {
        Limb const left = F::reduce(x[j], 2 * F::p);
        Limb const right = F::reduce(y[j], 2 * F::p);
        x[j] = F::shrink(DoubleLimb{left} * right);
    }
    if (shape.whole()) {
        engine.backward(x, shape.size, 0);
    } else {
        std::size_t const m = shape.size / 3;
        engine.backward(x, 2 * m, 0);
        engine.backward(x + 2 * m, m, 2);
        mend<which>(x, m, engine.i());
    }
    // Three times 2^64 was divided out: by each operand's load, and by the products.
    Limb const shrunk = F::power(2, 3 * bitsPerLimb);
    Factor const last =
        F::factor(F::product(shrunk, F::inverse(static_cast<Limb>(shape.scale())).value));
    for (std::size_t j = 0; j < shape.coefficients(); ++j)
        x[j] = F::reduce(F::multiply(x[j], last), F::p);
}

/// As multiplyByTransform, modulo the prime: x = the coefficients of a * b.
template <int which>
void multiplyModulo(Limb* x, Limb* y, Limb* tableMemory, Shape const& shape, Limb const* a,
                    std::size_t aCount, Limb const* b, std::size_t bCount) noexcept {
    Factor* const table = factorsIn(tableMemory, shape.nodes());
    Transform<which>::fill(table, shape.nodes());
    Transform<which> const engine(table);
    transform(engine, x, shape, a, aCount);
    if (a == b && aCount == bCount)
        y = x;
    else
        transform(engine, y, shape, b, bCount);
    convolve(engine, x, y, shape);
}

/// A sum that moves up the limbs of a result.
class Accumulator {
  public:
    Accumulator(Limb* result, std::size_t limbCount) noexcept : out(result), count(limbCount) {}

    /// Adds value * 2^position, where positions rise and the limbs below are final. A position lies
    /// in the limbs of the result.
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
            carry = upperLimb(total);
            below = limb;
        }
    }

    /// What is left above the limbs stays in the sum.
    void finish() noexcept {
        while (done < count)
            emit();
    }

    /// Adds it at the bottom, as 2^(64 count) = 1: once more where that carries, which leaves
    /// zeros.
    void wrapAround() noexcept {
        Limb carry = qel::limbs::add(out, out, sum.data(), sum.size());
        carry = addLimb(out + sum.size(), out + sum.size(), count - sum.size(), carry);
        addLimb(out, out, count, carry);
    }

  private:
    void emit() noexcept {
        out[done++] = sum[0];
        sum = {sum[1], sum[2], sum[3], 0};
    }

    Limb* out;
    std::size_t count;
    std::size_t done = 0;
    std::array<Limb, 4> sum{};
};

/// out = the sum of the coefficients, each known modulo the three primes, at their positions.
void recombine(Limb* out, Shape const& shape, Limb const* r0) noexcept {
    using F1 = Field<1>;
    using F2 = Field<2>;
    constexpr Limb p0 = primes[0].p;
    constexpr Limb p1 = primes[1].p;
    constexpr Factor inverse01 = F1::inverse(p0);
    constexpr Factor inverse02 = F2::inverse(p0);
    constexpr Factor inverse12 = F2::inverse(p1);
    constexpr DoubleLimb both = DoubleLimb{p0} * p1;
    Limb const* const r1 = r0 + shape.size;
    Limb const* const r2 = r1 + shape.size;
    Accumulator sum(out, shape.length);
    for (std::size_t j = 0; j < shape.coefficients(); ++j) {
        // d0 + p0 (d1 + p1 d2), with p0 > p1 > p2 and p0 < 2 p2.
        Limb const d0 = r0[j];
        Limb const d1 = F1::reduce(F1::multiply(r1[j] + 2 * F1::p - d0, inverse01), F1::p);
        Limb const partial = F2::multiply(r2[j] + 2 * F2::p - d0, inverse02);
        Limb const d2 = F2::reduce(F2::multiply(partial + 2 * F2::p - d1, inverse12), F2::p);
        DoubleLimb const low = DoubleLimb{d2} * static_cast<Limb>(both);
        DoubleLimb const middle = DoubleLimb{d2} * upperLimb(both);
        DoubleLimb const small = DoubleLimb{d1} * p0 + d0;
        DoubleLimb const first = DoubleLimb{static_cast<Limb>(low)} + static_cast<Limb>(small);
        DoubleLimb const rest = middle + upperLimb(low) + upperLimb(small) + upperLimb(first);
        Limb const value[3] = {static_cast<Limb>(first), static_cast<Limb>(rest), upperLimb(rest)};
        sum.add(value, j * static_cast<std::size_t>(shape.bits));
    }
    sum.finish();
    if (shape.cyclic())
        sum.wrapAround();
}

}  // namespace

// A transform for each prime, one for the other operand, and the table.
std::size_t transformScratch(std::size_t aCount, std::size_t bCount) noexcept {
    Shape const shape = makeShape(aCount, bCount);
    return 4 * shape.size + 2 * shape.nodes();
}

void multiplyByTransform(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                         std::size_t bCount, Limb* scratch) noexcept {
    Shape const shape = makeShape(aCount, bCount);
    Limb* const other = scratch + 3 * shape.size;
    Limb* const table = scratch + 4 * shape.size;
    multiplyModulo<0>(scratch, other, table, shape, a, aCount, b, bCount);
    multiplyModulo<1>(scratch + shape.size, other, table, shape, a, aCount, b, bCount);
    multiplyModulo<2>(scratch + 2 * shape.size, other, table, shape, a, aCount, b, bCount);
    recombine(out, shape, scratch);
}

bool Shape::whole() const noexcept {
    return std::has_single_bit(size);
}

bool Shape::cyclic() const noexcept {
    return size * static_cast<std::size_t>(bits) == length * bitsPerLimb;
}

// The product has no bits at or above those of its limbs.
std::size_t Shape::coefficients() const noexcept {
    return std::min(size, pieces(length, bits));
}

Shape productShape(std::size_t count) noexcept {
    return makeShape(count, count);
}

// Of 64 points or more every number of bits makes whole limbs.
Shape cyclicShape(std::size_t least) noexcept {
    for (std::size_t size = 64;; size *= 2) {
        int bits = mostBits;
        while (!fits(size, bits))
            --bits;
        std::size_t const length = size / bitsPerLimb * static_cast<std::size_t>(bits);
        if (length >= least)
            return {bits, size, length};
    }
}

TransformTables::TransformTables(Limb* place, std::size_t count) noexcept
    : factors(factorsIn(place, 3 * count)), nodes(count) {
    Transform<0>::fill(table(0), nodes);
    Transform<1>::fill(table(1), nodes);
    Transform<2>::fill(table(2), nodes);
}

Factor* TransformTables::table(std::size_t which) const noexcept {
    return factors + which * nodes;
}

void TransformTables::take(Limb* image, Shape const& shape, Limb const* a,
                           std::size_t count) const noexcept {
    transform(Transform<0>(table(0)), image, shape, a, count);
    transform(Transform<1>(table(1)), image + shape.size, shape, a, count);
    transform(Transform<2>(table(2)), image + 2 * shape.size, shape, a, count);
}

void TransformTables::multiply(Limb* out, Shape const& shape, Limb* image,
                               Limb const* other) const noexcept {
    std::size_t const size = shape.size;
    convolve(Transform<0>(table(0)), image, other, shape);
    convolve(Transform<1>(table(1)), image + size, other + size, shape);
    convolve(Transform<2>(table(2)), image + 2 * size, other + 2 * size, shape);
    recombine(out, shape, image);
}

}  // namespace qel::limbs
