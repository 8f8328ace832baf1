#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""An edition from `next` to `site`. Argument: the program."""

import json
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from edition_tool import APP_VERSION, PACK, RETIRED, SEED, call, seed, write

SUMS = "SHA256SUMS"


class PublishingTest(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        root = Path(holder.name)
        self.site = root / "site"
        self.work = root / "work"
        self.work.mkdir()
        for name in [PACK, RETIRED]:
            shutil.copy(SEED / name, self.work)

    def lay_out(self) -> subprocess.CompletedProcess:
        return call("site", self.site, cwd=self.work)

    def next_pack(self) -> dict:
        """The compiled-in edition one day further, without its first card."""
        pack = seed(PACK)
        pack["asOf"] = "2099-08-28T04:01:03.784Z"
        pack["signals"].pop(0)
        pack["selectionHistory"] = [{"date": "2099-08-28", "totalShown": 0,
                                     "focusSignalIds": ["github-trending-uv"]}]
        return pack

    def test_lays_out_what_is_good_for_everyone_to_read(self):
        result = self.lay_out()
        self.assertEqual((0, ""), (result.returncode, result.stderr))
        self.assertEqual({PACK, RETIRED, SUMS}, {file.name for file in self.site.iterdir()})
        self.assertEqual((SEED / PACK).read_bytes(), (self.site / PACK).read_bytes())
        for file in self.site.iterdir():
            self.assertEqual(0o644, file.stat().st_mode & 0o777)
        subprocess.run(["sha256sum", "--check", "--strict", "--quiet", SUMS], cwd=self.site,
                       check=True)
        self.assertFalse(Path(f"{self.site}.previous").exists())

    def test_lays_out_nothing_that_has_an_error(self):
        self.lay_out()
        pack = self.next_pack()
        pack["signals"][0]["why"] = {}
        write(self.work, PACK, pack)
        result = self.lay_out()
        self.assertEqual((1, ""), (result.returncode, result.stdout))
        self.assertIn("$.signals[0].why: 错误：是空的", result.stderr)
        self.assertEqual((SEED / PACK).read_bytes(), (self.site / PACK).read_bytes())

    def test_keeps_the_edition_before_beside(self):
        self.lay_out()
        write(self.work, PACK, seed(PACK) | {"asOf": "2026-08-27T05:00:00.000Z"})
        self.assertNotIn("不会换成它", self.lay_out().stdout)
        for _ in range(2):
            self.assertEqual(0, self.lay_out().returncode)
            previous = Path(f"{self.site}.previous")
            self.assertEqual((SEED / PACK).read_bytes(), (previous / PACK).read_bytes())
            subprocess.run(["sha256sum", "--check", "--strict", "--quiet", SUMS], cwd=previous,
                           check=True)
        back = call("site", self.site, cwd=f"{self.site}.previous")
        self.assertEqual(0, back.returncode)
        self.assertIn("已经同步过的读者不会换成它", back.stdout)
        self.assertEqual((SEED / PACK).read_bytes(), (self.site / PACK).read_bytes())

    def test_carries_the_version_document_on(self):
        version = {"schemaVersion": "corvanite-information-app-version-v1", "version": "1.0.0",
                   "downloadUrl": "https://corvanite.example/a.deb", "sha256": "0" * 64}
        write(self.work, APP_VERSION, version)
        self.lay_out()
        (self.work / APP_VERSION).unlink()
        self.assertEqual(0, self.lay_out().returncode)
        self.assertEqual(version, json.loads((self.site / APP_VERSION).read_text()))
        self.assertIn(APP_VERSION, (self.site / SUMS).read_text())

    def test_replaces_whatever_lies_in_the_site(self):
        self.site.mkdir()
        (self.site / PACK).write_text("broken")
        (self.site / "index.html").write_text("kept")
        self.assertEqual(0, self.lay_out().returncode)
        self.assertEqual("kept", (self.site / "index.html").read_text())
        self.assertEqual("broken", Path(f"{self.site}.previous/{PACK}").read_text())

    def test_refuses_what_it_cannot_lay_out(self):
        self.assertIn("就是当前文件夹", call("site", ".", cwd=self.work).stderr)
        (self.work / RETIRED).unlink()
        self.assertIn(f"没有 {RETIRED}", self.lay_out().stderr)
        (self.work / PACK).unlink()
        self.assertIn(f"没有 {PACK}", self.lay_out().stderr)
        self.assertFalse(self.site.exists())

    def test_the_next_edition_is_good_and_told_in_words(self):
        self.lay_out()
        write(self.work, PACK, self.next_pack())
        (self.work / RETIRED).unlink()
        made = call("next", self.site, ".", cwd=self.work)
        self.assertEqual((0, ""), (made.returncode, made.stderr))
        self.assertIn("1 张卡片退出", made.stdout)
        self.assertEqual(0, call("check", PACK, RETIRED, cwd=self.work).returncode)
        told = call("diff", self.site, ".", cwd=self.work)
        self.assertEqual(0, told.returncode)
        self.assertIn("按下“同步站点”后显示“已同步 21 条 · 2099-08-28”", told.stdout)
        self.assertEqual(0, self.lay_out().returncode)

    def test_refuses_what_nothing_can_follow(self):
        for arguments, complaint in [
            (["next", SEED, "."], f"./{PACK}:$.asOf: 错误：不晚于已发布的"),
            (["next", self.site, "."], "不是文件夹"),
            (["diff", SEED / PACK, "."], "不是文件夹"),
            (["diff", self.work.parent, "."], f"没有 {PACK}"),
        ]:
            with self.subTest(arguments=arguments):
                write(self.work, PACK, seed(PACK) | {"asOf": "0"})
                if arguments[0] == "next" and arguments[1] == SEED:
                    late = self.work.parent / "late"
                    late.mkdir()
                    write(late, PACK, seed(PACK) | {"asOf": "2999-01-01T00:00:00.000Z"})
                    arguments = ["next", late, "."]
                result = call(*arguments, cwd=self.work)
                self.assertEqual((1, ""), (result.returncode, result.stdout))
                self.assertIn(complaint, result.stderr)


if __name__ == "__main__":
    unittest.main()
