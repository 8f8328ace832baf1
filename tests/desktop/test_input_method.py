#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Writing Chinese: fcitx5 with pinyin in each of the fields that text is written in."""

import unittest
from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

from accessibility import Element, Rectangle
from commands import CommandFailed, answer_of
from desktop_test import PROGRAM, DesktopTest, workspace_file, workspace_when
from program import Program
from world import World

PROFILE = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=pinyin

[Groups/0/Items/0]
Name=pinyin
Layout=

[GroupOrder]
0=Default
"""

CANDIDATES_WINDOW = "Fcitx5 Input Window"
ONE_LINE = 40
"""Higher is a window of candidates that shows the composition too, having no place in the text."""

FIELD = "链接或一句话"
NOTE = "自己的备注（可选）"
SEARCH = "搜索已收下"


class Writer:
    """Writes into the field of that name, which has the keyboard."""

    def __init__(self, world: World, program: Program, field: str):
        self._world = world
        self._program = program
        self._field = field
        program.wait_until(lambda: "focused" in self.field().states, f"{field} has the focus")

    def field(self) -> Element:
        return self._program.wait_for(self._field, "text")

    def compose(self, letters: str, beyond: int = 0) -> Rectangle:
        """Where the candidates are shown, once that is below a line of the field's text and right of
        `beyond`."""
        place = self.field().extents()
        self._program.type(letters)

        def shown_below() -> Rectangle | None:
            shown = self.candidates()
            right = shown and max(place.x, beyond) < shown.x < place.x + place.width
            below = shown and place.y + 12 < shown.y < place.y + place.height + 12
            return shown if right and below else None

        return self._program.wait_until(shown_below, f"candidates below {letters}")

    def end(self, key: str, text: str) -> None:
        """Ends the composition by the key, which leaves that text in the field."""
        self._program.press_keys(key)
        self._program.wait_until(lambda: not self.candidates(), f"{key} ends the composition")
        self._program.wait_until(lambda: self.field().text() == text, f"the text is {text}")

    def candidates(self) -> Rectangle | None:
        search = ["xdotool", "search", "--onlyvisible", "--name", f"^{CANDIDATES_WINDOW}$"]
        try:
            lines = answer_of([*search, "getwindowgeometry", "--shell"], self._world.environment)
        except CommandFailed:
            return None
        parts = dict(line.split("=") for line in lines.decode().split())
        return Rectangle(*(int(parts[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")))

    def beginning_of_text(self) -> bytes:
        """The picture of where the first letters stand, right of the caret in an empty field."""
        place = self.field().extents()
        crop = f"40x16+{place.x + 20}+{place.y + 12}"
        command = ["import", "-window", "root", "-crop", crop, "-depth", "8", "rgb:-"]
        return answer_of(command, self._world.environment)


class InputMethodTest(DesktopTest):
    @contextmanager
    def writing_world(self) -> Iterator[tuple[World, Program]]:
        with self.world() as world:
            folder = Path(world.environment["XDG_CONFIG_HOME"]) / "fcitx5"
            folder.mkdir(parents=True)
            (folder / "profile").write_text(PROFILE)
            world.start_helper("input-method", ["fcitx5"])
            world.wait_for_service("org.fcitx.Fcitx5")
            world.environment["QT_IM_MODULE"] = "fcitx"
            program = world.start(PROGRAM)
            program.wait_until(program.is_active, "the window is active")
            yield world, program

    def test_handing_in(self) -> None:
        with self.writing_world() as (world, program):
            program.press_keys("ctrl+n")
            writer = Writer(world, program, FIELD)
            program.wait_until_still()
            empty = writer.beginning_of_text()

            shown = writer.compose("nihao")
            self.assertLess(shown.height, ONE_LINE)
            program.wait_until(lambda: writer.beginning_of_text() != empty, "letters in the field")
            self.assertEqual("", writer.field().text())

            writer.end("Escape", "")
            program.wait_until(lambda: writer.beginning_of_text() == empty, "they are gone")

            writer.compose("nihao")
            writer.end("space", "你好")
            writer.compose("shijie", beyond=shown.x + 20)
            writer.end("Return", "你好shijie")
            self.assertFalse(workspace_file(world.data_home).exists())

            program.press_keys("Return")
            kept = workspace_when(world.data_home, lambda w: w["customSources"], "it is stored")
            self.assertEqual(["你好shijie"], [source["input"] for source in kept["customSources"]])

    def test_a_note(self) -> None:
        with self.writing_world() as (world, program):
            program.wait_for_beginning("收下并持续更新：").press()
            program.wait_for_beginning("打开脉络：").press()
            program.wait_for(NOTE).take_focus()
            writer = Writer(world, program, NOTE)

            writer.compose("nihao")
            writer.end("space", "你好")
            writer.compose("shijie")
            writer.end("Return", "你好shijie")
            writer.compose("zaijian")
            writer.end("Escape", "你好shijie")
            workspace_when(
                world.data_home,
                lambda w: [kept["note"] for kept in w["saved"].values()] == ["你好shijie"],
                "the note is stored",
            )

            program.press_keys("Escape")
            program.wait_until_gone(NOTE)

    def test_searching(self) -> None:
        with self.writing_world() as (world, program):
            keep = program.wait_for_beginning("收下并持续更新：")
            title = keep.name.removeprefix("收下并持续更新：")
            keep.press()
            program.wait_for("从工作台移除并停止更新：" + title)
            program.press_keys("ctrl+f")
            program.wait_for(title, "list item")
            writer = Writer(world, program, SEARCH)

            writer.compose("meiyou")
            program.wait_until_still()
            program.wait_for(title, "list item")
            writer.end("Escape", "")
            program.wait_for(title, "list item")

            writer.compose("meiyou")
            writer.end("space", "没有")
            program.wait_for("没有匹配的内容", "heading")


if __name__ == "__main__":
    unittest.main()
