#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window is light or dark as the desktop is."""

import unittest

from desktop_test import PROGRAM, DesktopTest


class AppearanceTest(DesktopTest):
    def test_a_light_desktop_gets_a_light_window(self):
        self.assertGreater(self.brightness("light"), 0.6)

    def test_a_dark_desktop_gets_a_dark_window(self):
        self.assertLess(self.brightness("dark"), 0.4)

    def test_a_desktop_without_the_portal_gets_a_light_window(self):
        self.assertGreater(self.brightness(None), 0.6)

    def brightness(self, scheme: str | None) -> float:
        with self.world(scheme) as world:
            return world.start(PROGRAM).brightness()


if __name__ == "__main__":
    unittest.main()
