#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What the package holds, by the linters. Argument: the package."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ID = "example.corvanite.information"
PROGRAMS = ("corvanite-edition", "corvanite-information")

SIZES = (16, 22, 24, 32, 48, 64, 128, 256)

package = Path(sys.argv.pop()).resolve()


class ContentsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = Path(folder.name)
        subprocess.run(["dpkg-deb", "--extract", package, cls.root], check=True)

    def assert_clean(self, *command):
        done = subprocess.run(command, capture_output=True, text=True, timeout=300)
        self.assertEqual(0, done.returncode, done.stdout + done.stderr)
        return done.stdout

    def test_everything_is_in_its_place(self):
        share = self.root / "usr/share"
        icons = share / "icons/hicolor"
        expected = {
            *(self.root / "usr/bin" / program for program in PROGRAMS),
            *(share / f"man/man1/{program}.1.gz" for program in PROGRAMS),
            *(share / "bash-completion/completions" / program for program in PROGRAMS),
            *(icons / f"{size}x{size}/apps/{ID}.png" for size in SIZES),
            icons / f"scalable/apps/{ID}.svg",
            share / f"applications/{ID}.desktop",
            share / f"metainfo/{ID}.metainfo.xml",
            share / "doc/corvanite-information/changelog.gz",
            share / "doc/corvanite-information/copyright",
        }
        self.assertEqual(expected, {file for file in self.root.rglob("*") if file.is_file()})

    def test_lintian(self):
        told = self.assert_clean(
            "lintian", "--allow-root", "--no-cfg", "--fail-on", "error,warning", package)
        self.assertEqual("", told)

    def test_desktop_entry(self):
        entry = self.root / f"usr/share/applications/{ID}.desktop"
        self.assertEqual("", self.assert_clean("desktop-file-validate", entry))

    def test_metainfo(self):
        self.assert_clean("appstreamcli", "validate", "--no-net", "--pedantic",
                          self.root / f"usr/share/metainfo/{ID}.metainfo.xml")

    def test_hardening(self):
        for program in PROGRAMS:
            # Debian 12's own start files have no marks for control flow, so no program has. And all
            # that is copied goes to memory whose size is known at run time alone, where there is
            # nothing to fortify.
            self.assert_clean("hardening-check", "--nocfprotection", "--nofortify",
                              self.root / "usr/bin" / program)

    def test_nothing_tells_where_it_was_built(self):
        for program in PROGRAMS:
            code = (self.root / "usr/bin" / program).read_bytes()
            self.assertNotIn(bytes(package.parent), code)
            self.assertNotIn(b"obj-", code)


if __name__ == "__main__":
    unittest.main()
