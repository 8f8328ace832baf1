# SPDX-License-Identifier: Apache-2.0
"""What the window does under each desktop's own window manager."""

from collections.abc import Iterator, Sequence
from contextlib import contextmanager

from commands import answer_of
from desktop_test import PROGRAM
from program import Program
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
            before = place_of(program)
            program.double_click(HEADER)
            self.wait_for_place(program, (0, 0, *SCREEN))
            program.double_click(HEADER)
            self.wait_for_place(program, before)

    def test_every_side_and_corner_resizes(self) -> None:
        # For each the way of the pointer; only outwards does the window grow.
        ways = {(-1, 0): (-60, 0), (1, 0): (60, 0), (0, -1): (0, -40), (0, 1): (0, 40),
                (-1, -1): (30, 30), (1, -1): (-30, 30), (-1, 1): (30, -30), (1, 1): (-30, -30)}
        with self.placed_program() as (program, _):
            for side, way in ways.items():
                with self.subTest(side=side):
                    x, y, width, height = place_of(program)
                    moved = [way[axis] if side[axis] < 0 else 0 for axis in (0, 1)]
                    grown = [way[axis] * side[axis] for axis in (0, 1)]
                    wanted = (x + moved[0], y + moved[1], width + grown[0], height + grown[1])
                    program.drag(
                        grip(side, width, height), way, lambda: is_at(program, wanted))
                    self.wait_for_place(program, wanted)

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

    @contextmanager
    def placed_program(self) -> Iterator[tuple[Program, World]]:
        with self.world(screen=SCREEN, window_manager=self.WINDOW_MANAGER) as world:
            program = world.start(PROGRAM)
            program.wait_until(program.is_active, "the window is active")
            program.wait_until_still()
            program.move(PLACE)
            yield program, world

    def wait_for_place(self, program: Program, wanted: Place) -> None:
        program.wait_until(lambda: is_at(program, wanted), f"the window is at {wanted}")


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
