#!/usr/bin/python3
"""The core knows no screen: what it links, what it includes, and that each part has a test.

Arguments: the libraries that the core links. QTCORE_HEADERS: the folders, separated by semicolons,
that Qt Core's headers are looked for in.
"""

import os
import re
import sys
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
CORE = REPOSITORY / "CorvaniteInformationCore"
CORE_TESTS = REPOSITORY / "tests/core"

LINKED = {"Qt6::Core", "ICU::uc", "simdjson::simdjson", "project_warnings"}

INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)

linked_by_core = sys.argv[1:]
sys.argv[1:] = []


def includes_of(file: Path) -> list[tuple[str, str]]:
    return INCLUDE.findall(file.read_text())


class CoreStructureTest(unittest.TestCase):
    def setUp(self):
        self.sources = sorted(CORE.glob("*.cpp"))
        self.files = self.sources + sorted(CORE.glob("*.h"))
        self.assertGreater(len(self.sources), 0)

    def test_links_no_screen(self):
        self.assertEqual(LINKED, set(linked_by_core))

    def test_lies_flat(self):
        self.assertEqual([], [f for f in CORE.rglob("*/*") if f.suffix in (".cpp", ".h")])

    def test_includes_itself_and_qt_core_only(self):
        folders = [Path(folder) for folder in os.environ["QTCORE_HEADERS"].split(";")]
        (qt_core,) = [folder for folder in folders if folder.name == "QtCore"]
        self.assertTrue((qt_core / "QString").is_file())
        strange = []
        for file in self.files:
            for mark, header in includes_of(file):
                if mark == '"':
                    known = (CORE / header).is_file()
                elif header.startswith("Q"):
                    known = (qt_core / header).is_file()
                else:
                    known = True
                if not known:
                    strange.append(f"{file.name} includes {header}")
        self.assertEqual([], strange)

    def test_every_source_has_a_test_of_its_name(self):
        tested = {file.stem for file in CORE_TESTS.glob("*.cpp")}
        self.assertEqual([], [s.stem for s in self.sources if f"{s.stem}Test" not in tested])


if __name__ == "__main__":
    unittest.main()
