#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What `./run --demo` shows. Argument: the program corvanite-edition."""

import json
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[2] / "scripts"))

from edition_tool import APP_VERSION, PACK, PROGRAM, RETIRED, SEED, call, seed

import demo


class DemoTest(unittest.TestCase):
    def test_lays_out_an_edition_with_two_changed_cards_and_a_newer_build(self):
        with tempfile.TemporaryDirectory() as folder:
            site = Path(folder) / "site"
            demo.lay_out(PROGRAM, PROGRAM, "https://corvanite.example", site)
            told = call("diff", SEED, site).stdout
            self.assertIn("变化 2 张\n", told)
            self.assertNotIn("新来", told)
            self.assertNotIn("离开", told)
            self.assertIn("新的一天，入选 3 条，列出 22 条", told)
            self.assertEqual(0, call("check", site / PACK, site / RETIRED).returncode)

            targets = [signal["followTarget"] for signal in seed(PACK)["signals"]]
            pack = json.loads((site / PACK).read_text())
            self.assertEqual(targets, [signal["followTarget"] for signal in pack["signals"]])
            running = call("--version").stdout.split()[1].split(".")
            offered = json.loads((site / APP_VERSION).read_text())["version"].split(".")
            self.assertGreater([*map(int, offered)], [*map(int, running)])


if __name__ == "__main__":
    unittest.main()
