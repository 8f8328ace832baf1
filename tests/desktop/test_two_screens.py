#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window on two screens of different scale: those of mutter as a Wayland compositor, which are a
window on the test's virtual one. They are dark, the window is light."""

import unittest
from collections.abc import Iterator
from contextlib import contextmanager, suppress
from pathlib import Path

from commands import CommandFailed, answer_of
from desktop_test import PROGRAM, DesktopTest
from own_process import OwnProcess
from polling import wait_until
from program import FELT
from sharpness import SHARP, sharpness
from world import World

EACH = (2400, 1700)
"""The size of each screen in pixels. The left one has the scale 1, the right one the scale 2."""
SETTING = {
    "MUTTER_DEBUG_NUM_DUMMY_MONITORS": "2",
    "MUTTER_DEBUG_DUMMY_MONITOR_SCALES": "1,2",
    "MUTTER_DEBUG_DUMMY_MODE_SPECS": f"{EACH[0]}x{EACH[1]}",
}
SOCKET = "wayland-test"

USUAL = (1120, 780)
GRAIN = 4
"""Of the screens so many pixels are seen as one."""
SLACK = 3 * GRAIN
"""How much smaller the window may seem."""
GRIP = (320, 8)
"""In the window at scale 1: a place of the header that holds nothing."""
GOALS = {1: 800, 2: 400}
"""Where on the screen of that scale the header is dragged to, so that all of the window is on it."""

Place = tuple[int, int, int, int]


class TwoScreens:
    def __init__(self, world: World):
        self._world = world
        self._picture = world.folder / "screens.ppm"
        self._window = wait_until(self._active_window, "the screens are there")

    def point_to(self, point: tuple[int, int], *then: str) -> None:
        self._xdotool("mousemove", "--window", self._window, *map(str, point), *then)

    def drag(self, start: tuple[int, int], goal: tuple[int, int]) -> None:
        """Holds the window until it has followed, or for a while; then the pointer is out of sight."""
        steps = 10
        before = self._seen_place()
        self.point_to(start, "mousedown", "1")
        for step in range(1, steps + 1):
            self.point_to(tuple(a + (b - a) * step // steps for a, b in zip(start, goal)))
        with suppress(TimeoutError):
            wait_until(lambda: self._seen_place() != before, "it follows", FELT)
        self._xdotool("mouseup", "1")
        self.point_to((2 * EACH[0] - 1, EACH[1] - 1))

    def place(self) -> Place:
        """Where the window is, as x, y, width and height, once it stays there."""
        before = None
        while (now := self._seen_place()) != before:
            before = now
        return now

    def _seen_place(self) -> Place:
        answer_of(
            ["import", "-window", self._window, str(self._picture)], self._world.environment)
        light = ["-sample", f"{100 / GRAIN}%", "-colorspace", "gray", "-threshold", "80%"]
        command = ["convert", str(self._picture), *light, "-format", "%@", "info:"]
        box = answer_of(command, self._world.environment).decode()
        width, height, x, y = (GRAIN * int(part) for part in box.replace("x", "+").split("+"))
        return x, y, width, height

    def picture_of(self, place: Place) -> Path:
        """Of that part of what was seen last."""
        x, y, width, height = place
        part = self._world.folder / "part.png"
        crop = ["-crop", f"{width}x{height}+{x}+{y}", "+repage", str(part)]
        answer_of(["convert", str(self._picture), *crop], self._world.environment)
        return part

    def _active_window(self) -> str:
        try:
            return self._xdotool("getactivewindow")
        except CommandFailed:
            return ""

    def _xdotool(self, *arguments: str) -> str:
        return answer_of(["xdotool", *arguments], self._world.environment).decode().strip()


class TwoScreensTest(DesktopTest):
    def test_dragged_to_the_other_screen_it_is_as_large_and_sharp(self) -> None:
        with self.world(screen=(2 * EACH[0], EACH[1])) as world, two_screens(world) as screens:
            # A window comes up where the pointer is.
            screens.point_to((EACH[0] // 2, EACH[1] // 2))
            with program_on_wayland(world) as program:
                self._drag_to(screens, 1)
                right = self._drag_to(screens, 2)
                picture = screens.picture_of(right)
                self.assertGreater(sharpness(picture, 2, world.environment), SHARP)
                self._drag_to(screens, 1)
                self.assertTrue(program.is_running())
                self.assertEqual("", program.output.read_text())

    def _drag_to(self, screens: TwoScreens, scale: int) -> Place:
        """Its place on the screen of that scale, once it is there in its usual size."""
        screen = EACH[0] * (scale - 1)
        wanted = [side * scale for side in USUAL]

        def stands() -> Place | None:
            x, y, width, height = place = screens.place()
            missing = (wanted[0] - width, wanted[1] - height)
            if x >= screen and all(abs(lack) <= SLACK for lack in missing):
                return place
            if width:
                now = height / USUAL[1]
                grip = (round(x + GRIP[0] * now), round(y + GRIP[1] * now))
                screens.drag(grip, (screen + GOALS[scale], 80))
            return None

        return wait_until(stands, f"it is on the screen of scale {scale}", 60)


@contextmanager
def two_screens(world: World) -> Iterator[TwoScreens]:
    compositor = OwnProcess(
        ["mutter", "--nested", "--wayland", "--no-x11", "--sm-disable",
         f"--wayland-display={SOCKET}"],
        world.environment | SETTING, world.folder / "mutter.txt")
    try:
        wait_until((world.folder / "run" / SOCKET).exists, "mutter listens")
        yield TwoScreens(world)
    finally:
        compositor.stop()


@contextmanager
def program_on_wayland(world: World) -> Iterator[OwnProcess]:
    environment = world.environment | {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET}
    del environment["DISPLAY"]
    program = OwnProcess([str(PROGRAM)], environment, world.folder / "wayland-program.txt")
    try:
        yield program
    finally:
        program.stop()


if __name__ == "__main__":
    unittest.main()
