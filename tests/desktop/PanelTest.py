#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program's main job, as a person does it: a click on the icon, the panel's lines, a second click."""

import pathlib
import shutil
import time
import unittest

from cases import PROGRAM, DesktopCase
from desktop import FAKETIME, output, wait_for


class PanelTest(DesktopCase):
    def show(self, moment, zone="UTC", **keywords):
        self.desktop.start(PROGRAM, moment, zone, **keywords)
        self.desktop.open_panel()

    def own_resources(self):
        """The program's resources, for the test to spoil, and the environment that names them."""
        resources = pathlib.Path(self.desktop.home, self.id())
        shutil.copytree(pathlib.Path(PROGRAM).parent.parent / "share/lumivane", resources)
        return resources, {"LUMIVANE_RESOURCES": str(resources)}

    def test_blue_lunation(self):
        self.show("2009-12-20 12:00:00")
        lines = self.desktop.lines()
        for line in ("Moon is a waxing crescent", "Lunation 1076", "Next full moon is a Cold Moon",
                     "12/16/09, 12:03 PM", "12/31/09, 7:13 PM"):
            self.assertIn(line, lines)
        self.assertRegex(self.desktop.line("3d "), r"^3d 23h 5[67]m since new moon$")

    def test_second_click_hides(self):
        self.show(None)
        # Lunation 1284 begins on 2026-10-10; each lasts 29.53 days.
        expected = 1284 + int((time.time() - 1791647400) / 86400 / 29.530588)
        self.assertAlmostEqual(int(self.desktop.line("Lunation").split()[1]), expected, delta=1)
        self.desktop.click_icon()
        self.hidden()
        self.desktop.open_panel()
        self.desktop.key("Escape")
        self.hidden()

    def test_the_icon_follows_the_clock(self):
        # 300 seconds of the program's take two and a half.
        self.desktop.start(PROGRAM, environment={"LD_PRELOAD": FAKETIME, "FAKETIME": "@2009-12-20 12:00:00 x120"})

        def tip():
            return self.desktop.item_property("ToolTip")
        first = tip()
        self.assertIn("Moon is a waxing crescent", str(first))
        wait_for("another share of light", lambda: tip() != first)

    def test_broken_surroundings(self):
        broken, environment = self.own_resources()
        (broken / "Lunations.plist").write_bytes(b"bplist00")
        for picture in broken.glob("M*.png"):
            picture.write_bytes(b"no picture")
        preferences = pathlib.Path(self.desktop.home, "config/lumivane/lumivane.conf")
        preferences.parent.mkdir(parents=True, exist_ok=True)
        preferences.write_bytes(b"\xff\xfe\x00garbage")
        self.show("2009-12-20 12:00:00", "Nowhere/Atall", fresh=False, environment=environment)
        log = self.desktop.logged()
        for complaint in ("The lunation table Lunations.plist can't be used", "The picture M09",
                          "are damaged; kept as", 'time zone "Nowhere/Atall" is not known'):
            self.assertEqual(log.count(complaint), 1, complaint)
        self.desktop.click_control("Full moon")
        wait_for("the full moon", lambda: "Moon is full" in self.desktop.lines())

    def test_moved_while_running(self):
        moved, environment = self.own_resources()
        self.show(None, environment=environment)
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
        self.desktop.stop()

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
