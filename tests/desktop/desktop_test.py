# SPDX-License-Identifier: Apache-2.0
"""What the tests through the real window share.

CORVANITE_PROGRAM names the program; CORVANITE_FAILURES the folder for what a failed test leaves.
"""

import json
import os
import shutil
import unittest
from collections.abc import Iterator, Sequence
from contextlib import contextmanager
from pathlib import Path

from commands import answer_of
from polling import wait_until
from world import World

PROGRAM = Path(os.environ["CORVANITE_PROGRAM"])
FAILURES = Path(os.environ["CORVANITE_FAILURES"])

SEED = Path(__file__).resolve().parents[2] / "CorvaniteInformationCore/seed/information-pack.json"

IMPATIENCE = "QSpiApplication::"
"""Begins what Qt prints when a screen reader takes its time over a key."""

EMPTY_WORKSPACE = {
    "customSources": [],
    "following": [],
    "hidden": [],
    "reducedLanes": [],
    "saved": {},
    "seenTargets": [],
    "version": 3,
}


class DesktopTest(unittest.TestCase):
    @contextmanager
    def world(
        self,
        scheme: str | None = "light",
        screen: tuple[int, int] = (1920, 1200),
        screen_reader: bool = True,
        window_manager: Sequence[str] = World.OPENBOX,
        scale: float = 1,
    ) -> Iterator[World]:
        """A world for this test. A failure leaves pictures, trees and messages behind; a program
        that prints a message, as Qt does for every warning, is a failure."""
        with World(scheme, screen, screen_reader, window_manager, scale) as world:
            try:
                yield world
                for program in world.programs():
                    messages = program.messages()
                    self.assertEqual([], [m for m in messages if not m.startswith(IMPATIENCE)])
            except BaseException:
                leave_behind(world, FAILURES / self.id().removeprefix("__main__."))
                raise


def leave_behind(world: World, folder: Path) -> None:
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    answer_of(["import", "-window", "root", f"png:{folder / 'screen.png'}"], world.environment)
    for program in world.programs():
        shutil.copy(program.process.output, folder)
        if program.process.is_running():
            tree = "".join(f"{element}\n" for element in program.elements())
            (folder / f"{program.process.output.stem}-tree.txt").write_text(tree)
    print(f"left behind: {folder}")


def workspace_file(data_home: Path) -> Path:
    return data_home / "Corvanite/Information/workspace-v1.json"


def workspace_when(data_home: Path, holds, what: str) -> dict:
    """The stored workspace, once there is one of which `holds` is true."""

    def stored() -> dict | None:
        file = workspace_file(data_home)
        if not file.exists():
            return None
        workspace = json.loads(file.read_bytes())
        return workspace if holds(workspace) else None

    return wait_until(stored, what)


def seed_signals_by_title() -> dict[str, dict]:
    pack = json.loads(SEED.read_bytes())
    return {signal["title"]["zh"]: signal for signal in pack["signals"]}
