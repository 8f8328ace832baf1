# SPDX-License-Identifier: Apache-2.0
"""From a key to the changed frame, and the frames while a surface scrolls, through the real window.

A first start, with a screen reader's help, finds out how often the Tab key leads to what. Those
that are measured have no such help, and get the same keys.
"""

import os
import shutil
import subprocess
import time
from collections import defaultdict
from collections.abc import Mapping
from dataclasses import dataclass
from pathlib import Path
from statistics import median

from accessibility import Element
from commands import answer_of
from desk import TOOLS, Desk, memory_bytes
from full_pack import write_full_data
from own_process import OwnProcess
from polling import wait_until
from program import WINDOW_TITLE, Program
from start import idleness_of
from table import Row, compared, shown

Size = tuple[int, int]

USUAL: Size = (1120, 780)
SCROLLED = [(USUAL, 1), ((2560, 1440), 1), ((3840, 2160), 2)]
"""Sizes in pixels, and what they are scaled by."""

WORKSPACE = Path("Corvanite/Information/workspace-v1.json")
SURFACES = ["today", "kept", "weekly", "archive", "sources"]
SCROLLING = SURFACES[:4]
SCROLLING_SECONDS = 2.0
VISITS = 10
LETTERS = 3
REST = "其余 "
MOST_TABS = 60

FRAME_MS = 1000 / 60
KEY_MS = 16.0
FIRST_VISIT_MS = 50.0
SAVING = {"keep", "undo", "keep beside the rest", "undo beside the rest", "a note letter"}


class Window:
    """A start of the program, its window over the whole screen, and the probe for it."""

    def __init__(self, desk: Desk, program: Path, data_home: Path, size: Size, scale: int):
        self._desk = desk
        self._size = size
        variables = {"XDG_DATA_HOME": str(data_home), "QT_SCALE_FACTOR": str(scale)}
        self._process = desk.run("program", [str(program)], variables)

    def __enter__(self) -> "Window":
        cover(self._desk, self._size)
        self._probe = subprocess.Popen(
            [str(TOOLS / "key_probe"), str(self._process.pid)],
            env=self._desk.environment,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        return self

    def __exit__(self, *_) -> None:
        self._probe.communicate()
        self._process.stop()

    @property
    def process(self) -> OwnProcess:
        return self._process

    def press(self, keys: str) -> float:
        """Milliseconds from the keys ("Control_L+1") to the changed frame; raises RuntimeError when
        there is none."""
        answer = self._ask(f"press {keys.replace('+', ' ')}")
        if not answer:
            raise RuntimeError(f"nothing changes on {keys}")
        return float(answer[0]) * 1e3

    def go(self, keys: str) -> None:
        """Presses the keys, whether anything changes or not."""
        self._ask(f"go {keys.replace('+', ' ')}")

    def tab(self, times: int) -> None:
        for _ in range(times):
            self.go("Tab")

    def tab_back(self, times: int) -> None:
        for _ in range(times):
            self.go("Shift_L+Tab")

    def frames_on_hold(self, key: str) -> list[float]:
        return self._processor_ms(f"hold {key} {SCROLLING_SECONDS}")

    def frames_on_wheel(self) -> list[float]:
        middle = [str(length // 2) for length in self._size]
        answer_of(["xdotool", "mousemove", *middle], self._desk.environment)
        return self._processor_ms(f"wheel {SCROLLING_SECONDS}")

    def _processor_ms(self, command: str) -> list[float]:
        """Of each frame."""
        return [float(seconds) * 1e3 for seconds in self._ask(command)[1::2]]

    def _ask(self, command: str) -> list[str]:
        self._probe.stdin.write(f"{command}\n")
        self._probe.stdin.flush()
        return self._probe.stdout.readline().split()


def cover(desk: Desk, size: Size) -> None:
    """Waits for the window, and has it cover the screen."""
    search = ["xdotool", "search", "--sync", "--onlyvisible", "--name", f"^{WINDOW_TITLE}$"]
    window = answer_of(search, desk.environment).decode().split()[0]
    for command in [("windowmove", "0", "0"), ("windowsize", *map(str, size))]:
        answer_of(["xdotool", command[0], window, *command[1:]], desk.environment)
    active = ["xdotool", "getwindowfocus"]
    wait_until(
        lambda: answer_of(active, desk.environment).decode().strip() == window,
        "the window is active",
    )


@dataclass(frozen=True)
class Tabs:
    """How often the Tab key leads from the one to the other."""

    start_to_lanes: int
    lanes_to_card: int
    card_to_keeping: int
    keeping_to_rest: int
    """To what unfolds the rest of today."""
    thread_to_note: int
    """Of a kept card."""


def find_tabs(desk: Desk, program: Path) -> Tabs:
    started = desk.start(program, fresh_data(desk))
    cover(desk, USUAL)
    started.press_keys("ctrl+1")
    lanes = tabs_to(started, "radio button", "全部")
    card = tabs_to(started, "list item", "")
    keeping = tabs_to(started, "push button", "收下并持续更新：")
    rest = tabs_to(started, "push button", REST)
    started.press_keys(*["shift+Tab"] * rest, "Return", *["shift+Tab"] * keeping, "Return")
    started.wait_for("信息脉络")
    note = tabs_to(started, "text", "自己的备注")
    started.process.stop()
    return Tabs(lanes, card, keeping, rest, note)


def find_rest(desk: Desk, program: Path) -> int:
    """How often the Tab key leads from the start to what unfolds the rest of today."""
    started = desk.start(program, fresh_data(desk))
    cover(desk, USUAL)
    started.press_keys("ctrl+1")
    rest = tabs_to(started, "push button", REST)
    started.process.stop()
    return rest


def tabs_to(started: Program, role: str, beginning: str) -> int:
    def is_meant(element: Element) -> bool:
        named = element.role == role and element.name.startswith(beginning)
        return named and "focused" in element.states

    for count in range(1, MOST_TABS):
        started.press_keys("Tab")
        started.wait_until_still()
        if started.find_all(is_meant):
            return count
    raise RuntimeError(f"the Tab key does not lead to {role} {beginning}")


def measure_interaction(program: Path, runs: int) -> list[Row]:
    rows = []
    for name, write in [("edition", Path.mkdir), ("full pack", write_full_data)]:
        with Desk(screen=USUAL) as desk:
            write(desk.folder / "data")
            rows += key_rows(desk, name, program, runs)
            rows += memory_rows(desk, name, program)
    for size, scale in SCROLLED:
        with Desk(screen=size) as desk:
            write_full_data(desk.folder / "data")
            rows += scroll_rows(desk, program, size, scale)
    return rows


def fresh_data(desk: Desk) -> Path:
    """A copy of the data, as nobody has used it yet."""
    fresh = desk.folder / "fresh"
    shutil.rmtree(fresh, ignore_errors=True)
    shutil.copytree(desk.folder / "data", fresh)
    return fresh


# Keys


def key_rows(desk: Desk, name: str, program: Path, runs: int) -> list[Row]:
    tabs = find_tabs(desk, program)
    latencies: dict[str, list[float]] = defaultdict(list)
    saves = []
    for _ in range(runs):
        data_home = fresh_data(desk)
        with Window(desk, program, data_home, USUAL, 1) as window:
            press_everything(window, tabs, latencies)
        saves.append(save_ms(data_home / WORKSPACE))
    save = median(saves)
    return [
        key_row(f"{action}: {name}", action, median(measured), save)
        for action, measured in latencies.items()
    ]


def press_everything(window: Window, tabs: Tabs, latencies: Mapping[str, list[float]]) -> None:
    for number, surface in list(enumerate(SURFACES, 1))[1:]:
        latencies[f"first visit of {surface}"].append(window.press(f"Control_L+{number}"))
    for number, surface in enumerate(SURFACES, 1):
        latencies[f"later visit of {surface}"].append(window.press(f"Control_L+{number}"))

    window.go("Control_L+1")
    for _ in range(tabs.start_to_lanes):
        latencies["Tab"].append(window.press("Tab"))
    for look in ("first", "later"):
        for key in ("Right", "Left"):
            latencies[f"lane filter, {look} look"].append(window.press(key))

    window.tab(tabs.lanes_to_card + tabs.card_to_keeping)
    latencies["keep"].append(window.press("Return"))
    latencies["undo"].append(window.press("Control_L+z"))

    window.tab(tabs.keeping_to_rest)
    latencies["the rest, first look"].append(window.press("Return"))
    window.go("Return")
    latencies["the rest, later look"].append(window.press("Return"))
    window.tab_back(tabs.keeping_to_rest)
    latencies["keep beside the rest"].append(window.press("Return"))
    latencies["undo beside the rest"].append(window.press("Control_L+z"))
    window.tab(tabs.keeping_to_rest)
    window.go("Return")
    window.tab_back(tabs.keeping_to_rest)
    window.go("Return")

    window.go("Control_L+f")
    for _ in range(LETTERS):
        latencies["a search letter"].append(window.press("e"))
        window.go("BackSpace")
    window.go("Escape")

    # The focus is again where it was on this surface.
    window.go("Control_L+1")
    window.tab_back(tabs.card_to_keeping)
    window.go("Return")
    window.tab(tabs.thread_to_note)
    for _ in range(LETTERS):
        latencies["a note letter"].append(window.press("e"))


def key_row(subject: str, action: str, latency: float, save: float) -> Row:
    if action.startswith("first visit"):
        return compared(subject, latency, FIRST_VISIT_MS, "ms", "a moment", "at most 1")
    if action in SAVING:
        limit = "a frame and the save's own writing"
        return compared(subject, latency, KEY_MS + save, "ms", limit, "at most 1")
    return compared(subject, latency, KEY_MS, "ms", "a frame", "at most 1")


def save_ms(stored: Path) -> float:
    """What writing the same bytes once more in the same folder costs."""
    content = stored.read_bytes()
    temporary = stored.with_name("save-limit")
    begin = time.perf_counter()
    with temporary.open("wb") as file:
        file.write(content)
        file.flush()
        os.fsync(file.fileno())
    temporary.rename(stored)
    return (time.perf_counter() - begin) * 1e3


# Memory


def memory_rows(desk: Desk, name: str, program: Path) -> list[Row]:
    with Window(desk, program, fresh_data(desk), USUAL, 1) as window:
        processes = [window.process.pid]
        visit_everything(window)
        first = memory_bytes(processes) / 1e6
        for _ in range(VISITS - 1):
            visit_everything(window)
        last = memory_bytes(processes) / 1e6
        window.go("Control_L+1")
        idle = idleness_of(processes)
    return [
        compared(
            f"memory after {VISITS} visits of everything: {name}", last, first, "MB",
            "after the first", "at most 1.3",
        ),
        Row(
            f"idle after that: {name}",
            f"{idle.processor_ms:.1f} ms, {idle.wake_ups} wake-ups",
            target="0 wake-ups",
        ),
    ]


def visit_everything(window: Window) -> None:
    for number in range(1, len(SURFACES) + 1):
        for keys in (f"Control_L+{number}", "Next", "End", "Home"):
            window.go(keys)


# Scrolling


def scroll_rows(desk: Desk, program: Path, size: Size, scale: int) -> list[Row]:
    rest = find_rest(desk, program)
    rows = []
    with Window(desk, program, fresh_data(desk), size, scale) as window:
        window.go("Control_L+1")
        window.tab(rest)
        window.go("Return")
        for number, surface in enumerate(SCROLLING, 1):
            window.go(f"Control_L+{number}")
            for way, frames in [
                ("the wheel", window.frames_on_wheel),
                ("Page Down", lambda: window.frames_on_hold("Next")),
            ]:
                window.go("Home")
                subject = f"{surface} by {way}, {size[0]} × {size[1]}"
                rows.append(scroll_row(subject, frames(), FRAME_MS * scale))
    return rows


def scroll_row(subject: str, frames: list[float], limit: float) -> Row:
    """The frame that took the program most, and what one takes as a rule."""
    worst = max(frames)
    return Row(
        subject,
        f"{shown(worst, 'ms')}, median {shown(median(frames), 'ms')}, {len(frames)} frames",
        "a frame's time",
        shown(limit, "ms"),
        f"{worst / limit:.2f}",
        "at most 1",
    )
