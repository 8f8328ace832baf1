#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Shows a sync, a newer build and a thread that goes on, all on this machine.

Lays out the compiled-in edition one day further, with two changed cards, as a site on loopback;
builds the program for that site, below build/demo; and opens its window with a data directory of its
own, which is gone afterwards. With an argument, writes a picture of the first screen to that file
instead of opening a window at a desk.
"""

import hashlib
import json
import os
import subprocess
import sys
import tempfile
import threading
from datetime import datetime, timedelta, timezone
from functools import partial
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[1]
SEED = REPOSITORY / "CorvaniteInformationCore/seed"
BUILD = REPOSITORY / "build/demo"

PACK = "information-pack.json"
APP_VERSION = "information-app-version.json"

BEIJING = timezone(timedelta(hours=8))
CHANGE = "演示：一天以后，这张卡片有了变化。"

WHAT_TO_DO = """
窗口打开以后：
  1. 顶上的横条说有新版本，它来自演示站点的版本文档。
  2. 收下第一张卡片，再按“同步站点”。
  3. 到“已收下”里按“看变化”：变化续在同一条脉络里。
关上窗口，演示的数据就没有了。
"""


def changed(card: dict, as_of: str, day: str) -> dict:
    event = {"date": {"zh": day}, "datetime": as_of, "summary": {"zh": CHANGE},
             "source": card["source"]}
    return card | {"state": "update", "observedAt": as_of, "updateSummary": {"zh": CHANGE},
                   "timeline": [event, *card["timeline"]]}


def next_pack() -> dict:
    """The compiled-in edition a day later; its first two cards have changed."""
    pack = json.loads((SEED / PACK).read_text())
    instant = datetime.fromisoformat(pack["asOf"].replace("Z", "+00:00")) + timedelta(days=1)
    as_of = instant.isoformat(timespec="milliseconds").replace("+00:00", "Z")
    day = instant.astimezone(BEIJING).date().isoformat()
    cards = pack["signals"]
    cards[:2] = [changed(card, as_of, day) for card in cards[:2]]
    featured = [card["id"] for card in cards[:3]]
    return pack | {"asOf": as_of, "selectionHistory": [
        {"date": day, "focusSignalIds": featured, "totalShown": len(cards)}]}


def next_build(tool: Path, program: Path, origin: str) -> dict:
    """Announces the program itself as the next build."""
    answer = subprocess.run([tool, "--version"], capture_output=True, text=True, check=True)
    major, minor, _ = answer.stdout.split()[1].split(".")
    host = origin.partition("://")[2]
    return {
        "schemaVersion": "corvanite-information-app-version-v1",
        "version": f"{major}.{int(minor) + 1}.0",
        "downloadUrl": f"https://{host}/{program.name}",
        "sha256": hashlib.sha256(program.read_bytes()).hexdigest(),
        "sizeBytes": program.stat().st_size,
        "notes": {"zh": "演示用的新版本。"},
    }


def lay_out(tool: Path, program: Path, origin: str, site: Path) -> None:
    """Makes the edition as a curator does."""
    with tempfile.TemporaryDirectory() as work:
        for name, document in [(PACK, next_pack()),
                               (APP_VERSION, next_build(tool, program, origin))]:
            (Path(work) / name).write_text(json.dumps(document, ensure_ascii=False))
        for arguments in [["next", SEED, "."], ["diff", SEED, "."], ["site", site]]:
            subprocess.run([tool, *arguments], cwd=work, check=True)


def build(origin: str) -> tuple[Path, Path]:
    """The tool and the program, built for the site."""
    for command in [
        ["cmake", "--preset", "release", "-B", BUILD, f"-DCORVANITE_SITE_ORIGIN={origin}"],
        ["cmake", "--build", BUILD, "--target", "corvanite-edition", "corvanite-information"],
    ]:
        subprocess.run(command, cwd=REPOSITORY, check=True)
    return BUILD / "bin/corvanite-edition", BUILD / "bin/corvanite-information"


def open_window(program: Path) -> None:
    print(WHAT_TO_DO, flush=True)
    with tempfile.TemporaryDirectory() as data:
        subprocess.run([program], env=os.environ | {"XDG_DATA_HOME": data}, check=True)


def take_picture(program: Path, picture: Path) -> None:
    subprocess.run([REPOSITORY / "tests/desktop/first_screen.py", program, picture], check=True)


def main() -> None:
    with tempfile.TemporaryDirectory() as holder:
        site = Path(holder) / "site"
        site.mkdir()
        server = ThreadingHTTPServer(("127.0.0.1", 0),
                                     partial(SimpleHTTPRequestHandler, directory=site))
        threading.Thread(target=server.serve_forever, daemon=True).start()
        origin = f"http://127.0.0.1:{server.server_port}"
        tool, program = build(origin)
        lay_out(tool, program, origin, site)
        if len(sys.argv) > 1:
            take_picture(program, Path(sys.argv[1]).resolve())
        else:
            open_window(program)
        server.shutdown()


if __name__ == "__main__":
    try:
        main()
    except subprocess.CalledProcessError as failure:
        sys.exit(failure.returncode)
    except KeyboardInterrupt:
        sys.exit(130)
