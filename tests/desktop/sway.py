# SPDX-License-Identifier: MIT
"""A Wayland desktop: Sway with waybar's tray. Sway runs in a window that fills a virtual X screen, so that pointer,
keys and screenshots are those of the other tests."""

import json
import os
import pathlib
import pwd
import shutil
import subprocess
import tempfile
import time

from desktop import Desktop, at_rest, different, output, rectangle, wait_for

MISSING = [program for program in ("sway", "swaymsg", "waybar", "Xwayland", "wl-paste") if not shutil.which(program)]
SCREEN = (1280, 720)
BAR = 28


def leave_root(program):
    """Sway is not for root: becomes another user for the rest of the process. `program` is the staged program; gives
    the one to start, which that user can read."""
    if os.getuid() != 0:
        return program
    user = pwd.getpwnam("nobody")
    # Only root may make it.
    os.makedirs("/tmp/.X11-unix", exist_ok=True)
    os.chmod("/tmp/.X11-unix", 0o1777)
    folder = tempfile.mkdtemp(prefix="lumivane-stage-")
    staged = pathlib.Path(program).parent.parent
    shutil.copytree(staged, folder, dirs_exist_ok=True)
    # They name the program by its absolute path.
    for entry in pathlib.Path(folder, "share/applications").iterdir():
        entry.write_text(entry.read_text().replace(str(staged), folder))
    for path in [folder, *pathlib.Path(folder).rglob("*")]:
        os.chown(path, user.pw_uid, user.pw_gid)
    os.setgroups([])
    os.setgid(user.pw_gid)
    os.setuid(user.pw_uid)
    return os.path.join(folder, "bin", os.path.basename(program))


def has_layers(program):
    """Whether an installed program can have layer surfaces, of which Sway tells nothing."""
    return any(pathlib.Path(program).parent.parent.glob("lib/**/lumivane/layer_surfaces.so"))


class SwayDesktop(Desktop):
    def __init__(self, bar):
        self.clicked = 0.0
        super().__init__(size="%dx%d" % SCREEN, panel=bar)

    def start_session(self, edge):
        home = pathlib.Path(self.home)
        (home / "config").mkdir()
        (home / "sway").write_text("output * resolution %dx%d\nexec env > %s/part && mv %s/part %s/session\n"
                                   % (*SCREEN, home, home, home))
        os.environ.pop("QT_QPA_PLATFORM", None)
        os.environ.update(XDG_CURRENT_DESKTOP="sway", XDG_SESSION_TYPE="wayland")
        self.spawn(["sway", "-c", str(home / "sway")], env=dict(
            os.environ, WLR_BACKENDS="x11", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1"))
        wait_for("Sway", (home / "session").exists, 30)
        variables = dict(line.split("=", 1) for line in (home / "session").read_text().splitlines() if "=" in line)
        self.session = {name: variables[name] for name in ("DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK")}
        self.start_panel(edge)

    def start_panel(self, edge):
        self.edge = edge
        folder = pathlib.Path(self.home, "config/waybar")
        folder.mkdir(exist_ok=True)
        (folder / "config").write_text(json.dumps({
            "layer": "top", "position": edge, "height": BAR, "modules-right": ["tray", "clock"],
            "tray": {"icon-size": 20}}))
        self.run_panel()

    def run_panel(self):
        self.panel = self.spawn(["waybar"], env=dict(os.environ, **self.session))
        wait_for("the tray", lambda: self.bus_has("org.kde.StatusNotifierWatcher"), 30)
        self.without_panel = os.path.join(self.home, "without_panel.bmp")
        self.screenshot(self.without_panel)

    def start(self, program, environment=None, **keywords):
        environment = dict(self.session, **(environment or {}))
        self.has_layers = has_layers(program) and environment.get("QT_QPA_PLATFORM") != "xcb"
        return super().start(program, environment=environment, **keywords)

    def room(self):
        """The screen without the bar."""
        return rectangle(0, BAR if self.edge == "top" else 0, SCREEN[0], SCREEN[1] - BAR)

    def clipboard(self):
        """What another program would paste."""
        return subprocess.run(["wl-paste"], env=dict(os.environ, **self.session), capture_output=True, text=True,
                              timeout=10).stdout

    def windows(self):
        """What Sway tells of the program's windows, and what is seen of its layer surface, the panel."""
        tree = output("swaymsg", "-s", self.session["SWAYSOCK"], "-t", "get_tree", "-r")

        def walk(node):
            if node.get("pid") == self.program.pid:
                yield node
            for inner in node["nodes"] + node["floating_nodes"]:
                yield from walk(inner)
        windows = list(walk(json.loads(tree)))
        if self.has_layers and not windows:
            now = os.path.join(self.home, "now.bmp")
            self.screenshot(now)
            box = different(self.without_panel, now, self.room())
            if box and box.height > 200:  # no tool tip
                windows.append({"shell": "layer_shell", "rect": vars(box)})
        return windows

    def rectangle(self, name="Lumivane"):
        return rectangle(**wait_for("the window", self.windows)[0]["rect"])

    def click_control(self, name, root=None):
        def middle():
            # Under Wayland a program takes its window's corner for the screen's.
            box, window, place = self.extents(self.find(name, root)), self.extents(self.window()), self.rectangle()
            return place.x + box.x - window.x + box.width // 2, place.y + box.y - window.y + box.height // 2
        self.click(*at_rest("the control", middle))

    def click_icon(self, button=1):
        # The bar doesn't notice an icon that came up under a pointer at rest, and tells a double click's second half
        # as two clicks.
        self.xdotool("mousemove", *(side // 2 for side in SCREEN))
        time.sleep(max(0.0, self.clicked + 0.5 - time.monotonic()))
        super().click_icon(button)
        self.clicked = time.monotonic()

    def find_icon(self):
        for node in self.walk(self.application("waybar")):
            if node.get_role_name() == "icon":
                icon = self.extents(node)
                top = 0 if self.edge == "top" else SCREEN[1] - BAR
                if icon.x >= 0:  # the bar has given it a place
                    return rectangle(icon.x, icon.y + top, icon.width, icon.height)
        return None
