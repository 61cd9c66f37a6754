# SPDX-License-Identifier: MIT
"""The real shells, each in a session of its own without a graphics card: how it starts, how its tray is restarted,
and where pointer, keys, pictures and the clipboard are. Sessions on X11 run in Xvfb; Sway and KWin run in a window that
fills one, so that pointer and pictures are X11's there as well; GNOME Shell runs headless, and its own remote desktop
interface moves its pointer."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

from gi.repository import Gio, GLib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tests/desktop"))
import desktop  # noqa: E402
from desktop import Desktop, at_rest, rectangle, wait_for  # noqa: E402
from sway import SwayDesktop  # noqa: E402

WATCHER = "org.kde.StatusNotifierWatcher"
PATIENCE = 60  # seconds for a shell's parts to come up on a busy machine


def different(before, after, crop=None):
    """The rectangle around all pixels that differ between two pictures, or nothing."""
    part = ["-crop", "%dx%d+%d+%d" % (crop.width, crop.height, crop.x, crop.y), "+repage"] if crop else []
    # A border, which is the same in both, is what the rest is trimmed against.
    box = subprocess.run(
        ["convert", before, after, *part, "-compose", "difference", "-composite", "-colorspace", "gray", "-threshold",
         "4%", "-bordercolor", "black", "-border", "1", "-format", "%@", "info:"],
        capture_output=True, text=True).stdout
    width, height, x, y = map(int, re.findall(r"-?\d+", box)) if box else (0, 0, 0, 0)
    if width == 0 or x < 1:
        return None
    left, top = (crop.x, crop.y) if crop else (0, 0)
    return rectangle(left + x - 1, top + y - 1, width, height)


class Shell(Desktop):
    """A shell on X11 with openbox; those below say what is different."""
    name = None
    desktop_name = None
    tool_tips = True
    width, height = 1280, 800
    task_list = True  # in the bar
    knows_nothing_of = ()  # checks that make no sense there
    settings = ""  # the session's GSettings
    session = {}  # variables of the programs in the session, where they are not ours
    double_click = False  # is what activates an icon

    def __init__(self):
        self.bare = None
        super().__init__(size="%dx%d" % (self.width, self.height))

    def start_screen(self, size):
        for name in ("QT_QPA_PLATFORM", "GTK_A11Y"):
            os.environ.pop(name, None)
        # Settings in a plain file; nothing is drawn by a graphics card.
        os.environ.update(XDG_CURRENT_DESKTOP=self.desktop_name, GSETTINGS_BACKEND="keyfile",
                          LIBGL_ALWAYS_SOFTWARE="1", QT_QUICK_BACKEND="software")
        if self.settings:
            self.write("config/glib-2.0/settings/keyfile", self.settings)
        self.start_display(size)

    def start_display(self, size):
        super().start_screen(size)

    def write(self, path, text):
        path = pathlib.Path(self.home, path)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return str(path)

    def start_panel(self, edge):
        self.run_panel()

    def run_panel(self):
        self.panel = self.spawn([self.name + "-panel"])
        self.wait_for_tray()

    def wait_for_tray(self):
        wait_for("the tray", lambda: self.bus_has(WATCHER) and self.property(
            WATCHER, "/StatusNotifierWatcher", WATCHER, "IsStatusNotifierHostRegistered"), PATIENCE)

    def restart_tray(self):
        self.crash_panel()
        self.run_panel()

    def settle(self):
        """Waits until the shell has drawn itself and changes nothing more for a second."""
        last = self.picture_file("settling")

        def same():
            before = last + ".before"
            os.replace(last, before)
            time.sleep(1)
            self.screenshot(last)
            colours = subprocess.run(["convert", last, "-format", "%k", "info:"], capture_output=True, text=True)
            return int(colours.stdout) > 1 and not different(before, last)
        self.screenshot(last)
        wait_for("the shell to settle", same, PATIENCE)

    def picture_file(self, name):
        return os.path.join(self.home, name + ".bmp")  # quick to write and to read

    def note_bare(self):
        """Remembers how the screen looks without the program."""
        self.bare = self.picture_file("bare")
        self.screenshot(self.bare)

    def find_icon(self):
        """What differs from the screen without the program, if that has the size of an icon in a bar at an edge."""
        now = self.picture_file("now")
        self.screenshot(now)
        box = different(self.bare, now)
        at_edge = box and (box.y + box.height < 60 or box.y > self.height - 60)
        return box if at_edge and 8 <= box.width <= 64 and box.height >= 8 else None

    def point(self, x, y):
        """Moves the pointer."""
        self.xdotool("mousemove", int(x), int(y))

    def press(self, button, times=1):
        self.xdotool("click", "--repeat", times, "--delay", 60, button)

    def run(self, *command):
        """Runs a program in the session and gives what it prints."""
        return subprocess.run(command, env=dict(os.environ, **self.session), capture_output=True, text=True,
                              timeout=20).stdout

    def tell(self, *command, text):
        """Runs a program in the session that takes a text and stays behind with it."""
        subprocess.run(command, env=dict(os.environ, **self.session), input=text, text=True, timeout=20, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def start(self, program, **keywords):
        return super().start(program, environment=self.session, zone=None, **keywords)

    def titled(self, name):
        return self.run("xdotool", "search", "--onlyvisible", "--name", "^" + name + "$").split()

    def rectangle(self, name="Lumivane"):
        shown = self.run("xwininfo", "-id", wait_for("the window", lambda: self.titled(name))[0])
        return rectangle(*(int(re.search(key + r":\s+(-?\d+)", shown).group(1))
                           for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")))

    def copy(self, text):
        """Another program copies a text."""
        self.tell("xclip", "-selection", "clipboard", text=text)

    def paste(self):
        """What another program pastes."""
        return self.run("xclip", "-selection", "clipboard", "-o")


class Wayland(Shell):
    """A shell under Wayland; the program runs in XWayland there."""

    def copy(self, text):
        self.tell("wl-copy", text=text)

    def paste(self):
        return self.run("wl-paste", "--no-newline")


class Xfce(Shell):
    name = "xfce4"
    desktop_name = "XFCE"

    def start_panel(self, edge):
        # In place of the clock, which changes by itself, and in front, so that the tray keeps its place.
        order = ['<value type="int" value="%d"/>' % number for number in (1, 2, 3)]
        desktop.PANEL_CONFIG = desktop.PANEL_CONFIG.replace('"clock"', '"tasklist"').replace(
            "".join(order), "".join([order[2], *order[:2]]))
        Desktop.start_panel(self, edge)

    def run_panel(self):
        Desktop.run_panel(self)


class Mate(Shell):
    name = "mate"
    desktop_name = "MATE"

    applets = {"notification-area": "NotificationAreaAppletFactory::NotificationArea'\nposition=10\npanel-right-stick=true",
               "window-list": "WnckletFactory::WindowListApplet'\nposition=20"}
    settings = ("[org/mate/panel/general]\ntoplevel-id-list=['top']\nobject-id-list=%s\n"
                "[org/mate/panel/toplevels/top]\nexpand=true\norientation='top'\nsize=28\n" % list(applets)
                + "".join("[org/mate/panel/objects/%s]\ntoplevel-id='top'\nobject-type='applet'\napplet-iid='%s\n" % applet
                          for applet in applets.items()))


class Lxqt(Shell):
    name = "lxqt"
    desktop_name = "LXQt"

    def start_panel(self, edge):
        self.write("config/lxqt/lxqt.conf", "[General]\ntheme=frost\nicon_theme=Adwaita\n")
        plugins = ("mainmenu", "taskbar", "tray", "statusnotifier")
        self.write("config/lxqt/panel.conf", "panels=panel1\n[panel1]\nposition=Bottom\npanelSize=32\niconSize=22\n"
                   "width=100\nwidth-percent=true\nplugins=%s\n" % ",".join(plugins)
                   + "".join("[%s]\ntype=%s\n" % (plugin, plugin) for plugin in plugins))
        self.run_panel()


class Plasma(Shell):
    name = "plasma"
    desktop_name = "KDE"
    own_icons = ["touchpad", *("org.kde.plasma." + name for name in (
        "battery", "keyboardlayout", "manage-inputmethod", "mediacontroller", "devicenotifier", "clipboard",
        "notifications"))]

    def start_display(self, size):
        os.environ.update(KDE_FULL_SESSION="true", KDE_SESSION_VERSION="5", KWIN_COMPOSE="Q")
        self.write("config/plasma-org.kde.plasma.desktop-appletsrc", "".join(
            "[Containments][%s]\n%s\n" % part for part in (
                ("1", "plugin=org.kde.panel\nformfactor=2\nlocation=4\nlastScreen=0\nimmutability=1"),
                ("1][Applets][2", "plugin=org.kde.plasma.icontasks"),
                ("1][Applets][3", "plugin=org.kde.plasma.systemtray"),
                ("1][Applets][3][Configuration", "SystrayContainmentId=4"),
                ("1][General", "AppletOrder=2;3"),
                ("4", "plugin=org.kde.plasma.private.systemtray\nformfactor=2\nlocation=4\nlastScreen=0"),
                # None of its own icons, which move when another comes.
                ("4][General", "extraItems=\nknownItems=" + ",".join(self.own_icons)))))
        super().start_display(size)

    def start_window_manager(self):
        self.spawn(["kwin_x11"])

    def run_panel(self):
        self.spawn(["kded5"], env=dict(os.environ, **self.session))
        wait_for("the services' daemon", lambda: self.bus_has("org.kde.kded5"), PATIENCE)
        wait_for("the watcher", lambda: self.call("org.kde.kded5", "/kded", "org.kde.kded5", "loadModule", GLib.Variant(
            "(s)", ("statusnotifierwatcher",))).unpack()[0], PATIENCE)
        self.panel = self.spawn(["plasmashell"], env=dict(os.environ, **self.session))
        self.wait_for_tray()

    def restart_tray(self):
        self.panel.kill()
        self.panel.wait()
        self.children.remove(self.panel)
        self.panel = self.spawn(["plasmashell"], env=dict(os.environ, **self.session))
        self.wait_for_tray()


class PlasmaWayland(Plasma, Wayland):
    name = "plasma-wayland"

    def start_window_manager(self):
        # What lets the installed one run with priority is refused in some containers; a copy is without it.
        kwin = shutil.copy(shutil.which("kwin_wayland"), self.home)
        tell = self.write("tell", "#!/bin/sh\nenv > %s/part && mv %s/part %s/session\n" % (self.home, self.home, self.home))
        os.chmod(tell, 0o755)
        os.environ["XDG_SESSION_TYPE"] = "wayland"
        self.spawn([kwin, "--x11-display", os.environ["DISPLAY"], "--width", "1280", "--height", "800", "--xwayland",
                    "--no-lockscreen", tell])
        session = pathlib.Path(self.home, "session")
        wait_for("KWin", session.exists, PATIENCE)
        variables = dict(line.split("=", 1) for line in session.read_text().splitlines() if "=" in line)
        self.session = {name: variables[name] for name in ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY") if name in variables}


class Sway(Wayland, SwayDesktop):
    name = "sway"
    desktop_name = "sway"
    height = 720
    task_list = False
    knows_nothing_of = ("not_listed", "minimised")
    rectangle = SwayDesktop.rectangle

    def __init__(self):
        self.bare = None
        SwayDesktop.__init__(self, "top")

    def start_panel(self, edge):
        SwayDesktop.start_panel(self, edge)

    def run_panel(self):
        bar = pathlib.Path(self.home, "config/waybar/config")
        bar.write_text(bar.read_text().replace('"tray", "clock"', '"tray"'))  # whose picture changes by itself
        SwayDesktop.run_panel(self)


class Gnome(Wayland):
    name = "gnome"
    desktop_name = "GNOME"
    extension = "ubuntu-appindicators@ubuntu.com"
    tool_tips = False
    double_click = True
    task_list = False
    remote = "org.gnome.Mutter.RemoteDesktop"
    keys = {"Shift": 0xffe1, "Down": 0xff54, "Return": 0xff0d, "Escape": 0xff1b, "F10": 0xffc7}

    settings = ("[org/gnome/shell]\nenabled-extensions=['%s']\ndisable-user-extensions=false\n"
                "welcome-dialog-last-shown-version='99'\n[org/gnome/desktop/interface]\nenable-animations=false\n" % extension)

    def start_display(self, size):
        pass  # it has its own

    def start_bus(self):
        # The shell asks a login manager on the system's bus.
        super().start_bus()
        os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = os.environ["DBUS_SESSION_BUS_ADDRESS"]
        self.spawn(["/usr/bin/python3", "-m", "dbusmock", "--system", "-t", "logind"])
        super().start_bus()

    def start_window_manager(self):
        os.environ["XDG_SESSION_TYPE"] = "wayland"
        self.spawn(["gnome-shell", "--headless", "--wayland", "--unsafe-mode",
                    "--virtual-monitor", "%dx%d" % (self.width, self.height)])
        wait_for("the shell", lambda: self.bus_has("org.gnome.Shell"), PATIENCE)
        wait_for("its start", lambda: self.evaluate("!Main.layoutManager._startingUp") == "true", PATIENCE)
        self.session = {name: self.evaluate("imports.gi.GLib.getenv('%s')" % name).strip('"')
                        for name in ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")}
        # Whose pictures change by themselves.
        self.evaluate("Main.overview.hide(); Main.panel.statusArea.dateMenu.container.hide()")
        self.connection = self.gio()[0].bus_get_sync(self.gio()[0].BusType.SESSION)  # whose end would end the following
        self.pointer = self.call(self.remote, "/org/gnome/Mutter/RemoteDesktop", self.remote, "CreateSession").unpack()[0]
        self.move("Start")
        self.key("Shift")  # brings up the keyboard, which may lose its first key

    def run_panel(self):
        self.wait_for_tray()

    def restart_tray(self):
        for method in ("DisableExtension", "EnableExtension"):
            self.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell.Extensions", method,
                      GLib.Variant("(s)", (self.extension,)))
            wait_for("the extension", lambda: self.bus_has(WATCHER) == (method == "EnableExtension"))

    def evaluate(self, script):
        return self.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                         GLib.Variant("(s)", (script,))).unpack()[1]

    def move(self, method, signature=None, *values):
        self.call(self.remote, self.pointer, self.remote + ".Session", method,
                  GLib.Variant(signature, values) if signature else None)

    def point(self, x, y):
        # From the lower right corner, which no hot corner is in.
        self.move("NotifyPointerMotionRelative", "(dd)", 3000.0, 3000.0)
        self.move("NotifyPointerMotionRelative", "(dd)", x + 1.0 - self.width, y + 1.0 - self.height)

    def press(self, button, times=1):
        for _ in range(times):
            for down in (True, False):
                self.move("NotifyPointerButton", "(ib)", 0x110 if button == 1 else 0x111, down)
                time.sleep(0.03)

    def key(self, *keys):
        for key in keys:
            for down in (True, False):
                self.move("NotifyKeyboardKeysym", "(ub)", self.keys[key], down)
                time.sleep(0.03)

    def screenshot(self, path):
        self.call("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot", "org.gnome.Shell.Screenshot", "Screenshot",
                  GLib.Variant("(bbs)", (False, False, path)))


SHELLS = {"gnome": Gnome, "plasma": Plasma, "plasma-wayland": PlasmaWayland, "mate": Mate, "lxqt": Lxqt, "xfce": Xfce,
          "sway": Sway}
