#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window under the reader's hands: its first size, moving, resizing, also below a sheet."""

import unittest

from desktop_test import PROGRAM, DesktopTest
from program import Program

SMALL_SCREEN = (1366, 768)
HEADER = (320, 30)
SLACK = 4
"""How far the window may trail behind the pointer."""


class WindowTest(DesktopTest):
    def test_it_opens_whole_on_a_small_screen(self) -> None:
        with self.world(screen=SMALL_SCREEN) as world:
            program = world.start(PROGRAM)
            self.assertEqual((1120, 768), program.size())

    def test_a_drag_of_the_header_moves_it_as_far(self) -> None:
        with self.world() as world:
            self._drag_twice(opened(world.start(PROGRAM)))

    def test_it_moves_below_a_sheet(self) -> None:
        with self.world() as world:
            program = opened(world.start(PROGRAM))
            program.press_keys("ctrl+n")
            program.wait_for("链接或一句话")
            self._drag_twice(program)

    def test_its_edge_is_dragged_twice(self) -> None:
        with self.world() as world:
            program = opened(world.start(PROGRAM))
            width, height = program.size()
            for times in (1, 2):
                wanted = (width - 60 * times, height)
                program.drag((program.size()[0] - 2, 300), (-60, 0), lambda: program.size() == wanted)
                program.wait_until(lambda: program.size() == wanted, "the window is narrower")

    def _drag_twice(self, program: Program) -> None:
        x, y = program.position()
        for times in (1, 2):
            wanted = (x + 80 * times, y + 40 * times)
            trail = SLACK * times
            stands = lambda: near(program.position(), wanted, trail)
            program.drag(HEADER, (80, 40), stands)
            program.wait_until(stands, f"it stands at {wanted}")


def near(point: tuple[int, int], other: tuple[int, int], distance: int) -> bool:
    return all(abs(a - b) <= distance for a, b in zip(point, other))


def opened(program: Program) -> Program:
    program.wait_until(program.is_active, "the window is active")
    program.wait_until_still()
    return program


if __name__ == "__main__":
    unittest.main()
