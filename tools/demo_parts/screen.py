"""A person's hands and eyes: the keyboard, bringing windows forward, and pictures of the screen."""

import pathlib
import subprocess
import time

from demo_parts.watch import Failed

DESKTOP = str(pathlib.Path(__file__).resolve().parents[1] / "desktop")


class Screen:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.pictures = 0

    def picture(self, name, series=""):
        """Keeps a picture of the screen once it stands still; returns its path."""
        self.settle()
        self.pictures += 1
        file = self.folder / f"{series and series + '-'}{self.pictures:02}-{name}.png"
        subprocess.run([DESKTOP, "screenshot", str(file)], check=True)
        return file

    def settle(self):
        deadline = time.monotonic() + 3.0
        last = None
        while (now := self.grab()) != last and time.monotonic() < deadline:
            last = now
            time.sleep(0.15)  # longer than two frames of any animation

    def grab(self):
        return subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], capture_output=True, check=True).stdout

    def wait_window(self, title, seconds=10.0):
        """Waits until a window whose title matches has the keyboard."""
        deadline = time.monotonic() + seconds
        while title not in self.active_title():
            if time.monotonic() > deadline:
                raise Failed(f"expected within {seconds:.0f} s: the keyboard goes to the window {title!r}; "
                             f"{self.active_title()!r} has it")
            time.sleep(0.02)

    def wait_shown(self, title, seconds=10.0):
        """Where the window is, once it is on the screen and stands still: one that no window manager knows."""
        deadline = time.monotonic() + seconds
        last = None
        while True:
            found = xdotool("search", "--onlyvisible", "--name", f"^{title}$", may_fail=True).split()
            text = xdotool("getwindowgeometry", "--shell", found[0], may_fail=True) if found else ""
            place = tuple(int(line.split("=")[1]) for line in text.splitlines()[1:5])
            if place and place == last:
                return place
            if time.monotonic() > deadline:
                raise Failed(f"expected within {seconds:.0f} s: the window {title!r} on the screen")
            last = place
            time.sleep(0.05)

    def active_title(self):
        return xdotool("getactivewindow", "getwindowname", may_fail=True)

    def bring_forward(self, window_class):
        """Asks the window manager for a window as a task bar does."""
        subprocess.run(["wmctrl", "-x", "-a", window_class], check=True)

    def put_away(self, window_class):
        xdotool("search", "--onlyvisible", "--classname", window_class, "windowminimize", "%@", may_fail=True)

    def place(self, window_class, x, y, width, height):
        subprocess.run(["wmctrl", "-x", "-r", window_class, "-e", f"0,{x},{y},{width},{height}"], check=True)

    def scroll_down(self):
        """Turns the wheel over the middle of the active window until everything has gone by."""
        size = xdotool("getactivewindow", "getwindowgeometry", "--shell")
        width, height = (int(line.split("=")[1]) for line in size.splitlines()[3:5])
        xdotool("getactivewindow", "mousemove", "--window", "%1", str(width // 2), str(height // 2),
                "click", "--repeat", "240", "--delay", "5", "5", "mousemove", "10", "10")

    def type(self, text):
        for line in text.splitlines(keepends=True):
            xdotool("type", "--delay", "12", line.rstrip("\n"))
            if line.endswith("\n"):
                self.press("Return")

    def press(self, *keys):
        for key in keys:
            xdotool("key", key)


def xdotool(*arguments, may_fail=False):
    done = subprocess.run(["xdotool", *arguments], capture_output=True, text=True, timeout=60)
    if done.returncode and not may_fail:
        raise Failed(f"xdotool {' '.join(arguments)}: {done.stderr.strip()}")
    return done.stdout.strip()
