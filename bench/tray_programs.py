# SPDX-License-Identifier: MIT
"""What tray programs cost on a virtual desktop: start to icon, memory, and a time at rest; for Lumivane also the time
from the click to the painted panel."""

import ctypes
import glob
import os
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tests/desktop"))
from desktop import Desktop, Gio, GLib, wait_for  # noqa: E402


class Screen:
    """Single pixels of the X screen, quicker than any screenshot."""

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        for name, result in (("XOpenDisplay", ctypes.c_void_p), ("XDefaultRootWindow", ctypes.c_ulong),
                             ("XGetImage", ctypes.c_void_p), ("XGetPixel", ctypes.c_ulong)):
            getattr(self.x, name).restype = result
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))

    def pixels(self, x, y, width):
        image = ctypes.c_void_p(self.x.XGetImage(self.display, self.root, x, y, width, 1, ctypes.c_ulong(~0), 2))
        values = tuple(self.x.XGetPixel(image, i, 0) for i in range(width))
        self.x.XDestroyImage(image)
        return values


def family(pid):
    """A process and all that it started."""
    parents = {}
    for stat in glob.glob("/proc/[0-9]*/stat"):
        try:
            with open(stat) as file:
                parents[int(stat.split("/")[2])] = int(file.read().rsplit(")", 1)[1].split()[1])
        except OSError:
            pass  # it has ended
    members = {pid}
    while True:
        more = {child for child, parent in parents.items() if parent in members} - members
        if not more:
            return members
        members |= more


def work(pids):
    """Context switches of each thread, and CPU seconds of all."""
    switches = {}
    ticks = 0
    for pid in pids:
        for status in glob.glob("/proc/%d/task/*/status" % pid):
            with open(status) as lines:
                switches[status] = sum(int(line.split()[1]) for line in lines if "ctxt_switches" in line)
        with open("/proc/%d/stat" % pid) as stat:
            fields = stat.read().rsplit(")", 1)[1].split()
        ticks += int(fields[11]) + int(fields[12])
    return switches, ticks / os.sysconf("SC_CLK_TCK")


def memory(pids):
    """RSS, PSS, private memory and what of it is dirty, in MB."""
    values = dict.fromkeys(("Rss", "Pss", "Private_Clean", "Private_Dirty"), 0)
    for pid in pids:
        with open("/proc/%d/smaps_rollup" % pid) as lines:
            for line in lines:
                name, _, rest = line.partition(":")
                if name in values:
                    values[name] += int(rest.split()[0]) / 1024
    dirty = values["Private_Dirty"]
    return {"RSS": values["Rss"], "PSS": values["Pss"], "private memory": values["Private_Clean"] + dirty,
            "private dirty memory": dirty}


def start(desktop, command):
    """Starts a program; milliseconds until its icon is registered."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    loop = GLib.MainLoop()
    times = []

    def registered(*_):
        times.append(time.monotonic())
        loop.quit()
    subscription = bus.signal_subscribe(None, "org.kde.StatusNotifierWatcher", "StatusNotifierItemRegistered", None,
                                        None, Gio.DBusSignalFlags.NONE, registered)
    bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetId", None, None, 0, 1000, None)
    GLib.timeout_add_seconds(20, loop.quit)
    begin = time.monotonic()
    desktop.start(command, fresh=False, tray=False)
    loop.run()
    bus.signal_unsubscribe(subscription)
    return (times[0] - begin) * 1000 if times else None


def stop(desktop):
    desktop.stop()
    wait_for("the icon to go", lambda: not desktop.items())


def click_to_paint(desktop, screen):
    """Milliseconds from the tray's Activate to the first lines of the panel's text on the screen."""
    def activate():
        desktop.call_item("Activate", GLib.Variant("(ii)", (1200, 14)))
    row = (1000, 236, 220)  # through the phase phrase
    dark = screen.pixels(*row)
    begin = time.monotonic()
    activate()
    while len(set(screen.pixels(*row))) < 3:
        if time.monotonic() - begin > 5:
            raise AssertionError("the panel did not show")
    taken = (time.monotonic() - begin) * 1000
    time.sleep(0.3)
    activate()
    wait_for("the panel to hide", lambda: screen.pixels(*row) == dark)
    time.sleep(0.2)
    return taken


def rest(desktop, command, seconds, clicks):
    """A program's figures from its start to its rest, as rows of the table."""
    start(desktop, command)
    time.sleep(5)
    rows = {"PSS before the first click": (memory(family(desktop.program.pid))["PSS"], "MB")}
    if clicks:
        screen = Screen()
        rows["click to painted panel"] = statistics.median(click_to_paint(desktop, screen) for _ in range(clicks)), "ms"
    time.sleep(35)  # until whatever a start leaves behind has ended; idle threads of a pool live for 30 s
    pids = family(desktop.program.pid)
    rows.update((row, (value, "MB")) for row, value in memory(pids).items())
    before, cpu_before = work(pids)
    time.sleep(seconds)
    after, cpu_after = work(pids)
    stop(desktop)
    switches = sum(after[thread] - count for thread, count in before.items() if thread in after)
    rows["context switches in %d s, hidden" % seconds] = switches, ""
    rows["CPU time in %d s, hidden" % seconds] = (cpu_after - cpu_before) * 1000, "ms"
    return rows


def measure(programs, runs, seconds, clicked):
    """The figures of each program that shows an icon: name to row to value and unit. Those that are `clicked` open
    Lumivane's panel."""
    desktop = Desktop()
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "0"
    try:
        starts = {name: [] for name in programs}
        for _ in range(runs):  # in turn, so that a busy moment of the machine meets them all
            for name, times in starts.items():
                times.append(start(desktop, programs[name]))
                time.sleep(0.3)
                stop(desktop)
        figures = {}
        for name, times in starts.items():
            if None not in times:
                figures[name] = {"start to icon": (statistics.median(times), "ms"),
                                 **rest(desktop, programs[name], seconds, runs if name in clicked else 0)}
        return figures
    finally:
        desktop.close()
