#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The panel opens at the icon, whichever edge of the screen the tray is at."""

import shutil
import subprocess
import unittest

from cases import PROGRAM, DesktopCase
from desktop import GLib, rectangle, wait_for

BAR = 29
ROOM = {"top": rectangle(0, BAR, 1280, 800 - BAR), "bottom": rectangle(0, 0, 1280, 800 - BAR),
        "left": rectangle(BAR, 0, 1280 - BAR, 800), "right": rectangle(0, 0, 1280 - BAR, 800)}


class PlacementTest(DesktopCase):
    def move_panel(self, edge):
        """Moves the tray with the program's icon in it."""
        self.desktop.move_panel(edge)

        def is_there():
            icon = self.desktop.icon()
            return {"top": icon.y < 9, "bottom": icon.y > 763 and icon.x > 999, "left": icon.x < 9,
                    "right": icon.x > 1243}[edge]
        wait_for("the tray at the %s edge" % edge, is_there)

    def check(self, edges, rooms):
        self.desktop.start(PROGRAM)
        for edge in edges:
            with self.subTest(edge=edge):
                self.move_panel(edge)
                self.desktop.open_panel()
                self.assert_at_icon(self.desktop.icon(), rooms[edge])
                self.desktop.click_icon()
                self.hidden()

    def test_every_edge(self):
        self.check(("right", "left", "bottom", "top"), ROOM)
        # Some trays tell nonsense about the place of a click. The pointer is on the icon still.
        self.desktop.call_item("Activate", GLib.Variant("(ii)", (5, 700)))
        self.assert_at_icon(self.desktop.icon(), ROOM["top"])

    def test_folding_keeps_the_panel_at_the_icon(self):
        self.desktop.start(PROGRAM)
        self.move_panel("bottom")
        self.desktop.open_panel()
        high = self.desktop.rectangle().height
        for section in ("Moon", "Settings"):
            self.desktop.click_control(section)
        wait_for("the panel to shrink", lambda: self.desktop.rectangle().height < high - 100)
        self.assert_at_icon(self.desktop.icon(), ROOM["bottom"])
        # One that opens low and grows would leave the screen.
        self.desktop.click_icon()
        self.hidden()
        self.desktop.open_panel()
        for section in ("Moon", "Settings"):
            self.desktop.click_control(section)
        wait_for("the panel to grow", lambda: self.desktop.rectangle().height == high)
        self.assert_at_icon(self.desktop.icon(), ROOM["bottom"])

    def test_scaled_screen(self):
        self.desktop.start(PROGRAM, environment={"QT_SCALE_FACTOR": "2"})
        self.move_panel("top")
        self.desktop.open_panel()
        # Twice as wide, and no higher than the screen.
        self.assert_at_icon(self.desktop.icon(), ROOM["top"])
        self.assertGreater(self.desktop.rectangle().width, 600)

    def test_scaled_screen_without_the_pointer(self):
        # Under Wayland only the tray knows where the click was, and tells it in pixels or in Qt's points.
        self.desktop.start(PROGRAM, environment={"QT_SCALE_FACTOR": "2", "WAYLAND_DISPLAY": "none"})
        for edge, scale in (("left", 1), ("bottom", 2)):
            with self.subTest(edge=edge):
                self.move_panel(edge)
                icon = self.desktop.icon()
                self.desktop.call_item("Activate", GLib.Variant("(ii)", ((icon.x + 9) // scale, (icon.y + 9) // scale)))
                self.assert_at_icon(icon, ROOM[edge])
                self.desktop.key("Escape")
                self.hidden()

    @unittest.skipUnless(shutil.which("xrandr"), "needs xrandr")
    def test_two_monitors(self):
        # One above the other, and both too low for the panel.
        rooms = {"top": rectangle(0, BAR, 1280, 300 - BAR), "bottom": rectangle(0, 300, 1280, 500 - BAR)}
        for name, size, outputs in (("upper", "1280/340x300/80+0+0", "screen"),
                                    ("lower", "1280/340x500/140+0+300", "none")):
            subprocess.run(["xrandr", "--setmonitor", name, size, outputs], check=True, stdout=subprocess.DEVNULL)
            self.addCleanup(subprocess.run, ["xrandr", "--delmonitor", name], check=True)
        self.check(rooms, rooms)


if __name__ == "__main__":
    unittest.main(verbosity=2)
