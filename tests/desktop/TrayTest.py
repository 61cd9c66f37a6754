#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Desktops without a tray, and trays that come late."""

import pathlib
import subprocess
import time
import unittest

from cases import PROGRAM, DesktopCase
from desktop import Desktop, rectangle, wait_for


class TrayTest(DesktopCase):
    # In the order of their names: the tray comes with the second.
    @classmethod
    def make_desktop(cls):
        return Desktop(tray=False)

    def test_a_without_a_tray(self):
        desktop = self.desktop
        events = pathlib.Path(desktop.home, "events")
        with events.open("w") as file:
            listener = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "property"], stdout=file)
        self.addCleanup(listener.kill)
        desktop.start(PROGRAM, tray=False, environment={"DESKTOP_STARTUP_ID": "moon_TIME1"})
        # The rest of the start does not wait for the session's tray, the window does.
        entry = pathlib.Path(desktop.home, "config/autostart")
        wait_for("the name", lambda: desktop.bus_has("com.corvanta.Lumivane"), 3)
        wait_for("the login item", lambda: list(entry.glob("*.desktop")), 3)
        wait_for("the end of the busy pointer", lambda: "_NET_STARTUP_INFO_BEGIN" in events.read_text(), 3)
        self.assertFalse(desktop.titled("Lumivane"))
        desktop.resting(wait_for("the utility window", desktop.window))
        desktop.click_control("Quit")  # nothing would bring it back
        self.assertEqual(desktop.program.wait(10), 0)

    def test_b_trays_come_and_go(self):
        desktop = self.desktop
        desktop.start(PROGRAM, tray=False)
        wait_for("the utility window", desktop.window)
        desktop.start_panel("bottom")
        wait_for("the tray item", lambda: len(desktop.items()) == 1)
        wait_for("the window to go", lambda: not desktop.window())
        desktop.open_panel()
        self.assertIn("SKIP_TASKBAR", self.state())
        self.assert_at_icon(desktop.icon(), rectangle(0, 0, 1280, 800))
        # Without its tray an open drop-down becomes a window, at the same moment; a hidden one stays hidden.
        desktop.click_control("Full moon")
        wait_for("the full moon", lambda: "Moon is full" in desktop.lines())
        desktop.crash_panel()
        wait_for("the utility window", lambda: "SKIP" not in self.state())
        wait_for("the full moon", lambda: "Moon is full" in desktop.lines())
        desktop.start_panel("bottom")
        wait_for("the window to go", lambda: not desktop.titled("Lumivane"))
        self.assertEqual(len(desktop.items()), 1)
        desktop.crash_panel()
        time.sleep(5)
        self.assertFalse(desktop.titled("Lumivane"))

    def state(self):
        """The window's states; while there is no window, one that it has not in the end."""
        windows = self.desktop.titled("Lumivane")
        return subprocess.run(["xprop", "-id", windows[0], "_NET_WM_STATE"], capture_output=True,
                              text=True).stdout if windows else "SKIP"


if __name__ == "__main__":
    unittest.main(verbosity=2)
