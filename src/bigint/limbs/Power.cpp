// Powers by Yao's method ("On the evaluation of powers", 1976) with windows of odd digits
// (Knuth 4.6.3): from the lowest bit up, the current power base^(2^i) is multiplied into the bucket
// of the window that starts at bit i; at the end the buckets are joined. As many multiplications as
// with windows from the top, and the last factor comes out by itself.
#include "Power.h"

#include "Montgomery.h"
#include "ShortMontgomery.h"

#include <algorithm>
#include <array>
#include <bit>

namespace qel::limbs {

namespace {

/// Products modulo any number, each reduced by division.
class DivisionContext {
  public:
    DivisionContext(Limb const* modulus, std::size_t limbCount, Limb* limbs) noexcept
        : count(limbCount), shift(std::countl_zero(modulus[limbCount - 1])), divisor(limbs),
          product(limbs + limbCount), quotient(product + 2 * limbCount + 1),
          scratch(quotient + limbCount + 1) {
        std::copy(modulus, modulus + count, divisor);
        if (shift != 0)
            shiftLeft(divisor, divisor, count, shift);
    }

    static std::size_t limbsNeeded(std::size_t count) noexcept {
        return 4 * count + 2
               + std::max(
                   {multiplyScratch(count, count), squareScratch(count), divideScratch(count)});
    }

    void multiply(Limb* out, Limb const* a, Limb const* b) const noexcept {
        limbs::multiply(product, a, count, b, count, scratch);
        reduce(out);
    }

    void squareTimes(Limb* a, long long times) const noexcept {
        for (; times > 0; --times) {
            limbs::square(product, a, count, scratch);
            reduce(a);
        }
    }

    void enter(Limb* out, Limb const* a) const noexcept { std::copy(a, a + count, out); }
    void leave(Limb* out, Limb const* a) const noexcept { std::copy(a, a + count, out); }

  private:
    void reduce(Limb* out) const noexcept {
        product[2 * count] = 0;
        if (shift != 0)
            product[2 * count] = shiftLeft(product, product, 2 * count, shift);
        if (count == 1) {
            // Below the modulus times the shifted modulus, and so below 2^128.
            out[0] = divideLimb(quotient, product, 2, divisor[0]) >> shift;
            return;
        }
        divide(quotient, product, 2 * count + 1, divisor, count, scratch);
        if (shift != 0)
            shiftRight(out, product, count, shift);
        else
            std::copy(product, product + count, out);
    }

    std::size_t count;
    int shift;
    Limb* divisor;
    Limb* product;
    Limb* quotient;
    Limb* scratch;
};

/// Products modulo an odd number of one limb or two.
template <typename Number>
class ShortContext {
  public:
    ShortContext(Limb const* modulus, std::size_t /*count*/, Limb* /*scratch*/) noexcept
        : montgomery(load<Number>(modulus)) {}

    void multiply(Limb* out, Limb const* a, Limb const* b) const noexcept {
        store(out, montgomery.multiply(load<Number>(a), load<Number>(b)));
    }
    void squareTimes(Limb* a, long long times) const noexcept {
        Number x = load<Number>(a);
        for (; times > 0; --times)
            x = montgomery.multiply(x, x);
        store(a, x);
    }
    void enter(Limb* out, Limb const* a) const noexcept {
        store(out, montgomery.enter(load<Number>(a)));
    }
    void leave(Limb* out, Limb const* a) const noexcept {
        store(out, montgomery.leave(load<Number>(a)));
    }

  private:
    ShortMontgomery<Number> montgomery;
};

/// Windows of this many bits cost the fewest multiplications for an exponent of `bits` bits:
/// bits / (width + 1) in the loop, about 2^width to join the buckets.
int windowWidth(long long bits) noexcept {
    return bits < 24 ? 1 : bits < 80 ? 3 : bits < 240 ? 4 : bits < 768 ? 5 : 6;
}

bool bitOf(Limb const* e, long long i) noexcept {
    return ((e[i / bitsPerLimb] >> (i % bitsPerLimb)) & 1) != 0;
}

constexpr std::size_t mostBuckets = 32;

/// The powers gathered for each odd digit 1, 3, 5, ...
struct Buckets {
    Limb* limbs;
    std::array<bool, mostBuckets> used;

    template <typename Context>
    void gather(Context const& context, std::size_t count, std::size_t index,
                Limb const* factor) noexcept {
        Limb* const bucket = limbs + index * count;
        if (used[index])
            context.multiply(bucket, bucket, factor);
        else
            std::copy(factor, factor + count, bucket);
        used[index] = true;
    }
};

/// The product of bucket[k]^(2k + 1), in bucket 0: with suffix products S_k = the product of the
/// buckets from k up, it is S_0 * (S_1 * S_2 * ...)^2. False when no bucket is used.
template <typename Context>
bool joinBuckets(Buckets& buckets, std::size_t bucketCount, Context const& context,
                 std::size_t count, Limb* joined) noexcept {
    bool any = false;
    for (std::size_t k = bucketCount - 1; k > 0; --k) {
        if (!buckets.used[k])
            continue;
        if (any)
            context.multiply(joined, joined, buckets.limbs + k * count);
        else
            std::copy(buckets.limbs + k * count, buckets.limbs + (k + 1) * count, joined);
        any = true;
        buckets.gather(context, count, k - 1, buckets.limbs + k * count);
    }
    if (any) {
        context.squareTimes(joined, 1);
        buckets.gather(context, count, 0, joined);
    }
    return buckets.used[0];
}

}  // namespace

// The current power and the joined product, the buckets, and what the larger context needs.
std::size_t powerScratch(std::size_t count, long long top) noexcept {
    std::size_t const buckets = std::size_t{1} << (windowWidth(top) - 1);
    return (2 + buckets) * count
           + std::max(DivisionContext::limbsNeeded(count), montgomeryScratch(count));
}

namespace {

template <typename Context>
void powerIn(Limb* result, Limb* lower, Limb* highest, Limb const* base, Limb const* e,
             long long top, Limb const* modulus, std::size_t count, Limb* scratch) noexcept {
    int const width = windowWidth(top);
    std::size_t const bucketCount = std::size_t{1} << (width - 1);
    Limb* const current = scratch;
    Limb* const joined = scratch + count;
    Buckets buckets{scratch + 2 * count, {}};
    Context const context(modulus, count, buckets.limbs + bucketCount * count);

    context.enter(current, base);
    long long squared = 0;
    std::size_t digit = 0;
    for (long long i = 0; i < top;) {
        if (!bitOf(e, i)) {
            ++i;
            continue;
        }
        context.squareTimes(current, i - squared);
        squared = i;
        digit = 0;
        for (long long const end = std::min(i + width, top); i < end; ++i)
            digit |= static_cast<std::size_t>(bitOf(e, i)) << (i - squared);
        buckets.gather(context, count, digit / 2, current);
    }
    context.squareTimes(current, top - squared);

    context.leave(highest, current);
    if (joinBuckets(buckets, bucketCount, context, count, joined)) {
        if (squared == 0 && digit == 1)  // e = 2^top + 1, as public exponents are
            std::copy(base, base + count, lower);
        else
            context.leave(lower, buckets.limbs);
        // One factor as it is and one in the representation give the product as it is.
        context.multiply(result, highest, buckets.limbs);
    } else {
        std::fill(lower, lower + count, Limb{0});
        lower[0] = 1;
        std::copy(highest, highest + count, result);
    }
}

}  // namespace

void power(Limb* result, Limb* lower, Limb* highest, Limb const* base, Limb const* e, long long top,
           Limb const* modulus, std::size_t count, Limb* scratch) noexcept {
    auto const in = modulus[0] % 2 == 0 ? powerIn<DivisionContext>
                    : count == 1        ? powerIn<ShortContext<Limb>>
                    : count == 2        ? powerIn<ShortContext<DoubleLimb>>
                                        : powerIn<MontgomeryContext>;
    in(result, lower, highest, base, e, top, modulus, count, scratch);
}

}  // namespace qel::limbs
