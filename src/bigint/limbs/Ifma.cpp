// The variant for x86-64 processors with AVX-512 IFMA, which multiplies eight pairs of 52-bit
// digits and adds the low or the high halves of the products to eight 64-bit sums (Gueron and
// Krasnov, "Accelerating big integer arithmetic using Intel IFMA extensions", 2016). Carries wait
// in the sums until a digit is needed: fewer than 2^12 halves come together in a column.
//
// The unit of work is a tile, a block of five digits by another, which adds to ten columns that
// stay in registers.
#include "LaneKernels.h"

#if defined(__x86_64__)

#include <immintrin.h>

#define QEL_IFMA [[gnu::target("avx512f,avx512ifma")]]
#define QEL_IFMA_INLINE [[gnu::target("avx512f,avx512ifma"), gnu::always_inline]] inline

namespace qel::limbs {

namespace {

constexpr int block = static_cast<int>(digitsPerBlock);

/// One digit, or one column of sums, of eight numbers.
using Column = __m512i;
/// The same for the compiler's own operators.
using Lanes [[gnu::vector_size(sizeof(Column))]] = Limb;

QEL_IFMA_INLINE Column load(Limb const* a, int i) noexcept {
    return _mm512_load_si512(a + std::ptrdiff_t{8} * i);
}

QEL_IFMA_INLINE void store(Limb* out, int i, Column column) noexcept {
    _mm512_store_si512(out + std::ptrdiff_t{8} * i, column);
}

QEL_IFMA_INLINE Column add(Column a, Column b) noexcept {
    return reinterpret_cast<Column>(reinterpret_cast<Lanes>(a) + reinterpret_cast<Lanes>(b));
}

QEL_IFMA_INLINE Column carryOf(Column sum) noexcept {
    return reinterpret_cast<Column>(reinterpret_cast<Lanes>(sum) >> bitsPerDigit);
}

QEL_IFMA_INLINE void addLow(Column& sum, Column a, Column b) noexcept {
    sum = _mm512_madd52lo_epu64(sum, a, b);
}

QEL_IFMA_INLINE void addHigh(Column& sum, Column a, Column b) noexcept {
    sum = _mm512_madd52hi_epu64(sum, a, b);
}

/// The columns that a tile adds to.
struct Sums {
    Column column[2 * block];
};

/// out[0, 5 * (blocks + 1)) += a * b, for a block of digits a.
QEL_IFMA_INLINE void addRows(Limb* out, Column const (&a)[block], Limb const* b,
                             std::size_t blocks) noexcept {
    Sums sums;
#pragma GCC unroll 5
    for (int i = 0; i < block; ++i)
        sums.column[i] = load(out, i);
    for (; blocks > 0; --blocks, b += limbsPerBlock, out += limbsPerBlock) {
#pragma GCC unroll 5
        for (int i = 0; i < block; ++i)
            sums.column[block + i] = load(out, block + i);
#pragma GCC unroll 5
        for (int j = 0; j < block; ++j) {
            Column const digit = load(b, j);
#pragma GCC unroll 5
            for (int i = 0; i < block; ++i)
                addLow(sums.column[i + j], a[i], digit);
#pragma GCC unroll 5
            for (int i = 0; i < block; ++i)
                addHigh(sums.column[i + j + 1], a[i], digit);
        }
#pragma GCC unroll 5
        for (int i = 0; i < block; ++i) {
            store(out, i, sums.column[i]);
            sums.column[i] = sums.column[block + i];
        }
    }
#pragma GCC unroll 5
    for (int i = 0; i < block; ++i)
        store(out, i, sums.column[i]);
}

/// out[0, 10) = 2 * out + a^2 with the products of two different digits twice.
QEL_IFMA_INLINE void addSquare(Limb* out, Column const (&a)[block]) noexcept {
    Sums sums;
#pragma GCC unroll 10
    for (int i = 0; i < 2 * block; ++i)
        sums.column[i] = load(out, i);
#pragma GCC unroll 5
    for (int j = 1; j < block; ++j) {
#pragma GCC unroll 5
        for (int i = 0; i < j; ++i)
            addLow(sums.column[i + j], a[i], a[j]);
#pragma GCC unroll 5
        for (int i = 0; i < j; ++i)
            addHigh(sums.column[i + j + 1], a[i], a[j]);
    }
#pragma GCC unroll 10
    for (int i = 0; i < 2 * block; ++i)
        sums.column[i] = add(sums.column[i], sums.column[i]);
#pragma GCC unroll 5
    for (std::size_t i = 0; i < digitsPerBlock; ++i) {
        addLow(sums.column[2 * i], a[i], a[i]);
        addHigh(sums.column[2 * i + 1], a[i], a[i]);
    }
#pragma GCC unroll 10
    for (int i = 0; i < 2 * block; ++i)
        store(out, i, sums.column[i]);
}

QEL_IFMA_INLINE void loadBlock(Column (&out)[block], Limb const* a) noexcept {
#pragma GCC unroll 5
    for (int i = 0; i < block; ++i)
        out[i] = load(a, i);
}

/// out = y^2, in columns. A block's products with those above it lie in columns that the square
/// of a higher block has yet to double.
QEL_IFMA_INLINE void squareColumns(Limb* out, Limb const* y, std::size_t blocks) noexcept {
    for (std::size_t i = 0; i < 2 * digitsPerBlock * blocks; ++i)
        store(out, static_cast<int>(i), Column{});
    for (std::size_t i = 0; i < blocks; ++i) {
        Column a[block];
        loadBlock(a, y + i * limbsPerBlock);
        if (i + 1 < blocks)
            addRows(out + (2 * i + 1) * limbsPerBlock, a, y + (i + 1) * limbsPerBlock,
                    blocks - i - 1);
        addSquare(out + 2 * i * limbsPerBlock, a);
    }
}

/// Divides t by 2^260: its lowest block, times 2^-260, goes to the blocks above.
QEL_IFMA_INLINE void reduceBlock(Limb* t, LaneModuli const& moduli) noexcept {
    Column m[block];
    m[0] = load(t, 0);
#pragma GCC unroll 5
    for (int i = 1; i < block; ++i)
        m[i] = add(load(t, i), carryOf(m[i - 1]));
    store(t, block, add(load(t, block), carryOf(m[block - 1])));
    addRows(t + limbsPerBlock, m, moduli.inverseOfBlock, moduli.blocks);
}

/// One row of a tile: columns[0, 6) += digit * b[0, 5).
QEL_IFMA_INLINE void addRow(Column* columns, Column digit, Limb const* b) noexcept {
#pragma GCC unroll 5
    for (int j = 0; j < block; ++j) {
        Column const other = load(b, j);
        addLow(columns[j], digit, other);
        addHigh(columns[j + 1], digit, other);
    }
}

/// y = t / 2^260, for the highest blocks + 1 blocks of t: four digits as reduceBlock does it, the
/// last with the multiple of the modulus that clears it.
QEL_IFMA_INLINE void reduceLastBlock(Limb* y, Limb const* t, LaneModuli const& moduli) noexcept {
    Sums sums;
    Column m[block];
#pragma GCC unroll 10
    for (int i = 0; i < 2 * block; ++i)
        sums.column[i] = load(t, i);
    Column const zero = Column{};
#pragma GCC unroll 5
    for (int i = 0; i + 1 < block; ++i) {
        m[i] = sums.column[i];
        sums.column[i + 1] = add(sums.column[i + 1], carryOf(m[i]));
        addRow(sums.column + i + 1, m[i], moduli.inverseOfDigit);
    }
    m[block - 1] =
        _mm512_madd52lo_epu64(zero, sums.column[block - 1], load(moduli.negatedInverse, 0));
    addRow(sums.column + block - 1, m[block - 1], moduli.moduli);
    Column carry = carryOf(sums.column[block - 1]);
    for (std::size_t k = 1; k < moduli.blocks; ++k) {
        t += limbsPerBlock;
#pragma GCC unroll 5
        for (int i = 0; i < block; ++i) {
            sums.column[i] = sums.column[block + i];
            sums.column[block + i] = load(t, block + i);
        }
#pragma GCC unroll 5
        for (int i = 0; i + 1 < block; ++i)
            addRow(sums.column + i + 1, m[i], moduli.inverseOfDigit + k * limbsPerBlock);
        addRow(sums.column + block - 1, m[block - 1], moduli.moduli + k * limbsPerBlock);
#pragma GCC unroll 5
        for (int i = 0; i < block; ++i) {
            Column const sum = add(sums.column[i], carry);
            carry = carryOf(sum);
            store(y, i, sum);
        }
        y += limbsPerBlock;
    }
#pragma GCC unroll 5
    for (int i = 0; i < block; ++i) {
        Column const sum = add(sums.column[block + i], carry);
        carry = carryOf(sum);
        store(y, i, sum);
    }
}

QEL_IFMA void squareIfma(Limb* y, LaneModuli const& moduli, int times, Limb* scratch) noexcept {
    for (; times > 0; --times) {
        squareColumns(scratch, y, moduli.blocks);
        for (std::size_t i = 0; i + 1 < moduli.blocks; ++i)
            reduceBlock(scratch + i * limbsPerBlock, moduli);
        reduceLastBlock(y, scratch + (moduli.blocks - 1) * limbsPerBlock, moduli);
    }
}

QEL_IFMA void multiplyDigitIfma(Limb* y, LaneModuli const& moduli, Limb const* factor,
                                Limb* /*scratch*/) noexcept {
    int const count = static_cast<int>(moduli.blocks) * block;
    Column const c = load(factor, 0);
    Column sum = Column{};
    addLow(sum, load(y, 0), c);
    Column m = Column{};
    addLow(m, sum, load(moduli.negatedInverse, 0));
    addLow(sum, m, load(moduli.moduli, 0));
    for (int i = 1; i < count; ++i) {
        Column next = Column{};
        addHigh(next, load(y, i - 1), c);
        addHigh(next, m, load(moduli.moduli, i - 1));
        addLow(next, load(y, i), c);
        addLow(next, m, load(moduli.moduli, i));
        sum = add(next, carryOf(sum));
        store(y, i - 1, sum);
    }
    Column top = Column{};
    addHigh(top, load(y, count - 1), c);
    addHigh(top, m, load(moduli.moduli, count - 1));
    store(y, count - 1, add(top, carryOf(sum)));
}

}  // namespace

LaneKernels const ifmaLanes = {squareIfma, multiplyDigitIfma, true};

}  // namespace qel::limbs

#undef QEL_IFMA
#undef QEL_IFMA_INLINE

#else

namespace qel::limbs {

LaneKernels const ifmaLanes = portableLanes;

}  // namespace qel::limbs

#endif
