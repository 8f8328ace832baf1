# SPDX-License-Identifier: Apache-2.0
"""A screen reader on a desktop of its own, and what it has said."""

import re
import sys
import time
from pathlib import Path

from polling import INTERVAL, wait_until
from world import World

HERE = Path(__file__).resolve().parent

SILENCE = 10.0
"""Seconds without a word after which nothing more comes."""

IDLE_LOOKS = 8

VERIFIED = re.compile("(刚刚|昨天|[0-9]+ 小时前|[0-9]+月[0-9]+日)核验")
"""When a card was verified, which depends on the day on which it is read."""


class ScreenReader:
    """Speaks until the world ends."""

    def __init__(self, world: World):
        self._spoken = world.folder / "spoken"
        self._spoken.touch()
        self._idle = world.folder / "idle"
        self._heard = 0
        world.start_helper(
            "screen-reader",
            [sys.executable, str(HERE / "speaking_orca.py")],
            LANGUAGE="zh_CN",
            SPOKEN=str(self._spoken),
            IDLE=str(self._idle),
        )

    def hear(self, expected: list[str]) -> list[str]:
        """What it has said since it was asked last: once that is what is expected, or else once it
        says nothing more."""
        latest, since = self._news(), time.monotonic()
        while latest != expected and time.monotonic() < since + SILENCE:
            time.sleep(INTERVAL)
            news = self._news()
            if news != latest:
                latest, since = news, time.monotonic()
        self._wait_until_idle()
        latest = self._news()
        self._heard += len(latest)
        return latest

    def _wait_until_idle(self) -> None:
        """A reader listens before the next key; of too much at once, Orca leaves the most unsaid."""
        looks = self._looks()[0]

        def is_idle() -> bool:
            now, in_vain = self._looks()
            return in_vain >= IDLE_LOOKS and now >= looks + IDLE_LOOKS

        wait_until(is_idle, "the screen reader has nothing to do")

    def _looks(self) -> tuple[int, int]:
        """How often it has looked for work, and how often of late in vain."""
        looks, in_vain = self._idle.read_text().split()
        return int(looks), int(in_vain)

    def _news(self) -> list[str]:
        lines = self._spoken.read_text(encoding="utf-8").splitlines(keepends=True)
        whole = [line.rstrip("\n") for line in lines[self._heard:] if line.endswith("\n")]
        return [VERIFIED.sub("某时核验", line) for line in whole]
