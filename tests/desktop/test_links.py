#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A link opens the address that the pack gives, in the reader's browser."""

import unittest

from desktop_test import PROGRAM, DesktopTest, seed_signals_by_title
from polling import wait_until

READ_ORIGINAL = "看原文："


class LinksTest(DesktopTest):
    def test_the_source_line_opens_the_original(self):
        with self.world() as world:
            program = world.start(PROGRAM)
            source_line = program.wait_for_beginning(READ_ORIGINAL)
            signal = seed_signals_by_title()[source_line.name.removeprefix(READ_ORIGINAL)]

            source_line.press()

            opened = wait_until(world.opened_addresses, "the browser is asked")
            self.assertEqual([signal["originalUrl"]], opened)


if __name__ == "__main__":
    unittest.main()
