#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Starts the program on a virtual desktop, opens its panel, prints the panel's text and saves a screenshot:
show.py PROGRAM SCREENSHOT"""

import os
import sys

from desktop import Desktop, wait_for


def main():
    program, screenshot = sys.argv[1:]
    zone = os.environ.get("TZ")
    desktop = Desktop()
    try:
        desktop.start(os.path.abspath(program), zone=zone)
        desktop.open_panel()
        wait_for("the panel's text", desktop.lines)
        # Not the captions of fields, whose texts are no labels.
        print("\n".join(line for line in desktop.lines() if not line.endswith(":")))
        desktop.picture(screenshot)  # comes when the panel is painted
        desktop.screenshot(screenshot)
        print("\nScreenshot: " + os.path.abspath(screenshot))
    finally:
        sys.stderr.write(desktop.logged() if desktop.program else "")
        desktop.close()


main()
