"""The cases of the generator, prime and key vector files, and the checks that the model has to pass first.

The model itself is prime_model.py, which is also the script to run.
"""
import ctypes
import math

from arithmetic_model import gcd_subtractions, hexadecimal
from operand_shapes import Draws
import prime_model as model
from prime_model import Random, create_key_pair, create_probable_prime, is_probably_prime
from vector_files import sorted_lines

# The library's plain gcd may subtract 10^8 times for a value close to -1 modulo the small prime product.
SUBTRACTION_LIMIT = 120000

NOTABLE_SEEDS = (0, 1, -1, 2, 3, 11, 42, 1000, -1000, 0x330E, 2**16, 2**31 - 1, -2**31, 2**32 - 1, 2**32, 2**47 - 1,
                 2**47, 2**47 + 1, -2**47, 2**48 - 1, 2**48, 2**48 + 1, -2**48 + 1, -2**48, -2**48 - 1, 2**49 + 5,
                 2**63 - 1, -2**63, -2**63 + 1, 2**62, 0x5DEECE66D, -0x5DEECE66D)

FILLED_RANGES = ((0, 1), (0, 5), (0, 31), (0, 32), (0, 33), (0, 63), (0, 64), (0, 70), (0, 96), (0, 128), (0, 129),
                 (0, 256), (1, 30), (1, 31), (1, 32), (1, 63), (1, 64), (1, 95), (5, 26), (5, 27), (5, 28), (5, 30),
                 (5, 59), (5, 60), (17, 200), (31, 1), (31, 2), (31, 33), (31, 34), (32, 31), (32, 32), (33, 31),
                 (33, 32), (64, 64), (96, 7), (100, 7), (100, 28), (100, 60), (200, 5), (230, 90), (40, 0), (0, 0),
                 (7, -3), (0, -5), (-5, 10))

WITNESS_COUNTS = (-1, 0, 1, 2, 3, 5, 30)
PRIME_WITNESS_COUNTS = (0, 1, 30, 53, 54, 60, 97)
SEARCHED_COMPOSITES = 2000000
# Well known: each is the smallest strong pseudoprime to all of the first few primes.
PUBLISHED_PSEUDOPRIMES = (3215031751, 2152302898747, 3474749660383, 341550071728321, 3825123056546413051,
                          318665857834031151167461, 3317044064679887385961981)
# Mersenne primes leave one halving of n - 1, Proth primes k * 2^m + 1 leave many.
PRIMES = (2053, 4093, 8191, 65537, 2**31 - 1, 2**32 - 5, 3 * 2**30 + 1, 2**61 - 1, 5 * 2**55 + 1, 2**64 - 59,
          2**89 - 1, 2**107 - 1, 2**127 - 1, 2**128 - 159)

# No prime lies within the 2048 numbers above this base of 200 bits, so the search needs a second block.
BASE_OF_EMPTY_BLOCK = 0xc158972163ea3df7f2a69f737b0a2cda4effd8f3b5162bfe0a

# A start of 719 bits, so near the top that the first block lies above the width, and that block holds no prime: the
# search fails. Found by trying the widths from 100 on; the next failing one is above 1000.
START_OF_FAILING_SEARCH = 2**719 - 2 * 2240 + 2 * 1398

COUNTING_TABLE = (1, 2, 3, 4, 5, 6, 7, 8)
KEY_TABLES = (COUNTING_TABLE, (17, 4), (-1, 2147483647, -2147483648, 0, 99), (123456789, -987654321, 5, 6, 7, 8, 9),
              (27182818, 28459045, 23536028, 74713526), (-7, -7, 12, 2026, 1848, -300, 77, 1, 65537, 4242))


def examine_generator():
    assert Random(0).next_int() == 0 and Random(0).next_bool() == 0
    generator = Random(0)
    assert (generator.next_int(), generator.state) == (0, 11)
    assert (generator.next_bool(), generator.state) == (0, (25214903917 * 11 + 11) % 2**48)
    assert steps_of_filling(0, 64) == 2 and steps_of_filling(0, 70) == 8 and steps_of_filling(5, 30) == 30
    examine_against_c_library()


def steps_of_filling(first_bit, bit_count):
    filling, stepping, steps = Random(9), Random(9), 0
    filling.fill_bits_randomly(0, first_bit, bit_count)
    while stepping.state != filling.state:
        stepping.next_int()
        steps += 1
    return steps


def examine_against_c_library():
    """jrand48 is the same generator; where the system has it, it must agree."""
    try:
        jrand48 = ctypes.CDLL(None).jrand48
    except (OSError, AttributeError, TypeError):
        return
    jrand48.restype = ctypes.c_long
    for seed in NOTABLE_SEEDS:
        # The C library takes the state as three words of 16 bits, lowest first.
        state = (ctypes.c_ushort * 3)(*(seed >> shift & 0xFFFF for shift in (0, 16, 32)))
        ours = Random(seed)
        for _ in range(100):
            assert ours.next_int() == jrand48(state)


def examine_primes():
    for count in WITNESS_COUNTS:
        assert not any(is_probably_prime(value, count) for value in (0, 2, 4, 9, 15, 2049))
        assert all(is_probably_prime(value, count) for value in (1, 3, 5, 7, 1025, 1027, 1031))
    assert is_probably_prime(29 * 3000017, 0) and not is_probably_prime(29 * 3000017, 1)
    assert len(model.witness_sieve(53)) == 55 and len(model.witness_sieve(54)) == 98
    divisors = model.screening_divisors()
    assert divisors[:12] == [3, 5, 7, 11, 15, 23, 27, 35, 39, 47, 59, 63] and divisors[-1] == 29967
    assert create_probable_prime(100, 30, (5, 6, 7)) == create_probable_prime(100, 30, (7, 5, 6))


def examine_keys():
    assert model.find_best_common_divisor(12, 10) == 17 and model.find_best_common_divisor(2, 4) == 3
    (exponent, modulus), (inverse, _) = create_key_pair(128, COUNTING_TABLE)
    assert pow(pow(12345, exponent, modulus), inverse, modulus) == 12345


def examine():
    examine_generator()
    examine_primes()
    examine_keys()


# Generator

def seeds_of_generator():
    draws = Draws("random")
    return NOTABLE_SEEDS + tuple(draws.between(-2**63, 2**63 - 1) for _ in range(40))


def integer_lines():
    lines = []
    for seed in seeds_of_generator():
        generator = Random(seed)
        lines.append(" ".join(map(str, [seed] + [generator.next_int() for _ in range(8)])))
    return lines


def boolean_lines():
    lines = []
    for seed in seeds_of_generator():
        generator = Random(seed)
        lines.append(f"{seed} " + "".join(str(generator.next_bool()) for _ in range(64)))
    return lines


def fill_line(seed, first_bit, bit_count, initial):
    result = Random(seed).fill_bits_randomly(initial, first_bit, bit_count)
    return f"{seed} {first_bit} {bit_count} {hexadecimal(initial)} {hexadecimal(result)}"


def fill_lines():
    """Each range on zero, on ones and on random bits: what lies outside the range has to stay."""
    draws = Draws("fill")
    lines = []
    for first_bit, bit_count in FILLED_RANGES:
        width = max(1, first_bit + bit_count) + 40
        for initial in (0, 0, (1 << width) - 1, draws.bits(width), draws.bits(5)):
            seed = draws.between(-2**31, 2**31 - 1)
            lines.append(fill_line(seed, first_bit, bit_count, initial))
    return lines


# Verdicts

def small_verdict_lines():
    """The verdicts on 0 to 19999, two hundred a line."""
    return ["".join("01"[is_probably_prime(value, 30)] for value in range(start, start + 200))
            for start in range(0, 20000, 200)]


def is_prime(value):
    """Certain below 3.3 * 10^24, where these thirteen bases are known to suffice."""
    bases = (2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41)
    if any(value % base == 0 for base in bases):
        return value in bases
    doublings = model.highest_bit((value - 1) & -(value - 1))
    return all(model.passes_witness(value, base, (value - 1) >> doublings, doublings) for base in bases)


def refused_from(value):
    """The witness count from which on the value is refused."""
    return next(count for count in range(0, 100) if not is_probably_prime(value, count))


def passing_composites():
    """Every composite of the searched range that the first witness, 3, takes for a prime."""
    composite = model.sieve(SEARCHED_COMPOSITES, math.isqrt(SEARCHED_COMPOSITES))
    return [value for value in range(2049, SEARCHED_COMPOSITES, 2)
            if composite[value] and pow(3, value - 1, value) == 1 and is_probably_prime(value, 1)]


def carmichael_factors(k):
    return 6 * k + 1, 12 * k + 1, 18 * k + 1


def carmichael_numbers():
    """Products of three such primes, at growing sizes up to 128 bits."""
    numbers = []
    for k in (5, 50, 300, 2**10, 2**14, 2**18, 2**20, 2**24, 2**28, 2**31, 2**34, 2**38):
        factors = carmichael_factors(k)
        while not all(map(is_prime, factors)):
            k += 1
            factors = carmichael_factors(k)
        numbers.append(math.prod(factors))
    return numbers


def first_strong_product(start, factor, witness_count):
    """The first (x + 1)(factor * x + 1) of two primes, x >= start, that passes so many witnesses."""
    x = start + start % 2
    while True:
        value = (x + 1) * (factor * x + 1)
        if is_probably_prime(value, witness_count) and is_prime(x + 1) and is_prime(factor * x + 1):
            return value
        x += 2


def strong_products():
    """Composites of many sizes that pass one, two or three witnesses, such as the widths around whole words."""
    return [first_strong_product(2**exponent, factor, witness_count)
            for exponent in (9, 11, 13, 15, 16, 23, 31, 32, 40, 47, 62)
            for factor in (2, 3) for witness_count in (1, 2, 3)]


def plainly_composite():
    """Even values, values that the gcd refuses, squares of primes (1006003 is special for the witness 3)."""
    return [2**11, 2**64, 2**127 + 2, 3 * 683, 2**61 - 3, 23 * (2**61 - 1), 31 * 67, 29 * (2**31 - 1), 4093**2,
            1006003**2, (2**31 - 1)**2, (2**61 - 1)**2, (2**31 - 1) * (2**61 - 1), 2**67 - 1, 2**101 - 1]


def verdict_line(value, witness_count):
    return f"{hexadecimal(value)} {witness_count} {int(is_probably_prime(value, witness_count))}"


def telling_counts(value):
    """The usual counts, and those between which the verdict changes."""
    turn = refused_from(value)
    return sorted(set(WITNESS_COUNTS) | {max(0, turn - 1), turn, turn + 1})


def verdict_lines():
    composites = (passing_composites() + carmichael_numbers() + strong_products() + plainly_composite()
                  + list(PUBLISHED_PSEUDOPRIMES))
    lines = [verdict_line(value, count) for value in composites if affordable(value) for count in telling_counts(value)]
    lines += [verdict_line(value, count) for value in PRIMES if affordable(value) for count in PRIME_WITNESS_COUNTS]
    return sorted_lines(lines)


def affordable(value):
    return gcd_subtractions(value, model.SMALL_PRIME_PRODUCT) <= SUBTRACTION_LIMIT


# Primes

def seeds_for(base, bit_count):
    """A seed table whose starting value is `base`: the fills of many seeds span every value of the width.

    Elimination with rows that are told apart by their top bit; the mask of a row names the kept seeds it combines.
    """
    rows, kept, seed = {}, [], 0
    while len(rows) < bit_count:
        seed += 1
        fill, mask = reduced(Random(seed).fill_bits_randomly(0, 0, bit_count), 1 << len(kept), rows)
        if fill:
            rows[fill.bit_length()] = (fill, mask)
            kept.append(seed)
    rest, mask = reduced(base, 0, rows)
    seeds = tuple(seed for index, seed in enumerate(kept) if mask >> index & 1)
    assert rest == 0 and model.starting_value(bit_count, seeds) == base
    return seeds


def reduced(value, mask, rows):
    while value and value.bit_length() in rows:
        row_value, row_mask = rows[value.bit_length()]
        value, mask = value ^ row_value, mask ^ row_mask
    return value, mask


def random_seeds(draws, count):
    return tuple(draws.between(-2**31, 2**31 - 1) for _ in range(count))


def small_prime_cases(draws):
    """Widths below 2049's are left behind by the first step of the base: the results are wider than asked."""
    widths = (2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20, 22, 24, 26, 28, 31, 32, 33, 36, 40)
    return [(width, 30, random_seeds(draws, draws.between(1, 4))) for width in widths]


def odd_prime_cases():
    """Arguments that need no special handling: no width, no witnesses, seeds that cancel, tables in another order."""
    return [(0, 30, ()), (1, 30, ()), (1, 30, (5,)), (-1, 30, (1, 2)), (-64, 30, ()), (2, 30, ()), (16, 30, ()),
            (64, 30, ()), (64, 0, (7, 8)), (64, -1, (7, 8)), (64, 1, (7, 8)), (64, 30, (7, 8)), (64, 30, (8, 7)),
            (64, 60, (7, 8)), (64, 30, (7, 8, 9, 9)), (64, 30, (9, 7, 9, 8)), (64, 30, (9, 9)), (64, 30, (-1,)),
            (64, 30, (-2147483648, 2147483647)), (96, 0, (-3,)), (96, -30, (4,)), (96, 97, (-3, 12)), (20, 1, (3,)),
            (20, 0, (3,)), (128, 0, (1, 2, 3)), (128, 30, (3, 2, 1)), (128, 30, (1, 2, 3)), (160, 1, (6,)),
            (256, 0, (-5, 5)), (65, 30, (64, 65)), (127, 30, (64, 65))]


def wide_prime_cases(draws):
    cases = [(width, 30, random_seeds(draws, 3)) for width in (64, 64, 96, 128, 160, 200, 256, 321, 340)]
    return cases + [(512, 30, seeds) for seeds in ((1,), (2, 3), (-4, 5, 6), COUNTING_TABLE)]


def designed_prime_cases():
    """Starts at the top of their width, whose result is wider, one before a block without a prime, and a failure."""
    top = [(width, 30, seeds_for(2**width - 2, width)) for width in (32, 64, 100)]
    step = 2 * model.block_length(200)
    return top + [(200, 30, seeds_for(BASE_OF_EMPTY_BLOCK - step, 200)),
                  (719, 30, seeds_for(START_OF_FAILING_SEARCH, 719))]


def seed_text(seeds):
    return ",".join(map(str, seeds)) or "none"


def prime_line(bit_count, witness_count, seeds):
    prime = create_probable_prime(bit_count, witness_count, seeds)
    return f"{bit_count} {witness_count} {seed_text(seeds)} {hexadecimal(prime)}"


def prime_lines():
    draws = Draws("primes")
    cases = small_prime_cases(draws) + odd_prime_cases() + wide_prime_cases(draws) + designed_prime_cases()
    return [prime_line(*case) for case in sorted(cases)]


# Keys

def key_line(bit_count, seeds):
    (exponent, modulus), (inverse, _) = create_key_pair(bit_count, seeds)
    return " ".join((str(bit_count), seed_text(seeds), *map(hexadecimal, (exponent, inverse, modulus))))


def small_key_lines():
    draws = Draws("keys")
    cases = [(width, random_seeds(draws, count)) for width in (64, 96, 128, 192) for count in (1, 2, 3, 6)]
    cases += [(65, (1, 2, 3)), (97, (4, 5)), (129, (-6,)), (191, COUNTING_TABLE), (255, (1, 2)), (128, ()), (64, (9,)),
              (24, (1, 2)), (3, (1, 2)), (1, ()), (0, ()), (-1, (1, 2)), (-2, ()), (-128, (5, 6, 7)),
              (128, (5, 5, 6, 7)), (128, (3, 4, 3, 4)), (64, COUNTING_TABLE), (128, COUNTING_TABLE)]
    cases += [(256, seeds) for seeds in KEY_TABLES]
    return [key_line(*case) for case in sorted(cases)]


def table_builder(bit_count, tables):
    return lambda: [key_line(bit_count, seeds) for seeds in tables]


BUILDERS = {
    "random_int.txt": integer_lines,
    "random_bool.txt": boolean_lines,
    "fill.txt": fill_lines,
    "small_verdicts.txt": small_verdict_lines,
    "pseudoprimes.txt": verdict_lines,
    "primes.txt": prime_lines,
    "keys.txt": small_key_lines,
    "keys_512.txt": table_builder(512, KEY_TABLES),
    "keys_1024.txt": table_builder(1024, KEY_TABLES),
    "keys_2048.txt": table_builder(2048, (COUNTING_TABLE,)),
}
