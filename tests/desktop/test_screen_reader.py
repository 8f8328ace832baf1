#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A reading session by ear and keyboard alone: what Orca says after each key is what a person has
read in spoken-session.txt. A session that went otherwise is left with the build's failures under the
same name, to be read and copied here."""

import os
import unittest
from itertools import chain, repeat
from pathlib import Path

from desktop_test import FAILURES, DesktopTest
from loopback_site import Site
from program import Program
from screen_reader import ScreenReader

LOOPBACK_PROGRAM = Path(os.environ["LOOPBACK_PROGRAM"])
EXPECTED = Path(__file__).with_name("spoken-session.txt")

KEY = "> "
"""Begins the line of a key; what is said after it follows."""
TYPED = "text "

START = "the window opens"
SESSION = [
    # The first card, kept, taken back and kept again
    *("Tab", "Right", "Left", "Tab", "Tab", "Tab", "Return", "ctrl+z", "Return"),
    # The second card, kept with the same words
    *("Tab", "Tab", "Tab", "Tab", "Return", "Escape", "shift+Tab", "shift+Tab"),
    # Its thread and a note
    *("Return", "Tab", "Tab", "Tab", TYPED + "read on Friday", "Escape"),
    # On to the third card and the remaining ones
    *("Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab"),
    *("Return", "Tab", "shift+Tab", "Return"),
    # The list of the whole day
    *("Tab", "Down", "End"),
    # The third card is not wanted
    *("shift+Tab", "shift+Tab", "Return", "ctrl+z"),
    # One lane, and what has changed in it
    *("Tab", "Right", "Right", "Right", "Tab", "Tab", "Tab", "Return", "Return"),
    # The other surfaces
    *("ctrl+2", "Tab", "Tab", "Tab", "Tab", "Tab", "Return", "ctrl+z"),
    *("ctrl+f", TYPED + "zzz", "Escape"),
    *("ctrl+3", "Tab", "ctrl+4", "Tab", "Tab", "Tab", "Return", "Tab", "alt+Left"),
    *("ctrl+5", "Tab"),
    # A hand-in that is refused, and a sync that fails
    *("ctrl+n", TYPED + "http://127.0.0.1/", "ctrl+Return", "Escape", "F5"),
    # The keys, and back
    *("F1", "Escape", "ctrl+1"),
]


def expectations() -> list[list[str]]:
    """What is to be said after each step of the session."""
    steps = EXPECTED.read_text().split(KEY)[1:] if EXPECTED.exists() else []
    return [step.splitlines()[1:] for step in steps]


def act(program: Program, step: str) -> None:
    if step.startswith(TYPED):
        program.type(step.removeprefix(TYPED))
    else:
        program.press_keys(step)


class ScreenReaderTest(DesktopTest):
    def test_a_session(self) -> None:
        session = ""
        with Site({}) as site, self.world() as world:
            program = world.start(LOOPBACK_PROGRAM, site=site.origin)
            program.wait_until(program.is_active, "the window is active")
            program.wait_until_still()
            reader = ScreenReader(world)
            for step, expected in zip([START, *SESSION], chain(expectations(), repeat([]))):
                if step != START:
                    act(program, step)
                session += "".join(f"{line}\n" for line in [KEY + step, *reader.hear(expected)])
        if session != EXPECTED.read_text():
            FAILURES.mkdir(parents=True, exist_ok=True)
            (FAILURES / EXPECTED.name).write_text(session)
            self.fail(f"Compare {FAILURES / EXPECTED.name} with {EXPECTED}.")


if __name__ == "__main__":
    unittest.main()
