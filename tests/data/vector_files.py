"""Lines and files of the vectors, written or checked: shared by the three scripts that write them.

Which cases the files hold is decided elsewhere.
"""
import argparse
import pathlib
import sys

from arithmetic_model import hexadecimal

HOME = pathlib.Path(__file__).resolve().parent


def sorted_lines(lines):
    """Each line once, the short (cheap) ones first, so that the head of a file is a fair quick run."""
    return sorted(set(lines), key=lambda line: (len(line), line))


def hex_line(*values):
    return " ".join(map(hexadecimal, values))


def collect(target, operands, line_of):
    """Different lines up to `target`; `line_of` gives None for operands that the file does not take."""
    lines = set()
    for operand in operands:
        line = line_of(*operand)
        if line is not None:
            lines.add(line)
        if len(lines) == target:
            return sorted_lines(lines)
    raise AssertionError("the operands ran out before the file was full")


def _content(lines):
    # Bytes, not text: the files must not differ between systems with other line ends.
    return "".join(line + "\n" for line in lines).encode("ascii")


def _write(folder, name, lines):
    (folder / name).write_bytes(_content(lines))
    print(f"{name}: {len(lines)} lines")


def _matches(folder, name, lines):
    path = folder / name
    same = path.is_file() and path.read_bytes() == _content(lines)
    if not same:
        print(f"{path} differs from what the model gives", file=sys.stderr)
    return same


def _arguments(description):
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("folder", nargs="?", type=pathlib.Path, default=HOME,
                        help="where the files are (default: beside the script)")
    parser.add_argument("--check", action="store_true",
                        help="write nothing; exit 1 if a file differs from what the model gives")
    return parser.parse_args()


def write_or_check(description, builders, examine):
    """Command line of both scripts: `builders` maps a file name to a function that returns its lines.

    `examine` runs first and fails loudly, so that a broken model never reaches a file.
    Returns the exit status.
    """
    arguments = _arguments(description)
    examine()
    if arguments.check:
        results = [_matches(arguments.folder, name, build()) for name, build in builders.items()]
        return 0 if all(results) else 1
    arguments.folder.mkdir(parents=True, exist_ok=True)
    for name, build in builders.items():
        _write(arguments.folder, name, build())
    return 0
