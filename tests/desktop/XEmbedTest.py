#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Trays of the older kind, which embed a window as the icon, alone and beside a panel of the newer kind."""

import os
import re
import shutil
import subprocess
import sys
import unittest

from desktop import Desktop, at_rest, rectangle, wait_for
from placement import PlacementCase

PROGRAM = os.path.abspath(sys.argv.pop(1))
SCREEN = rectangle(0, 0, 1280, 800)
TRAYER = ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "28",
          "--SetDockType", "true", "--SetPartialStrut", "true"]
TINT2 = """panel_items = S
panel_size = 100% 30
panel_position = bottom center horizontal
systray_icon_size = 24
strut_policy = follow_size
rounded = 0
background_color = #333333 100
panel_background_id = 1
"""


class XEmbedTest(PlacementCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop(tray=False)
        cls.addClassCleanup(cls.desktop.close)

    def tearDown(self):
        self.assertIn(self.desktop.stop(), (0, -15, None))

    def start_tray(self, *command):
        tray = self.desktop.spawn(command)

        def end():
            tray.terminate()
            tray.wait()
        self.addCleanup(end)

    def find_icon(self):
        """The window that the program has put into a tray."""
        tree = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True).stdout
        found = re.search(r'"Lumivane": \("Lumivane" "Lumivane"\)\s+(\d\d)x(\d\d)\S*\s+\+(-?\d+)\+(-?\d+)', tree)
        return found and rectangle(int(found[3]), int(found[4]), int(found[1]), int(found[2]))

    def assert_opens_at_icon(self):
        icon = at_rest("the icon", self.find_icon)
        self.desktop.click(icon.x + icon.width // 2, icon.y + icon.height // 2)
        wait_for("the panel", self.desktop.window)
        self.assert_at_icon(icon, self.desktop.rectangle, SCREEN)

    @unittest.skipUnless(shutil.which("tint2"), "needs tint2")
    def test_tint2_at_the_bottom(self):
        settings = os.path.join(self.desktop.home, "tint2rc")
        with open(settings, "w") as file:
            file.write(TINT2)
        self.start_tray("tint2", "-c", settings)
        self.desktop.start(PROGRAM, tray=False)
        self.assert_opens_at_icon()

    @unittest.skipUnless(shutil.which("trayer"), "needs trayer")
    def test_two_trays_show_one_icon(self):
        self.start_tray(*TRAYER)
        self.desktop.start(PROGRAM, tray=False)
        self.assert_opens_at_icon()
        self.desktop.key("Escape")
        self.desktop.start_panel("bottom")
        wait_for("the item in the panel", lambda: len(self.desktop.items()) == 1)
        wait_for("the icon to leave trayer", lambda: not self.find_icon())
        self.desktop.open_panel()
        self.assert_at_icon(self.desktop.icon(), self.desktop.rectangle, SCREEN)


if __name__ == "__main__":
    unittest.main(verbosity=2)
