#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program beyond its panel: the start of the session and the place it runs from."""

import os
import pathlib
import shutil
import subprocess
import unittest

from cases import PROGRAM, DesktopCase
from desktop import wait_for


class ShellTest(DesktopCase):
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

    def test_a_quarter_is_told_once(self):
        desktop = self.desktop
        service, path = "org.freedesktop.Notifications", "/org/freedesktop/Notifications"
        config = pathlib.Path(desktop.home, "dunstrc")
        config.write_text("[global]\nmouse_left_click = do_action, close_current\n")
        desktop.spawn(["dunst", "-conf", config])
        wait_for("the notification service", lambda: desktop.bus_has(service))

        def click(box):  # what was just shown takes none for a moment
            desktop.click(box.x + box.width // 2, box.y + box.height // 2)
            return not desktop.titled("Dunst")

        desktop.start(PROGRAM, "2009-12-24 17:40:00")  # four minutes after the first quarter
        desktop.open_panel()
        desktop.choose("Tell Me the Quarters")
        wait_for("the check mark", lambda: desktop.commands()["Tell Me the Quarters"] == 1)
        for moment, is_told in (("2009-12-24 17:50:00", False), ("2009-12-31 19:14:00", True),
                                ("2009-12-31 19:20:00", False)):
            desktop.stop()
            desktop.start(PROGRAM, moment, fresh=False)
            if is_told:
                box = desktop.rectangle("Dunst")
                wait_for("the notification to take a click", lambda: click(box))
                wait_for("the panel", desktop.window)
            else:
                desktop.open_panel()
                self.assertFalse(desktop.titled("Dunst"), moment)
        told = desktop.call(service, path, "org.dunstproject.cmd0", "NotificationListHistory").unpack()[0]
        self.assertEqual([(each["summary"], each["body"]) for each in told],
                         [("Full Moon", "12/31/09, 7:13 PM\nMoon is a Cold Moon")])

    def test_warning_comes_once_for_a_place(self):
        # The same tree without a desktop entry is not among the applications.
        tree = pathlib.Path(self.desktop.home, "elsewhere")
        shutil.copytree(pathlib.Path(PROGRAM).parent.parent, tree, dirs_exist_ok=True)
        shutil.rmtree(tree / "share/applications")
        program = str(tree / "bin/Lumivane")
        self.desktop.start(program)
        warning = "Lumivane is not installed among your applications."
        wait_for("the warning to have the keys", lambda: self.desktop.shown_text(warning) and self.desktop.dialog())
        self.desktop.key("Return")
        wait_for("the warning to go", lambda: not self.desktop.shown_text(warning))
        entry, = wait_for("the login item", self.autostart)
        self.assertIn(program, entry.read_text())
        self.desktop.stop()
        self.desktop.start(program, fresh=False)
        self.desktop.open_panel()
        self.assertFalse(self.desktop.shown_text(warning))
        # An update puts another file in the place of the running one, which is to start at the next login.
        shutil.copy(program, program + ".new")
        os.rename(program + ".new", program)
        self.assertEqual(self.desktop.commands()["Open at Login"], 1)
        self.desktop.choose("Open at Login")
        wait_for("the entry to go", lambda: not self.autostart())


if __name__ == "__main__":
    unittest.main(verbosity=2)
