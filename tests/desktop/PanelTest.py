#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program's main job, as a person does it: a click on the icon, the panel's lines, a second click."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from desktop import FAKETIME, Desktop, output, wait_for

PROGRAM = os.path.abspath(sys.argv.pop(1))
RESOURCES = pathlib.Path(PROGRAM).parent.parent / "share/lumivane"


class PanelTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.folder = tempfile.mkdtemp()

    @classmethod
    def tearDownClass(cls):
        cls.desktop.close()
        shutil.rmtree(cls.folder)

    def tearDown(self):
        self.assertIn(self.desktop.stop(), (0, 1, -15, None))

    def show(self, moment, zone="UTC", **keywords):
        self.desktop.start(PROGRAM, moment, zone, **keywords)
        self.desktop.open_panel()

    def test_blue_lunation(self):
        self.show("2009-12-20 12:00:00")
        self.assertEqual(len(self.desktop.items()), 1)
        lines = self.desktop.lines()
        for line in ("Moon is a waxing crescent", "Lunation 1076", "Next full moon is a Cold Moon",
                     "12/16/09, 12:03 PM", "12/31/09, 7:13 PM"):
            self.assertIn(line, lines)
        self.assertRegex(self.desktop.line("3d "), r"^3d 23h 5[67]m since new moon$")

    def test_second_click_hides(self):
        self.show(None)
        age = self.desktop.line("Lunation")
        # Lunation 1284 begins on 2026-10-10; each lasts 29.53 days.
        expected = 1284 + int((time.time() - 1791647400) / 86400 / 29.530588)
        self.assertLessEqual(abs(int(age.split()[1]) - expected), 1)
        self.desktop.click_icon()
        wait_for("the panel to hide", lambda: not self.desktop.window())
        self.desktop.open_panel()
        self.desktop.key("Escape")
        wait_for("the panel to hide", lambda: not self.desktop.window())

    def test_the_tool_tip_tells_the_next_quarter(self):
        for moment, zone, line in (
                ("2026-11-23 12:00:00", "Europe/Berlin", "Full Moon: 11/24/26, 3:54 PM, in 1 day"),
                ("2026-11-24 14:00:00", "Europe/Berlin", "Full Moon: 11/24/26, 3:54 PM, in 1 hour"),
                ("2009-12-26 12:00:00", "America/New_York", "Full Moon: 12/31/09, 2:13 PM, in 5 days")):
            self.desktop.start(PROGRAM, moment, zone)
            tip = self.desktop.item_property("ToolTip")[2].split("\n")
            self.desktop.stop()
            self.assertRegex(tip[1], "^[0-9.]+% illumination$")
            self.assertEqual(tip[2:], [line])

    def test_the_icon_follows_the_clock(self):
        # 300 seconds of the program's take two and a half.
        self.desktop.start(PROGRAM, environment={"LD_PRELOAD": FAKETIME, "FAKETIME": "@2009-12-20 12:00:00 x120"})

        def tip():
            return self.desktop.item_property("ToolTip")
        first = tip()
        self.assertIn("Moon is a waxing crescent", str(first))
        wait_for("another share of light", lambda: tip() != first)

    def test_broken_surroundings(self):
        broken = pathlib.Path(self.folder, "share")
        shutil.copytree(RESOURCES, broken)
        table = (broken / "Lunations.plist").read_bytes()
        (broken / "Lunations.plist").write_bytes(table[:1000])
        for picture in broken.glob("M*.png"):
            picture.write_bytes(b"no picture")
        (broken / "M00.png").unlink()
        preferences = pathlib.Path(self.desktop.home, "config/lumivane/lumivane.conf")
        preferences.parent.mkdir(parents=True, exist_ok=True)
        garbage = bytes((i * 37 + 11) % 256 for i in range(4000))
        preferences.write_bytes(garbage)
        self.show("2009-12-20 12:00:00", "Nowhere/Atall", fresh=False,
                  environment={"LUMIVANE_RESOURCES": str(broken)})
        self.assertIn("Lunation 1076", self.desktop.lines())
        log = self.desktop.logged()
        for complaint in ("The lunation table Lunations.plist can't be used", "The picture M00 is missing",
                          "The picture M09", "are damaged; kept as", 'time zone "Nowhere/Atall" is not known'):
            self.assertIn(complaint, log)
        self.assertEqual(log.count("The picture M09"), 1)
        self.assertTrue(list(pathlib.Path(self.desktop.home, "config/autostart").glob("*.desktop")))
        self.desktop.click_control("Full moon")
        wait_for("the full moon", lambda: "Moon is full" in self.desktop.lines())
        self.assertEqual(preferences.with_name("lumivane.conf.damaged").read_bytes(), garbage)

    def test_moved_while_running(self):
        moved = pathlib.Path(self.folder, "moved")
        shutil.copytree(RESOURCES, moved)
        self.show(None, environment={"LUMIVANE_RESOURCES": str(moved)})
        (moved / "LumivaneWindow.ui").unlink()

        def alerts():
            return output("xdotool", "search", "--onlyvisible", "--pid", str(self.desktop.program.pid))
        self.desktop.click_icon()  # puts this panel away and makes the next
        wait_for("the alert", self.desktop.dialog)
        before = alerts()
        self.desktop.click_icon()
        time.sleep(0.5)
        self.assertEqual(alerts(), before, "one alert, not a stack of them")
        self.assertEqual(self.desktop.logged().count("Can't load window"), 1)
        self.desktop.key("Return")
        self.assertEqual(self.desktop.program.wait(10), 1)

    def test_without_a_session_bus(self):
        # The same tray shows icons the older way, for which no bus is needed.
        environment = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0"}
        self.desktop.start(PROGRAM, environment=environment, tray=False)
        wait_for("the complaint", lambda: "No D-Bus session bus" in self.desktop.logged())
        self.desktop.click_icon()
        wait_for("the panel", lambda: self.desktop.titled("Lumivane"))
        self.desktop.click_icon()
        wait_for("the panel to hide", lambda: not self.desktop.titled("Lumivane"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
