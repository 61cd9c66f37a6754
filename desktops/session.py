#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""One fresh session of one shell; prints as JSON what is observed in it: session.py SHELL PROGRAM PICTURE FIRST.
FIRST is "icon" when only the icon of the first start is asked for, else "all"."""

import json
import os
import shutil
import signal
import subprocess
import sys
import time

from gi.repository import GLib

from shells import SHELLS
from desktop import Atspi, at_rest, different, rectangle, wait_for
from sway import leave_root

MENU = ["Show Lumivane", "Copy Information to Clipboard", "Open at Login", "Tell Me the Quarters",
        "Check for Update...", "Lumivane Home Page", "About Lumivane", "Quit Lumivane"]
NEAR = 40  # pixels between the icon and its panel
HOLD = 2.0  # seconds for which an icon must stay


class Session:
    def __init__(self, shell, program, picture):
        self.shell, self.program, self.picture = shell, program, picture
        self.icon = None
        self.clicked = 0.0

    def click_icon(self, button=1):
        # Two clicks are not one double click.
        time.sleep(max(0.0, self.clicked + 1 + self.shell.double_click / 1000 - time.monotonic()))
        x, y = self.icon.x + self.icon.width // 2, self.icon.y + self.icon.height // 2
        self.shell.point(x - 3, y)
        self.shell.point(x, y)
        self.shell.press(button, 2 if button == 1 and self.shell.double_click else 1)
        self.clicked = time.monotonic()

    def shown(self):
        return self.shell.titled("Lumivane")

    def open(self):
        """The panel's rectangle, after a click on the icon."""
        self.click_icon()
        wait_for("the panel", self.shown)
        return at_rest("the panel", self.shell.rectangle)

    def hide(self):
        self.click_icon()
        wait_for("the panel to hide", lambda: not self.shown())

    def shot(self, name):
        path = self.shell.picture_file(name)
        self.shell.screenshot(path)
        return path

    def wait_for_change(self, what, before, wide, high):
        """Waits until the screen differs from a picture in an area of at least that size."""
        def changed():
            box = different(before, self.shot("now"))
            return box and box.width >= wide and box.height >= high
        wait_for(what, changed)

    def icon_stays(self):
        """The watcher lists the item, its host draws an icon, and both still hold a little later."""
        wait_for("the watcher's list", lambda: len(self.shell.items()) == 1)
        icon = self.shell.icon()
        time.sleep(HOLD)
        assert len(self.shell.items()) == 1 and self.shell.find_icon() == icon, "the icon went again"
        self.icon = icon

    # What the table has: each gives the figure for a "yes", and fails with the reason of a "no".

    def first_start(self):
        self.shell.start(self.program)
        self.icon_stays()

    def panel_at_icon(self):
        box, icon = self.open(), self.icon
        self.shell.settle()
        self.shell.screenshot(self.picture)
        away = max(box.x - icon.x - icon.width, icon.x - box.x - box.width,
                   box.y - icon.y - icon.height, icon.y - box.y - box.height, 0)
        inside = (box.x >= 0 and box.y >= 0 and box.x + box.width <= self.shell.width
                  and box.y + box.height <= self.shell.height)
        self.hide()
        assert away <= NEAR and inside, "%d px%s" % (away, "" if inside else ", not on the screen")
        return "%d px" % away

    def not_listed(self):
        """The panel's window is marked for no task list and no pager, and a task list in the icon's bar stays as it
        was."""
        self.open()
        self.shell.settle()
        marks = self.shell.marks(self.shown()[0])
        beside = rectangle(0, self.icon.y, self.icon.x - 16, self.icon.height)
        drawn = self.shell.has_task_list and different(self.shell.bare, self.shot("now"), beside)
        self.hide()
        faults = ["no " + mark for mark in ("SKIP_TASKBAR", "SKIP_PAGER") if mark not in marks]
        assert not faults and not drawn, ", ".join(faults + ["drawn"] * bool(drawn))
        return "not drawn" if self.shell.has_task_list else None

    def menu(self):
        labels = [properties["label"].replace("_", "") for _, properties in self.shell.menu()]
        assert labels == MENU, ", ".join(labels)
        return "%d entries" % len(labels)

    def copy(self):
        """Another program pastes what the program copied, by the keys in each menu that has the command."""
        failed = []
        for name, way in (("gear menu", self.copy_by_gear), ("icon's menu", self.copy_by_icon),
                          ("icon's menu beside the panel", self.copy_beside_panel)):
            try:
                self.shell.copy("something else")
                wait_for("the other text", lambda: self.shell.paste() == "something else")
                way()
                wait_for("the text", lambda: "\nMoon is " in self.shell.paste(), 5)
                wait_for("the panel to go", lambda: not self.shown())
            except AssertionError as error:
                failed.append("%s: %s" % (name, error))
                if self.shown():
                    self.hide()
        assert not failed, "; ".join(failed)
        return "3 ways"

    def copy_by_gear(self):
        self.open()
        before = self.shot("before")
        self.shell.key("F10")
        self.wait_for_change("the gear menu", before, 100, 100)
        self.shell.key("Down", "Return")

    def copy_by_icon(self):
        if not self.shell.menu_takes_keys:
            self.shell.command("_Copy Information to Clipboard")
            return
        before = self.shot("before")
        self.click_icon(3)
        self.wait_for_change("the icon's menu", before, 100, 100)
        self.shell.key("Down", "Down", "Return")

    def copy_beside_panel(self):
        self.open()
        self.copy_by_icon()

    def tool_tip(self):
        """The item's text, and, where the shell shows it, that the pointer brings something up beside the bar."""
        lines = self.shell.item_property("ToolTip")[2].split("\n")
        assert len(lines) == 3 and lines[0].startswith("Moon is ") and lines[1].endswith(" illumination"), str(lines)
        if not self.shell.shows_tool_tips:
            return "3 lines, not shown there"
        self.shell.point(self.shell.width // 2, self.shell.height // 2)
        self.shell.settle()
        before = self.shot("before")
        for x in (3, 0):
            self.shell.point(self.icon.x + self.icon.width // 2 - x, self.icon.y + self.icon.height // 2)
        self.wait_for_change("the tool tip", before, 60, self.icon.height + 12)
        self.shell.point(self.shell.width // 2, self.shell.height // 2)
        return "3 lines, shown"

    def minimised(self):
        """A click on the icon brings the minimised utility window back."""
        self.open()
        before = self.shown()
        button = wait_for("the window button", lambda: next(
            (node for node in self.shell.walk(self.shell.window()) if node.get_name() == "Utility window"), None))
        Atspi.Action.do_action(button, 0)
        window = wait_for("the utility window", lambda: [new for new in self.shown() if new not in before])[0]
        at_rest("the window", self.shell.rectangle)
        if "MINIMIZE" not in self.shell.marks(window):
            return "not offered there"

        self.shell.minimise(window)
        wait_for("the window to be minimised", lambda: "HIDDEN" in self.shell.marks(window))
        self.click_icon()
        # Under Wayland it comes back as another one.
        wait_for("the window to come back", lambda: [
            window for window in self.shown() if "HIDDEN" not in self.shell.marks(window)])
        return None

    def tray_restart(self):
        self.shell.point(self.shell.width // 2, self.shell.height // 2)
        self.shell.restart_tray()
        self.shell.settle()
        self.icon_stays()


def observe(session, name):
    """[true, figure] or [false, reason]."""
    try:
        return [True, getattr(session, name)()]
    except (AssertionError, GLib.Error, OSError, subprocess.SubprocessError, IndexError) as error:
        return [False, str(error).replace("timed out waiting for ", "no sign of ")]


CHECKS = ("panel_at_icon", "not_listed", "menu", "copy", "tool_tip", "tray_restart", "minimised")


def main():
    name, program, picture, extent = sys.argv[1:]
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # so that the session ends with it
    user_program = leave_root(os.path.abspath(program))
    shell = SHELLS[name]()
    try:
        shell.settle()
        shell.bare = shell.picture_file("bare")
        shell.screenshot(shell.bare)
        session = Session(shell, user_program, picture)
        answers = {"first_start": observe(session, "first_start")}
        if not answers["first_start"][0]:
            shell.screenshot(picture.replace(".png", "-first_start.png"))
        for check in CHECKS if extent == "all" and answers["first_start"][0] else ():
            if check in shell.not_there:
                continue
            answers[check] = observe(session, check)
            if not answers[check][0]:
                print(name, check, answers[check][1], file=sys.stderr)
                shell.screenshot(picture.replace(".png", "-%s.png" % check))
                # What it left open is not for the next.
                shell.stop()
                shell.start(user_program)
        print(json.dumps(answers))
    finally:
        shell.close()
        if user_program != program:
            shutil.rmtree(os.path.dirname(os.path.dirname(user_program)), ignore_errors=True)


main()
