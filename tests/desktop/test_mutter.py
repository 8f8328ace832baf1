#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window under the window manager of GNOME, as GNOME sets it: what is dragged to an edge of the
screen snaps there."""

import unittest

import window_manager_test
from desktop_test import DesktopTest
from window_manager_test import HEADER, PLACE, SCREEN

TRAIL = 100
"""The window follows from the second step of the hand on."""

START = """
settings="$XDG_CONFIG_HOME/glib-2.0/settings"
mkdir -p "$settings"
printf '[org/gnome/mutter]\nedge-tiling=true\n' >"$settings/keyfile"
GSETTINGS_BACKEND=keyfile exec mutter --x11 --sm-disable
"""


class MutterTest(
    window_manager_test.WindowManagerTest, window_manager_test.KeyMoveTest, DesktopTest
):
    WINDOW_MANAGER = ("sh", "-c", START)

    def test_it_snaps_to_an_edge_of_the_screen_and_away(self) -> None:
        width, height = SCREEN
        edges = {
            (0, height // 2): (0, 0, width // 2, height),
            (width - 1, height // 2): (width // 2, 0, width // 2, height),
            (width // 2, 0): (0, 0, width, height),
        }
        for edge, snapped in edges.items():
            with self.subTest(edge=edge), self.placed_program() as (program, _):
                size = program.size()
                grip = (PLACE[0] + HEADER[0], PLACE[1] + HEADER[1])
                way = (edge[0] - grip[0], edge[1] - grip[1])
                goal = PLACE[0] + way[0]
                program.drag(HEADER, way, lambda: abs(program.position()[0] - goal) < TRAIL)
                self.wait_for_place(program, snapped)
                program.drag(HEADER, (300, 200), lambda: program.size() == size)
                program.wait_until(lambda: program.size() == size, "it has its old size")


if __name__ == "__main__":
    unittest.main()
