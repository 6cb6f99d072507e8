// The variant for x86-64 processors with BMI2 and ADX: what is made of its loops.
//
// Every function is a template over kinds of rows, of which there are one for each count from 1 to
// 16, all limbs in sequence, and, for more limbs, one for each rest modulo 8, with a loop over
// blocks of eight. The kind is looked up once for all rows of a product.
#include "AdxLoops.h"
#include "Kernels.h"

#if defined(__x86_64__)

#include <array>
#include <utility>

namespace qel::limbs {

namespace {

using adx::Row;

constexpr std::size_t mostInSequence = 16;
constexpr std::size_t kindCount = mostInSequence + 1 + 8;

std::size_t kindOf(std::size_t count) noexcept {
    return count <= mostInSequence ? count : mostInSequence + 1 + count % 8;
}

template <std::size_t kind, Row row = Row::adding>
[[gnu::always_inline]] inline Limb rowOf(Limb* out, Limb const* a, std::size_t count,
                                         Limb b) noexcept {
    if constexpr (kind <= mostInSequence)
        return adx::row<row, kind, false>(out, a, 0, b);
    else
        return adx::row<row, kind - mostInSequence - 1, true>(out, a, count / 8, b);
}

/// The functions call<kind> of a class template.
template <template <std::size_t> typename Of>
constexpr auto forEachKind = []<std::size_t... kind>(std::index_sequence<kind...>) {
    return std::array{&Of<kind>::call...};
}
(std::make_index_sequence<kindCount>{});

template <std::size_t kind>
struct FirstRow {
    static Limb call(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
        return rowOf<kind, Row::first>(out, a, count, b);
    }
};

Limb multiplyLimbAdx(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    return forEachKind<FirstRow>[kindOf(count)](out, a, count, b);
}

template <std::size_t kind>
struct AddingRow {
    static Limb call(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
        return rowOf<kind>(out, a, count, b);
    }
};

Limb addMultiplyAdx(Limb* out, Limb const* a, std::size_t count, Limb b) noexcept {
    return forEachKind<AddingRow>[kindOf(count)](out, a, count, b);
}

template <std::size_t kind>
struct MultiplyRows {
    static void call(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                     std::size_t bCount) noexcept {
        out[aCount] = rowOf<kind, Row::first>(out, a, aCount, b[0]);
        for (std::size_t i = 1; i < bCount; ++i)
            out[aCount + i] = rowOf<kind>(out + i, a, aCount, b[i]);
    }
};

void multiplyRowsAdx(Limb* out, Limb const* a, std::size_t aCount, Limb const* b,
                     std::size_t bCount) noexcept {
    forEachKind<MultiplyRows>[kindOf(aCount)](out, a, aCount, b, bCount);
}

/// The rows of a square, each a limb shorter than the one before: products of a limb with those
/// above it.
class Triangle {
  public:
    Triangle(Limb* square, Limb const* number, std::size_t count) noexcept
        : out(square + 1), a(number), carries(square + count), left(count - 1) {}

    [[nodiscard]] std::size_t rowsLeft() const noexcept { return left; }

    template <typename AnyRow>
    [[gnu::always_inline]] void take(AnyRow row) noexcept {
        Limb const b = *a++;
        *carries++ = row(out, a, left--, b);
        out += 2;
    }

    /// The row of `count` limbs in sequence, if it is next.
    template <std::size_t count>
    [[gnu::always_inline]] void takeIfNext() noexcept {
        if (left == count)
            take(rowOf<count>);
    }

  private:
    Limb* out;
    Limb const* a;
    Limb* carries;
    std::size_t left;
};

/// Up to this length whole rows take less time than half of their products, doubled.
constexpr std::size_t wholeRowsSquare = 6;

// Each product of two different limbs once; the sum doubles them.
void squareRowsAdx(Limb* out, Limb const* a, std::size_t count) noexcept {
    if (count > 1 && count <= wholeRowsSquare) {
        multiplyRowsAdx(out, a, count, a, count);
        return;
    }
    if (count > 1) {
        Triangle triangle(out, a, count);
        triangle.take(multiplyLimbAdx);
        while (triangle.rowsLeft() > mostInSequence)
            triangle.take(addMultiplyAdx);
        [&]<std::size_t... i>(std::index_sequence<i...>) {
            (triangle.takeIfNext<mostInSequence - i>(), ...);
        }
        (std::make_index_sequence<mostInSequence>{});
    }
    out[0] = 0;
    out[2 * count - 1] = 0;
    adx::doubleAndAddSquares(out, a, count);
}

// As the portable one.
template <std::size_t kind>
struct Reduce {
    static void call(Limb* out, Limb* t, Limb const* modulus, std::size_t count,
                     Limb negatedInverse) noexcept {
        if constexpr (kind <= mostInSequence)
            count = kind;
        for (std::size_t i = 0; i < count; ++i)
            t[i] = rowOf<kind>(t + i, modulus, count, t[i] * negatedInverse);
        finishReduction(out, t, modulus, count);
    }
};

void reduceAdx(Limb* out, Limb* t, Limb const* modulus, std::size_t count,
               Limb negatedInverse) noexcept {
    forEachKind<Reduce>[kindOf(count)](out, t, modulus, count, negatedInverse);
}

}  // namespace

Kernels const adxKernels = {multiplyLimbAdx, addMultiplyAdx, multiplyRowsAdx, squareRowsAdx,
                            reduceAdx};

}  // namespace qel::limbs

#else

namespace qel::limbs {

Kernels const adxKernels = portableKernels;

}  // namespace qel::limbs

#endif
