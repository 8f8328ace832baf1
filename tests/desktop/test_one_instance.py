#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""One running program for a data directory."""

import os
import stat
import unittest
from collections.abc import Iterator
from contextlib import contextmanager
from pathlib import Path

from desktop_test import PROGRAM, DesktopTest, workspace_file, workspace_when
from polling import wait_until
from program import Program
from world import World

TITLE = "今天先看 3 条"
KEEP = "收下并持续更新："

STARTS = 20
PATIENCE = 60.0
"""Seconds that so many starts may take."""

KILLS = 5

WAITING_START = """#!/bin/sh
read -r _ <'{gate}'
exec '{program}'
"""


@contextmanager
def gate_before(program: Path, world: World) -> Iterator[tuple[Path, int]]:
    """A program that waits for a line from the descriptor before it becomes the one given."""
    gate = world.folder / "gate"
    os.mkfifo(gate)
    waiting = world.folder / "waiting-start"
    waiting.write_text(WAITING_START.format(gate=gate, program=program))
    waiting.chmod(waiting.stat().st_mode | stat.S_IXUSR)
    descriptor = os.open(gate, os.O_RDWR)
    try:
        yield waiting, descriptor
    finally:
        os.close(descriptor)


def lock_file(world: World) -> Path:
    return world.data_home / "Corvanite/Information/.lock"


class OneInstanceTest(DesktopTest):
    def test_a_second_start_brings_the_minimised_window_up(self):
        with self.world() as world:
            first = world.start(PROGRAM)
            first.wait_for(TITLE)
            first.minimise()

            self.assertEqual(0, world.start(PROGRAM).wait_for_exit())

            wait_until(first.is_active, "the first window is active")
            first.wait_for(TITLE)

    def test_a_second_start_brings_the_window_up_from_behind_another(self):
        with self.world() as world:
            first = world.start(PROGRAM)
            first.wait_for(TITLE)
            other = world.start(PROGRAM, world.folder / "other")
            other.wait_for(TITLE)
            wait_until(other.is_active, "the other window is active")

            self.assertEqual(0, world.start(PROGRAM).wait_for_exit())

            wait_until(first.is_active, "the first window is active")

    def test_a_killed_program_starts_again_at_once(self):
        with self.world() as world:
            for _ in range(KILLS):
                killed = world.start(PROGRAM)
                killed.wait_for(TITLE)
                killed.process.kill()
            self.assertTrue(lock_file(world).exists())

            again = world.start(PROGRAM)
            again.wait_for(TITLE)
            again.wait_for_beginning(KEEP).press()
            again.wait_for("已收下；后续实质变化会续到同一条脉络。")

    def test_a_program_killed_while_it_starts_leaves_nothing_in_the_way(self):
        with self.world() as world:
            killed = world.start(PROGRAM)
            wait_until(lock_file(world).exists, "the lock is made")
            killed.process.kill()

            world.start(PROGRAM).wait_for(TITLE)

    def test_many_starts_at_the_same_moment_open_one_window(self):
        with self.world() as world, gate_before(PROGRAM, world) as (waiting_start, gate):
            starts = [world.start(waiting_start) for _ in range(STARTS)]
            os.write(gate, b"\n" * STARTS)

            def running() -> list[Program]:
                return [start for start in starts if start.process.is_running()]

            wait_until(lambda: len(running()) == 1, "all but one have ended", PATIENCE)
            (first,) = running()
            for later in starts:
                if later is not first:
                    self.assertEqual(0, later.wait_for_exit())
            first.wait_for(TITLE)
            self.assertEqual([first.window()], world.windows())
            wait_until(first.is_active, "the window is active")

    def test_two_data_directories_run_side_by_side(self):
        with self.world() as world:
            folders = [world.folder / name for name in ("one", "two")]
            one, two = [world.start(PROGRAM, folder) for folder in folders]
            for program in (one, two):
                program.wait_for(TITLE)

            one.wait_for_beginning(KEEP).press()
            workspace_when(folders[0], lambda w: w["saved"], "the card is stored")

            self.assertFalse(workspace_file(folders[1]).exists())
            self.assertTrue(one.process.is_running() and two.process.is_running())
            self.assertEqual({one.window(), two.window()}, set(world.windows()))

if __name__ == "__main__":
    unittest.main()
