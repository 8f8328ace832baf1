#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Starts the program on a virtual screen and writes its first screen: first_screen.py PROGRAM PNG"""

import sys
from pathlib import Path

from world import World


def main() -> None:
    program_file, picture = (Path(argument).resolve() for argument in sys.argv[1:])
    with World() as world:
        program = world.start(program_file)
        program.save_picture(picture)
        program.close()


if __name__ == "__main__":
    try:
        main()
    except (RuntimeError, TimeoutError) as reason:
        sys.exit(str(reason))
