# SPDX-License-Identifier: MIT
"""What the tests of the program on a desktop have in common."""

import os
import sys
import unittest

from desktop import Desktop, wait_for

PROGRAM = os.path.abspath(sys.argv.pop(1))
NEAR = 40


def distance(one, other):
    """How far two rectangles are apart along the axis where that is most; 0 where they touch."""
    return max(0,
               one.x - (other.x + other.width), other.x - (one.x + one.width),
               one.y - (other.y + other.height), other.y - (one.y + one.height))


def lies_within(inner, outer):
    return (outer.x <= inner.x and inner.x + inner.width <= outer.x + outer.width and
            outer.y <= inner.y and inner.y + inner.height <= outer.y + outer.height)


class DesktopCase(unittest.TestCase):
    """Tests on one desktop, which each leaves without the program."""

    @classmethod
    def make_desktop(cls):
        return Desktop()

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.make_desktop()
        cls.addClassCleanup(cls.desktop.close)

    def tearDown(self):
        self.assertIn(self.desktop.stop(), (0, -15, None))

    def hidden(self):
        wait_for("the panel to hide", lambda: not self.desktop.window())

    def assert_at_icon(self, icon, room):
        """The panel comes to lie at the icon, and wholly in `room`."""
        place = self.desktop.rectangle

        def is_there():
            panel = place()
            return distance(panel, icon) <= NEAR and lies_within(panel, room)
        try:
            wait_for("the panel at the icon", is_there, 3)
        except AssertionError:
            self.fail("icon %s, panel %s, room %s" % (icon, place(), room))
