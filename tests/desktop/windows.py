"""What the tests see of windows and of programs: they wait until something is told, and ask what has become of it."""

import ctypes
import pathlib
import re
import select
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from demo_parts.screen import xdotool  # noqa: E402
from demo_parts.watch import Failed  # noqa: E402

SECONDS = 60.0  # only a fault takes so long, with the thread sanitizer on a busy machine too


def is_readable(file, deadline):
    return bool(select.select([file], [], [], max(0, deadline - time.monotonic()))[0])


class Lines:
    """A program that says what happens, a line at a time."""

    def __init__(self, *command):
        self.process = subprocess.Popen(command, bufsize=0, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def end(self):
        self.process.kill()
        self.process.communicate()

    def say(self, line):
        self.process.stdin.write(f"{line}\n".encode())

    def expect(self, what, holds=bool):
        """The first line, of those not read yet, for which it holds."""
        deadline = time.monotonic() + SECONDS
        while is_readable(self.process.stdout, deadline) and (line := self.process.stdout.readline().decode()):
            if holds(line.strip()):
                return line.strip()
        raise Failed(f"expected of {self.process.args[0]}: {what}")


class Ear:
    """Hears changes of properties, of the stack of windows, and of where a window takes input, on a connection of its
    own; what is new is asked for."""

    def __init__(self):
        self.x11, self.shapes = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXext.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.event = ctypes.create_string_buffer(256)  # a little more than an XEvent

    def expect(self, what, find, window=None):
        """What is found, once it is there: on the root window, or on the one that is given."""
        window = window or self.x11.XDefaultRootWindow(self.display)
        masks = 1 << 22 | 1 << 19 | 1 << 17  # PropertyChangeMask, SubstructureNotifyMask, StructureNotifyMask
        self.x11.XSelectInput(self.display, ctypes.c_ulong(window), ctypes.c_long(masks))
        self.shapes.XShapeSelectInput(self.display, ctypes.c_ulong(window), ctypes.c_ulong(1))  # ShapeNotifyMask
        self.x11.XSync(self.display, 0)
        deadline = time.monotonic() + SECONDS
        while True:
            while self.x11.XPending(self.display):
                self.x11.XNextEvent(self.display, self.event)
            if found := find():
                return found
            if not is_readable(self.x11.XConnectionNumber(self.display), deadline):
                raise Failed(f"expected: {what}")


EAR = Ear()


def press(*keys):
    xdotool("key", *keys)


def prop(name, window=None):
    """A property of a window, or of the root window, as xprop prints it."""
    where = ["-id", str(window)] if window else ["-root"]
    return subprocess.run(["xprop", *where, name], capture_output=True, text=True).stdout


def numbers(name, window=None):
    line = prop(name, window)
    return [int(each, 0) for each in re.findall(r"0x[0-9a-f]+|\d+", line.partition("=")[2] or line.partition("#")[2])]


def titled(windows, title):
    return next((window for window in windows if window and f'"{title}"' in prop("_NET_WM_NAME", window)), None)


def wait_active(title):
    """Waits until a window of this title has the keyboard; returns it."""
    return EAR.expect(f"{title!r} has the keyboard", lambda: titled(numbers("_NET_ACTIVE_WINDOW"), title))


def wait_window(title):
    return EAR.expect(f"a window {title!r}", lambda: titled(numbers("_NET_CLIENT_LIST"), title))


def geometry(window):
    """x, y, width and height of a window that is seen; nothing of one that is not."""
    text = subprocess.run(["xwininfo", "-id", str(window)], capture_output=True, text=True).stdout
    if "IsViewable" not in text:
        return None
    return tuple(int(re.search(rf"{name}: +(-?\d+)", text)[1])
                 for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def stacking(*titles):
    """The titles of those windows that are seen, the highest first."""
    def told(*where):
        return subprocess.run(["xwininfo", *where], capture_output=True, text=True).stdout
    tree = told("-root", "-tree")
    return sorted((title for title in titles if "IsViewable" in told("-name", title)),
                  key=lambda title: tree.index(f'"{title}"'))
