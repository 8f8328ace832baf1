#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window under openbox, where a key is set to move windows, also in other scales."""

import unittest

import window_manager_test
from desktop_test import DesktopTest
from sharpness import SHARP, sharpness
from window_manager_test import SCREEN

START = """
cat >"$XDG_RUNTIME_DIR/openbox.xml" <<'END'
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <keyboard><keybind key="A-F7"><action name="Move"/></keybind></keyboard>
</openbox_config>
END
exec openbox --sm-disable --config-file "$XDG_RUNTIME_DIR/openbox.xml"
"""

USUAL = (1120, 780)
SCALES = (1.25, 1.5, 2)


class OpenboxTest(
    window_manager_test.WindowManagerTest, window_manager_test.KeyMoveTest, DesktopTest
):
    WINDOW_MANAGER = ("sh", "-c", START)

    def test_in_other_scales(self) -> None:
        for scale in SCALES:
            screen = scaled(SCREEN, scale)
            with self.subTest(scale=scale), self.placed_program(screen, scale) as (program, world):
                self.assertEqual(scaled(USUAL, scale), program.size())
                program.wait_for_beginning("Product Hunt 新品：ChatCut Desktop")
                picture = world.folder / "window.png"
                program.save_picture(picture)
                self.assertGreater(sharpness(picture, scale, world.environment), SHARP)
                self.check_double_click(program, screen)
                self.check_sides_and_corners(program)


def scaled(size: tuple[int, int], scale: float) -> tuple[int, int]:
    return round(size[0] * scale), round(size[1] * scale)


if __name__ == "__main__":
    unittest.main()
