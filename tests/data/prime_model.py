#!/usr/bin/env python3
"""Model of Random, PrimesNumber and RSAKey's key creation, and writer of their vector files.

Usage: prime_model.py [folder]           writes the files (default: beside this script)
       prime_model.py --check [folder]   writes nothing; exits 1 if a file differs from what the model gives

The functions follow the library's steps one by one, oddities included; only the slow arithmetic underneath is
Python's. Which cases the files hold is decided in prime_cases.py.
"""
import functools
import math
import sys

STATE_MASK = 2**48 - 1
PRODUCT_MASK = 2**64 - 1
MULTIPLIER = 0x5DEECE66D
INCREMENT = 11

SMALL_PRIME_PRODUCT = 223092870  # 2 * 3 * 5 * 7 * 11 * 13 * 17 * 19 * 23
SCREENING_LIMIT = 15000
SCREENING_DIVISORS = 1755
KEY_WITNESSES = 30
DEFAULT_KEY = (0, 0)


def with_bit(value, position, bit):
    """Negative positions are ignored, as setBit and clearBit ignore them."""
    if position < 0:
        return value
    return value | 1 << position if bit else value & ~(1 << position)


def highest_bit(value):
    return value.bit_length() - 1


def halved(count):
    """C++ division by two: toward zero."""
    return -(-count // 2) if count < 0 else count // 2


class Random:
    """The 48-bit generator of the drand48 family; the seed is stored as it comes."""

    def __init__(self, seed):
        self.state = seed & PRODUCT_MASK

    def _step(self):
        product = (self.state * MULTIPLIER + INCREMENT) & PRODUCT_MASK
        self.state = product & STATE_MASK
        return product

    def next_int(self):
        bits = self._step() >> 16 & 0xFFFFFFFF
        return bits - 2**32 if bits & 2**31 else bits

    def next_bool(self):
        return self._step() >> 47 & 1

    def fill_bits_randomly(self, value, first_bit, bit_count):
        """The value with the range filled: leading bits upward, whole words, then trailing bits downward."""
        value = with_bit(value, first_bit + bit_count - 1, 1)
        position, left = first_bit, bit_count
        while position % 32 != 0 and left > 0:
            value = with_bit(value, position, self.next_bool())
            position, left = position + 1, left - 1
        while left > 31:
            word = self.next_int() & 0xFFFFFFFF
            for offset in range(32):
                value = with_bit(value, position + offset, word >> offset & 1)
            position, left = position + 32, left - 32
        while left > 0:
            value = with_bit(value, position + left - 1, self.next_bool())
            left -= 1
        return value


def sieve(limit, last_sieving):
    """Flags below `limit`: set for 0 and the composites, clear for 1 and the primes."""
    composite = bytearray(limit)
    composite[0] = 1
    for prime in range(2, last_sieving + 1):
        if not composite[prime]:
            composite[2 * prime::prime] = b"\x01" * len(range(2 * prime, limit, prime))
    return composite


def clear_positions(flags):
    return [position for position, flag in enumerate(flags) if not flag]


@functools.lru_cache(maxsize=None)
def witness_sieve(witness_count):
    """Clear positions of the witness sieve, 1 included; it grows by 256 until it holds the odd primes asked for."""
    limit = 0
    while True:
        limit += 256
        positions = clear_positions(sieve(limit, limit // 2))
        if witness_count + 1 < len(positions):
            return positions


def small_path_verdict(value):
    """Judges the low ten bits although values of eleven bits come here too: 1024 + v counts as v."""
    low_bits = value & 0x3FF
    return all(low_bits % divisor for divisor in range(low_bits // 2 - 1, 1, -1))


def passes_witness(value, witness, odd_part, doublings):
    power = pow(witness, odd_part, value)
    if power in (1, value - 1):
        return True
    for _ in range(doublings):
        power = pow(power, 2, value)
        if power == value - 1:
            return True
    return False


def is_probably_prime(value, witness_count):
    if value & 1 == 0:
        return False
    if highest_bit(value) <= 10:
        return small_path_verdict(value)
    if math.gcd(value, SMALL_PRIME_PRODUCT) != 1:
        return False
    doublings = highest_bit((value - 1) & -(value - 1))
    odd_part = (value - 1) >> doublings
    # Positions 0 and 1 hold 1 and the prime 2, neither of which is a witness.
    witnesses = witness_sieve(witness_count)[2:2 + max(0, witness_count)]
    return all(passes_witness(value, witness, odd_part, doublings) for witness in witnesses)


@functools.lru_cache(maxsize=None)
def screening_divisors():
    """2p + 1 for p = 1 and every prime p below 15000: not the small primes themselves."""
    divisors = [2 * position + 1 for position in clear_positions(sieve(SCREENING_LIMIT, 7500))]
    assert len(divisors) == SCREENING_DIVISORS
    return divisors


def starting_value(bit_count, seeds):
    base = 0
    for seed in reversed(seeds):
        base ^= Random(seed).fill_bits_randomly(0, 0, bit_count)
    return with_bit(with_bit(base, bit_count - 1, 1), 0, 0)


def block_length(bit_count):
    return max(1024, bit_count // 20 * 64) if bit_count > 0 else 1024


def struck_candidates(base, length):
    """Flags of the candidates base + 1, base + 3, ... that a screening divisor strikes out."""
    struck = bytearray(length)
    for divisor in screening_divisors():
        quotient, remainder = divmod(base, divisor)
        distance = divisor - remainder
        if quotient == 0:
            # The first multiple would be the divisor itself, which may be the prime that is looked for.
            distance += divisor
        first = (distance - 1) // 2 if distance % 2 else (distance + divisor - 1) // 2
        struck[first::divisor] = b"\x01" * len(range(first, length, divisor))
    return struck


def prime_in_block(base, length, witness_count):
    for index, struck in enumerate(struck_candidates(base, length)):
        candidate = base + 2 * index + 1
        if not struck and is_probably_prime(candidate, witness_count):
            return candidate
    return 0


def create_probable_prime(bit_count, witness_count, seeds):
    """A probable prime, or 0 when the base has left the width before a block held one."""
    base = starting_value(bit_count, seeds)
    length = block_length(bit_count)
    # The width is tested before the base moves on, so a result may be wider than asked.
    while highest_bit(base) < bit_count:
        base += 2 * length
        prime = prime_in_block(base, length, witness_count)
        if prime:
            return prime
    return 0


def find_best_common_divisor(first, second):
    for exponent in range(1, 17):
        candidate = 2**exponent + 1
        if math.gcd(candidate, first) == 1 and math.gcd(candidate, second) == 1:
            return candidate
    candidate = 4
    while math.gcd(candidate, first) != 1 or math.gcd(candidate, second) != 1:
        candidate += 1
    return candidate


def create_key_pair(bit_count, seeds):
    """Two (exponent, modulus) keys; two default keys when one of the primes was not found."""
    first_width, first_seeds = halved(bit_count), len(seeds) // 2
    p = create_probable_prime(first_width, KEY_WITNESSES, seeds[:first_seeds])
    q = create_probable_prime(bit_count - first_width, KEY_WITNESSES, seeds[first_seeds:])
    if p == 0 or q == 0:
        return DEFAULT_KEY, DEFAULT_KEY
    exponent = find_best_common_divisor(p - 1, q - 1)
    inverse = pow(exponent, -1, (p - 1) * (q - 1))
    return (exponent, p * q), (inverse, p * q)


def main():
    # The cases are made with the functions above, so this import has to wait for them.
    import prime_cases
    from vector_files import write_or_check
    return write_or_check("Write or check the vector files of the generator, the primes and the keys.",
                          prime_cases.BUILDERS, prime_cases.examine)


if __name__ == "__main__":
    sys.exit(main())
