#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The reader's first day: read the page, keep, undo, keep again, write a note, lose the power."""

import unittest
from datetime import UTC, datetime

from desktop_test import (
    EMPTY_WORKSPACE,
    PROGRAM,
    DesktopTest,
    seed_signals_by_title,
    workspace_file,
    workspace_when,
)
from polling import wait_until
from program import Program

KEEP = "收下并持续更新："
STOP_KEEPING = "从工作台移除并停止更新："
OPEN_THREAD = "打开脉络："
NOTE = "自己的备注（可选）"

LEAD = "已检查 478 条公开信息，归并、去重和过滤后留下 22 条；先替你放出 3 条。"
RECEIPT = "已收下；后续实质变化会续到同一条脉络。"
UNDONE = "已撤销上一步操作。"


def titles_in(program: Program) -> list[str]:
    names = [element.name for element in program.elements()]
    return [name.removeprefix(OPEN_THREAD) for name in names if name.startswith(OPEN_THREAD)]


class FirstDayTest(DesktopTest):
    def test_the_page_shows_the_compiled_in_edition(self):
        with self.world() as world:
            program = world.start(PROGRAM)
            program.wait_for("今天先看 3 条", "heading")
            program.wait_for(LEAD)
            program.wait_until(lambda: len(titles_in(program)) == 22, "every signal stands there")
            self.assertEqual(set(seed_signals_by_title()), set(titles_in(program)))
            self.assertFalse(workspace_file(world.data_home).exists())
            self.assertEqual(0, program.close())

    def test_what_the_reader_does_survives_a_power_cut(self):
        with self.world() as world:
            program = world.start(PROGRAM)
            keep = program.wait_for_beginning(KEEP)
            title = keep.name.removeprefix(KEEP)
            signal = seed_signals_by_title()[title]
            before = datetime.now(UTC).replace(microsecond=0)

            keep.press()
            program.wait_for(RECEIPT)
            kept = workspace_when(world.data_home, lambda w: w["saved"], "the card is stored")
            self.assertEqual([signal["id"]], list(kept["saved"]))
            self.assertEqual(signal["why"]["zh"], kept["saved"][signal["id"]]["saveReason"])
            self.assertEqual([signal["followTarget"]["id"]], kept["following"])
            saved_at = datetime.fromisoformat(kept["saved"][signal["id"]]["savedAt"])
            self.assertTrue(before <= saved_at <= datetime.now(UTC))

            program.wait_for("撤销", "push button").press()
            program.wait_for(UNDONE)
            undone = workspace_when(world.data_home, lambda w: not w["saved"], "nothing is stored")
            self.assertEqual(EMPTY_WORKSPACE, undone)
            program.wait_until_gone("撤销")

            program.wait_for(KEEP + title).press()
            program.wait_for(STOP_KEEPING + title)
            program.wait_for(OPEN_THREAD + title).press()
            note = program.wait_for(NOTE)
            world.copy("周五和小林一起试。\n先看限制。")
            note.take_focus()
            wait_until(lambda: "focused" in program.wait_for(NOTE).states, "the note has the focus")
            program.press_keys("ctrl+v")
            workspace_when(
                world.data_home,
                lambda w: w["saved"][signal["id"]]["note"] == "周五和小林一起试。\n先看限制。",
                "the note is stored",
            )
            before = workspace_file(world.data_home).read_bytes()

            program.process.kill()
            program = world.start(PROGRAM)
            program.wait_for(STOP_KEEPING + title)
            program.wait_for(OPEN_THREAD + title).press()
            self.assertEqual("周五和小林一起试。\n先看限制。", program.wait_for(NOTE).text())
            self.assertEqual(before, workspace_file(world.data_home).read_bytes())


if __name__ == "__main__":
    unittest.main()
