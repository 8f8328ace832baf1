#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window under openbox, where a key is set to move windows, also in other scales."""

import unittest

import window_manager_test
from commands import answer_of
from desktop_test import DesktopTest
from program import Program
from window_manager_test import SCREEN
from world import World

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

SHARP = 2
"""What is sharp loses more than so many times as much when it is blurred as when it is blurred again."""


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
                self.assertGreater(sharpness(program, world, scale), SHARP)
                self.check_double_click(program, screen)
                self.check_sides_and_corners(program)


def scaled(size: tuple[int, int], scale: float) -> tuple[int, int]:
    return round(size[0] * scale), round(size[1] * scale)


def sharpness(program: Program, world: World, scale: float) -> float:
    """How many times more the window loses when it is blurred as if it were drawn for scale 1 than when
    it is blurred so again."""
    picture = world.folder / "window.png"
    program.save_picture(picture)
    width, height = program.size()
    blur = ["-resize", f"{100 / scale}%", "-resize", f"{width}x{height}!"]
    difference = ["-compose", "difference", "-composite", "-colorspace", "gray",
                  "-format", "%[fx:mean]", "info:"]

    def loss(*prepared: str) -> float:
        command = ["convert", str(picture), *prepared, "(", "+clone", *blur, ")", *difference]
        return float(answer_of(command, world.environment))

    return loss() / loss(*blur)


if __name__ == "__main__":
    unittest.main()
