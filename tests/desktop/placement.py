# SPDX-License-Identifier: MIT
"""What the tests of the panel's place have in common."""

import unittest

from desktop import wait_for

NEAR = 40


def distance(one, other):
    """How far two rectangles are apart along the axis where that is most; 0 where they touch."""
    return max(0,
               one.x - (other.x + other.width), other.x - (one.x + one.width),
               one.y - (other.y + other.height), other.y - (one.y + one.height))


def lies_within(inner, outer):
    return (outer.x <= inner.x and inner.x + inner.width <= outer.x + outer.width and
            outer.y <= inner.y and inner.y + inner.height <= outer.y + outer.height)


class PlacementCase(unittest.TestCase):
    """A test with a desktop."""

    def assert_at_icon(self, icon, place, room):
        """The panel comes to lie at the icon, and wholly in `room`; `place` tells where it is."""
        def is_there():
            panel = place()
            return distance(panel, icon) <= NEAR and lies_within(panel, room)
        try:
            wait_for("the panel at the icon", is_there, 3)
        except AssertionError:
            self.fail("icon %s, panel %s, room %s" % (icon, place(), room))
