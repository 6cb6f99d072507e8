"""Where a source can be changed, and into what: one small change at a time.

The sources are formatted, so that an operator with two operands stands between spaces, and a
statement that fills a line ends with its semicolon. What does not compile is no mutant.
"""
import re
from dataclasses import dataclass

OPERATORS = {
    " < ": (" <= ", " >= "),
    " <= ": (" < ", " > "),
    " > ": (" >= ", " <= "),
    " >= ": (" > ", " < "),
    " == ": (" != ",),
    " != ": (" == ",),
    " && ": (" || ",),
    " || ": (" && ",),
    " + ": (" - ",),
    " - ": (" + ",),
    " * ": (" + ",),
    " / ": (" * ",),
    " % ": (" / ",),
    " & ": (" | ",),
    " | ": (" & ",),
    " ^ ": (" | ",),
    " << ": (" >> ",),
    " >> ": (" << ",),
    " += ": (" -= ",),
    " -= ": (" += ",),
    " |= ": (" &= ",),
    " &= ": (" |= ",),
    " ^= ": (" |= ",),
    " <<= ": (" >>= ",),
    " >>= ": (" <<= ",),
    "++": ("--",),
    "--": ("++",),
}
OPERATOR = re.compile("|".join(re.escape(o) for o in sorted(OPERATORS, key=len, reverse=True)))
NUMBER = re.compile(r"(?<![\w.'\"])(0[xX][0-9A-Fa-f]+|\d+)(?=[uUlL]*\b)(?!\.)")
WORD = re.compile(r"\b(true|false)\b")
CONDITION = re.compile(r"\b(if|while) \((.*)\)( \{)?$")
# A call or an assignment, not a declaration and not a jump.
STATEMENT = re.compile(r"^\s+(?!return|using|break|continue|throw|goto|default|case|delete)"
                       r"[\w.:>*\[\]()-]+( [-+*/%&|^<>]*= .*|\(.*\))?;$")
# The head of a function that tells how much room something takes. To ask for more is as right.
ROOM = re.compile(r"\bsize_t (\w*[sS]cratch|\w*Workspace|room|limbs|imageLimbs|limbsFor)"
                  r"\([^()]*\) (const )?noexcept \{( .* \})?$")
LEFT_OUT = re.compile(r"^\s*(#|//|\*|static_assert|assert|template|namespace|using |class |struct )")


@dataclass(frozen=True)
class Site:
    file: str
    line: int  # from 0
    kind: str
    old: str
    new: str

    def __str__(self):
        old = self.old.strip()
        return f"{self.file}:{self.line + 1}: {self.kind}: {old}  ->  {self.new.strip()}"


def without_texts(line):
    """The line with its comment cut off and its quoted characters blanked, in place."""
    line = re.sub(r"\"(\\.|[^\"\\])*\"|'(\\.|[^'\\])+'", lambda m: "\0" * len(m.group()), line)
    return line.split("//")[0].rstrip()


def replaced(line, match, text):
    return line[:match.start()] + text + line[match.end():]


def changes_of_number(text):
    if text.lower().startswith("0x"):
        yield hex(int(text, 16) ^ 1)
        return
    yield str(int(text) + 1)
    if int(text) > 0:
        yield str(int(text) - 1)


def changes_of_line(line):
    """Pairs of a kind and a new line."""
    code = without_texts(line)
    if not code or LEFT_OUT.match(code):
        return
    for match in OPERATOR.finditer(code):
        for text in OPERATORS[match.group()]:
            yield "operator", replaced(line, match, text)
    for match in NUMBER.finditer(code):
        for text in changes_of_number(match.group(1)):
            yield "number", replaced(line, match, text)
    for match in WORD.finditer(code):
        yield "truth", replaced(line, match, "false" if match.group() == "true" else "true")
    condition = CONDITION.search(code)
    if condition:
        yield "condition", (line[:condition.start(2)] + "!("
                            + line[condition.start(2):condition.end(2)] + ")"
                            + line[condition.end(2):])
    if STATEMENT.match(code) and code.count("(") == code.count(")"):
        yield "deleted", re.match(r"\s*", line).group() + ";"


def asks_for_more(kind, old, new):
    if kind == "number":
        numbers = [[int(n, 0) for n in NUMBER.findall(line)] for line in (old, new)]
        return numbers[0] < numbers[1] and " < " not in old and " - " not in old
    return kind == "operator" and new.count(" + ") > old.count(" + ") and " - " in old


def sites_of(file, text):
    lines = text.split("\n")
    room = None  # the last line of such a function
    for number, line in enumerate(lines):
        if ROOM.search(line):
            room = line if line.endswith("}") else re.match(r" *", line).group() + "}"
        for kind, new in changes_of_line(line):
            if room is None or not asks_for_more(kind, line, new):
                yield Site(file, number, kind, line, new)
        if line == room:
            room = None
