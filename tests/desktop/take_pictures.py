#!/usr/bin/python3
"""Takes pictures of every screen of the program, in three sizes, light and dark."""

import argparse
import sys
from collections.abc import Callable
from pathlib import Path

from program import Program
from world import World

REPOSITORY = Path(__file__).resolve().parents[2]

SCHEMES = ["light", "dark"]
SIZES = [(760, 640), (1120, 780), (1680, 1050)]


def today(_: Program) -> None:
    pass


def today_with_receipt(program: Program) -> None:
    press_first(program, "收下并持续更新：")
    press_first(program, "收下并持续更新：")


def thread(program: Program) -> None:
    press_first(program, "打开脉络：")


def hand_in(program: Program) -> None:
    program.press_keys("Escape")
    program.wait_for("添加信息", "push button").press()


def hand_in_with_error(program: Program) -> None:
    program.wait_for("交给 Corvanite", "push button").press()


def kept(program: Program) -> None:
    program.press_keys("Escape")
    open_surface(program, "已收下")


def kept_without_match(program: Program) -> None:
    program.wait_for("搜索已收下").set_text("没有这样的内容")


def weekly(program: Program) -> None:
    open_surface(program, "周报")


def archive(program: Program) -> None:
    open_surface(program, "往期")


def archive_day(program: Program) -> None:
    press_first(program, "查看")


def sources(program: Program) -> None:
    open_surface(program, "信源")


SCREENS: list[Callable[[Program], None]] = [
    today,
    today_with_receipt,
    thread,
    hand_in,
    hand_in_with_error,
    kept,
    kept_without_match,
    weekly,
    archive,
    archive_day,
    sources,
]
"""Each goes on from where the one before left the program."""


def open_surface(program: Program, label: str) -> None:
    program.wait_for(label, "page tab").press()


def press_first(program: Program, beginning: str) -> None:
    program.wait_for_beginning(beginning).press()


def take_pictures(program_file: Path, folder: Path) -> int:
    """The number of screens that could not be shown."""
    missing = 0
    for scheme in SCHEMES:
        with World(scheme) as world:
            for width, height in SIZES:
                data_home = world.folder / f"data-{width}"
                program = world.start(program_file, data_home)
                program.resize(width, height)
                for screen in SCREENS:
                    name = f"{screen.__name__.replace('_', '-')}-{width}-{scheme}"
                    try:
                        screen(program)
                        program.save_picture(folder / f"{name}.png")
                    except TimeoutError as reason:
                        missing += 1
                        print(f"{name}: {reason}", file=sys.stderr)
                program.close()
    return missing


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=Path, help="where the pictures go")
    parser.add_argument(
        "--program",
        type=Path,
        default=REPOSITORY / "build/dev/bin/corvanite-information",
        help="default: %(default)s",
    )
    arguments = parser.parse_args()
    arguments.folder.mkdir(parents=True, exist_ok=True)
    return 1 if take_pictures(arguments.program.resolve(), arguments.folder) else 0


if __name__ == "__main__":
    sys.exit(main())
