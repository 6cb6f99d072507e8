"""Cases for writing values as text and for reading text, clean and messy.

The empty text has no place in a line of fields: zero is not written here, and no empty text is read.
"""
import itertools

import arithmetic_model as model
import operand_shapes as shapes
from operand_shapes import Draws, endless
from vector_files import collect

RADICES = (2, 8, 10, 16)
UNSUPPORTED_RADICES = (0, 1, 3, 5, 7, 9, 11, 32, 36)
SKIPPED_CHARACTERS = "_',.:;xX+*/()[]gzGZ!~\"#%&<>?@^`{|}$\\="


def written_case(draws):
    radix = draws.weighted((20, 2), (20, 8), (35, 10), (25, 16))
    width = draws.between(1, 130) if radix == 2 else shapes.small_width(draws)
    return shapes.either_sign(draws, shapes.magnitude_of_width(draws, width)), radix


def large_written_cases(draws):
    """Decimal text of the widest values is left out: the plain algorithm divides by ten once a digit."""
    widths = {2: (1024,), 8: (1024, 4096), 10: (1024, 2048), 16: (1024, 2048, 4096, 4200)}
    return [(shapes.either_sign(draws, shapes.magnitude_of_width(draws, width)), radix)
            for radix in RADICES for width in widths[radix]]


def written_line(value, radix):
    text = model.text_of(value, radix)
    return f"{model.hexadecimal(value)} {radix} {text}" if text else None


def written_lines():
    draws = Draws("tostring")
    powers = [(sign * radix**exponent + offset, radix) for radix in RADICES for exponent in (1, 2, 8, 9, 19, 20)
              for sign in (1, -1) for offset in (-1, 0, 1)]
    tiny = [(value, radix) for value in range(-20, 21) for radix in RADICES]
    operands = itertools.chain(tiny, powers, large_written_cases(draws), endless(draws, (1, written_case)))
    return collect(1650, operands, written_line)


def with_random_case(draws, text):
    return "".join(character.upper() if draws.one_in(3) else character for character in text)


def with_insertions(draws, text, characters, count):
    for _ in range(count):
        position = draws.between(0, len(text))
        text = text[:position] + draws.choose(characters) + text[position:]
    return text


def clean_text(draws):
    value, radix = written_case(draws)
    return radix, model.text_of(value, radix)


def messy_text(draws):
    radix, text = clean_text(draws)
    text = with_random_case(draws, text)
    # Every digit of radix 16 is among these, so the smaller radices meet digits that are not theirs.
    characters = draws.choose((SKIPPED_CHARACTERS, SKIPPED_CHARACTERS + "-", "-", "89abcdefABCDEF", "0"))
    return radix, with_insertions(draws, text, characters, draws.between(1, 6))


def prefixed_text(draws):
    radix, text = clean_text(draws)
    return radix, draws.choose(("0x", "-0x", "+", "--", "-+", "#", "0", "-000", "x-", "00000000000000000")) + text


def unsupported_text(draws):
    return draws.choose(UNSUPPORTED_RADICES), clean_text(draws)[1]


def noise_text(draws):
    """Printable characters only, as lines are split at spaces."""
    length = draws.between(1, 24)
    return draws.choose(RADICES), "".join(chr(draws.between(33, 126)) for _ in range(length))


def parsed_line(radix, text):
    return f"{radix} {text} {model.hexadecimal(model.value_of(text, radix))}"


def parsed_lines():
    draws = Draws("parse")
    single = [(radix, chr(code)) for radix in RADICES for code in range(33, 127)]
    large = [(radix, model.text_of(value, radix)) for value, radix in large_written_cases(draws)]
    operands = itertools.chain(
        single, large,
        endless(draws, (30, clean_text), (40, messy_text), (10, prefixed_text), (5, unsupported_text),
                (15, noise_text)))
    return collect(1800, operands, parsed_line)
