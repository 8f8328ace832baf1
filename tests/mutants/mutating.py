# SPDX-License-Identifier: Apache-2.0
"""Small mistakes in C++, one at a time."""

import re
from collections.abc import Iterator
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
      (?P<silent> //[^\n]* | /\*.*?\*/ | ^[ ]*\#[^\n]* )
    | (?P<text> (?:u8|[uUL])?R"\((?s:.*?)\)"\w* | (?:u8|[uUL])?"(?:\\.|[^"\\\n])*"\w*
              | (?:u8|[uUL])?'(?:\\.|[^'\\\n])+' )
    | (?P<number> 0x[0-9A-Fa-f]+(?:p\d+)? | \d+(?:\.\d+)? )
    | (?P<name> [A-Za-z_]\w* )
    | (?P<sign> <=> | << | -> | :: | && | \|\| | [-+*/%&|^=!<>]= | \+\+ | -- | \S )
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

OTHER_SIGNS = {
    "==": ["!="],
    "!=": ["=="],
    "<": ["<=", ">="],
    "<=": ["<", ">"],
    ">": [">=", "<="],
    ">=": [">", "<"],
    "&&": ["||"],
    "||": ["&&"],
    "+": ["-"],
    "-": ["+"],
    "+=": ["-="],
    "-=": ["+="],
}
OTHER_NAMES = {"true": "false", "false": "true"}
DEFAULTS = ["{}", "true", "false", "nullptr", "std::nullopt", "0"]
BEGIN_NO_ACTION = set(
    """
    alignas auto break case class co_await co_return co_yield const constexpr continue default
    delete do else enum explicit extern for friend if inline namespace operator private protected
    public return static static_assert struct switch template throw try typedef union using virtual
    while
    """.split()
)
ASSERTS = ("assert", "q_assert", "q_unreachable")
ACTS = {".", "->", "(", "::", "[", "=", "+=", "-=", "|=", "&="}
OPENING, CLOSING = set("([{"), set(")]}")


@dataclass(frozen=True)
class Mutant:
    """One small mistake: what stands in a source from `start` to `end` is replaced."""

    start: int
    end: int
    replacement: str

    def of(self, source: str) -> str:
        return source[: self.start] + self.replacement + source[self.end :]

    def line_number(self, source: str) -> int:
        return source.count("\n", 0, self.start) + 1

    def change(self, source: str) -> tuple[str, str]:
        """The lines that the mistake is in, as they stand and as it leaves them; each as one line
        with single spaces."""
        first = source.rfind("\n", 0, self.start) + 1
        after = source.find("\n", self.end)
        last = after if after >= 0 else len(source)
        mistaken = source[first : self.start] + self.replacement + source[self.end : last]
        return " ".join(source[first:last].split()), " ".join(mistaken.split())


def tokens_of(source: str) -> list[re.Match[str]]:
    """What the source is made of, without comments, and without the statements that only assert or
    make room: whatever is wrong there changes nothing that a test could see."""
    tokens = [token for token in TOKEN.finditer(source) if token.lastgroup != "silent"]
    heard, at = [], 0
    while at < len(tokens):
        if begins_statement(tokens, at) and is_silent(tokens, at):
            at = end_of_statement(tokens, at) + 1
        else:
            heard.append(tokens[at])
            at += 1
    return heard


def begins_statement(tokens: list[re.Match[str]], at: int) -> bool:
    return at > 0 and tokens[at - 1][0] in list(";{}")


def is_silent(tokens: list[re.Match[str]], begin: int) -> bool:
    words = [token[0] for token in tokens[begin : begin + 4]]
    return words[0].lower().startswith(ASSERTS) or words == ["std", "::", "unreachable", "("] or (
        words[1:] in ([".", "reserve", "("], ["->", "reserve", "("]))


def stands_free(source: str, token: re.Match[str]) -> bool:
    """Whether the sign stands between two values: one of a type, or of a single value, touches it."""
    return source[token.start() - 1].isspace() and source[token.end()].isspace()


def signs(source: str, tokens: list[re.Match[str]], at: int) -> Iterator[Mutant]:
    token = tokens[at]
    if token[0] == "!":
        yield Mutant(token.start(), token.end(), "")
    elif token[0] in OTHER_SIGNS and stands_free(source, token):
        joins_texts = token[0] == "+" and "text" in (
            tokens[at - 1].lastgroup, tokens[at + 1].lastgroup)
        for other in [] if joins_texts else OTHER_SIGNS[token[0]]:
            yield Mutant(token.start(), token.end(), other)


def numbers(token: re.Match[str]) -> Iterator[Mutant]:
    if "p" in token[0]:
        return
    if "." in token[0]:
        others = [str(float(token[0]) + 1)]
    else:
        number = int(token[0], 0 if token[0].startswith("0x") else 10)
        others = [str(number + 1)] + ([str(number - 1)] if number > 0 else [])
    for other in others:
        yield Mutant(token.start(), token.end(), other)


def end_of_statement(tokens: list[re.Match[str]], begin: int) -> int | None:
    """Where the semicolon of the statement is; nothing where a block or a list ends before."""
    depth = 0
    for at in range(begin, len(tokens)):
        sign = tokens[at][0]
        depth += (sign in OPENING) - (sign in CLOSING)
        if depth < 0:
            return None
        if depth == 0 and sign == ";":
            return at
    return None


def returned(source: str, tokens: list[re.Match[str]], at: int) -> Iterator[Mutant]:
    end = end_of_statement(tokens, at)
    if end is None:
        return
    start, stop = tokens[at].end(), tokens[end].start()
    if source[start:stop].strip() not in ["", *DEFAULTS]:
        yield Mutant(start, stop, " {}")


def is_action(tokens: list[re.Match[str]], begin: int, end: int) -> bool:
    """Whether the statement calls or assigns, and declares nothing."""
    if tokens[begin][0] in BEGIN_NO_ACTION or tokens[begin + 1][0] not in ACTS:
        return False
    depth = 0
    for before, token in zip(tokens[begin:end], tokens[begin + 1 : end]):
        depth += (before[0] in OPENING) - (before[0] in CLOSING)
        if depth == 0 and token[0].endswith("="):
            return True
        if depth == 0 and (token[0] == "{" or (
                token.lastgroup == "name" and (before.lastgroup == "name" or before[0] in "><&*"))):
            return False
    return True


def actions(tokens: list[re.Match[str]], at: int) -> Iterator[Mutant]:
    if not begins_statement(tokens, at):
        return
    begin = at + 1 if tokens[at][0] == "Q_EMIT" else at
    end = end_of_statement(tokens, begin)
    if end is not None and end > begin + 1 and is_action(tokens, begin, end):
        yield Mutant(tokens[at].start(), tokens[end].end(), "")


def mutants_of(source: str) -> list[Mutant]:
    """Every mutant of the source, in the order of the text.

    Another comparison, "and" for "or", plus for minus, a "!" less, true for false, a number one up or
    down, an empty value returned, a call or an assignment left out; each the other way round too.
    """
    tokens = tokens_of(source)
    mutants = []
    for at, token in enumerate(tokens):
        if token.lastgroup == "number":
            mutants += numbers(token)
        elif token.lastgroup == "sign":
            mutants += signs(source, tokens, at)
        elif token[0] in OTHER_NAMES:
            mutants.append(Mutant(token.start(), token.end(), OTHER_NAMES[token[0]]))
        elif token[0] == "return":
            mutants += returned(source, tokens, at)
        if token.lastgroup == "name" or token[0] == "(":
            mutants += actions(tokens, at)
    return mutants
