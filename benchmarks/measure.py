#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Measures start, data and interaction of the release build, and prints one table."""

import argparse
import shlex
import sys
from pathlib import Path

from data import measure_data
from desk import TOOLS
from interaction import measure_interaction
from start import measure_start
from table import print_table

PARTS = ["start", "data", "interaction"]
RUNS = 11


def main() -> None:
    parser = argparse.ArgumentParser(prog="benchmarks/run", description=__doc__)
    parser.add_argument("part", nargs="*", help=f"of {', '.join(PARTS)}; all without any")
    parser.add_argument("--runs", type=int, default=RUNS, help=f"of each subject, else {RUNS}")
    parser.add_argument("--program", type=Path, default=TOOLS / "corvanite-information")
    parser.add_argument(
        "--against",
        type=shlex.split,
        action="append",
        default=[],
        metavar="COMMAND",
        help="another program to compare the start with",
    )
    arguments = parser.parse_args()
    parts = arguments.part or PARTS
    if unknown := set(parts) - set(PARTS):
        parser.error(f"no such part: {', '.join(sorted(unknown))}")

    program = arguments.program.resolve()
    measured = {
        "start": lambda: measure_start(program, arguments.against, arguments.runs),
        "data": lambda: measure_data(arguments.runs),
        "interaction": lambda: measure_interaction(program, arguments.runs),
    }
    rows = []
    for part in PARTS:
        if part in parts:
            print(f"Measuring: {part}", file=sys.stderr)
            rows += measured[part]()
    print_table(rows)


if __name__ == "__main__":
    main()
