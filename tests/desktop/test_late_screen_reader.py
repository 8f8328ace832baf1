#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A screen reader that starts after the program finds all that there is to read."""

import unittest

from desktop_test import PROGRAM, DesktopTest, seed_signals_by_title


class LateScreenReaderTest(DesktopTest):
    def test_finds_the_page(self) -> None:
        with self.world(screen_reader=False) as world:
            program = world.start(PROGRAM)
            program.wait_until_still()

            world.say_of_screen_reader(True)

            program.wait_for("今天先看 3 条", "heading")
            lines = {"打开脉络：" + title for title in seed_signals_by_title()}
            program.wait_until(
                lambda: lines <= {element.name for element in program.elements()},
                "the list of everything is there")


if __name__ == "__main__":
    unittest.main()
