"""The arithmetic of LargeInteger as its documentation gives it, on top of Python's own integers.

Python supplies the magnitudes; the library's rules about signs, refusals and zero are applied here. Where the
plain algorithm of the library may take very long, the functions also say how many steps it takes.
"""
import math

DIGITS = "0123456789abcdef"


def hexadecimal(value):
    """The form of every big number in the vector files: '-' in front, no prefix, '0' for zero."""
    return f"{value:x}"


def sign_of(flag, magnitude):
    return -magnitude if flag else magnitude


def divide(dividend, divisor):
    """Truncating division; a zero divisor is no error and gives two zeros."""
    if divisor == 0:
        return 0, 0
    quotient, remainder = divmod(abs(dividend), abs(divisor))
    return sign_of((dividend < 0) != (divisor < 0), quotient), sign_of(dividend < 0, remainder)


def bitwise(operation, left, right):
    """The operators see magnitudes only, and the left operand keeps its flag whatever the right one has."""
    return sign_of(left < 0, operation(abs(left), abs(right)))


def shift_left(value, count):
    if count < 0:
        return shift_right(value, -count)
    return value << count


def shift_right(value, count):
    """The magnitude is truncated, so negative values round toward zero."""
    if count < 0:
        return shift_left(value, -count)
    return sign_of(value < 0, abs(value) >> count)


def highest_bit(value):
    return abs(value).bit_length() - 1


def subtractive_steps(first, second):
    """Subtractions of Euclid by subtraction: the partial quotients, added up."""
    steps = 0
    while first and second:
        first, second = second, first
        steps += second // first
        second %= first
    return steps


def gcd_subtractions(first, second):
    """Subtractions that findGreatestCommonDivisor makes: it divides only until the widths are within 16 bits."""
    while second and abs(highest_bit(first) - highest_bit(second)) > 16:
        first, second = second, first % second if second else 0
    return subtractive_steps(first, second)


def greatest_common_divisor(first, second):
    return math.gcd(first, second)


def inverse_modulo(value, modulus, step_limit):
    """Inverse and number of steps (loop rounds and additions of the modulus), both as the library's loop gives them.

    None when the loop needs more than `step_limit` steps, which includes the operands for which it never ends.
    """
    if modulus <= 1:
        return 0, 0
    if value < 0 or value >= modulus:
        value = divide(value, modulus)[1]
    if value == 1:
        return 1, 0
    if value % 2 == 0:
        return 0, 0
    return _extended_euclid(value, modulus, step_limit)


def _extended_euclid(value, modulus, step_limit):
    # The second row starts with the modulus in place of zero: this decides how far below zero the result falls.
    older, newer = modulus, value
    older_factor, newer_factor = modulus, 1
    rounds = 0
    while newer != 1:
        if rounds == step_limit:
            return None
        quotient = divide(older, newer)[0]
        older, newer = newer, older - newer * quotient
        older_factor, newer_factor = newer_factor, older_factor - newer_factor * quotient
        rounds += 1
    # The library adds the modulus one at a time; the remainder of Python is where that ends.
    additions = -(newer_factor // modulus) if newer_factor < 0 else 0
    if rounds + additions > step_limit:
        return None
    return newer_factor % modulus, rounds + additions


def power_modulo(base, exponent, modulus):
    """The exponent is reduced modulo the modulus first, and the starting 1 is never reduced on its own."""
    exponent = divide(exponent, modulus)[1]
    if exponent == 0:
        return 1
    return pow(base, exponent, modulus)


def text_of(value, radix):
    """Zero, and every radix but these four, gives the empty text."""
    if radix not in (2, 8, 10, 16):
        return ""
    digits, rest = [], abs(value)
    formats = {2: "b", 8: "o", 10: "d", 16: "x"}
    if rest:
        digits.append(format(rest, formats[radix]))
    return ("-" if value < 0 else "") + "".join(digits)


def value_of(text, radix):
    """Bytes that are no digit of the radix are skipped; only a '-' in the very first place counts."""
    value = 0
    for character in text:
        digit = DIGITS.find(character.lower())
        if radix in (2, 8, 10, 16) and 0 <= digit < radix:
            value = value * radix + digit
    return sign_of(text.startswith("-"), value)
