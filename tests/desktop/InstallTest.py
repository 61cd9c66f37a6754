#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""An install in a folder that no PATH knows, and what the desktop's menu does with it."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from cases import PROGRAM, DesktopCase
from desktop import Gio, GLib, wait_for

BUILD = pathlib.Path(PROGRAM).parents[3] / "dev"
IDENTIFIER = "com.corvanta.Lumivane"


class InstallTest(DesktopCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.mkdtemp(prefix="moved $100 install ")
        cls.addClassCleanup(shutil.rmtree, folder)
        cls.prefix = pathlib.Path(folder, "Applications")
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.prefix], check=True, stdout=subprocess.DEVNULL)
        # Tells its resources from those of the build.
        layout = cls.prefix / "share/lumivane/LumivaneWindow.ui"
        layout.write_text(layout.read_text().replace("<string>&amp;Latitude:", "<string>Moved:"))
        # The session's bus starts what the menu asks for.
        os.environ["XDG_DATA_DIRS"] = "{}:/usr/local/share:/usr/share".format(cls.prefix / "share")
        super().setUpClass()

    def pid(self):
        return self.desktop.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                 GLib.Variant("(s)", (IDENTIFIER,))).unpack()[0]

    def test_menu_starts_shows_and_quits(self):
        menu = Gio.DesktopAppInfo.new(IDENTIFIER + ".desktop")
        menu.launch([], None)
        wait_for("the panel of a new copy, with its own layout", lambda: "Moved:" in self.desktop.lines())
        first = self.pid()
        self.desktop.click_icon()
        self.hidden()
        menu.launch([], None)
        wait_for("the panel of the running copy", self.desktop.window)
        self.assertEqual(self.pid(), first)
        self.desktop.click_icon()
        self.hidden()
        subprocess.run(["gapplication", "action", IDENTIFIER, "show"], check=True, timeout=30)
        wait_for("the panel after the action", self.desktop.window)
        subprocess.run(["gapplication", "action", IDENTIFIER, "quit"], check=True, timeout=30)
        wait_for("the program to end", lambda: not self.desktop.bus_has(IDENTIFIER))
        wait_for("the item to go", lambda: not self.desktop.items())


if __name__ == "__main__":
    unittest.main(verbosity=2)
