#!/usr/bin/env python3
"""Writes the arithmetic vector files: one operation a line, the result computed with Python's integers.

Usage: make_vectors.py [folder]           writes the files (default: beside this script)
       make_vectors.py --check [folder]   writes nothing; exits 1 if a file differs from what is computed here

The sign rules live in arithmetic_model.py, the shapes of the operands in operand_shapes.py, the cases of number
theory and text in files of their own. Wide operands are few, since the plain algorithms run these files too.
"""
import itertools
import operator
import sys

import arithmetic_model as model
import number_theory_cases
import operand_shapes as shapes
from operand_shapes import Draws, endless, some
import text_cases
from vector_files import collect, hex_line, write_or_check

SHIFT_COUNTS = (0, 1, 2, 31, 32, 33, 63, 64, 65, 95, 96, 97, 127, 128)


# Addition, subtraction, multiplication, bitwise operators

def binary_file(name, target, apply, notable_count, large_count):
    draws = Draws(name)
    operands = itertools.chain(
        shapes.notable_pairs(notable_count),
        some(draws, large_count, shapes.large_pair),
        some(draws, large_count, shapes.lopsided_pair),
        endless(draws, (75, shapes.signed_pair), (25, shapes.related_pair)))
    return collect(target, operands, lambda left, right: hex_line(left, right, apply(left, right)))


def multiplication_lines():
    draws = Draws("mul")
    squares = [(value, value) for value in some(draws, 100, shapes.signed)]
    full_words = [((1 << 32 * i) - 1, (1 << 32 * k) - 1) for i in range(1, 9) for k in range(1, 9)]
    operands = itertools.chain(
        shapes.notable_pairs(9), squares, full_words,
        some(draws, 8, shapes.large_pair, widths=(512, 768, 1023, 1024, 1025, 1536, 2048)),
        some(draws, 5, shapes.large_pair, widths=(4095, 4096, 4097, 4200)),
        some(draws, 8, shapes.lopsided_pair),
        endless(draws, (1, shapes.signed_pair)))
    return collect(1750, operands, lambda left, right: hex_line(left, right, left * right))


def bitwise_builder(name, operation):
    def apply(left, right):
        return model.bitwise(operation, left, right)
    return lambda: binary_file(name, 1450, apply, 8, 4)


# Division

def backward_division(draws):
    """Dividend built from quotient, divisor and remainder: reaches the rare quotient words."""
    divisor = shapes.magnitude(draws)
    quotient = draws.weighted((1, shapes.magnitude), (1, lambda d: shapes.notable_words(d, shapes.small_width(d))))
    remainder = draws.choose((0, 1, divisor - 1, divisor // 2, draws.bits(divisor.bit_length()) % max(1, divisor)))
    dividend = quotient(draws) * divisor + remainder
    return shapes.either_sign(draws, dividend), shapes.either_sign(draws, divisor)


def notable_division(draws):
    """Words of all ones, a lone top bit or nothing: here an estimated quotient word is most often one too high."""
    divisor = shapes.notable_words(draws, 32 * draws.between(2, 5))
    dividend = shapes.notable_words(draws, 32 * draws.between(2, 9))
    return shapes.either_sign(draws, dividend), shapes.either_sign(draws, divisor)


def large_division(draws):
    dividend = shapes.magnitude_of_width(draws, draws.choose((1024, 2048, 2080, 4095, 4096, 4200)))
    divisor = shapes.magnitude_of_width(draws, draws.choose((33, 512, 1000, 1024, 2048)))
    return shapes.either_sign(draws, dividend), shapes.either_sign(draws, divisor)


def division_line(dividend, divisor):
    return hex_line(dividend, divisor, *model.divide(dividend, divisor))


def division_lines():
    draws = Draws("div")
    zero_divisors = [(shapes.signed(draws), 0) for _ in range(20)]
    operands = itertools.chain(
        shapes.notable_pairs(10), zero_divisors, some(draws, 14, large_division), some(draws, 4, shapes.large_pair),
        endless(draws, (35, backward_division), (30, notable_division), (25, shapes.signed_pair),
                (10, shapes.related_pair)))
    return collect(2000, operands, division_line)


# Shifts

def shift_case(draws):
    value = shapes.signed(draws)
    count = draws.weighted((45, draws.choose(SHIFT_COUNTS)), (35, draws.between(0, 100)),
                           (15, abs(value).bit_length() + draws.between(-2, 2)), (5, draws.between(100, 600)))
    # A negative count shifts the other way.
    return value, -count if draws.one_in(20) else count


def large_shift_case(draws):
    value = shapes.magnitude_of_width(draws, draws.choose((40, 64, 1024, 4096)))
    count = draws.choose((1, 31, 32, 33, 1000, 1024, 2048, 4095, 4096, 4160))
    return shapes.either_sign(draws, value), count


def shift_builder(name, shift):
    def lines():
        draws = Draws(name)
        notable = list(itertools.product(shapes.with_both_signs(shapes.NOTABLE_MAGNITUDES[:10]), SHIFT_COUNTS))
        operands = itertools.chain(notable, some(draws, 12, large_shift_case), endless(draws, (1, shift_case)))
        return collect(1750, operands, lambda value, count: hex_line(value, count, shift(value, count)))
    return lines


BUILDERS = {
    "add.txt": lambda: binary_file("add", 1850, operator.add, 12, 6),
    "sub.txt": lambda: binary_file("sub", 1850, operator.sub, 12, 6),
    "mul.txt": multiplication_lines,
    "div.txt": division_lines,
    "gcd.txt": number_theory_cases.gcd_lines,
    "inverse.txt": number_theory_cases.inverse_lines,
    "modexp.txt": number_theory_cases.power_lines,
    "shl.txt": shift_builder("shl", model.shift_left),
    "shr.txt": shift_builder("shr", model.shift_right),
    "and.txt": bitwise_builder("and", operator.and_),
    "or.txt": bitwise_builder("or", operator.or_),
    "xor.txt": bitwise_builder("xor", operator.xor),
    "tostring.txt": text_cases.written_lines,
    "parse.txt": text_cases.parsed_lines,
}


def main():
    return write_or_check("Write or check the arithmetic vector files.", BUILDERS, model.examine)


if __name__ == "__main__":
    sys.exit(main())
