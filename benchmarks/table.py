# SPDX-License-Identifier: Apache-2.0
"""The one table that everything measured goes into."""

import unicodedata
from collections.abc import Sequence
from dataclasses import astuple, dataclass

HEAD = ("subject", "figure", "compared with", "limit", "ratio", "target")


@dataclass(frozen=True)
class Row:
    subject: str
    figure: str
    compared_with: str = ""
    limit: str = ""
    ratio: str = ""
    target: str = ""


def compared(
    subject: str, figure: float, limit: float, unit: str, compared_with: str, target: str = ""
) -> Row:
    """A row whose ratio is that of its two figures."""
    return Row(
        subject,
        shown(figure, unit),
        compared_with,
        shown(limit, unit),
        f"{figure / limit:.2f}",
        target,
    )


def shown(figure: float, unit: str) -> str:
    """With three digits that count."""
    digits = 0 if figure >= 100 else 1 if figure >= 10 else 2 if figure >= 1 else 3
    return f"{figure:.{digits}f} {unit}"


def print_table(rows: Sequence[Row]) -> None:
    lines = [HEAD, *map(astuple, rows)]
    widths = [max(width_of(line[column]) for line in lines) for column in range(len(HEAD))]
    for number, line in enumerate(lines):
        cells = [cell + " " * (width - width_of(cell)) for cell, width in zip(line, widths)]
        print(f"| {' | '.join(cells)} |")
        if number == 0:
            print(f"|{'|'.join('-' * (width + 2) for width in widths)}|")


def width_of(text: str) -> int:
    return sum(2 if unicodedata.east_asian_width(character) in "WF" else 1 for character in text)
