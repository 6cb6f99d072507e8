"""Cases for the greatest common divisor, the inverse and the modular power.

The plain algorithms of the library subtract, or add the modulus, once a step. The limits below keep out the operands
on which they would need too long or never end.
"""
import itertools
import math

import arithmetic_model as model
import operand_shapes as shapes
from operand_shapes import Draws, endless, some
from vector_files import collect, hex_line

GCD_SUBTRACTION_LIMIT = 5000
INVERSE_STEP_LIMIT = 1999
# About forty powers of 256 bits, one of 1024 and two of 512, in units of (exponent bits) * (modulus bits)^2.
POWER_BUDGET = 40 * 256**3 + 1024**3 + 2 * 512**3


# Greatest common divisor

def common_factor_pair(draws):
    factor, first, second = (shapes.magnitude_of_width(draws, draws.between(1, 80)) for _ in range(3))
    return factor * first, factor * second


def distant_pair(draws):
    """Widths more than 16 bits apart in either order, so that division comes before subtraction."""
    narrow = shapes.magnitude_of_width(draws, draws.between(1, 100))
    wide = shapes.magnitude_of_width(draws, narrow.bit_length() + draws.between(14, 120))
    return (wide, narrow) if draws.one_in(2) else (narrow, wide)


def fibonacci_pair(draws):
    """Neighbours in the Fibonacci series: the longest way for their width."""
    first, second = 1, draws.between(1, 5)
    for _ in range(draws.between(5, 250)):
        first, second = second, first + second
    return (first, second) if draws.one_in(2) else (second, first)


def power_of_two_pair(draws):
    return shapes.magnitude(draws) << draws.between(0, 70), draws.between(1, 31) << draws.between(0, 130)


def multiple_pair(draws):
    divisor = shapes.magnitude(draws)
    return divisor * draws.between(0, 300), divisor


def magnitude_pair(draws):
    return shapes.magnitude(draws), shapes.magnitude(draws)


def large_gcd_pair(draws):
    """A wide common factor leaves only a few subtractions, which the plain algorithm can make."""
    factor = shapes.magnitude_of_width(draws, draws.choose((1024, 2048, 4096)))
    return factor * draws.between(1, 40), factor * draws.between(1, 40)


def gcd_line(first, second):
    if model.gcd_subtractions(first, second) > GCD_SUBTRACTION_LIMIT:
        return None
    return hex_line(first, second, math.gcd(first, second))


def gcd_lines():
    draws = Draws("gcd")
    notable = [pair for pair in shapes.notable_pairs() if min(pair) >= 0]
    tiny = [(first, second) for first in range(13) for second in range(13)]
    operands = itertools.chain(
        notable, tiny, some(draws, 6, large_gcd_pair),
        endless(draws, (30, common_factor_pair), (20, distant_pair), (10, fibonacci_pair), (10, power_of_two_pair),
                (10, multiple_pair), (20, magnitude_pair)))
    return collect(1700, operands, gcd_line)


# Inverse

def inverse_pair(draws):
    width = shapes.small_width(draws)
    return shapes.magnitude_of_width(draws, draws.between(1, width)) | 1, shapes.magnitude_of_width(draws, width)


def reduced_inverse_pair(draws):
    """A value wider than the modulus, which is reduced first."""
    modulus = shapes.magnitude_of_width(draws, draws.between(2, 90))
    value = shapes.magnitude_of_width(draws, modulus.bit_length() + draws.between(0, 70))
    remainder = value % modulus
    return value + (1 - remainder % 2), modulus


def small_exponent_pair(draws):
    """What key creation asks for: a small odd exponent and an even modulus."""
    return draws.choose((3, 5, 9, 17, 33, 65, 129, 257, 513, 1025)), shapes.magnitude(draws) & ~1


def negative_inverse_pair(draws):
    """Few of these end in the library's loop; those that do keep their line."""
    value = shapes.magnitude_of_width(draws, draws.between(2, 40)) | 1
    return -value, shapes.magnitude_of_width(draws, draws.between(2, 40))


def refused_inverse_pair(draws):
    value, modulus = shapes.magnitude(draws), shapes.magnitude(draws)
    return draws.choose(((value & ~1, modulus), (value, -modulus), (value, 0), (value, 1),
                         (modulus * draws.between(0, 9), modulus), (modulus + 1, modulus)))


def large_inverse_pairs(draws):
    pairs = []
    while len(pairs) < 4:
        modulus = shapes.uniform(draws, (1024, 1024, 512, 512)[len(pairs)])
        value = shapes.uniform(draws, 500) | 1
        found = model.inverse_modulo(value, modulus, INVERSE_STEP_LIMIT)
        if found and found[0]:
            pairs.append((value, modulus))
    return pairs


def inverse_line(value, modulus):
    # Values without an inverse have no line: the library's loop never ends on them.
    found = model.inverse_modulo(value, modulus, INVERSE_STEP_LIMIT)
    return None if found is None else hex_line(value, modulus, found[0])


def inverse_lines():
    draws = Draws("inverse")
    tiny = [(value, modulus) for value in range(-7, 18) for modulus in range(-2, 20)]
    operands = itertools.chain(
        tiny, large_inverse_pairs(draws),
        endless(draws, (50, inverse_pair), (15, reduced_inverse_pair), (15, small_exponent_pair),
                (17, negative_inverse_pair), (3, refused_inverse_pair)))
    return collect(1650, operands, inverse_line)


# Modular powers

def power_case(draws, exponent_width, modulus_width):
    return (shapes.magnitude_of_width(draws, draws.between(1, modulus_width + 8)),
            shapes.magnitude_of_width(draws, exponent_width),
            shapes.magnitude_of_width(draws, modulus_width))


def small_power(draws):
    width = draws.weighted((70, draws.between(4, 64)), (20, draws.choose((31, 32, 33, 63, 64, 65))), (8, 96), (2, 128))
    return power_case(draws, draws.between(1, width), width)


def long_exponent_power(draws):
    """The exponent exceeds the modulus and is reduced by it, unlike in mathematics."""
    width = draws.between(3, 64)
    return power_case(draws, width + draws.between(0, 60), width)


def multiple_exponent_power(draws):
    """An exponent that is zero modulo the modulus gives 1, even where the modulus is 1."""
    modulus = shapes.magnitude(draws)
    return shapes.magnitude(draws), modulus * draws.between(0, 40), modulus


def zero_modulus_power(draws):
    return shapes.magnitude(draws), shapes.magnitude(draws), draws.between(0, 1)


def notable_base_power(draws):
    width = draws.between(2, 66)
    modulus = shapes.magnitude_of_width(draws, width)
    base = draws.choose((0, 1, 2, max(1, modulus) - 1, modulus, modulus + 1, modulus * 3))
    return base, shapes.magnitude_of_width(draws, draws.between(1, width)), modulus


def large_powers(draws):
    cases = [power_case(draws, width, width) for width in (1024, 512, 512) + 10 * (256,)]
    # A short exponent lets a wide modulus in without the cost.
    return cases + [power_case(draws, draws.between(2, 6), width) for width in (1024, 2048, 2049, 4096)]


def power_cost(exponent, modulus):
    return model.divide(exponent, modulus)[1].bit_length() * modulus.bit_length() ** 2


def power_lines():
    draws = Draws("modexp")
    cost = 0

    def power_line(base, exponent, modulus):
        nonlocal cost
        cost += power_cost(exponent, modulus)
        return hex_line(base, exponent, modulus, model.power_modulo(base, exponent, modulus))

    tiny = list(itertools.product(range(4), range(5), range(6)))
    operands = itertools.chain(
        tiny, large_powers(draws),
        endless(draws, (60, small_power), (15, long_exponent_power), (8, multiple_exponent_power),
                (3, zero_modulus_power), (14, notable_base_power)))
    lines = collect(1650, operands, power_line)
    assert cost <= POWER_BUDGET, cost
    return lines
