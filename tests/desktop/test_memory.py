#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What the program holds of the machine's memory while nobody looks at it."""

import unittest
from pathlib import Path

from desktop_test import PROGRAM, DesktopTest
from program import Program

FONTS = (".ttc", ".otf", ".ttf")
LITTLE = 1 << 20


class MemoryTest(DesktopTest):
    def test_pages_of_fonts_are_given_back_after_the_start(self) -> None:
        with self.world() as world:
            program = world.start(PROGRAM)
            program.wait_until_still()
            self._wait_until_given_back(program)

    def test_pages_of_fonts_are_given_back_when_another_window_is_used(self) -> None:
        with self.world() as world:
            program = world.start(PROGRAM)
            program.wait_until_still()
            self._wait_until_given_back(program)
            program.press_keys("ctrl+2", "ctrl+3", "ctrl+4", "ctrl+5")
            program.wait_until(
                lambda: bytes_of_fonts(program) > LITTLE, "the surfaces' letters are read"
            )
            program.minimise()
            self._wait_until_given_back(program)

    def _wait_until_given_back(self, program: Program) -> None:
        program.wait_until(
            lambda: bytes_of_fonts(program) < LITTLE, "the pages of fonts are given back"
        )


def bytes_of_fonts(program: Program) -> int:
    """How much of the fonts' files is in the program's memory."""
    total = 0
    is_font = False
    for line in Path(f"/proc/{program.process.pid}/smaps").read_text().splitlines():
        name, value = line.split()[:2]
        if not name.endswith(":"):
            is_font = line.endswith(FONTS)
        elif name == "Rss:" and is_font:
            total += int(value) * 1024
    return total


if __name__ == "__main__":
    unittest.main()
