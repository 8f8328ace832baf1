# SPDX-License-Identifier: Apache-2.0
"""A started program: its process, its window and what a screen reader sees of it."""

from collections.abc import Callable, Mapping
from contextlib import suppress
from pathlib import Path
from typing import TypeVar

from accessibility import AccessibilityBus, Element
from commands import CommandFailed, answer_of
from own_process import OwnProcess
from polling import PATIENCE, wait_until

Result = TypeVar("Result")

WINDOW_TITLE = "Corvanite Information"

FELT = 4.0
"""Seconds for which the pointer is held until a window follows."""

PAINTED_BYTE_VALUES = 32
"""A window with text in it shows at least so many different values of a colour part."""


class Program:
    def __init__(
        self, process: OwnProcess, environment: Mapping[str, str], accessibility: AccessibilityBus
    ):
        self.process = process
        self._environment = environment
        self._accessibility = accessibility

    def wait_until(self, condition: Callable[[], Result], what: str) -> Result:
        """The first true result of the condition, which needs the program to run."""

        def unless_ended() -> Result:
            if not self.process.is_running():
                messages = "\n".join(self.messages())
                raise RuntimeError(f"the program has ended, before: {what}\n{messages}")
            return condition()

        return wait_until(unless_ended, what)

    # Process

    def messages(self) -> list[str]:
        """What the program has printed."""
        return self.process.output.read_text(errors="replace").splitlines()

    def wait_for_exit(self) -> int:
        """The exit status."""
        return self.process.wait(PATIENCE)

    def close(self) -> int:
        """Closes the window as the reader does from the keyboard; the exit status."""
        self.wait_until(self.is_active, "the window is active")
        wait_until(self._ended_by_keyboard, "the program has ended")
        return self.wait_for_exit()

    def _ended_by_keyboard(self) -> bool:
        """The window manager misses a key that is pressed while it is busy."""
        self.press_keys("alt+F4")
        try:
            wait_until(lambda: not self.process.is_running(), "the program has ended", 2)
        except TimeoutError:
            return False
        return True

    # Window

    def window(self) -> str:
        """The number of the window, once it is mapped."""
        return self.wait_until(self._visible_window, "the window is mapped")

    def is_active(self) -> bool:
        try:
            return self._xdotool("getactivewindow") == self._visible_window()
        except CommandFailed:
            return False

    def minimise(self) -> None:
        self._xdotool("windowminimize", self.window())
        self.wait_until(lambda: not self._visible_window(), "the window is minimised")

    def resize(self, width: int, height: int) -> None:
        window = self.window()
        self._xdotool("windowmove", window, "0", "0")
        self._xdotool("windowsize", window, str(width), str(height))
        self.wait_until(lambda: self.size() == (width, height), f"the window is {width} x {height}")
        self.wait_until(lambda: self._laid_out_size() == (width, height), "it is laid out anew")

    def move(self, to: tuple[int, int]) -> None:
        self._xdotool("windowmove", self.window(), *map(str, to))
        self.wait_until(lambda: self.position() == to, f"the window is at {to}")

    def size(self) -> tuple[int, int]:
        geometry = self._geometry()
        return geometry["WIDTH"], geometry["HEIGHT"]

    def position(self) -> tuple[int, int]:
        """Of the window's upper left corner on the screen."""
        geometry = self._geometry()
        return geometry["X"], geometry["Y"]

    def drag(
        self,
        start: tuple[int, int],
        way: tuple[int, int],
        followed: Callable[[], bool] = lambda: True,
    ) -> None:
        """Drags by the pointer from the point in the window, in steps as a hand does, and holds it
        until the window has `followed`, or for a while: xfwm tells of some only at its end. What a busy
        desktop did not feel is done again."""
        self.wait_until(lambda: self._is_dragged(start, way, followed), "the drag is felt")

    def _is_dragged(
        self, start: tuple[int, int], way: tuple[int, int], followed: Callable[[], bool]
    ) -> bool:
        window, before = self.window(), (self.position(), self.size())
        x, y = self.position()
        self._xdotool("mousemove", "--window", window, *map(str, start), "mousedown", "1")
        for step in (1, 5, 10, 20):
            goal = (x + start[0] + way[0] * step // 20, y + start[1] + way[1] * step // 20)
            self._xdotool("mousemove", "--sync", *map(str, goal))
        with suppress(TimeoutError):
            wait_until(lambda: followed() or self._stir(goal), "it has followed", FELT)
        self._xdotool("mouseup", "1")
        with suppress(TimeoutError):
            wait_until(
                lambda: followed() or (self.position(), self.size()) != before, "it is felt", FELT
            )
            return True
        return False

    def _stir(self, point: tuple[int, int]) -> None:
        """A hand that holds is never still: who begins to look late sees it move."""
        x, y = point
        self._xdotool("mousemove", str(x + 1), str(y), "mousemove", str(x), str(y))

    def double_click(self, at: tuple[int, int]) -> None:
        """At the point in the window."""
        point = ("mousemove", "--window", self.window(), *map(str, at))
        self._xdotool(*point, "click", "1", "click", "1")

    def _geometry(self) -> dict[str, int]:
        lines = self._xdotool("getwindowgeometry", "--shell", self.window()).splitlines()
        return {name: int(value) for name, value in (line.split("=") for line in lines)}

    def _laid_out_size(self) -> tuple[int, int] | None:
        """What the program believes its window to measure."""
        frames = self.find_all(lambda element: element.role == "frame")
        extents = frames[0].extents() if frames else None
        return extents and (extents.width, extents.height)

    def press_keys(self, *keys: str) -> None:
        """Presses the keys one after the other, written as xdotool names them ("ctrl+1")."""
        self._xdotool("key", "--clearmodifiers", *keys)

    def type(self, text: str) -> None:
        self._xdotool("type", text)

    def click(self, element: Element) -> None:
        x, y = element.extents().center
        self._xdotool("mousemove", str(x), str(y), "click", "1")

    def save_picture(self, file: Path) -> None:
        """Writes the window as PNG once it is painted and stands still."""
        self.wait_until_still()
        answer_of(["import", "-window", self.window(), f"png:{file}"], self._environment)

    def brightness(self) -> float:
        """The mean of the window's colour parts, from 0 (black) to 1 (white)."""
        self.wait_until_still()
        pixels = self._pixels()
        return sum(pixels) / (255 * len(pixels))

    def wait_until_still(self) -> None:
        previous = b""

        def is_still() -> bool:
            nonlocal previous
            current = self._pixels()
            still = current == previous and len(set(current)) >= PAINTED_BYTE_VALUES
            previous = current
            return still

        self.wait_until(is_still, "the window is painted and stands still")

    # Accessibility

    def elements(self) -> list[Element]:
        """The tree as it is now, parents before children."""
        return self._accessibility.elements_of(self.process.pid)

    def find_all(self, matches: Callable[[Element], bool]) -> list[Element]:
        """The showing elements that match, in the tree's order."""
        return [e for e in self.elements() if e.is_showing and matches(e)]

    def wait_for(self, name: str, role: str | None = None) -> Element:
        """The first showing element of that name, and role if one is given."""

        def matches(element: Element) -> bool:
            return element.name == name and role in (None, element.role)

        what = f"{role or 'an element'} named “{name}”"
        return self.wait_until(lambda: self.find_all(matches), what)[0]

    def wait_for_beginning(self, beginning: str) -> Element:
        """The first showing element whose name begins so."""
        return self.wait_until(
            lambda: self.find_all(lambda e: e.name.startswith(beginning)),
            f"an element's name begins with “{beginning}”",
        )[0]

    def wait_until_gone(self, name: str) -> None:
        """Waits until no showing element has that name."""
        self.wait_until(
            lambda: self.elements() and not self.find_all(lambda e: e.name == name),
            f"nothing is named “{name}”",
        )

    def _visible_window(self) -> str:
        try:
            search = ("search", "--onlyvisible", "--all", "--pid", str(self.process.pid))
            return self._xdotool(*search, "--name", f"^{WINDOW_TITLE}$").split("\n")[0]
        except CommandFailed:
            return ""

    def _pixels(self) -> bytes:
        command = ["import", "-window", self.window(), "-depth", "8", "rgb:-"]
        return answer_of(command, self._environment)

    def _xdotool(self, *arguments: str) -> str:
        return answer_of(["xdotool", *arguments], self._environment).decode().strip()
