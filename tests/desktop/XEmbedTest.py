#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Trays of the older kind, which embed a window as the icon, alone and beside a panel of the newer kind."""

import re
import shutil
import unittest

from cases import PROGRAM, DesktopCase
from desktop import Desktop, at_rest, output, rectangle, wait_for

SCREEN = rectangle(0, 0, 1280, 800)
TRAYER = ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "28",
          "--SetDockType", "true", "--SetPartialStrut", "true"]


class XEmbedTest(DesktopCase):
    @classmethod
    def make_desktop(cls):
        return Desktop(tray=False)

    def find_icon(self):
        """The window that the program has put into a tray."""
        found = re.search(r'"Lumivane": \("Lumivane" "Lumivane"\)\s+(\d\d)x(\d\d)\S*\s+\+(-?\d+)\+(-?\d+)',
                          output("xwininfo", "-root", "-tree"))
        return found and rectangle(int(found[3]), int(found[4]), int(found[1]), int(found[2]))

    @unittest.skipUnless(shutil.which("trayer"), "needs trayer")
    def test_two_trays_show_one_icon(self):
        self.desktop.spawn(TRAYER)
        self.desktop.start(PROGRAM, tray=False)
        icon = at_rest("the icon", self.find_icon)
        self.desktop.click(icon.x + icon.width // 2, icon.y + icon.height // 2)
        wait_for("the panel", self.desktop.window)
        self.assert_at_icon(icon, SCREEN)
        self.desktop.key("Escape")
        self.desktop.start_panel("bottom")
        wait_for("the item in the panel", lambda: len(self.desktop.items()) == 1)
        wait_for("the icon to leave trayer", lambda: not self.find_icon())
        self.desktop.open_panel()
        self.assert_at_icon(self.desktop.icon(), SCREEN)


if __name__ == "__main__":
    unittest.main(verbosity=2)
