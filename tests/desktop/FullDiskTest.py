#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A disk without room: what the user has stays as it is, and what is changed meanwhile is kept until there is room."""

import os
import pathlib
import subprocess
import sys
import unittest

if os.geteuid() != 0 and "FULL_DISK_TEST" not in os.environ:
    # In a namespace of its own, anyone may mount a small file system.
    os.environ["FULL_DISK_TEST"] = "1"
    os.execvp("unshare", ["unshare", "--user", "--map-root-user", "--mount", sys.executable, "-W", "ignore", *sys.argv])

from desktop import Desktop, wait_for  # noqa: E402

PROGRAM = os.path.abspath(sys.argv.pop(1))


class FullDiskTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)
        cls.config = pathlib.Path(cls.desktop.home, "small")
        cls.config.mkdir()
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs", cls.config]).returncode != 0:
            raise unittest.SkipTest("this machine lets nobody mount a file system")
        cls.addClassCleanup(subprocess.run, ["umount", "--lazy", cls.config], check=True)
        cls.preferences = cls.config / "lumivane/lumivane.conf"

    def autostart(self):
        return sorted((self.config / "autostart").glob("*"))

    def fill(self):
        """Takes all the room there is; the file that has it."""
        filler = self.config / "filler"
        with open(filler, "wb", buffering=0) as file:
            try:
                while True:
                    file.write(bytes(4096))
            except OSError:
                pass
        return filler

    def test_writing_waits_for_room(self):
        desktop = self.desktop
        desktop.start(PROGRAM, environment={"LUMIVANE_CONFIG_HOME": str(self.config)})
        wait_for("the first preferences and login item", lambda: self.preferences.exists() and self.autostart())
        for folder in ("lumivane", "autostart"):
            self.assertFalse(pathlib.Path(desktop.home, "config", folder).exists(), "only where they were asked for")
        desktop.open_panel()
        desktop.choose("Open at Login")
        wait_for("the login item to go", lambda: not self.autostart())
        before = self.preferences.read_bytes()

        filler = self.fill()
        desktop.choose("Open at Login")
        wait_for("the failure to be told", lambda: "to the login items" in desktop.logged())
        self.assertEqual(self.autostart(), [], "no half an entry")
        self.assertEqual(desktop.commands()["Open at Login"], 0)
        desktop.click_control("Rise and Set")
        wait_for("the failure to be logged", lambda: "The preferences can't be written" in desktop.logged())
        self.assertEqual(self.preferences.read_bytes(), before)
        self.assertEqual(sorted(path.name for path in self.preferences.parent.iterdir()), ["lumivane.conf"])

        filler.unlink()
        desktop.choose("Open at Login")
        wait_for("the login item", self.autostart)
        desktop.click_control("Moon")
        wait_for("both preferences", lambda: all(
            key + b"Disclosure=false" in self.preferences.read_bytes() for key in (b"RiseSet", b"Moon")))
        self.assertIsNone(desktop.program.poll())


if __name__ == "__main__":
    unittest.main(verbosity=2)
