// The transform modulo one prime, and its inverse.
//
// It reduces a polynomial modulo x^size - c, then modulo the factors x^(size/2) - w and
// x^(size/2) + w with w^2 = c, and so on. The factors' w, in the order they come, are the same in
// every length: one table serves all. The butterflies are Harvey's ("Faster arithmetic for
// number-theoretic transforms", 2014).
#pragma once

#include "PrimeField.h"

#include <bit>

namespace qel::limbs {

/// Transforms modulo one prime.
template <int which>
class Transform {
  public:
    using F = Field<which>;

    /// With a table of as many entries as the longest transform has nodes.
    explicit Transform(Factor const* table) noexcept : w(table) {}

    /// `count` entries, a power of two.
    static void fill(Factor* table, std::size_t count) noexcept {
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
    /// node 2; size >= 4. In: below 4p; out: below 4p.
    void forward(Limb* x, std::size_t size, std::size_t node) const noexcept {
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

}  // namespace qel::limbs
