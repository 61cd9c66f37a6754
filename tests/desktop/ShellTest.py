#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program beyond its panel: the start of the session, other copies, the place it runs from, updates."""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest

from desktop import Desktop, wait_for

PROGRAM = os.path.abspath(sys.argv.pop(1))
IDENTIFIER = "com.corvanta.Lumivane"


class ShellTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def tearDown(self):
        self.desktop.stop()

    def autostart(self):
        return sorted(pathlib.Path(self.desktop.home, "config/autostart").glob("*.desktop"))

    def test_login_item_follows_the_menu(self):
        self.desktop.start(PROGRAM)
        entry, = wait_for("the entry", self.autostart)
        subprocess.run(["desktop-file-validate", entry], check=True)
        self.desktop.open_panel()
        self.assertEqual(self.desktop.commands()["Open at Login"], 1)
        self.desktop.choose("Open at Login")
        wait_for("the entry to go", lambda: not self.autostart())
        self.assertEqual(self.desktop.commands()["Open at Login"], 0)
        self.desktop.choose("Open at Login")
        wait_for("the entry", self.autostart)
        # Switched off by hand in the desktop's own settings: the mark tells the truth, the file stays the user's.
        entry, = self.autostart()
        entry.write_text(entry.read_text() + "Hidden=true\n")
        self.assertEqual(self.desktop.commands()["Open at Login"], 0)

    def test_the_newest_copy_stays(self):
        copies = []
        for _ in range(10):
            self.desktop.start(PROGRAM, fresh=False)
            copies.append(self.desktop.program)
            wait_for("the copy's name",
                     lambda: self.desktop.bus_has("%s.pid%d" % (IDENTIFIER, self.desktop.program.pid)))
        for older in copies[:-1]:
            self.assertEqual(older.wait(10), 0)
        self.assertIsNone(copies[-1].poll())
        wait_for("one icon", lambda: len(self.desktop.items()) == 1)
        self.assertEqual(self.desktop.owner_pid(IDENTIFIER), copies[-1].pid)
        self.desktop.open_panel()

    def call_application(self, method, kinds, *arguments):
        _, GLib = self.desktop.gio()
        self.desktop.call(IDENTIFIER, "/com/corvanta/Lumivane", "org.freedesktop.Application", method,
                          GLib.Variant(kinds, arguments))

    def test_the_desktop_raises_and_ends_the_program(self):
        self.desktop.start(PROGRAM)
        wait_for("the name", lambda: self.desktop.bus_has(IDENTIFIER))
        self.call_application("Activate", "(a{sv})", {})
        wait_for("the panel", self.desktop.window)
        self.call_application("ActivateAction", "(sava{sv})", "quit", [], {})
        self.assertEqual(self.desktop.program.wait(10), 0)

    def test_warning_comes_once_for_a_place(self):
        # The same tree without a desktop entry is not among the applications.
        tree = pathlib.Path(self.desktop.home, "elsewhere")
        shutil.copytree(pathlib.Path(PROGRAM).parent.parent, tree, dirs_exist_ok=True)
        shutil.rmtree(tree / "share/applications")
        program = str(tree / "bin/Lumivane")
        self.desktop.start(program)
        warning = "Lumivane is not installed among your applications."
        wait_for("the warning", lambda: self.desktop.shown_text(warning))
        self.desktop.key("Return")
        wait_for("the warning to go", lambda: not self.desktop.shown_text(warning))
        entry, = wait_for("the login item", self.autostart)
        self.assertIn(program, entry.read_text())
        self.desktop.stop()
        self.desktop.start(program, fresh=False)
        self.desktop.open_panel()
        self.assertFalse(self.desktop.shown_text(warning))

    def test_a_check_that_fails_is_told(self):
        self.desktop.start(PROGRAM)
        self.desktop.open_panel()
        self.desktop.choose("Check for Update...")
        wait_for("the alert", lambda: self.desktop.shown_text("Update Error!"))
        self.assertIn("Checking for update: https://update.corvanta.example/cgi-sys/cgiwrap/Corvanta/"
                      "SharewareAppCast.pl?bld=100&frq=604800&prd=lv&end=i386&ver=1.0.0&sys=", self.desktop.logged())
        self.desktop.key("Escape")
        wait_for("the alert to go", lambda: not self.desktop.shown_text("Update Error!"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
