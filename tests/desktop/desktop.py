# SPDX-License-Identifier: MIT
"""A virtual desktop with a real panel, and the program on it as a person meets it.

Xvfb, a D-Bus session, openbox and xfce4-panel; the pointer and the keys through xdotool; what the panel shows is
read through the accessibility bus."""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time
import types

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

PANEL_CONFIG = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0"><property name="configver" type="int" value="2"/>
<property name="panels" type="array"><value type="int" value="1"/><property name="dark-mode" type="bool" value="true"/>
<property name="panel-1" type="empty"><property name="mode" type="uint" value="{mode}"/>
<property name="position" type="string" value="{position}"/><property name="length" type="uint" value="100"/>
<property name="position-locked" type="bool" value="true"/><property name="size" type="uint" value="28"/>
<property name="plugin-ids" type="array"><value type="int" value="1"/><value type="int" value="2"/>
<value type="int" value="3"/></property></property></property>
<property name="plugins" type="empty"><property name="plugin-1" type="string" value="separator">
<property name="expand" type="bool" value="true"/><property name="style" type="uint" value="0"/></property>
<property name="plugin-2" type="string" value="systray"><property name="square-icons" type="bool" value="true"/>
<property name="known-items" type="array"><value type="string" value="lumivane"/></property></property>
<property name="plugin-3" type="string" value="clock"/></property></channel>
"""

# Of a panel at each edge: 1 for one that stands upright, and its place in a screen of 1280 by 800.
EDGES = {"top": (0, "p=6;x=640;y=14"), "bottom": (0, "p=8;x=640;y=786"),
         "left": (1, "p=6;x=14;y=400"), "right": (1, "p=2;x=1266;y=400")}

FAKETIME = "/usr/lib/{}-linux-gnu/faketime/libfaketime.so.1".format(os.uname().machine)


def wait_for(what, condition, seconds=15.0):
    """The first true answer of `condition`; fails with `what` after the time."""
    end = time.monotonic() + seconds
    while True:
        error = None
        try:
            answer = condition()
            if answer:
                return answer
        except GLib.Error as gone:  # a control that it asks may go away meanwhile
            error = gone
        if time.monotonic() > end:
            raise AssertionError("timed out waiting for " + what) from error
        time.sleep(0.05)


def at_rest(what, place):
    """The first place that is told twice in a row: what was just mapped, folded or embedded may still be moving."""
    def twice():
        before = place()
        time.sleep(0.1)
        return before and before == place() and before
    return wait_for(what + " to rest", twice)


def rectangle(x, y, width, height):
    return types.SimpleNamespace(x=x, y=y, width=width, height=height)


def output(*command):
    return subprocess.run(command, capture_output=True, text=True).stdout


def different(before, after, crop=None):
    """The rectangle around all pixels that differ between two pictures, or between those parts of them, or nothing."""
    crop = crop or rectangle(0, 0, 0, 0)  # which is everything
    # The border, the same in both, is what the rest is trimmed against.
    box = subprocess.run(
        ["convert", before, after, "-crop", "%dx%d+%d+%d" % (crop.width, crop.height, crop.x, crop.y), "+repage",
         "-compose", "difference", "-composite", "-colorspace", "gray", "-threshold", "4%", "-bordercolor", "black",
         "-border", "1", "-format", "%@", "info:"], capture_output=True, text=True).stdout
    width, height, x, y = map(int, re.findall(r"-?\d+", box)) if box else (0, 0, 0, 0)
    return rectangle(crop.x + x - 1, crop.y + y - 1, width, height) if width and x > 0 else None


class Desktop:
    """One virtual desktop, for the life of the process."""

    def __init__(self, size="1280x800", panel="top", tray=True):
        self.home = tempfile.mkdtemp(prefix="lumivane-desktop-")
        self.children = []
        self.program = None
        self.listens = False
        runtime = os.path.join(self.home, "runtime")
        os.mkdir(runtime, 0o700)
        os.environ.update(
            HOME=self.home, XDG_RUNTIME_DIR=runtime, XDG_CONFIG_HOME=self.home + "/config",
            XDG_DATA_HOME=self.home + "/data", XDG_CACHE_HOME=self.home + "/cache",
            XDG_CURRENT_DESKTOP="XFCE", QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            LC_ALL="C.UTF-8", NO_AT_BRIDGE="0", GTK_A11Y="atspi", GSETTINGS_BACKEND="memory")
        for name in ("WAYLAND_DISPLAY", "LANGUAGE", "LD_PRELOAD", "TZ", "LUMIVANE_CONFIG_HOME"):
            os.environ.pop(name, None)
        try:
            self.start_screen(size)
            self.start_bus()
            self.start_session(panel if tray else None)
        except BaseException:
            self.close()
            raise

    def start_screen(self, size):
        # When its first client leaves before the second has come, a server that resets drops that one.
        os.environ["DISPLAY"] = ":" + self.spawn_server(
            "Xvfb", "-displayfd", "{}", "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset")

    def start_bus(self):
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.spawn_server(
            "dbus-daemon", "--session", "--nofork", "--print-address={}")

    def start_window_manager(self):
        # A panel that maps its window while this one starts stays off the screen.
        self.spawn(["openbox"])
        wait_for("the window manager", lambda: "window id" in output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))

    def start_session(self, edge):
        self.start_window_manager()
        if edge:
            self.start_panel(edge)

    def spawn(self, command, **keywords):
        child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **keywords)
        self.children.append(child)
        return child

    def spawn_server(self, *command):
        """Starts a server; the address that it writes to the descriptor in the place of {}."""
        reader, writer = os.pipe()
        self.spawn([argument.format(writer) for argument in command], pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as answer:
            return answer.readline().strip()

    def start_panel(self, edge):
        folder = pathlib.Path(self.home, "config/xfce4/xfconf/xfce-perchannel-xml")
        folder.mkdir(parents=True, exist_ok=True)
        mode, position = EDGES[edge]
        (folder / "xfce4-panel.xml").write_text(PANEL_CONFIG.format(mode=mode, position=position))
        self.run_panel()

    def run_panel(self):
        # Even so, on a busy machine, its window now and then stays away; another try brings it up.
        for _ in range(3):
            self.panel = self.spawn(["xfce4-panel", "--disable-wm-check"])
            wait_for("the tray", lambda: self.bus_has("org.kde.StatusNotifierWatcher"), 30)
            try:
                return wait_for("the panel's window", lambda: output(
                    "xdotool", "search", "--onlyvisible", "--class", "xfce4-panel"), 4)
            except AssertionError:
                self.crash_panel()
        raise AssertionError("the panel stays off the screen")

    def crash_panel(self):
        """Ends the panel without a chance to say so, and with it the tray in it."""
        self.panel.kill()
        self.panel.wait()
        self.children.remove(self.panel)
        wait_for("the tray to go", lambda: not self.bus_has("org.kde.StatusNotifierWatcher"))

    def move_panel(self, edge):
        """Puts the running panel to another edge."""
        mode, position = EDGES[edge]
        for key, kind, value in (("mode", "uint", mode), ("position", "string", position)):
            subprocess.run(["xfconf-query", "-c", "xfce4-panel", "-p", "/panels/panel-1/" + key,
                            "-n", "-t", kind, "-s", str(value)], check=True)

    def call(self, name, path, interface, method, arguments=None):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        return bus.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 30000, None)

    def bus_has(self, name):
        return self.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner",
                         GLib.Variant("(s)", (name,))).unpack()[0]

    def property(self, name, path, interface, key):
        return self.call(name, path, "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (interface, key))).unpack()[0]

    def items(self):
        """The addresses of the tray's items."""
        return self.property("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                             "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems")

    def item(self):
        """The name of the program's item on the bus, which watchers tell with and without a path."""
        return re.match("[^/@]+", self.items()[0]).group()

    def item_property(self, key):
        return self.property(self.item(), "/StatusNotifierItem", "org.kde.StatusNotifierItem", key)

    # The program

    def start(self, program, moment=None, zone="UTC", environment=None, fresh=True, tray=True):
        """Starts the program at a moment ("2009-12-20 12:00:00", read in `zone`), by default with the preferences
        of a first start."""
        if fresh:
            for folder in ("config/lumivane", "config/autostart"):
                shutil.rmtree(os.path.join(self.home, folder), ignore_errors=True)
        variables = dict(os.environ, **(environment or {}))
        # As an installed program is: its desktop entry finds it.
        folder = os.path.dirname(os.path.abspath(program))
        variables["PATH"] = folder + ":" + os.environ["PATH"]
        variables["XDG_DATA_DIRS"] = os.path.dirname(folder) + "/share:/usr/local/share:/usr/share"
        if zone:
            variables["TZ"] = zone
        if moment:
            variables.update(LD_PRELOAD=FAKETIME, FAKETIME="@" + moment, FAKETIME_DONT_FAKE_MONOTONIC="1")
        with open(os.path.join(self.home, "log"), "wb") as log:
            self.program = subprocess.Popen([program], env=variables, stdout=log, stderr=log)
        if tray:
            wait_for("the tray item", lambda: len(self.items()) == 1)
        return self.program

    def logged(self):
        return pathlib.Path(self.home, "log").read_text(errors="replace")

    def stop(self):
        """Ends the program; its exit status."""
        if not self.program:
            return None
        if self.program.poll() is None:
            self.program.terminate()
        status = self.wait_or_kill(self.program, 10)
        self.program = None
        # A click on what is left of it would go nowhere.
        wait_for("the icon to go", lambda: not self.find_icon())
        return status

    def wait_or_kill(self, process, seconds):
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            process.kill()
            return process.wait()

    def close(self):
        try:
            self.stop()
        finally:
            for child in reversed(self.children):
                child.send_signal(signal.SIGTERM)
            for child in self.children:
                self.wait_or_kill(child, 5)
            shutil.rmtree(self.home, ignore_errors=True)

    # A person's hands

    def xdotool(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True, stdout=subprocess.DEVNULL)

    def click(self, x, y, button=1):
        self.xdotool("mousemove", int(x), int(y), "click", button)

    def key(self, *keys):
        self.xdotool("key", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "20", "--", text)

    def clipboard(self, target="UTF8_STRING"):
        return output("xclip", "-selection", "clipboard", "-o", "-t", target)

    # What the program opens and shows

    def install_browser(self):
        """A browser for web pages that only notes what it is to open."""
        home = pathlib.Path(self.home)
        (home / "data/applications").mkdir(parents=True)
        (home / "browser").write_text('#!/bin/sh\necho "$@" >> "%s/opened"\n' % home)
        (home / "browser").chmod(0o755)
        (home / "data/applications/browser.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Browser\nExec=%s/browser %%u\n" % home)
        (home / "config/mimeapps.list").write_text(
            "[Default Applications]\nx-scheme-handler/https=browser.desktop\n")

    def opened(self):
        """The page that was opened since the last call."""
        opened = pathlib.Path(self.home, "opened")
        page = wait_for("the page", lambda: opened.exists() and opened.read_text()).strip()
        opened.unlink()
        return page

    def screenshot(self, path):
        subprocess.run(["import", "-window", "root", path], check=True)

    def titled(self, name):
        """The X windows of that title which are on the screen."""
        return output("xdotool", "search", "--onlyvisible", "--name", "^" + name + "$").split()

    def rectangle(self, name="Lumivane"):
        """Where the X window of that title is, in the screen's pixels."""
        shown = output("xwininfo", "-id", wait_for("the window", lambda: self.titled(name))[0])
        return rectangle(*(int(re.search(key + r":\s+(-?\d+)", shown).group(1))
                           for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")))

    def find_icon(self):
        """The rectangle of the tray inside the panel while there is one icon in it, and nothing else."""
        # Tool tips and menus of the same program are children of the screen, and so no deeper in the tree than that.
        for place in re.findall(r'^ {6,}.*"Wrapper-2.0"\)\s+(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)',
                                output("xwininfo", "-root", "-tree"), re.MULTILINE):
            width, height, x, y = map(int, place)
            if min(width, height) >= 20 and max(width, height) < 40:
                return rectangle(x, y, width, height)
        return None

    def icon(self):
        """The icon's rectangle on the screen."""
        return at_rest("the icon in the panel", self.find_icon)

    def click_icon(self, button=1):
        icon = self.icon()
        self.click(icon.x + icon.width // 2, icon.y + icon.height // 2, button)

    # What a screen reader hears

    def application(self, name):
        if not self.listens:
            Atspi.init()
            Atspi.set_timeout(4000, 4000)
            self.listens = True
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        return next((child for child in self.children_of(desktop) if child.get_name() == name), None)

    def children_of(self, node):
        for index in range(node.get_child_count() if node else 0):
            child = node.get_child_at_index(index)
            if child:
                yield child

    def walk(self, node):
        if node:
            node.clear_cache()  # what was told once may be old: nobody here listens to changes
            yield node
            for child in self.children_of(node):
                yield from self.walk(child)

    def extents(self, node):
        return Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)

    def has_state(self, node, state):
        while GLib.MainContext.default().iteration(False):  # what changed since is heard of only here
            pass
        return node.get_state_set().contains(state)

    def shows(self, node):
        return self.has_state(node, Atspi.StateType.SHOWING)

    def window(self, name="Lumivane"):
        """The program's window of that title, or nothing while there is none on the screen."""
        return next((child for child in self.children_of(self.application("Lumivane"))
                     if child.get_name() == name and self.shows(child)), None)

    def dialog(self):
        """The dialog that is open and takes the keys, or nothing."""
        return next((child for child in self.children_of(self.application("Lumivane"))
                     if child.get_role_name() in ("dialog", "alert") and self.shows(child)
                     and self.has_state(child, Atspi.StateType.ACTIVE)), None)

    def text(self, node):
        """What an editable field holds."""
        return Atspi.Text.get_text(node, 0, -1)

    def focus(self, node):
        """Gives a control the keyboard's focus as assistive programs do."""
        Atspi.Component.grab_focus(node)
        wait_for("the focus", lambda: self.has_state(node, Atspi.StateType.FOCUSED))

    def open_panel(self):
        """Clicks the icon and waits for the panel, until it has the keys as well."""
        def active():
            panel = self.window()
            return panel if panel and self.has_state(panel, Atspi.StateType.ACTIVE) else None
        self.click_icon()
        return wait_for("the panel", active)

    def open_popup(self, click):
        """Makes a click that opens a menu or a list, and waits until it is there to take keys."""
        def windows():
            return set(output("xdotool", "search", "--onlyvisible", "--class", "^Lumivane$").split())
        before = windows()
        click()
        wait_for("the popup", lambda: windows() - before)

    def open_utility_window(self):
        """Clicks the window button of the drop-down and waits for the window that takes its place."""
        before = self.titled("Lumivane")
        self.click_control("Utility window")
        wait_for("the drop-down to go", lambda: not set(before) & set(self.titled("Lumivane")))
        return wait_for("the utility window", lambda: self.titled("Lumivane") and self.window())

    def resting(self, node):
        """The rectangle of a window or control that has come to rest: it is told as being there before it is told
        where."""
        def place():
            box = self.extents(node)
            return rectangle(box.x, box.y, box.width, box.height) if (box.x, box.y) != (0, 0) else None
        return at_rest("the control", place)

    def find(self, name, root=None):
        """The control of that accessible name."""
        found = next((node for node in self.walk(root or self.window()) if node.get_name() == name), None)
        assert found, "no control " + name
        return found

    def click_control(self, name, root=None):
        box = self.resting(self.find(name, root))
        self.click(box.x + box.width // 2, box.y + box.height // 2)

    def lines(self):
        """The texts that the panel shows, from top to bottom."""
        return [node.get_name() for node in self.walk(self.window())
                if node.get_role_name() == "label" and node.get_name() and self.shows(node)]

    def line(self, start):
        """The panel's line that starts so."""
        return next((line for line in self.lines() if line.startswith(start)), None)

    def shown_text(self, text):
        """Whether any window of the program shows this text."""
        return any(node.get_name() == text and self.shows(node) for node in self.walk(self.application("Lumivane")))

    def call_item(self, method, arguments):
        """What the tray calls of the program's item."""
        return self.call(self.item(), "/StatusNotifierItem", "org.kde.StatusNotifierItem", method, arguments)

    def call_menu(self, method, arguments):
        menu = self.item_property("Menu")
        return self.call(self.item(), menu, "com.canonical.dbusmenu", method, arguments).unpack()

    def menu(self):
        """The items of the tray's menu, each with its number and its properties."""
        self.call_menu("AboutToShow", GLib.Variant("(i)", (0,)))
        layout = self.call_menu("GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1]
        return [item[:2] for item in layout[2] if item[1].get("type") != "separator"]

    def command(self, label):
        """Chooses a command from the tray's menu."""
        number = next(number for number, item in self.menu() if item["label"] == label)
        self.call_menu("Event", GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("s", ""), 0)))

    def commands(self):
        """The gear menu's commands as the tray's menu has them, each with its check mark (None without one)."""
        return {item["label"].replace("_", ""): item.get("toggle-state") for _, item in self.menu()
                if item["label"] != "_Show Lumivane"}

    def choose(self, command):
        """Chooses a command from the gear menu, by the keyboard: menus are not among what a screen reader walks."""
        place = list(self.commands()).index(command)
        self.open_popup(lambda: self.click_control("Menu"))
        self.key(*["Down"] * (place + 1), "Return")
