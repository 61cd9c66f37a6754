#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The panel opens at the icon under Sway, which places windows itself and whose bars tell a click's place in their own
coordinates, and which takes a copy from nobody but the window with the focus."""

import os
import pathlib
import shutil
import subprocess
import time
import unittest

import sway
from cases import PROGRAM, DesktopCase
from desktop import rectangle, wait_for

# The whole panel is higher than either.
ROOM = {"top": rectangle(0, sway.BAR, 1280, 720 - sway.BAR), "bottom": rectangle(0, 0, 1280, 720 - sway.BAR)}


@unittest.skipIf(sway.MISSING, "needs " + ", ".join(sway.MISSING))
class SwayTest(DesktopCase):
    @classmethod
    def setUpClass(cls):
        cls.program = sway.leave_root(PROGRAM)
        if cls.program != PROGRAM:
            cls.addClassCleanup(shutil.rmtree, pathlib.Path(cls.program).parent.parent)
        super().setUpClass()

    @classmethod
    def make_desktop(cls):
        return sway.SwayDesktop("top")

    def at_icon(self):
        self.assert_at_icon(self.desktop.icon(), ROOM[self.desktop.edge])

    def hide(self):
        self.desktop.key("Escape")
        wait_for("the panel to hide", lambda: not self.desktop.windows())

    def check(self, shell):
        self.desktop.open_panel()
        self.assertEqual(wait_for("the panel", self.desktop.windows)[0]["shell"], shell)
        whole = self.desktop.rectangle().height
        self.desktop.click_control("Moon")
        wait_for("the panel to shrink", lambda: self.desktop.rectangle().height < whole - 100)
        self.at_icon()
        self.hide()

    def test_x11(self):
        self.desktop.start(self.program)
        self.check("xwayland")
        self.desktop.command("_Copy Information to Clipboard")
        wait_for("what the icon's menu copied", lambda: "Lunation" in self.desktop.clipboard())
        wait_for("its window to go", lambda: not self.desktop.windows())
        subprocess.run(["wl-copy", "other"], env=dict(os.environ, **self.desktop.session), check=True)
        self.desktop.open_panel()
        self.at_icon()
        self.desktop.click_control("Menu")
        time.sleep(0.5)
        self.desktop.key("Down", "Return")
        wait_for("what the gear menu copied", lambda: "Lunation" in self.desktop.clipboard())
        wait_for("the panel to hide", lambda: not self.desktop.windows())

    def test_wayland(self):
        self.desktop.start(self.program, environment={"QT_QPA_PLATFORM": "wayland"})
        self.check("xdg_shell")

    def test_without_answer(self):
        self.desktop.start(self.program, environment={"SWAYSOCK": self.desktop.home})
        self.desktop.open_panel()
        wait_for("the complaint", lambda: "Sway does not place the panel" in self.desktop.logged())
        self.hide()

    def test_bar_comes_back_at_the_bottom(self):
        self.desktop.start(self.program)
        self.addCleanup(self.restart_bar, "top")
        self.restart_bar("bottom")
        wait_for("the item", lambda: len(self.desktop.items()) == 1)
        self.check("xwayland")

    def restart_bar(self, edge):
        self.desktop.crash_panel()
        self.desktop.start_panel(edge)


if __name__ == "__main__":
    unittest.main(verbosity=2)
