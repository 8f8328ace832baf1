#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The pictures of the screens are of stops of the tour that the tests go, and docs/pictures keeps each
of them.
"""

import re
import sys
import unittest
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(REPOSITORY / "tests/desktop"))

from take_pictures import SCHEMES, SCREENS, SCREENS_WITH_SITE

TOUR = (REPOSITORY / "tests/support/ScreenTour.cpp").read_text()
PICTURED = SCREENS + SCREENS_WITH_SITE


class PicturesTest(unittest.TestCase):
    def test_every_picture_is_of_a_stop(self):
        stops = re.findall(r'\.name = u"([^"]+)"_qs', TOUR)
        self.assertEqual([], [screen.stop for screen in PICTURED if screen.stop not in stops])

    def test_every_picture_is_kept(self):
        kept = sorted(file.name for file in (REPOSITORY / "docs/pictures").iterdir())
        taken = sorted(f"{screen.name}-{scheme}.png" for screen in PICTURED for scheme in SCHEMES)
        self.assertEqual(taken, kept)

    def test_every_picture_is_in_true_colours(self):
        bit_depth_and_colours = slice(24, 26)
        self.assertEqual([], [
            file.name
            for file in (REPOSITORY / "docs/pictures").iterdir()
            if file.read_bytes()[bit_depth_and_colours] != bytes([8, 2])])


if __name__ == "__main__":
    unittest.main()
