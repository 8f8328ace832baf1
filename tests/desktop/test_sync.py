#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The reader fetches newer content from the site and has it at the next start without a network."""

import json
import os
import unittest
from pathlib import Path

from desktop_test import SEED, DesktopTest
from polling import wait_until
from loopback_site import Site

LOOPBACK_PROGRAM = Path(os.environ["LOOPBACK_PROGRAM"])

VERSION_PATH = "/information-app-version.json"
PACK_PATH = "/information-pack.json"
RETIRED_PATH = "/retired-signals.json"

SYNC = "同步站点"
SYNCING = "同步中"
SYNCED = "已同步 2 条 · 2026-09-01"
FAILED = "同步失败，继续使用当前内容"
NEW_TITLE = "站点上的新条目"


def newer_pack() -> bytes:
    pack = json.loads(SEED.read_bytes())
    pack["asOf"] = "2026-09-01T04:00:00.000Z"
    pack["signals"] = pack["signals"][:2]
    pack["signals"][0]["title"] = {"zh": NEW_TITLE}
    return json.dumps(pack).encode()


def version_document() -> bytes:
    return json.dumps(
        {
            "schemaVersion": "corvanite-information-app-version-v1",
            "version": "1.3.0",
            "downloadUrl": "https://127.0.0.1/download",
            "sha256": "0" * 64,
        }
    ).encode()


class SyncTest(DesktopTest):
    def test_a_newer_pack_comes_and_stays(self):
        pack = newer_pack()
        with Site({PACK_PATH: pack, RETIRED_PATH: b'{"signals": []}'}) as site, self.world() as world:
            program = world.start(LOOPBACK_PROGRAM, site=site.origin)
            sync = program.wait_for(SYNC, "push button")
            wait_until(lambda: site.paths() == [VERSION_PATH], "the program has looked for an update")

            site.may_answer.clear()
            sync.press()
            program.wait_for(SYNCING, "push button").press()
            site.may_answer.set()

            program.wait_for(SYNCED)
            program.wait_for(SYNC, "push button")
            program.wait_for(NEW_TITLE, "heading")
            stored = world.data_home / "Corvanite/Information/information-pack.json"
            self.assertEqual(pack, stored.read_bytes())

            self.assertEqual([VERSION_PATH, PACK_PATH, RETIRED_PATH], site.paths())
            for _, headers in site.requests:
                self.assertEqual(
                    {"Host", "Connection", "Accept-Encoding", "Accept-Language", "User-Agent"},
                    set(headers),
                )
                self.assertEqual("zh-CN", headers["Accept-Language"])

            self.assertEqual(0, program.close())
            unreachable = "http://127.0.0.1:9"
            again = world.start(LOOPBACK_PROGRAM, site=unreachable)
            again.wait_for(NEW_TITLE, "heading")
            again.wait_for(SYNC, "push button").press()
            again.wait_for(FAILED)
            again.wait_for(NEW_TITLE, "heading")

    def test_quitting_while_a_slow_site_is_read_is_clean(self):
        with Site({PACK_PATH: newer_pack()}) as site, self.world() as world:
            program = world.start(LOOPBACK_PROGRAM, site=site.origin)
            site.may_answer.clear()
            program.wait_for(SYNC, "push button").press()
            program.wait_for(SYNCING, "push button")

            self.assertEqual(0, program.close())

    def test_a_newer_build_is_offered_until_it_is_waved_away(self):
        with Site({VERSION_PATH: version_document()}) as site, self.world() as world:
            program = world.start(LOOPBACK_PROGRAM, site=site.origin)
            program.wait_for("新版本 1.3.0 已发布")

            program.wait_for("获取更新", "push button").press()
            opened = wait_until(world.opened_addresses, "the browser is asked")
            self.assertEqual(["https://127.0.0.1/download"], opened)

            program.wait_for("关闭更新提示", "push button").press()
            program.wait_until_gone("获取更新")


if __name__ == "__main__":
    unittest.main()
