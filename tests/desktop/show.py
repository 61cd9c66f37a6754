#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Starts the program on a virtual desktop, opens its panel, prints the panel's text and saves a screenshot:
show.py PROGRAM SCREENSHOT"""

import os
import sys

from desktop import Desktop, output, wait_for


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
        panel = "%(width)dx%(height)d+%(x)d+%(y)d" % vars(desktop.rectangle())

        def painted():  # a window is there before it is
            desktop.screenshot(screenshot)
            return output("convert", screenshot, "-crop", panel, "-format", "%k", "info:") != "1"
        wait_for("more than one colour", painted)
        print("\nScreenshot: " + os.path.abspath(screenshot))
    finally:
        sys.stderr.write(desktop.logged() if desktop.program else "")
        desktop.close()


main()
