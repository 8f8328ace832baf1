#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window on Wayland: on weston, whose own screen is a window on the test's virtual one. Its ground
has a colour that the program does not, so that a picture tells where the program's window is."""

import shutil
import unittest
from collections.abc import Callable, Iterator
from contextlib import contextmanager
from dataclasses import dataclass
from os.path import commonprefix

from commands import CommandFailed, answer_of
from desktop_test import PROGRAM, DesktopTest
from own_process import OwnProcess
from polling import PATIENCE, wait_until
from world import World

WESTON = shutil.which("weston")

SCREEN = (1920, 1200)
OUTPUT = (1600, 1000)
"""Of weston, in pixels."""

CONFIGURATION = """[core]
idle-time=0

[shell]
background-color=0xff00ff00
panel-position=none
animation=none
startup-animation=none
locking=false
"""

GROUND = b"\x00\xff\x00"

USUAL = (1120, 780)
SMALLEST_WIDTH = 720
HEADER_GROUND = (320, 8)
"""In the window: a place of the header that holds nothing."""


Point = tuple[int, int]


@dataclass(frozen=True)
class Place:
    x: int
    y: int
    width: int
    height: int

    @property
    def size(self) -> tuple[int, int]:
        return self.width, self.height


def place_in(pixels: bytes) -> Place | None:
    """Where the one window is in a picture of weston's screen. The pointer is far smaller."""
    length = OUTPUT[0] * len(GROUND)
    ground = GROUND * OUTPUT[0]
    lines = [pixels[start:start + length] for start in range(0, len(pixels), length)]
    covered = [OUTPUT[0] - line.count(GROUND) for line in lines]
    of_window = [y for y, count in enumerate(covered) if count > SMALLEST_WIDTH]
    if not of_window:
        return None
    # Beside the window the pointer lies in few of its lines.
    narrowest = lines[min(of_window, key=lambda y: covered[y])]
    left = len(commonprefix([narrowest, ground])) // len(GROUND)
    right = len(commonprefix([narrowest[::-1], ground[::-1]])) // len(GROUND)
    top = of_window[0]
    return Place(left, top, OUTPUT[0] - left - right, of_window[-1] - top + 1)


class Wayland:
    """A weston in the world, and the program on it."""

    def __init__(self, world: World, scale: int):
        self._world = world
        self._programs: list[OwnProcess] = []
        configuration = world.folder / "weston.ini"
        configuration.write_text(CONFIGURATION)
        width, height = OUTPUT
        self._compositor = OwnProcess(
            [WESTON, "--backend=x11-backend.so", "--use-pixman", "--socket=wayland-test",
             f"--config={configuration}", f"--width={width // scale}",
             f"--height={height // scale}", f"--scale={scale}"],
            world.environment, world.folder / "weston.txt")
        socket = world.folder / "run/wayland-test"
        wait_until(lambda: socket.exists() or not self._compositor.is_running(), "weston listens")
        if not self._compositor.is_running():
            raise unittest.SkipTest(
                "weston does not start here: " + self._compositor.output.read_text()[-500:])
        search = ("search", "--onlyvisible", "--class", "Weston Compositor")
        self._window = wait_until(lambda: self._found(*search), "weston's screen is there")

    def start(self) -> OwnProcess:
        environment = self._world.environment | {
            "QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland-test"}
        del environment["DISPLAY"]
        program = OwnProcess([str(PROGRAM)], environment,
                             self._world.folder / f"wayland-program-{len(self._programs)}.txt")
        self._programs.append(program)
        return program

    def stop(self) -> None:
        for process in (*self._programs, self._compositor):
            process.stop()

    def place(self) -> Place | None:
        """Where the program's window is on weston's screen, in pixels."""
        try:
            picture = ["import", "-window", self._window, "-depth", "8", "rgb:-"]
            pixels = answer_of(picture, self._world.environment)
        except CommandFailed:
            return None
        return place_in(pixels)

    def place_when(self, holds: Callable[[Place], bool], what: str) -> Place:
        return wait_until(lambda: (place := self.place()) and holds(place) and place, what)

    def drag_until_there(
        self, grip: Callable[[Place], Point], way: Callable[[Place], Point], what: str
    ) -> Place:
        """Drags the window by its grip until there is no way left: what a busy weston begins late
        to follow, it follows by less."""

        def there() -> Place | None:
            place = self.place()
            if place and way(place) != (0, 0):
                self._drag(grip(place), way(place))
                return None
            return place

        return wait_until(there, what)

    def _drag(self, start: Point, by: Point) -> None:
        steps = 10
        self._point_to(start, "mousedown")
        for step in range(1, steps + 1):
            self._point_to((start[0] + by[0] * step // steps, start[1] + by[1] * step // steps))
        self._xdotool("mouseup", "1")

    def click(self, at: tuple[int, int]) -> None:
        self._point_to(at, "click")

    def _point_to(self, at: tuple[int, int], *then: str) -> None:
        """And does `then` with the first button."""
        done = [*then, "1"] if then else []
        self._xdotool("mousemove", "--window", self._window, *map(str, at), *done)

    def _found(self, *search: str) -> str:
        try:
            return self._xdotool(*search).split("\n")[0]
        except CommandFailed:
            return ""

    def _xdotool(self, *arguments: str) -> str:
        return answer_of(["xdotool", *arguments], self._world.environment).decode().strip()


@unittest.skipUnless(WESTON, "weston is not installed")
class WaylandTest(DesktopTest):
    @contextmanager
    def wayland(self, scale: int = 1) -> Iterator[Wayland]:
        with World(screen=SCREEN) as world:
            wayland = Wayland(world, scale)
            try:
                yield wayland
            finally:
                wayland.stop()

    def assert_ends_well(self, program: OwnProcess) -> None:
        self.assertEqual(0, program.wait(PATIENCE))
        self.assertEqual("", program.output.read_text())

    def test_moved_resized_and_closed_by_its_own_frame(self):
        with self.world() as world:
            close = world.start(PROGRAM).wait_for("关闭窗口", "push button").extents()
            frame = world.programs()[0].find_all(lambda e: e.role == "frame")[0].extents()
        button = (close.center[0] - frame.x, close.center[1] - frame.y)

        with self.wayland() as wayland:
            program = wayland.start()
            wayland.place_when(lambda place: place.size == USUAL, "the window is there")

            # Where a weston puts it differs from start to start.
            moved = wayland.drag_until_there(
                lambda place: (place.x + HEADER_GROUND[0], place.y + HEADER_GROUND[1]),
                lambda place: (200 - place.x, 100 - place.y), "it has moved")
            self.assertEqual(USUAL, moved.size)

            narrower = wayland.drag_until_there(
                lambda place: (place.x + place.width - 2, place.y + place.height // 2),
                lambda place: (USUAL[0] - 100 - place.width, 0), "it is narrower")
            self.assertEqual((moved.x, moved.y), (narrower.x, narrower.y))

            wayland.click((narrower.x + button[0] - 100, narrower.y + button[1]))
            self.assert_ends_well(program)

    def test_sharp_at_scale_2(self):
        with self.wayland(scale=2) as wayland:
            program = wayland.start()
            # Smaller than usual: as much as the screen holds.
            wayland.place_when(lambda place: place.width > 1400, "the window is there")
            program.stop()
            self.assertEqual("", program.output.read_text())

    def test_a_second_start_hands_over_and_ends(self):
        with self.wayland() as wayland:
            first = wayland.start()
            wayland.place_when(lambda place: place.size == USUAL, "the window is there")

            second = wayland.start()

            self.assert_ends_well(second)
            self.assertTrue(first.is_running())


if __name__ == "__main__":
    unittest.main()
