#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Everything that the panel can do, through its real controls."""

import datetime
import pathlib
import subprocess
import time
import unittest

from cases import PROGRAM, DesktopCase
from desktop import wait_for

FULL = datetime.datetime(2009, 12, 31, 14, 13, 52)


class ActionsTest(DesktopCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.install_browser()

    def show(self, **keywords):
        self.desktop.start(PROGRAM, "2009-12-20 12:00:00", "America/New_York", **keywords)
        return self.desktop.open_panel()

    def moment(self):
        """What the date picker shows."""
        return datetime.datetime.strptime(self.desktop.text(self.desktop.find("Date and time")),
                                          "%m/%d/%Y %I:%M:%S %p")

    def wait_moment(self, expected):
        wait_for("%s in place of %s" % (expected, self.moment()), lambda: self.moment() == expected)

    def test_keys(self):
        desktop = self.desktop
        self.show()
        desktop.key("alt+3")
        self.wait_moment(FULL)
        desktop.key("alt+Next", "alt+Right")
        self.wait_moment(FULL + datetime.timedelta(hours=25))
        desktop.key("ctrl+t")
        wait_for("the present", lambda: abs(self.moment() - datetime.datetime(2009, 12, 20, 12)).seconds < 90)
        # A month typed into the picker, and what is selected in a field goes before the whole.
        desktop.focus(desktop.find("Calculation"))
        desktop.key("Tab")
        desktop.type("3")
        desktop.key("Return")
        wait_for("March", lambda: self.moment().month == 3)
        desktop.focus(desktop.find("Latitude in degrees, north positive"))
        desktop.key("ctrl+a", "ctrl+c")
        wait_for("the latitude alone", lambda: desktop.clipboard() == "40.71417")
        desktop.key("End", "ctrl+c")
        self.hidden()
        self.assertRegex(desktop.clipboard(), r"^March 20, 2009\n(.*\n)+Longitude/Latitude -74.006386/40.71417$")
        self.assertEqual(desktop.clipboard("ClipboardTag%d" % desktop.program.pid), ".")
        self.assertEqual(desktop.clipboard("PasswordPboardType"), "PasswordPboardType")

    def test_windoid_and_back(self):
        desktop = self.desktop
        dropped = desktop.resting(self.show())

        def dropped_again():
            self.hidden()
            box = desktop.resting(desktop.open_panel())
            self.assertEqual((box.x, box.y), (dropped.x, dropped.y))

        desktop.open_utility_window()
        desktop.key("Escape")
        time.sleep(0.3)
        self.assertIsNotNone(desktop.window(), "Escape puts only a drop-down away")
        desktop.key("alt+F4")  # the window manager's way of the close box
        dropped_again()
        desktop.open_utility_window()
        desktop.click_control("Back to the tray icon")
        dropped_again()
        desktop.open_utility_window()
        desktop.click_control("Full moon")
        self.wait_moment(FULL)
        subprocess.run(["xdotool", "windowminimize", "--sync", desktop.titled("Lumivane")[0]], check=True)
        self.hidden()
        desktop.click_icon()
        wait_for("the minimised window", desktop.window)
        self.assertEqual(self.moment(), FULL, "nobody has put it away")
        desktop.key("ctrl+w")
        dropped_again()
        desktop.click_control("Hide")
        self.hidden()
        self.assertIsNone(desktop.program.poll())

    def test_a_city(self):
        desktop = self.desktop
        self.show(environment={"LC_ALL": "en_US.UTF-8"})
        desktop.open_popup(lambda: desktop.click_control("Set Latitude and Longitude"))
        desktop.key("Down", "Down", "Return")
        sheet = wait_for("the sheet", desktop.dialog)
        search = next(node for node in desktop.walk(sheet) if node.get_role_name() == "text")
        # By keys in the field alone, which says what is chosen; what is not found can't be.
        for text, key, city in (("", "Up", "New Salem, North Dakota, United States"),
                                ("nowhere", "Return", "No city found."),
                                ("sao", "Down", "São Tomé, São Tomé & Príncipe")):
            desktop.type(text)
            desktop.key(key)
            wait_for(city, lambda: search.get_description() == city)
            desktop.key("ctrl+a")
        desktop.key("Return")
        wait_for("the place", lambda: {"LVLatitude=0.33333334", "LVLongitude=6.733333"} <= set(
            pathlib.Path(desktop.home, "config/lumivane/lumivane.conf").read_text().split()))
        self.assertEqual(desktop.text(desktop.find("Latitude in degrees, north positive")), "0.33333334")

    def test_commands(self):
        desktop = self.desktop
        self.show()
        home = r"^https://[^/]+/products/lumivane/mac/index\.htm$"
        desktop.choose("Lumivane Home Page")
        self.assertRegex(desktop.opened(), home)
        self.hidden()
        desktop.open_panel()
        desktop.open_popup(lambda: desktop.click_control("Set Latitude and Longitude"))
        desktop.key("Up", "Return")
        self.assertRegex(desktop.opened(), r"^https://[^/]+/products/lumivane/globalposition\.htm$")
        desktop.choose("About Lumivane")
        dialog = wait_for("the credits", desktop.dialog)
        text = "".join(desktop.text(node) for node in desktop.walk(dialog) if node.get_text_iface())
        self.assertRegex(text, r"Version \d+\.\d+(\.\d+)? \(\d+\)")
        self.assertNotIn("[", text)
        desktop.key("Escape")
        wait_for("the credits to close", lambda: not desktop.dialog())
        self.assertIsNotNone(desktop.window())

        desktop.open_utility_window()
        desktop.choose("Lumivane Home Page")
        self.assertRegex(desktop.opened(), home)
        self.assertIsNotNone(desktop.window(), "a windoid stays")
        desktop.choose("Check for Update...")
        wait_for("an answer about updates", lambda: desktop.shown_text("Update Error!"))
        desktop.key("Escape")
        wait_for("it to close", lambda: not desktop.dialog())
        desktop.key("F10", "q")
        self.assertEqual(desktop.program.wait(10), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
