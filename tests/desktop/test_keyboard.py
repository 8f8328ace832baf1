#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A visit to every surface and both sheets with the keyboard alone."""

import unittest

from desktop_test import PROGRAM, DesktopTest, workspace_when
from program import Program

SURFACES = {
    "ctrl+2": "已收下",
    "ctrl+3": "周报精选",
    "ctrl+4": "回看任何一天的 Corvanite。",
    "ctrl+5": "每一张卡从哪里来，全部摊开。",
    "ctrl+1": "今天先看 3 条",
}
FIELD = "链接或一句话"


def has_focus(program: Program, beginning: str) -> bool:
    return bool(
        program.find_all(lambda e: e.name.startswith(beginning) and "focused" in e.states)
    )


class KeyboardTest(DesktopTest):
    def test_the_surfaces(self) -> None:
        with self.world() as world:
            program = world.start(PROGRAM)
            program.wait_until(program.is_active, "the window is active")
            for keys, title in SURFACES.items():
                program.press_keys(keys)
                program.wait_for(title, "heading")

    def test_handing_in_and_searching(self) -> None:
        with self.world() as world:
            program = world.start(PROGRAM)
            program.wait_until(program.is_active, "the window is active")
            program.press_keys("ctrl+n")
            program.wait_until(lambda: has_focus(program, FIELD), "the field has the focus")
            program.type("weekly typography")
            program.press_keys("ctrl+Return")
            program.wait_for("weekly typography", "list item")
            program.press_keys("Escape")
            program.wait_until_gone("关闭回执")

            program.press_keys("ctrl+f")
            program.wait_until(lambda: has_focus(program, "搜索已收下"), "the search has the focus")
            program.type("zzz")
            program.wait_for("没有匹配的内容", "heading")
            program.press_keys("Escape")
            program.wait_for("weekly typography", "list item")

            program.press_keys("ctrl+1", "ctrl+z")
            workspace_when(world.data_home, lambda w: not w["customSources"], "nothing is stored")

    def test_the_keys_themselves(self) -> None:
        with self.world() as world:
            program = world.start(PROGRAM)
            program.wait_until(program.is_active, "the window is active")
            for keys in ("F1", "ctrl+slash"):
                program.press_keys(keys)
                program.wait_until(lambda: has_focus(program, "关闭"), "the sheet has the focus")
                program.wait_for_beginning("Ctrl+N ")
                program.press_keys("Escape")
                program.wait_until_gone("键盘操作")

    def test_a_card_a_thread_and_an_archived_day(self) -> None:
        with self.world() as world:
            program = world.start(PROGRAM)
            card = program.wait_for_beginning("收下并持续更新：").name.removeprefix("收下并持续更新：")
            program.wait_for(card, "list item").take_focus()
            program.press_keys("Return")
            program.wait_until(lambda: has_focus(program, "关闭"), "the sheet has the focus")
            program.press_keys("Escape")
            program.wait_until(lambda: has_focus(program, card), "the card has the focus again")

            program.press_keys("ctrl+4")
            day = program.wait_for_beginning("查看")
            day.take_focus()
            program.press_keys("Return")
            program.wait_for("ARCHIVE · 每日精选")
            program.press_keys("alt+Left")
            program.wait_until(lambda: has_focus(program, day.name), "the day has the focus again")


if __name__ == "__main__":
    unittest.main()
