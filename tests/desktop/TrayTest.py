#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Desktops without a tray, and trays that come late."""

import os
import sys
import unittest

from desktop import Desktop, wait_for

PROGRAM = os.path.abspath(sys.argv.pop(1))


class TrayTest(unittest.TestCase):
    # In the order of their names: the tray comes last.
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop(tray=False)
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.desktop.start(PROGRAM, tray=False)
        self.addCleanup(self.desktop.stop)
        self.desktop.resting(wait_for("the utility window", self.desktop.window))

    def test_late_tray_takes_the_program_in(self):
        self.assertTrue(self.desktop.line("Moon is "))
        self.desktop.start_panel("bottom")
        wait_for("the tray item", lambda: len(self.desktop.items()) == 1)
        wait_for("the window to go", lambda: not self.desktop.window())
        window = self.desktop.open_panel()
        panel, icon = self.desktop.extents(window), self.desktop.icon()
        self.assertLessEqual(panel.y + panel.height, icon.y)
        self.assertGreaterEqual(panel.y, 0)
        self.assertLessEqual(panel.x + panel.width, 1280)

    def test_closing_the_window_ends_the_program(self):
        # Nothing would bring it back.
        self.desktop.click_control("Quit")
        self.assertEqual(self.desktop.program.wait(10), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
