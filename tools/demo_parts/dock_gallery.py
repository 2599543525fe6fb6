"""Takes a picture of every state of the dock, with real programs on the desktop that this runs in."""

import argparse
import os
import pathlib
import subprocess
import sys
import time

from demo_parts.chat import Chat
from demo_parts.screen import DESKTOP, Screen, xdotool
from demo_parts.watch import Failed, Watch
from gi.repository import Gio, GLib

EDITOR, TERMINAL, CHAT, FILES = "org.xfce.mousepad", "lxterminal", "io.github.Hexchat", "pcmanfm"
PILLS = 3
HEIGHT = 800


class Gallery:
    def __init__(self, programs, screen):
        self.screen = screen
        self.fendrel = programs / "fendrel"
        self.log = open(screen.folder / "fendrel.log", "w+")
        self.watch = Watch(str(programs / "fendrelctl"), lambda text: None)
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.program = None

    def play(self):
        self.furnish()
        for state in (self.at_rest, self.magnified, self.windows, self.menus, self.told, self.minimized, self.edges,
                      self.sizes, self.crowded, self.dragged, self.glow, self.noticed, self.two_displays, self.dark,
                      self.contrast):
            state()
        self.watch.do("quit")
        if self.program.wait(timeout=10):
            raise Failed(f"fendrel ended with status {self.program.returncode}")

    # What a state is made of.

    def start(self, *command):
        subprocess.Popen(command, cwd=pathlib.Path.home(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def set(self, key, value):
        self.watch.do("settings", "set", key, value)

    def picture(self, name):
        print(f"gallery: {self.screen.picture(name).name}", flush=True)

    def in_front(self, app):
        self.watch.expect(f"{app} in front", lambda state: state["front"] and state["front"]["bundleID"] == app)

    def menu_of(self, index):
        """Opens it by the keyboard, and says where it is."""
        self.watch.do("dock", "focus")
        self.screen.press("Home", *["Right"] * index, "Menu")
        return self.screen.wait_shown("Fendrel menu")

    def leave(self):
        self.screen.press("Escape", "Escape")

    def middle_of(self, index):
        """Of an item: a menu opens beside it."""
        x, _, width, _ = self.menu_of(index)
        self.leave()
        return x + width // 2, HEIGHT - 45

    def rest_pointer(self):
        xdotool("mousemove", "10", "10")

    def badge(self, app, **properties):
        """As an application tells the desktop of it, for as long as it is on the bus."""
        text = ", ".join(f"'{name.replace('_', '-')}': <{value}>" for name, value in properties.items())
        entry = GLib.Variant.parse(GLib.VariantType("(sa{sv})"), f"('application://{app}.desktop', {{{text}}})", None, None)
        self.bus.emit_signal(None, "/org/fendrel/gallery", "com.canonical.Unity.LauncherEntry", "Update", entry)
        self.bus.flush_sync()

    # The states.

    def furnish(self):
        Chat().furnish(pathlib.Path.home())
        self.program = subprocess.Popen([self.fendrel], stdout=self.log, stderr=self.log)
        self.watch.open(self.program, seconds=20)
        self.watch.do("onboarding", "finish", "writing", "building", "social")
        self.began = time.monotonic()
        for app in (EDITOR, FILES, CHAT, "chromium"):
            self.watch.do("mode", "add-app", "writing", app)
        self.watch.do("dock", "replace", "on")
        (pathlib.Path.home() / "attention.txt").write_text("On attention\n\nA page asks for little.\n")
        (pathlib.Path.home() / "garden.txt").write_text("Beans, peas, and a row of dill.\n")
        self.start("lxterminal", "--no-remote")
        self.in_front(TERMINAL)
        self.screen.place("lxterminal.Lxterminal", 620, 60, -1, -1)
        self.start("mousepad", "--disable-server", "attention.txt")
        self.in_front(EDITOR)
        self.screen.place("mousepad.Mousepad", 90, 90, 720, 440)

    def at_rest(self):
        self.rest_pointer()
        self.picture("rest")

    def magnified(self):
        x, y = self.middle_of(PILLS + 1)
        xdotool("mousemove", str(x), str(y + 4), "mousemove_relative", "1", "1")
        self.picture("magnified")

    def windows(self):
        self.start("mousepad", "--disable-server", "garden.txt")
        self.watch.expect("the second text", lambda state: state["front"] and "garden" in state["front"]["title"])
        x, y = self.middle_of(PILLS)
        xdotool("mousemove", str(x), str(y))
        self.screen.wait_shown("Fendrel windows")
        self.picture("windows")
        self.rest_pointer()

    def menus(self):
        self.menu_of(PILLS)
        self.picture("menu")
        self.leave()
        self.menu_of(PILLS + 4)
        self.screen.press("Down", "Down", "Down", "Right")
        self.picture("menu-modes")
        self.screen.press("Down", "Return")
        self.watch.expect("an offer to take it back", lambda state: state["undo"])
        self.screen.wait_shown("Fendrel undo")
        self.picture("undo")
        self.watch.do("undo")
        self.menu_of(1)
        self.picture("menu-mode")
        self.leave()

    def told(self):
        """What applications show on their buttons."""
        self.badge(EDITOR, count="int64 7", count_visible="true")
        self.badge(TERMINAL, progress="0.65", progress_visible="true")
        self.badge(FILES, count="int64 128", count_visible="true")
        self.picture("badges")
        self.badge(TERMINAL, progress_visible="false")

    def minimized(self):
        self.screen.put_away("lxterminal")
        self.watch.expect("the terminal away", lambda state: state["front"] and state["front"]["bundleID"] != TERMINAL)
        trashed = pathlib.Path.home() / "old.txt"
        trashed.write_text("")
        subprocess.run(["gio", "trash", trashed], check=True)
        self.picture("minimized")

    def edges(self):
        for edge in ("left", "right"):
            self.set("dockPosition", edge)
            self.picture(edge)
        self.set("dockPosition", "bottom")

    def sizes(self):
        for size in ("small", "large"):
            self.set("dockSize", size)
            self.picture(size)
        self.set("dockSize", "medium")

    def crowded(self):
        """Forty applications."""
        icons = sorted(pathlib.Path("/usr/share/icons/Papirus/48x48/apps").glob("[a-g]*.svg"))[::23]
        apps = [f"org.gallery.{icon.stem}" for icon in icons if not icon.is_symlink()][:36]
        for app, icon in zip(apps, (icon for icon in icons if not icon.is_symlink())):
            subprocess.run([DESKTOP, "entry", app, "--name", icon.stem.title(), "--icon", icon, "--exec", "true"], check=True)
            self.watch.do("mode", "add-app", "social", app)
        self.watch.do("switch", "social")
        self.watch.do("switch", "social")
        self.watch.expect("the mode social", lambda state: state["mode"]["id"] == "social")
        self.picture("forty")
        self.watch.do("switch", "writing")
        self.watch.expect("the mode writing", lambda state: state["mode"]["id"] == "writing")

    def dragged(self):
        x, y = self.middle_of(PILLS)
        xdotool("mousemove", str(x), str(y), "mousedown", "1")
        for step in range(1, 10):
            xdotool("mousemove", str(x + 9 * step), str(y - 2))
        self.picture("reordered")
        for step in range(1, 12):
            xdotool("mousemove", str(x + 90 - 3 * step), str(y - 12 * step))
        self.picture("dragged-off")
        self.screen.press("Escape")
        xdotool("mouseup", "1")
        self.rest_pointer()

    def glow(self):
        self.set("focusGlow", "true")
        self.watch.do("focus", "start", "--for", "50m")
        self.picture("glow")
        self.watch.do("focus", "stop")
        self.set("focusGlow", "false")

    def noticed(self):
        """What is proposed beside the dock: another mode, and what was open in this one."""
        time.sleep(max(0, self.began + 125 - time.monotonic()))  # a shorter stay is nothing to come back to
        self.watch.do("mode", "add-app", "building", TERMINAL)
        self.screen.bring_forward("lxterminal")
        self.watch.expect("a proposed mode", lambda state: state["suggestion"], seconds=40)
        self.screen.wait_shown("Fendrel notice")
        self.picture("suggestion")
        self.watch.do("suggestion", "accept")
        self.watch.do("switch", "writing")
        self.watch.expect("an offer to bring back", lambda state: state["offer"])
        self.picture("offer")
        self.watch.do("context", "dismiss")

    def two_displays(self):
        half = {"left": "640/169x800/211+0+0", "right": "640/169x800/211+640+0"}
        for (name, place), output in zip(half.items(), ("screen", "none")):
            subprocess.run(["xrandr", "--setmonitor", name, place, output], check=True, stdout=subprocess.DEVNULL)
        self.set("dockDisplay", "all")
        self.watch.expect("two docks", lambda state: len(state["dock"]["displays"]) == 2)
        self.picture("two-displays")
        self.set("dockDisplay", "main")
        for name in half:
            subprocess.run(["xrandr", "--delmonitor", name], check=True)

    def dark(self):
        self.set("matchSystem", "true")
        subprocess.run([DESKTOP, "look", "dark"], check=True)
        x, y = self.middle_of(PILLS)
        xdotool("mousemove", str(x), str(y))
        self.screen.wait_shown("Fendrel windows")
        self.picture("dark-windows")
        self.rest_pointer()
        self.menu_of(PILLS)
        self.picture("dark-menu")
        self.leave()

    def contrast(self):
        self.set("matchSystem", "false")
        subprocess.run([DESKTOP, "look", "contrast"], check=True)
        self.picture("contrast")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("programs", type=pathlib.Path, help="the folder that fendrel and fendrelctl are in")
    parser.add_argument("pictures", type=pathlib.Path, help="the folder for the pictures and the log")
    options = parser.parse_args()
    if "FENDREL_DESKTOP" not in os.environ:
        sys.exit("gallery: this types and clicks; it runs only inside `tools/desktop run`")
    options.pictures.mkdir(parents=True, exist_ok=True)
    for old in options.pictures.glob("*.png"):
        old.unlink()
    screen = Screen(options.pictures)
    gallery = Gallery(options.programs.resolve(), screen)
    try:
        gallery.play()
    except (Failed, subprocess.SubprocessError, OSError) as trouble:
        screen.picture("failure")
        sys.exit(f"gallery: FAILED: {trouble}; see {gallery.log.name}")
    print(f"gallery: {screen.pictures} pictures are in {options.pictures}")


if __name__ == "__main__":
    main()
