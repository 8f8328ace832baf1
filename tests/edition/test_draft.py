#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""`corvanite-edition draft`, and how the program is called. Argument: the program."""

import json
import subprocess
import unittest
from pathlib import Path

from edition_tool import PROGRAM, call

FEEDS = Path(__file__).resolve().parent / "feeds"


class DraftTest(unittest.TestCase):
    def test_prints_one_pack_of_all_feeds(self):
        result = call("draft", FEEDS / "rss.xml", FEEDS / "atom.xml", FEEDS / "feed.json")
        self.assertEqual((0, ""), (result.returncode, result.stderr))
        pack = json.loads(result.stdout)
        self.assertEqual(7, pack["checkedEntryCount"])
        self.assertEqual(7, len(pack["signals"]))

    def test_prints_nothing_where_one_feed_is_broken(self):
        result = call("draft", FEEDS / "rss.xml", FEEDS / "cut-short.xml", FEEDS / "atom.xml")
        self.assertEqual((1, ""), (result.returncode, result.stdout))
        self.assertIn("cut-short.xml:第 2 行第 25 列: 错误：文件到这里就断了", result.stderr)

    def test_says_when_the_draft_did_not_arrive(self):
        with open("/dev/full", "w") as full:
            result = subprocess.run([PROGRAM, "draft", FEEDS / "rss.xml"], stdout=full, timeout=60)
        self.assertEqual(1, result.returncode)

    def test_answers_wrong_calls(self):
        for arguments in [[], ["publish"], ["draft"], ["next", "a"], ["diff", "a", "b", "c"],
                          ["draft", "--strict", "a"], ["check", "--all", "a"], ["--help", "a"]]:
            with self.subTest(arguments=arguments):
                result = call(*arguments)
                self.assertEqual((2, ""), (result.returncode, result.stdout))
                self.assertIn("用法：", result.stderr)

    def test_answers_questions(self):
        self.assertEqual(0, call("--help").returncode)
        self.assertTrue(call("--help").stdout.startswith("用法：\n"))
        self.assertRegex(call("--version").stdout, r"^corvanite-edition \d+\.\d+\.\d+\n$")


if __name__ == "__main__":
    unittest.main()
