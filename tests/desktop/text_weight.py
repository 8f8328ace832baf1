#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""How heavy the text is beside pictures of how it was drawn: text_weight.py PROGRAM FOLDER

The folder holds today-light.png, today-dark.png and today-light@2x.png, of the page at 1120 × 780 with
the words below. The ink of a line is what its pixels differ from their ground. Ends with 1 where a
line has a tenth more or less of it than it was drawn with.
"""

import json
import os
import sys
import tempfile
from collections import Counter
from dataclasses import dataclass
from datetime import datetime, timedelta
from pathlib import Path

from accessibility import Rectangle
from commands import answer_of
from program import Program
from world import World

SEED = Path(__file__).resolve().parents[2] / "CorvaniteInformationCore/seed/information-pack.json"
USUAL = (1120, 780)
SCREEN = (2400, 1700)
TOLERANCE = 0.1
MARGIN = 3
"""Around a line, in pixels, where there is nothing but its ground."""

CARD = "product-hunt-chatcut-ai-video-editor"
WHY = (
    "它把对话式剪辑放到桌面端：先在本机整理素材，再逐句确认成片顺序。对经常处理访谈和课程录像的人，"
    "可以省去大段反复拖动时间线的工作。"
)

LINES = {
    "lead": "已检查 478 条公开信息，归并、去重和过滤后留下 22 条；先替你放出 3 条。",
    "body": "为什么值得看：" + WHY,
    "caption": "点任意一条打开完整脉络",
    "footer": "收下的内容与偏好保存在当前设备",
}


LEAD_WIDTH = 470
"""Of the lead, in pixels: what goes before the end of its sentence, which differs in the pictures."""


@dataclass(frozen=True)
class Look:
    scheme: str
    scale: int
    reference: str
    body_lower: int = 0
    """By how many pixels the card of the reference stands lower."""


LOOKS = [
    Look("light", 1, "today-light.png"),
    Look("dark", 1, "today-dark.png", body_lower=52),
    Look("light", 2, "today-light@2x.png"),
]


def pack_with_the_words() -> bytes:
    """The compiled-in edition with the words of the pictures' first card, and newer."""
    pack = json.loads(SEED.read_bytes())
    newer = datetime.fromisoformat(pack["asOf"]) + timedelta(seconds=1)
    pack["asOf"] = newer.strftime("%Y-%m-%dT%H:%M:%S.000Z")
    for signal in pack["signals"]:
        if signal["id"] == CARD:
            signal["why"] = {"zh": WHY}
    return json.dumps(pack).encode()


def place_of(program: Program, name: str) -> Rectangle:
    """Where the line is in the window, which stands without a frame."""
    x, y = program.position()
    place = program.wait_for(LINES[name]).extents()
    width = LEAD_WIDTH if name == "lead" else place.width
    return Rectangle(place.x - x, place.y - y, width, place.height)


def ink(picture: Path, place: Rectangle, scale: int, lower: int = 0) -> int:
    left, top = place.x - MARGIN, place.y + lower - MARGIN
    width, height = place.width + 2 * MARGIN, place.height + 2 * MARGIN
    crop = "x".join(str(scale * side) for side in (width, height))
    crop += f"+{scale * left}+{scale * top}"
    command = ["convert", str(picture), "-crop", crop, "-colorspace", "gray", "-depth", "8", "gray:-"]
    pixels = answer_of(command, os.environ)
    ground = Counter(pixels).most_common(1)[0][0]
    return sum(abs(pixel - ground) for pixel in pixels)


def show(world: World, executable: Path, scale: int) -> Program:
    world.environment["QT_SCALE_FACTOR"] = str(scale)
    program = world.start(executable)
    program.wait_until(program.is_active, "the window is active")
    return program


def weigh(look: Look, executable: Path, references: Path, pictures: Path) -> bool:
    """Tells the weight of each line; whether all are as they were drawn."""
    picture = pictures / look.reference
    with World(look.scheme, SCREEN) as world:
        stored = world.data_home / "Corvanite/Information/information-pack.json"
        stored.parent.mkdir(parents=True)
        stored.write_bytes(pack_with_the_words())
        usual = show(world, executable, 1)
        places = {name: place_of(usual, name) for name in LINES}
        if look.scale == 1:
            usual.save_picture(picture)
        usual.close()
        if look.scale != 1:
            scaled = show(world, executable, look.scale)
            scaled.save_picture(picture)
            scaled.close()
    right = True
    for name, place in places.items():
        lower = look.body_lower if name == "body" else 0
        here = ink(picture, place, look.scale)
        drawn = ink(references / look.reference, place, look.scale, lower)
        print(f"{look.scheme:6} {look.scale}  {name:8} {here:8} {drawn:8} {here / drawn - 1:+7.1%}")
        right = right and abs(here / drawn - 1) <= TOLERANCE
    return right


def main() -> None:
    executable, references = (Path(argument).resolve() for argument in sys.argv[1:])
    with tempfile.TemporaryDirectory() as pictures:
        right = [weigh(look, executable, references, Path(pictures)) for look in LOOKS]
    sys.exit(0 if all(right) else 1)


if __name__ == "__main__":
    main()
