"""Operands for the vector files: widths and bit patterns that carries, borrows and estimates trip over.

Uniform random bits alone never build a carry across several words, hence the runs, full words and near powers.
"""
import random

BOUNDARY_WIDTHS = (31, 32, 33, 63, 64, 65, 95, 96, 97, 127, 128, 129)
LARGE_WIDTHS = (1023, 1024, 1025, 1056, 1536, 2047, 2048, 2049, 3072, 4095, 4096, 4097, 4128, 4200)
NOTABLE_WORDS = (0, 1, 0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFFE, 0xFFFFFFFF)
NOTABLE_MAGNITUDES = (0, 1, 2, 7, 2**31, 2**32 - 1, 2**32, 2**32 + 1, 2**63, 2**64 - 1, 2**64, 2**96 - 1)


class Draws:
    """Deterministic choices. Only getrandbits is used: its sequence is the same in every Python version."""

    def __init__(self, name):
        self._source = random.Random("qel " + name)

    def bits(self, count):
        return self._source.getrandbits(count) if count > 0 else 0

    def between(self, lowest, highest):
        span = highest - lowest + 1
        while True:
            value = self.bits(span.bit_length())
            if value < span:
                return lowest + value

    def one_in(self, count):
        return self.between(1, count) == 1

    def choose(self, options):
        return options[self.between(0, len(options) - 1)]

    def weighted(self, *choices):
        """One of the (weight, option) pairs' options."""
        position = self.between(1, sum(weight for weight, _ in choices))
        for weight, option in choices:
            position -= weight
            if position <= 0:
                return option
        raise AssertionError("the weights cover every position")


def small_width(draws):
    """Mostly a few words: the files hold many cases in little space."""
    span = draws.weighted((46, (1, 64)), (26, None), (16, (65, 130)), (8, (131, 256)), (4, (257, 512)))
    return draws.between(*span) if span else draws.choose(BOUNDARY_WIDTHS)


def _with_width(magnitude, width):
    return magnitude & ((1 << width) - 1) | 1 << (width - 1)


def uniform(draws, width):
    return _with_width(draws.bits(width), width)


def runs(draws, width):
    """Long stretches of equal bits, of lengths that do not follow the words."""
    magnitude, bit = 0, 1
    remaining = width
    while remaining > 0:
        length = min(remaining, draws.between(1, max(2, width // 2)))
        magnitude = magnitude << length | ((1 << length) - 1) * bit
        remaining -= length
        bit ^= 1
    return magnitude


def full(draws, width):
    return (1 << width) - 1


def near_power(draws, width):
    return max(0, (1 << (width - 1)) + draws.between(-1, 1))


def sparse(draws, width):
    magnitude = 1 << (width - 1)
    for _ in range(draws.between(0, 3)):
        magnitude |= 1 << draws.between(0, width - 1)
    return magnitude


def notable_words(draws, width):
    magnitude = 0
    for _ in range((width + 31) // 32):
        magnitude = magnitude << 32 | draws.choose(NOTABLE_WORDS)
    return _with_width(magnitude, width)


def magnitude_of_width(draws, width):
    shape = draws.weighted((40, uniform), (20, runs), (8, full), (10, near_power), (10, sparse), (12, notable_words))
    return shape(draws, width)


def magnitude(draws):
    return magnitude_of_width(draws, small_width(draws))


def either_sign(draws, value):
    return -value if draws.one_in(2) else value


def signed(draws):
    return either_sign(draws, magnitude(draws))


def with_both_signs(magnitudes):
    return [value for magnitude in magnitudes for value in ((magnitude, -magnitude) if magnitude else (0,))]


def notable_pairs(count=len(NOTABLE_MAGNITUDES)):
    """Every combination of signs, zeros and word boundaries."""
    values = with_both_signs(NOTABLE_MAGNITUDES[:count])
    return [(left, right) for left in values for right in values]


def signed_pair(draws):
    return signed(draws), signed(draws)


def related_pair(draws):
    """Two values that cancel, nearly cancel, or carry through every word."""
    left = signed(draws)
    right = draws.choose((left, -left, left + 1, -left - 1, left - 1, 1 - left, 1, -1, left ^ 1, left << 1,
                          -(left << 1)))
    return left, right


def large_pair(draws, widths=LARGE_WIDTHS):
    left = magnitude_of_width(draws, draws.choose(widths))
    right = magnitude_of_width(draws, draws.choose(widths))
    return either_sign(draws, left), either_sign(draws, right)


def lopsided_pair(draws, widths=LARGE_WIDTHS):
    """One wide and one narrow operand, in either order."""
    wide = either_sign(draws, magnitude_of_width(draws, draws.choose(widths)))
    pair = (wide, signed(draws))
    return pair[::-1] if draws.one_in(2) else pair


def endless(draws, *weighted_sources):
    """Operand tuples from the (weight, source) pairs, for ever."""
    while True:
        yield draws.weighted(*weighted_sources)(draws)


def some(draws, count, source, **options):
    return [source(draws, **options) for _ in range(count)]
