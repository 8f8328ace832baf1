#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""The window under the window manager of Xfce."""

import unittest

import window_manager_test
from desktop_test import DesktopTest


class XfwmTest(window_manager_test.WindowManagerTest, DesktopTest):
    WINDOW_MANAGER = ("xfwm4", "--compositor=off")


if __name__ == "__main__":
    unittest.main()
