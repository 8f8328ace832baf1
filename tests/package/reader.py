#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""One sitting of an ordinary user at a desktop: reader.py START STEP [ARGUMENT]. START starts the
program, STEP is one of the functions below."""

import sys
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "desktop"))

from program import Program
from world import World

DATA_HOME = Path("/home/reader/.local/share")

KEEP = "收下并持续更新："
SYNC = "同步站点"


def keep_first(program: Program) -> str:
    """The title of the card that was kept."""
    button = program.wait_for_beginning(KEEP)
    title = button.name.removeprefix(KEEP)
    button.press()
    program.wait_for_beginning("已收下")
    return title


def keep(program: Program) -> None:
    print(keep_first(program))


def find_kept(program: Program, title: str) -> None:
    program.wait_until(program.is_active, "the window is active")
    program.press_keys("ctrl+2")
    program.wait_for(title, "list item")


def sync_and_keep(program: Program) -> None:
    program.wait_for(SYNC, "push button").press()
    program.wait_for_beginning("已同步 ")
    print(keep_first(program))


def sync_and_follow(program: Program, title: str, change: str) -> None:
    """The change goes on in the thread of the kept card."""
    program.wait_for(SYNC, "push button").press()
    program.wait_for_beginning("已同步 ")
    find_kept(program, title)
    program.press_keys("ctrl+1")
    program.wait_for(f"打开脉络：{title}").press()
    program.wait_for("信息脉络")
    program.wait_for_beginning(change)
    program.press_keys("Escape")


def open_thread(program: Program) -> None:
    program.wait_for_beginning("打开脉络：").press()
    program.wait_for("信息脉络")
    program.press_keys("Escape")
    program.wait_until_gone("信息脉络")


STEPS = {
    "keep": keep,
    "open-thread": open_thread,
    "find-kept": find_kept,
    "sync-and-keep": sync_and_keep,
    "sync-and-follow": sync_and_follow,
}


def main() -> None:
    start, step, *arguments = sys.argv[1:]
    with World() as world:
        program = world.start(Path(start), DATA_HOME)
        try:
            STEPS[step](program, *arguments)
            status = program.close()
        finally:
            print("\n".join(program.messages()), file=sys.stderr)
        if status != 0 or program.messages():
            sys.exit("the program did not end well")


if __name__ == "__main__":
    main()
