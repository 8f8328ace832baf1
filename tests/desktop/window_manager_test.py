# SPDX-License-Identifier: Apache-2.0
"""What the window does under each desktop's own window manager."""

from collections.abc import Iterator, Sequence
from contextlib import contextmanager, suppress

from commands import answer_of
from desktop_test import PROGRAM
from polling import wait_until
from program import FELT, Program
from world import World

SCREEN = (1920, 1200)
PLACE = (300, 200)
HEADER = (320, 30)
INSIDE = 3
"""How far within the window its sides and corners are gripped."""
SLACK = 8
"""How far the window may trail behind the pointer."""

Place = tuple[int, int, int, int]


class WindowManagerTest:
    """For a test case with the command that starts its window manager."""

    WINDOW_MANAGER: Sequence[str]

    def test_a_double_click_of_the_header_maximises_and_restores(self) -> None:
        with self.placed_program() as (program, _):
            self.check_double_click(program)

    def test_every_side_and_corner_resizes(self) -> None:
        with self.placed_program() as (program, _):
            self.check_sides_and_corners(program)

    def test_minimised_by_its_button_it_comes_back(self) -> None:
        with self.placed_program() as (program, world):
            before = place_of(program)
            window = program.window()
            program.click(program.wait_for("最小化", "push button"))
            program.wait_until(
                lambda: "_NET_WM_STATE_HIDDEN" in states_of(window, world), "it is minimised")
            answer_of(["xdotool", "windowactivate", window], world.environment)
            program.wait_until(
                lambda: "_NET_WM_STATE_HIDDEN" not in states_of(window, world), "it is back")
            self.wait_for_place(program, before)

    def check_double_click(self, program: Program, screen: tuple[int, int] = SCREEN) -> None:
        before = place_of(program)
        program.double_click(HEADER)
        self.wait_for_place(program, (0, 0, *screen))
        program.double_click(HEADER)
        self.wait_for_place(program, before)

    def check_sides_and_corners(self, program: Program) -> None:
        # For each the way of the pointer; only outwards does the window grow.
        ways = {(-1, 0): (-60, 0), (1, 0): (60, 0), (0, -1): (0, -40), (0, 1): (0, 40),
                (-1, -1): (30, 30), (1, -1): (-30, 30), (-1, 1): (30, -30), (1, 1): (-30, -30)}
        for side, way in ways.items():
            with self.subTest(side=side):
                x, y, width, height = place_of(program)
                moved = [way[axis] if side[axis] < 0 else 0 for axis in (0, 1)]
                grown = [way[axis] * side[axis] for axis in (0, 1)]
                wanted = (x + moved[0], y + moved[1], width + grown[0], height + grown[1])
                program.wait_until(
                    lambda: self._is_dragged_to(program, side, wanted), f"the window is at {wanted}")

    def _is_dragged_to(self, program: Program, side: tuple[int, int], wanted: Place) -> bool:
        """Drags by what is missing: a busy desktop may have felt only the end of a drag."""
        place = place_of(program)
        missing = [goal - length for length, goal in zip(place, wanted)]
        way = tuple(missing[axis if side[axis] < 0 else axis + 2] for axis in (0, 1))
        program.drag(grip(side, *place[2:]), way, lambda: is_at(program, wanted))
        with suppress(TimeoutError):
            wait_until(lambda: is_at(program, wanted), "it stands there", FELT)
        return is_at(program, wanted)

    @contextmanager
    def placed_program(
        self, screen: tuple[int, int] = SCREEN, scale: float = 1
    ) -> Iterator[tuple[Program, World]]:
        with self.world(
            screen=screen, window_manager=self.WINDOW_MANAGER, scale=scale
        ) as world:
            program = world.start(PROGRAM)
            program.wait_until(program.is_active, "the window is active")
            program.wait_until_still()
            program.move(PLACE)
            yield program, world

    def wait_for_place(self, program: Program, wanted: Place) -> None:
        program.wait_until(lambda: is_at(program, wanted), f"the window is at {wanted}")


class KeyMoveTest:
    """For a test case whose window manager lets the keyboard move a window."""

    MOVE_KEY = "alt+F7"

    def test_the_keys_move_it(self) -> None:
        with self.placed_program() as (program, _):
            x, y, *size = place_of(program)
            program.wait_until(lambda: self._is_moved_by_keys(program), "the keys move it")
            moved = place_of(program)
            self.assertGreater(moved[0], x)
            self.assertEqual([y, *size], list(moved[1:]))

    def _is_moved_by_keys(self, program: Program) -> bool:
        """A window manager misses a key while it is busy."""
        x = program.position()[0]

        def steps() -> bool:
            program.press_keys("Right")
            return program.position()[0] > x

        program.press_keys(self.MOVE_KEY)
        try:
            wait_until(steps, "it follows the keys", FELT)
        except TimeoutError:
            return False
        program.press_keys("Return")
        return True


def place_of(program: Program) -> Place:
    return *program.position(), *program.size()


def is_at(program: Program, place: Place) -> bool:
    return all(abs(a - b) <= SLACK for a, b in zip(place_of(program), place))


def grip(side: tuple[int, int], width: int, height: int) -> tuple[int, int]:
    """In the window: a point of the side or corner, a third along."""
    across = {-1: lambda _: INSIDE, 0: lambda length: length // 3, 1: lambda length: length - INSIDE}
    return across[side[0]](width), across[side[1]](height)


def states_of(window: str, world: World) -> str:
    return answer_of(["xprop", "-id", window, "_NET_WM_STATE"], world.environment).decode()
