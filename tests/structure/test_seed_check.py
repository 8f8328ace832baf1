#!/usr/bin/python3
"""What the build refuses in the edition to be compiled in. Argument: the seed_check program."""

import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SEED = Path(__file__).resolve().parents[2] / "CorvaniteInformationCore/seed"
FILES = {"pack": "information-pack.json", "retired": "retired-signals.json",
         "registry": "registry-sources.json"}

program = sys.argv[1]
sys.argv[1:] = []


def put(document, path: list, value):
    for step in path[:-1]:
        document = document[step]
    document[path[-1]] = value


class SeedCheckTest(unittest.TestCase):
    def check(self, file: str | None, path: list, value) -> subprocess.CompletedProcess:
        """Checks the edition with one value of one file replaced."""
        with tempfile.TemporaryDirectory() as folder:
            paths = []
            for name, file_name in FILES.items():
                document = json.loads((SEED / file_name).read_text())
                if name == file:
                    put(document, path, value)
                paths.append(Path(folder) / file_name)
                paths[-1].write_text(json.dumps(document))
            return subprocess.run([program, *paths], capture_output=True, text=True)

    def test_accepts_the_edition(self):
        result = self.check(None, [], None)
        self.assertEqual((0, ""), (result.returncode, result.stderr))

    def test_tells_what_is_wrong(self):
        first = ["signals", 0]
        blocked = "https://x.com/a"
        spotty = "https://github.com/a"
        no_stand_in = "the original is not always reachable and no related source is in its place"
        for file, path, value, complaint in [
            ("pack", ["schemaVersion"], "other", "is no information pack"),
            ("pack", ["signals"], [], "is no information pack"),
            ("retired", ["signals"], None, "is no retired list"),
            ("registry", ["sources", 0, "url"], 1, "is no registry"),
            ("pack", ["asOf"], "today", "asOf is no time"),
            ("pack", ["asOf"], "2026-08-20T00:00:00.000Z", "observed after the edition"),
            ("pack", ["checkedEntryCount"], 3, "has more signals than checked entries"),
            ("pack", [*first, "id"], "", "has no id"),
            ("retired", [*first, "id"], "github-weekly-modular", "is listed twice"),
            ("pack", [*first, "why"], {}, "a text is empty"),
            ("pack", [*first, "observedAt"], "yesterday", "observedAt is no time"),
            ("pack", [*first, "publishedAt"], "", "publishedAt is no time"),
            ("pack", [*first, "publishedAt"], "2026-08-27T00:42:11.670Z",
             "observed before it was published"),
            ("pack", [*first, "state"], "update", "an update that does not say what changed"),
            ("pack", [*first, "originalUrl"], "chatcut.io", "originalUrl cannot be opened"),
            ("pack", [*first, "relatedSources", 0, "url"], "file:///a",
             "a related source cannot be opened"),
            ("pack", first, self.signal(originalUrl=blocked, relatedSources=[{"url": blocked}]),
             no_stand_in),
            ("pack", first, self.signal(originalUrl=spotty, relatedSources=[{"url": spotty}]),
             no_stand_in),
            ("pack", first, self.signal(originalUrl=spotty, relatedSources=[{"url": blocked}]),
             no_stand_in),
            ("pack", [*first, "timeline"], [], "the timeline is empty"),
            ("pack", [*first, "timeline", 0, "datetime"], "8 月",
             "a timeline event's datetime is no time"),
            ("pack", ["signals", 1, "timeline", 1, "datetime"], "2026-08-11T00:00:00.001Z",
             "the timeline does not go from the newest event to the oldest"),
            ("pack", [*first, "followTarget", "scope"], {}, "the follow target is incomplete"),
            ("pack", [*first, "followTarget", "url"], "", "the follow target cannot be opened"),
            ("pack", ["selectionHistory"], [], "is empty"),
            ("pack", ["selectionHistory", 1, "date"], "2026-08-22",
             "is not in the order of its days"),
            ("pack", ["selectionHistory", 1, "date"], "2026-08-32", "is no day"),
            ("pack", ["selectionHistory", 0, "focusSignalIds"], [], "features nothing"),
            ("pack", ["selectionHistory", 0, "focusSignalIds", 0], "gone",
             "features no known signal: gone"),
            # Observed on that day at UTC, on the next in Beijing.
            ("pack", ["selectionHistory", 0, "focusSignalIds", 0], "mcp-roadmap-2026-08",
             "features what was observed later: mcp-roadmap-2026-08"),
            ("pack", ["selectionHistory", 0, "totalShown"], 2,
             "shows fewer signals than it features"),
            ("registry", ["sources"], [], "is empty"),
            ("registry", ["sources", 0, "id"], "the-verge", "is listed twice"),
            ("registry", ["sources", 0, "take"], "", "a text is empty"),
            ("registry", ["sources", 0, "kind"], "博客", "kind does not end with the language"),
            ("registry", ["sources", 0, "url"], "", "url cannot be opened"),
            ("registry", ["sources", 0, "name"], "The Verge", "has the name of another row"),
            ("registry", ["sources", 0, "url"], "https://www.theverge.com/",
             "has the address of another row"),
        ]:
            with self.subTest(file=file, path=path, value=value):
                result = self.check(file, path, value)
                self.assertEqual(1, result.returncode)
                self.assertIn(f": {complaint}\n", result.stderr)

    def signal(self, **values):
        document = json.loads((SEED / FILES["pack"]).read_text())
        return document["signals"][0] | values


if __name__ == "__main__":
    unittest.main()
