#!/usr/bin/python3
"""One running program for a data directory."""

import unittest

from desktop_test import PROGRAM, DesktopTest
from polling import wait_until

TITLE = "今天先看 3 条"


class OneInstanceTest(DesktopTest):
    def test_a_second_start_brings_the_first_window_up(self):
        with self.world() as world:
            first = world.start(PROGRAM)
            first.wait_for(TITLE)
            first.minimise()

            self.assertEqual(0, world.start(PROGRAM).wait_for_exit())

            wait_until(first.is_active, "the first window is active")
            first.wait_for(TITLE)

    def test_a_killed_program_starts_again_at_once(self):
        with self.world() as world:
            killed = world.start(PROGRAM)
            killed.wait_for(TITLE)
            killed.process.kill()

            again = world.start(PROGRAM)
            again.wait_for(TITLE)
            again.wait_for_beginning("收下并持续更新：").press()
            again.wait_for("已收下；后续实质变化会续到同一条脉络。")

    def test_two_starts_at_the_same_moment_open_one_window(self):
        with self.world() as world:
            starts = [world.start(PROGRAM) for _ in range(2)]

            def ended() -> list:
                return [start for start in starts if not start.process.is_running()]

            (second,) = wait_until(ended, "one of the two ends")
            self.assertEqual(0, second.wait_for_exit())
            (first,) = [start for start in starts if start is not second]
            first.wait_for(TITLE)

    def test_two_data_directories_run_side_by_side(self):
        with self.world() as world:
            programs = [world.start(PROGRAM, world.folder / name) for name in ("one", "two")]
            for program in programs:
                program.wait_for(TITLE)
            for program in programs:
                self.assertTrue(program.process.is_running())


if __name__ == "__main__":
    unittest.main()
