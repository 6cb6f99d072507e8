"""The arithmetic of LargeInteger as its documentation gives it, on top of Python's own integers.

Python supplies the magnitudes; the library's rules about signs, refusals and zero are applied here. Where the
plain algorithm of the library may take very long, the functions also say how many steps it takes.
"""
DIGITS = "0123456789abcdef"
RADIX_LETTERS = {2: "b", 8: "o", 10: "d", 16: "x"}


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
        first, second = second, first % second
    return subtractive_steps(first, second)


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
    letter = RADIX_LETTERS.get(radix)
    if value == 0 or letter is None:
        return ""
    return format(value, letter)


def value_of(text, radix):
    """Bytes that are no digit of the radix are skipped; only a '-' in the very first place counts."""
    value = 0
    for character in text:
        digit = DIGITS.find(character.lower())
        if radix in RADIX_LETTERS and 0 <= digit < radix:
            value = value * radix + digit
    return sign_of(text.startswith("-"), value)


def _subtract_until_zero(first, second):
    """The subtraction phase written out, to keep the counted one honest."""
    steps = 0
    while first:
        if second > first:
            first, second = second - first, first
        else:
            first -= second
        steps += 1
    return second, steps


def _examine_division():
    assert divide(7, 2) == (3, 1) and divide(-7, 2) == (-3, -1)
    assert divide(7, -2) == (-3, 1) and divide(-7, -2) == (3, -1)
    assert divide(1, 5) == (0, 1) and divide(-1, 5) == (0, -1) and divide(9, 0) == (0, 0)


def _examine_bits():
    assert bitwise(int.__and__, -6, 3) == -2 and bitwise(int.__or__, -6, 3) == -7
    assert bitwise(int.__xor__, -6, 3) == -5 and bitwise(int.__and__, 6, -3) == 2
    assert shift_right(-5, 1) == -2 and shift_right(-3, 1) == -1 and shift_right(-1, 1) == 0
    assert shift_left(1, 32) == 2**32 and shift_left(40, -3) == shift_right(40, 3) == 5


def _examine_number_theory():
    for first in range(40):
        for second in range(1, 40):
            assert subtractive_steps(first, second) == _subtract_until_zero(first, second)[1]
    assert gcd_subtractions(7, 0) == 0 and gcd_subtractions(2**40, 3 * 2**20) == 3
    examples = {(3, 7): 5, (17, 3120): 2753, (10, 7): 5, (4, 7): 0, (1, 9): 1, (5, 1): 0, (5, -7): 0, (5, 0): 0}
    for (value, modulus), expected in examples.items():
        assert inverse_modulo(value, modulus, 100)[0] == expected
    assert inverse_modulo(-3, 5, 100) is None and inverse_modulo(3, 6, 100) is None
    assert power_modulo(4, 13, 497) == 445 and power_modulo(2, 0, 1) == 1 and power_modulo(3, 5, 0) == 1


def _examine_text():
    written = {(255, 16): "ff", (-255, 16): "-ff", (16, 16): "10", (5, 2): "101", (8, 8): "10", (1000, 10): "1000",
               (-42, 10): "-42", (0, 10): "", (9, 7): ""}
    for (value, radix), text in written.items():
        assert text_of(value, radix) == text
    read = {("FF", 16): 255, ("-ff", 16): -255, ("z9", 10): 9, ("123", 5): 0, ("0x1F", 16): 31, ("1 000", 10): 1000,
            ("12-3", 10): 123, ("-0", 10): 0, ("", 16): 0, ("8", 8): 0}
    for (text, radix), value in read.items():
        assert value_of(text, radix) == value


def examine():
    """The documented examples; fails before a wrong model can write a file."""
    _examine_division()
    _examine_bits()
    _examine_number_theory()
    _examine_text()
