"""What can be broken in a source: one place of one line at a time."""

import hashlib
import re
from dataclasses import dataclass

# Comments and texts, which are left alone.
_QUIET = re.compile(r'R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"'
                    r"|(?<!\w)'(?:\\.|[^'\\\n])+'|//[^\n]*|/\*.*?\*/", re.S)
_PASSED_OVER = re.compile(r"\s*(#|namespace\b|using\b|template\b|static_assert\b|case\b|$)")

# Operators stand between blanks, or at the end of a line; those of types and of streams do not count.
_SWAPS = [(rf"(?<= ){re.escape(one)}(?= |$)", others) for one, others in (
    ("+", "-"), ("-", "+"), ("*", "/"), ("/", "*"), ("%", "*"),
    ("+=", ["-="]), ("-=", ["+="]), ("*=", ["/="]), ("/=", ["*="]),
    ("<", ["<=", ">="]), ("<=", ["<", ">"]), (">", [">=", "<="]), (">=", [">", "<"]),
    ("==", ["!="]), ("!=", ["=="]), ("&&", ["||"]), ("||", ["&&"]), ("&", "|"), ("|", "&"))]
_SWAPS += [(r"\+\+", ["--"]), (r"(?<!-)--", ["++"]), (r"\btrue\b", ["false"]),
           (r"\bfalse\b", ["true"]), (r"!(?=[\w(])", [""]), (r"(?<=[ (,\[{])-(?=[\w(.])", [""])]

_WHOLE_NUMBER = re.compile(r"(?<![\w.'])\d+(?![\w.'])")
_DECIMAL = re.compile(r"(?<![\w.'])\d+\.\d*(?:e[+-]?\d+)?(?![\w.'])")
_CONDITION = re.compile(r"\b(?:if|while) (?=\()")
_ARMS = re.compile(r"(?<= \? )([^?:;]+) : ([^?:;]+)(?=[;,)])")
_PAIR = re.compile(r"(?<=[\w>]\()(\w+), (\w+)(?=\))")

# A call or an assignment that is a statement of one line. Declarations have a blank before the name.
_STATEMENT = re.compile(r"\s*((?!return\b)[\w:.>\[\]*()-]+(\(.*\)| [-+*/|&]?= .*)|(\+\+|--)[\w.>-]+"
                        r"|break|continue|return);$")


@dataclass(frozen=True)
class Break:
    path: str     # from the root of the tree
    number: int   # of the line, from 1
    nth: int      # of the lines of this text in the file, from 0
    before: str   # the line, without its indentation
    after: str

    def key(self):
        """The same wherever the line stands in its file."""
        return (self.path, self.before, self.nth, self.after)

    def rank(self, seed, *parts):
        text = "\n".join(map(str, (seed, *parts)))
        return hashlib.sha256(text.encode()).digest()


def breaks_in(path, text):
    """For each line that can be broken, all its breaks."""
    lines, masked = text.split("\n"), _masked(text).split("\n")
    seen, ended = {}, True
    for number, (line, mask) in enumerate(zip(lines, masked), 1):
        before = line.strip()
        nth = seen[before] = seen.get(before, -1) + 1
        afters = dict.fromkeys(_afters(line, mask.rstrip(), ended))
        breaks = [Break(path, number, nth, before, after.strip()) for after in afters]
        if breaks:
            yield breaks
        if mask.strip():
            ended = mask.rstrip().endswith((";", "{", "}", ":"))


def drawn(lines, seed):
    """One break for each line, the lines in an order that the seed alone decides: that of the
    others does not change with a line that comes or goes."""
    chosen = [min(breaks, key=lambda each: each.rank(seed, *each.key())) for breaks in lines]
    return sorted(chosen, key=lambda each: each.rank(seed, each.path, each.before, each.nth))


def broken(text, each):
    """The source with the break in it."""
    lines = text.split("\n")
    line = lines[each.number - 1]
    lines[each.number - 1] = line.replace(line.strip(), each.after) if each.after else ""
    return "\n".join(lines)


def _masked(text):
    """As long as the text, line by line, with nothing to break in comments and texts."""
    def mask(match):
        fill = " " if match[0].startswith("/") else "S"
        return re.sub(r"[^\n]", fill, match[0])
    return _QUIET.sub(mask, text)


def _afters(line, mask, ended):
    if _PASSED_OVER.match(mask):
        return
    for pattern, others in _SWAPS:
        for match in re.finditer(pattern, mask):
            yield from (_put(line, match.span(), other) for other in others)
    for match in _WHOLE_NUMBER.finditer(mask):
        number = int(match[0])
        yield from (_put(line, match.span(), str(other)) for other in {number + 1, abs(number - 1)})
    for match in _DECIMAL.finditer(mask):
        yield _put(line, match.span(), _misread(match[0]))
    for match in _CONDITION.finditer(mask):
        yield from _negated(line, mask, match.end())
    for pattern, between in ((_ARMS, " : "), (_PAIR, ", ")):
        for match in pattern.finditer(mask):
            if match[1] != match[2] and match[1].count("(") == match[1].count(")"):
                arms = (line[slice(*match.span(2))], line[slice(*match.span(1))])
                yield _put(line, match.span(), between.join(arms))
    if ended and _STATEMENT.match(mask) and mask.count("(") == mask.count(")"):
        yield ";"


def _put(line, span, other):
    return line[:span[0]] + other + line[span[1]:]


def _misread(decimal):
    """The number with another first digit that counts."""
    digit = re.search("[1-9]", decimal)
    if not digit:
        return "1.0"
    return _put(decimal, digit.span(), "8" if digit[0] == "9" else str(int(digit[0]) + 1))


def _negated(line, mask, start):
    """The condition in the brackets that open at start, turned round; none that declares."""
    depth = 0
    for at in range(start, len(mask)):
        depth += {"(": 1, ")": -1}.get(mask[at], 0)
        if depth == 0:
            inside = mask[start:at]
            if ";" not in inside and " = " not in inside:
                yield _put(line, (start, at + 1), f"(!{line[start:at + 1]})")
            return
