#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Everything that the panel can do, through its real controls."""

import datetime
import os
import subprocess
import sys
import time
import unittest

from desktop import Desktop, wait_for

PROGRAM = os.path.abspath(sys.argv.pop(1))

CLIPBOARD = """\
December 16, 2009
7:03:18 AM
System

Lunation 1076
Moon is new
0.000% illumination
0d 0h 0m since new moon
Next full moon is a Cold Moon

Sun Rise/set Sun: 7:14 AM/4:30 PM
Natical Rise/set Nautical Twilight: 6:08 AM/5:36 PM
Moon Rise/set Moon: 7:31 AM/4:34 PM

New 12/16/09, 7:03 AM
Q1 12/24/09, 12:37 PM
Full 12/31/09, 2:13 PM
Q3 1/7/10, 5:40 AM

Longitude/Latitude -74.006386/40.71417"""


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

    def popup(self):
        """The time zone popup, whose name is its choice."""
        return next(node for node in self.desktop.walk(self.desktop.window())
                    if node.get_role_name() == "combo box")

    def choose_zone(self, entry):
        self.desktop.open_popup(lambda: self.desktop.click_at_start(self.popup()))
        self.desktop.key("Home", *["Down"] * entry, "Return")

    def ask_offset(self):
        self.choose_zone(3)
        return wait_for("the dialog", self.desktop.dialog)

    def preference(self, key, value):
        wait_for("%s=%s, not %s" % (key, value, self.desktop.preferences().get(key)),
                 lambda: self.desktop.preferences().get(key) == value)

    def field(self, name):
        return self.desktop.find({"latitude": "Latitude in degrees, north positive",
                                  "longitude": "Longitude in degrees, east positive"}[name])

    def enter(self, name, text, key="Return"):
        self.desktop.click_at_start(self.field(name))
        self.desktop.key("ctrl+a")
        self.desktop.type(text)
        self.desktop.key(key)

    def hidden(self):
        wait_for("the panel to hide", lambda: not self.desktop.window())

    def test_moving_the_moment(self):
        self.show()
        desktop = self.desktop
        start = self.moment()
        for control, hours in (("On one hour", 1), ("Back one hour", -1), ("Back one day", -24), ("On one day", 24)):
            desktop.click_control(control)
            start += datetime.timedelta(hours=hours)
            self.wait_moment(start)

        new = datetime.datetime(2009, 12, 16, 7, 3, 18)
        for control, quarter in (("First quarter", datetime.datetime(2009, 12, 24, 12, 37, 6)),
                                 ("Full moon", datetime.datetime(2009, 12, 31, 14, 13, 52)),
                                 ("Last quarter", datetime.datetime(2010, 1, 7, 5, 40, 44)), ("New moon", new)):
            desktop.click_control(control)
            self.wait_moment(quarter)
        desktop.click_control("Full moon of the next lunation")
        wait_for("the next lunation", lambda: "Lunation 1077" in desktop.lines())
        desktop.click_control("Full moon of the previous lunation")
        wait_for("the lunation before", lambda: "Lunation 1076" in desktop.lines())

        # The slider's ends are the lunation's, but for a fortieth; it tells the date.
        slider = desktop.find("Position within the lunation")
        desktop.focus(slider)
        for key, age in (("Home", "0d 17h "), ("End", "29d 1h "), ("Left", "28d 21h ")):
            desktop.key(key)
            wait_for(age, lambda: desktop.line(age))
        spoken = self.moment().strftime("%B %-d, %Y %-I:%M %p")
        wait_for("the date spoken", lambda: slider.get_description() == spoken)
        self.assertAlmostEqual(slider.get_value_iface().get_current_value(), 99.5)

        # The picker, by its keys and by a month typed in; then the panel's own keys.
        desktop.click_control("New moon")
        self.wait_moment(new)
        desktop.click_at_start(desktop.find("Date and time"))
        desktop.key("Down")
        self.wait_moment(new.replace(month=11))
        desktop.focus(desktop.find("Calculation"))
        desktop.key("Tab")
        desktop.type("3")
        desktop.key("Return")
        self.wait_moment(new.replace(month=3))
        desktop.key("alt+3")
        wait_for("the full moon", lambda: "Moon is full" in desktop.lines())
        full = self.moment()
        desktop.key("alt+Next", "alt+Right")
        self.wait_moment(full + datetime.timedelta(hours=25))
        desktop.key("ctrl+t")
        wait_for("the present", lambda: abs(self.moment() - datetime.datetime(2009, 12, 20, 12)).seconds < 90)

    def test_what_is_chosen_is_remembered(self):
        self.show()
        desktop = self.desktop
        self.choose_zone(0)
        wait_for("GMT", lambda: "12/31/09, 7:13 PM" in desktop.lines())
        self.ask_offset()
        desktop.type("9")
        desktop.key("Escape")
        wait_for("the dialog to close", lambda: not desktop.dialog())
        wait_for("GMT", lambda: self.popup().get_name() == "GMT")
        self.ask_offset()
        desktop.type("-3.75")
        desktop.key("Return")
        wait_for("the offset", lambda: self.popup().get_name() == "GMT -3.8")
        wait_for("an hour of quarters", lambda: "12/31/09, 3:28 PM" in desktop.lines())
        desktop.click_control("Moon")
        wait_for("folding", lambda: desktop.line("Moon is") is None)
        desktop.stop()
        self.show(fresh=False)
        self.assertEqual(self.popup().get_name(), "GMT -3.8")
        self.assertIsNone(desktop.line("Moon is"))

    def test_clipboard(self):
        self.maxDiff = None
        desktop = self.desktop
        self.show(environment={"LC_ALL": "en_US.UTF-8"})
        desktop.click_control("New moon")
        wait_for("the new moon", lambda: "Moon is new" in desktop.lines())
        # What is selected in a field goes before the whole.
        desktop.focus(self.field("latitude"))
        desktop.key("ctrl+a", "ctrl+c")
        wait_for("the latitude alone", lambda: desktop.clipboard() == "40.71417")
        desktop.key("End", "ctrl+c")
        self.hidden()
        self.assertEqual(desktop.clipboard(), CLIPBOARD)
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

    def test_the_place(self):
        desktop = self.desktop
        self.show(environment={"LC_ALL": "", "LANG": "en_US.UTF-8", "LC_NUMERIC": "de_DE.UTF-8"})
        sun = desktop.line("Sun:")
        self.enter("latitude", "-33.9")
        wait_for("the southern summer", lambda: desktop.line("Sun:") not in (None, sun))
        self.preference("LVLatitude", "-33.9")
        self.enter("longitude", "18,5", "Tab")
        self.preference("LVLongitude", "18.5")
        self.enter("latitude", "51", "Escape")
        self.hidden()
        desktop.open_panel()
        self.assertEqual(desktop.text(self.field("latitude")), "-33,9", "Escape takes it back")

        desktop.open_popup(lambda: desktop.click_control("Set Latitude and Longitude"))
        desktop.key("Down", "Return")
        wait_for("the zone's city", lambda: desktop.line("Sun:") == sun)
        self.assertEqual(desktop.text(self.field("latitude")), "40,71417", "as after the start")
        desktop.open_popup(lambda: desktop.click_control("Set Latitude and Longitude"))
        desktop.key("Up", "Return")
        self.assertRegex(desktop.opened(), r"^https://[^/]+/products/lumivane/globalposition\.htm$")
        self.assertIsNotNone(desktop.window())

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
        self.preference("LVLatitude", "0.33333334")
        self.preference("LVLongitude", "6.733333")
        self.assertEqual(desktop.text(self.field("latitude")), "0.33333334")

    def test_brightness(self):
        desktop = self.desktop
        self.show("2024-05-15 12:00:00")

        def mean():
            desktop.picture(desktop.home + "/moon.png")
            return float(subprocess.run(["convert", desktop.home + "/moon.png", "-format", "%[fx:mean]", "info:"],
                                        check=True, capture_output=True, text=True).stdout)
        middle = mean()
        desktop.focus(desktop.find("Brightness of the pictures"))
        # The higher the level that becomes grey, the darker the picture.
        desktop.key("Home")
        self.preference("LVBrightness", "1")
        wait_for("a darker picture", lambda: mean() < middle - 0.02)
        desktop.key("End")
        self.preference("LVBrightness", "0")
        wait_for("a brighter picture", lambda: mean() > middle + 0.02)

    def test_commands(self):
        desktop = self.desktop
        self.show()
        home = r"^https://[^/]+/products/lumivane/mac/index\.htm$"
        desktop.choose("Lumivane Home Page")
        self.assertRegex(desktop.opened(), home)
        self.hidden()

        desktop.open_panel()
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

    def test_the_tab_key_reaches_every_control_from_top_to_bottom(self):
        desktop = self.desktop
        window = self.show()
        focusable = desktop.atspi().StateType.FOCUSABLE
        expected = {node.get_name() for node in desktop.walk(window)
                    if node.get_state_set().contains(focusable) and node.get_role_name() != "list item"
                    and desktop.shows(node)}
        self.assertGreaterEqual(len(expected), 24)
        reached = []
        while len(reached) < 40:
            node = desktop.focused()
            if reached and node.get_name() == reached[0][0]:
                break
            box = desktop.extents(node)
            if not reached or reached[-1][0] != node.get_name():
                reached.append((node.get_name(), (box.y // 20, box.x)))
            desktop.key("Tab")
        self.assertEqual({name for name, _ in reached}, expected)
        places = [place for _, place in reached]
        first = places.index(min(places))
        self.assertEqual(places[first:] + places[:first], sorted(places))


if __name__ == "__main__":
    unittest.main(verbosity=2)
