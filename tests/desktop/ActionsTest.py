#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Everything that the panel can do, through its real controls."""

import datetime
import os
import pathlib
import subprocess
import sys
import time
import unittest

from desktop import Desktop, wait_for

PROGRAM = os.path.abspath(sys.argv.pop(1))


class ActionsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)
        cls.desktop.install_browser()

    def tearDown(self):
        self.assertIn(self.desktop.stop(), (0, -15, None))

    def show(self, moment="2009-12-20 12:00:00", zone="America/New_York", **keywords):
        self.desktop.start(PROGRAM, moment, zone, **keywords)
        return self.desktop.open_panel()

    def moment(self):
        """What the date picker shows."""
        return datetime.datetime.strptime(self.desktop.text(self.desktop.find("Date and time")),
                                          "%m/%d/%Y %I:%M:%S %p")

    def wait_moment(self, expected):
        wait_for("%s in place of %s" % (expected, self.moment()), lambda: self.moment() == expected)

    def hidden(self):
        wait_for("the panel to hide", lambda: not self.desktop.window())

    def test_keys(self):
        desktop = self.desktop
        self.show()
        desktop.key("alt+3")
        full = datetime.datetime(2009, 12, 31, 14, 13, 52)
        self.wait_moment(full)
        desktop.key("alt+Next", "alt+Right")
        self.wait_moment(full + datetime.timedelta(hours=25))
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

    def test_what_is_chosen_is_remembered(self):
        self.show()
        desktop = self.desktop

        def popup():
            """The time zone popup, whose name is its choice."""
            return next(node for node in desktop.walk(desktop.window()) if node.get_role_name() == "combo box")
        desktop.open_popup(lambda: desktop.click_at_start(popup()))
        desktop.key("End", "Return")
        wait_for("the dialog", desktop.dialog)
        desktop.type("-3.75")
        desktop.key("Return")
        wait_for("the offset", lambda: popup().get_name() == "GMT -3.8")
        wait_for("an hour of quarters", lambda: "12/31/09, 3:28 PM" in desktop.lines())
        desktop.click_control("Moon")
        wait_for("folding", lambda: desktop.line("Moon is") is None)
        desktop.stop()
        self.show(fresh=False)
        self.assertEqual(popup().get_name(), "GMT -3.8")
        self.assertIsNone(desktop.line("Moon is"))

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
        full = datetime.datetime(2009, 12, 31, 14, 13, 52)
        self.wait_moment(full)
        subprocess.run(["xdotool", "windowminimize", "--sync", desktop.titled("Lumivane")[0]], check=True)
        self.hidden()
        desktop.click_icon()
        wait_for("the minimised window", desktop.window)
        self.assertEqual(self.moment(), full, "nobody has put it away")
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
