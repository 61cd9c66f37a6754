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
from desktop import wait_for

OWN_SHELL, OTHER_PLATFORM, OTHER_SHELL = (("layer_shell", "xcb", "xwayland") if sway.has_layers(PROGRAM) else
                                          ("xwayland", "wayland", "xdg_shell"))


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
        self.assert_at_icon(self.desktop.icon(), self.desktop.room())

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

    def test_panel_and_copies(self):
        self.desktop.start(self.program)
        self.check(OWN_SHELL)
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

    def test_other_platform(self):
        self.desktop.start(self.program, environment={"QT_QPA_PLATFORM": OTHER_PLATFORM})
        self.check(OTHER_SHELL)

    def test_without_answer(self):
        self.desktop.start(self.program, environment={"QT_QPA_PLATFORM": "xcb", "SWAYSOCK": self.desktop.home})
        self.desktop.open_panel()
        wait_for("the complaint", lambda: "Sway does not place the panel" in self.desktop.logged())
        self.hide()

    def test_bar_comes_back_at_the_bottom(self):
        self.desktop.start(self.program)
        self.addCleanup(self.restart_bar, "top")
        self.restart_bar("bottom")
        wait_for("the item", lambda: len(self.desktop.items()) == 1)
        self.check(OWN_SHELL)

    def restart_bar(self, edge):
        self.desktop.crash_panel()
        self.desktop.start_panel(edge)


if __name__ == "__main__":
    unittest.main(verbosity=2)
