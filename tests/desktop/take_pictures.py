#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The picture tour: takes a picture of every screen and state of the program as the preset "ci" has
built it, light and dark.

Without --size each screen has its own, as docs/pictures keeps them. The colours are true.
"""

import argparse
import json
import os
import re
from collections.abc import Callable
from dataclasses import dataclass
from datetime import UTC, datetime, timedelta
from pathlib import Path

from commands import answer_of
from loopback_site import Site
from program import Program
from world import World

REPOSITORY = Path(__file__).resolve().parents[2]
PROGRAMS = REPOSITORY / "build/ci/bin"
PACK = REPOSITORY / "CorvaniteInformationCore/seed/information-pack.json"
NEWER_BUILD = {
    "schemaVersion": "corvanite-information-app-version-v1",
    "version": "1.3.0",
    "downloadUrl": "https://127.0.0.1/download",
    "sha256": "0" * 64,
}

SCHEMES = ["light", "dark"]
ROOMY = (1680, 1050)
"""Everything that a screen is reached by shows at this size."""
USUAL = (1120, 780)


class Tour:
    """How the reader gets to each screen. Each goes on from what the one before left."""

    def __init__(self, program: Program, world: World, site: Site):
        self._program = program
        self._world = world
        self._site = site

    def today(self) -> None:
        self._program.press_keys("ctrl+1", "Home")

    def today_unfolded(self) -> None:
        self.today()
        self._program.press_keys("End")
        self._press_first("其余 ")

    def today_change(self) -> None:
        self.today()
        self._scroll_to("看变化")
        self._press_first("看变化")

    def today_blocked(self) -> None:
        self.today()
        self._scroll_to("国内访问受限")

    def today_by_keyboard(self) -> None:
        self.today()
        self._program.press_keys(*["Tab"] * 2)

    def today_seen(self) -> None:
        self.today()
        self._program.find_all(lambda element: element.role == "list item")[0].press()
        self._program.wait_for("关闭", "push button")
        self._program.press_keys("Escape")
        self._program.wait_until_gone("关闭")

    def kept_for_its_changes(self) -> None:
        self.today()
        self._press_first("收下并持续更新：")
        self._press_first("收下并持续更新：")

    def today_adjusted(self) -> None:
        self.today()
        self._press_first("这类少看：")

    def thread(self) -> None:
        self.today()
        self._press_first("打开脉络：")

    def thread_with_a_note(self) -> None:
        self._program.press_keys("ctrl+2", "Home")
        self._press_first("看变化")
        note = self._program.wait_for("自己的备注（可选）")
        note.set_text("周五先在分支上试，看看旧的写法还能不能装。")

    def hand_in(self) -> None:
        self._program.press_keys("ctrl+n")
        self._program.wait_for("链接或一句话")

    def hand_in_not_supported(self) -> None:
        self.hand_in()
        self._program.wait_for("链接或一句话").set_text("http://127.0.0.1/")
        self._program.wait_for("交给 Corvanite", "push button").press()

    def keys(self) -> None:
        self.today()
        self._program.press_keys("F1")
        self._program.wait_for("键盘操作", "dialog")

    def kept_empty(self) -> None:
        self._program.press_keys("ctrl+2")

    def kept(self) -> None:
        self._program.press_keys("ctrl+n")
        self._program.wait_for("链接或一句话").set_text("每周看看开源排版引擎有没有新版本")
        self._program.wait_for("交给 Corvanite", "push button").press()
        self._program.wait_for("你交给 Corvanite 的内容")
        self._program.press_keys("Escape")

    def kept_no_match(self) -> None:
        self._program.press_keys("ctrl+f")
        self._program.wait_for("搜索已收下").set_text("没有这样的内容")

    def weekly(self) -> None:
        self._program.press_keys("ctrl+2", "ctrl+f", "Escape", "ctrl+3", "Home")

    def archive(self) -> None:
        self._program.press_keys("ctrl+4", "Home")

    def archived_day(self) -> None:
        self.archive()
        self._press_first("查看")

    def archived_day_again(self) -> None:
        self._program.press_keys("ctrl+4")

    def sources(self) -> None:
        self._program.press_keys("ctrl+5", "Home")

    def sync_failed(self) -> None:
        self.today()
        self._program.press_keys("F5")
        self._program.wait_for_beginning("同步失败")

    def not_saved(self) -> None:
        """The reader's folder is taken away for a moment."""
        self.today()
        folder = self._world.data_home / "Corvanite/Information"
        away = folder.with_name("away")
        folder.rename(away)
        folder.write_text("")
        self._press_first("收下并持续更新：")
        self._program.wait_for("知道了")
        folder.unlink()
        away.rename(folder)

    def syncing(self) -> None:
        """Needs a program that reads the site."""
        self.today()
        self._site.may_answer.clear()
        self._program.press_keys("F5")
        self._program.wait_for("同步中")

    def running_week(self) -> None:
        """Goes on from a sync that waits, and ends it with another."""
        self._site.documents["/information-pack.json"] = edition_of_today()
        self._site.may_answer.set()
        self._program.wait_for_beginning("已同步")
        self.weekly()

    def newer_build(self) -> None:
        """Needs a program that reads the site."""
        self._program.wait_for("获取更新")
        self._program.press_keys("F5")
        self._program.wait_for_beginning("已是最新")

    def end(self) -> None:
        self._program.press_keys("End")

    def _scroll_to(self, name: str) -> None:
        """Turns the page until the element shows whole."""
        for _ in range(40):
            self._program.wait_until_still()
            if self._program.find_all(lambda e: e.name == name):
                self._program.press_keys("Down", "Down", "Down")
                return
            self._program.press_keys("Next")
        raise TimeoutError(f"not on the page: {name}")

    def _press_first(self, beginning: str) -> None:
        self._program.wait_for_beginning(beginning).press()


def edition_of_today() -> bytes:
    """The compiled-in edition, selected once more today."""
    pack = json.loads(PACK.read_bytes())
    now = datetime.now(UTC)
    today = {**pack["selectionHistory"][-1], "date": f"{now + timedelta(hours=8):%Y-%m-%d}"}
    pack |= {"asOf": f"{now:%Y-%m-%dT%H:%M:%S.000Z}"}
    pack["selectionHistory"].append(today)
    return json.dumps(pack).encode()


NARROW = (760, 780)
SMALLEST = (720, 560)


@dataclass(frozen=True)
class Screen:
    stop: str
    """What tests/support/ScreenTour.h calls it."""
    open: Callable[[Tour], None]
    size: tuple[int, int] = USUAL
    view: str = ""
    """What tells it from the other pictures of its stop."""
    then: Callable[[Tour], None] = lambda tour: None
    """What is done once the window has its size."""

    @property
    def name(self) -> str:
        return re.sub("[, ]+", "-", self.stop) + (f"-{self.view}" if self.view else "")


SCREENS = [
    Screen("today", Tour.today),
    Screen("today", Tour.today, NARROW, "narrow"),
    Screen("today", Tour.today, NARROW, "narrow-list", Tour.end),
    Screen("today", Tour.today, ROOMY, "wide"),
    Screen("today", Tour.today, SMALLEST, "smallest"),
    Screen("today", Tour.today_by_keyboard, view="ring"),
    Screen("kept, empty", Tour.kept_empty),
    Screen("kept for its changes", Tour.kept_for_its_changes),
    Screen("today, adjusted", Tour.today_adjusted),
    Screen("today, everything unfolded", Tour.today_unfolded),
    Screen("today, everything unfolded", Tour.today_change, view="change"),
    Screen("today, everything unfolded", Tour.today_blocked, view="blocked"),
    Screen("thread", Tour.thread),
    Screen("today", Tour.today_seen, view="seen"),
    Screen("hand-in", Tour.hand_in),
    Screen("hand-in, not supported", Tour.hand_in_not_supported),
    Screen("keys", Tour.keys),
    Screen("kept", Tour.kept),
    Screen("thread of a kept signal", Tour.thread_with_a_note, then=Tour.end),
    Screen("kept, no match", Tour.kept_no_match),
    Screen("weekly", Tour.weekly),
    Screen("archive", Tour.archive),
    Screen("archived day", Tour.archived_day),
    Screen("archived day", Tour.archived_day_again, view="end", then=Tour.end),
    Screen("sources", Tour.sources),
    Screen("sources", Tour.sources, view="end", then=Tour.end),
    Screen("sync failed", Tour.sync_failed),
    Screen("not saved", Tour.not_saved),
]

SCREENS_WITH_SITE = [
    Screen("a newer build", Tour.newer_build),
    Screen("syncing", Tour.syncing),
    Screen("weekly", Tour.running_week, view="running"),
]


@dataclass(frozen=True)
class Look:
    """How the pictures of one round are to be."""

    folder: Path
    scheme: str
    size: tuple[int, int] | None
    """Nothing for each screen's own."""

    def picture(self, screen: Screen) -> Path:
        width = f"-{self.size[0]}" if self.size else ""
        return self.folder / f"{screen.name}{width}-{self.scheme}.png"


def take_pictures(folder: Path, schemes: list[str], sizes: list[tuple[int, int] | None]) -> None:
    documents = {
        "/information-pack.json": PACK.read_bytes(),
        "/information-app-version.json": json.dumps(NEWER_BUILD).encode(),
    }
    for scheme in schemes:
        for size in sizes:
            look = Look(folder, scheme, size)
            with World(scheme) as world, Site(documents) as site:
                program = world.start(PROGRAMS / "corvanite-information")
                show(Tour(program, world, site), program, SCREENS, look)
                loopback = world.start(PROGRAMS / "loopback_program", site=site.origin)
                show(Tour(loopback, world, site), loopback, SCREENS_WITH_SITE, look)


def show(tour: Tour, program: Program, screens: list[Screen], look: Look) -> None:
    for screen in screens:
        program.resize(*ROOMY)
        program.press_keys("Escape", "Escape")
        screen.open(tour)
        program.resize(*(look.size or screen.size))
        screen.then(tour)
        picture = look.picture(screen)
        program.save_picture(picture)
        pack(picture)
    program.close()


def pack(picture: Path) -> None:
    """Makes the file as small as it gets without a loss."""
    options = "-strip -depth 8 -define png:color-type=2 -define png:compression-level=9"
    answer_of(["convert", str(picture), *options.split(), str(picture)], os.environ)


def parse_size(text: str) -> tuple[int, int]:
    width, height = text.split("x")
    return int(width), int(height)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=Path, help="where the pictures go")
    parser.add_argument("--size", type=parse_size, action="append", default=[], metavar="WxH")
    parser.add_argument("--scheme", choices=SCHEMES, action="append")
    arguments = parser.parse_args()
    arguments.folder.mkdir(parents=True, exist_ok=True)
    take_pictures(arguments.folder, arguments.scheme or SCHEMES, arguments.size or [None])


if __name__ == "__main__":
    main()
