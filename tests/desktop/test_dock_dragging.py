"""Real drags over the dock, its own and other programs', and what applications show on their buttons."""

import itertools
import pathlib
import subprocess
import time

import harness
from harness import DOCK
from test_displays import BESIDE, WHOLE, arrange
from windows import SECONDS, Failed, Lines, geometry, titled, numbers, wait_window, xdotool

SOURCE = pathlib.Path(__file__).with_name("drag_source.py")
WIDTH, HEIGHT, BAND = 1280, 800, 160  # the dock is in the lowest pixels
COLORS = {"Red": (200, 30, 60), "Green": (30, 160, 60), "Blue": (30, 60, 200)}
BADGE = (0xd6, 0x30, 0x3b)
TINT = (232, 154, 28)  # of writing
# Counts as long as the program that tells it lives.
COUNT = """
from gi.repository import Gio, GLib
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
told = {"count": GLib.Variant("x", 5), "count-visible": GLib.Variant("b", True)}
bus.emit_signal(None, "/one", "com.canonical.Unity.LauncherEntry", "Update",
                GLib.Variant("(sa{sv})", ("application://org.test.Chat.desktop", told)))
bus.flush_sync()
print("told", flush=True)
input()
"""


def eventually(what, find):
    deadline = time.monotonic() + SECONDS
    while not (found := find()):
        if time.monotonic() > deadline:
            raise Failed(f"expected: {what}")
    return found


def grab():
    crop = f"{WIDTH}x{BAND}+0+{HEIGHT - BAND}"
    return subprocess.run(["import", "-window", "root", "-crop", crop, "-depth", "8", "rgb:-"], capture_output=True,
                          check=True).stdout


def pixels(picture, color):
    """The places in the picture that have this colour, or one that rounding has made of it."""
    found = []
    for offset in itertools.product((-1, 0, 1), repeat=3):
        wanted, at = bytes(map(sum, zip(color, offset))), -1
        while (at := picture.find(wanted, at + 1)) >= 0:
            if at % 3 == 0:
                found.append((at // 3 % WIDTH, at // 3 // WIDTH + HEIGHT - BAND))
    return found


def place_of(color, least=300, left=0):
    """The middle of what is drawn in this colour, no further left, once it stands still."""
    def look():
        picture = grab()
        spots = [spot for spot in pixels(picture, color) if spot[0] >= left]
        if len(spots) >= least and picture == grab():
            return tuple(sum(values) // len(values) for values in zip(*spots))
        return None
    return eventually(f"something of colour {color} in the dock", look)


def drag(start, *way):
    """In steps, as a hand does; the button is down at the end."""
    xdotool("mousemove", *map(str, start), "mousedown", "1")
    for x, y in way:
        from_x, from_y = start
        for step in range(1, 9):
            xdotool("mousemove", str(from_x + (x - from_x) * step // 8), str(from_y + (y - from_y) * step // 8))
        start = (x, y)


def drop():
    xdotool("mouseup", "1")


class Dragging(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        xdotool("mousemove", "10", "10")
        self.fendrel = self.start_with_modes()
        self.fendrel.do("switch", "writing")
        for app in self.apps():
            self.fendrel.do("mode", "remove-app", "writing", app)
        for name, color in COLORS.items():
            self.install(name, color)
            self.fendrel.do("mode", "add-app", "writing", f"org.test.{name}")
        wait_window(DOCK)

    def install(self, name, color, program="true"):
        icon = harness.HOME / f"{name}.png"
        subprocess.run(["convert", "-size", "128x128", f"xc:rgb{color}", f"PNG24:{icon}"], check=True)
        subprocess.run([harness.DESKTOP, "entry", f"org.test.{name}", "--name", name, "--icon", icon, "--exec", program],
                       check=True)

    def apps(self, mode="writing"):
        return next(each["apps"] for each in self.fendrel.do("modes") if each["id"] == mode)

    def names_are(self, *names, mode="writing"):
        wanted = [f"org.test.{name}" for name in names]
        eventually(f"{wanted} in {mode}, not {self.apps(mode)}", lambda: self.apps(mode) == wanted)

    def test_its_own_applications(self):
        self.names_are("Red", "Green", "Blue")
        red, blue = place_of(COLORS["Red"]), place_of(COLORS["Blue"])
        drag(red, blue)
        self.names_are("Red", "Green", "Blue")  # until it is let go
        drop()
        self.names_are("Green", "Blue", "Red")

        place_of(COLORS["Green"])
        drag(red, (red[0], red[1] - 200))
        xdotool("key", "Escape")
        drop()
        xdotool("mousemove", "10", "10")
        drag(place_of(COLORS["Green"]), (red[0], red[1] - 200))
        drop()
        self.names_are("Blue", "Red")
        self.fendrel.do("undo")
        self.names_are("Green", "Blue", "Red")

    def test_the_dock_of_another_display(self):
        """Not away from the dock: what is let go there goes back."""
        self.fendrel.do("settings", "set", "dockSize", "small")  # all three fit half of the screen
        self.fendrel.do("settings", "set", "dockDisplay", "all")
        self.addCleanup(arrange, {})
        arrange(BESIDE)
        self.fendrel.expect("two docks", lambda state: len(state["dock"]["displays"]) == 2)
        eventually("it on both", lambda: {2 * x // WIDTH for x, _ in pixels(grab(), COLORS["Red"])} == {0, 1})
        x, y = place_of(COLORS["Red"])  # between the two
        both = len(pixels(grab(), COLORS["Red"]))
        drag((x - WIDTH // 4, y), (x + WIDTH // 4, y))
        eventually("it carried", lambda: len(pixels(grab(), COLORS["Red"])) < both)
        drop()
        xdotool("mousemove", "10", "10")
        place_of(COLORS["Red"], both)
        self.names_are("Red", "Green", "Blue")

    def test_its_display_goes_meanwhile(self):
        self.addCleanup(arrange, {})
        arrange(BESIDE)
        self.fendrel.do("settings", "set", "dockDisplay", "all")
        x, y = place_of(COLORS["Red"], left=WIDTH // 2)
        drag((x, y), (x, y - 300))
        eventually("no red one in the docks", lambda: not pixels(grab(), COLORS["Red"]))
        arrange(WHOLE)
        place_of(COLORS["Red"])
        drop()
        self.names_are("Red", "Green", "Blue")

    def drag_from_elsewhere(self, addresses, answered):
        """To the green one, let go when the dock has answered; what the other program is told then."""
        source = Lines("/usr/bin/python3", SOURCE, *addresses)
        self.addCleanup(source.end)
        source.expect("ready", lambda line: line == "ready")
        window = wait_window("Source")
        x, y, width, height = eventually("the window", lambda: geometry(window))
        # The bar has a button for the program itself, too.
        self.fendrel.expect("it in front", lambda state: state["front"] and state["front"]["title"] == "Source")
        target, before = place_of(COLORS["Green"]), len(pixels(grab(), TINT))
        drag((x + width // 2, y + height // 2), target)
        eventually("the dock's answer", lambda: answered(target, before))
        drop()
        answer = source.expect("an answer")
        source.end()
        eventually("no window", lambda: not titled(numbers("_NET_CLIENT_LIST"), "Source"))
        xdotool("mousemove", "10", "10")
        return answer

    def test_what_comes_from_other_programs(self):
        opened, note = harness.HOME / "opened", harness.HOME / "note.txt"
        opened.unlink(missing_ok=True)
        note.write_text("a note")
        reader = harness.HOME / "reader"
        reader.write_text(f'#!/bin/sh\nprintf %s "$1" > {opened}.new && mv {opened}.new {opened}\n')
        reader.chmod(0o755)
        self.install("Green", COLORS["Green"], f"{reader} %f")
        self.install("New", (150, 90, 10))
        entry = harness.HOME / ".local/share/applications/org.test.New.desktop"

        def makes_room(target, _before):
            return place_of(COLORS["Green"]) != target

        def lights_up(_target, before):
            return len(pixels(grab(), TINT)) > before + 50

        self.assertEqual(self.drag_from_elsewhere([entry.as_uri()], makes_room), "taken")
        self.names_are("Red", "New", "Green", "Blue")
        self.assertEqual(self.drag_from_elsewhere([note.as_uri()], lights_up), "taken")
        eventually("the file opened", opened.exists)
        self.assertEqual(opened.read_text(), str(note))
        self.assertEqual(self.drag_from_elsewhere([], lambda *_: True), "refused")
        self.names_are("Red", "New", "Green", "Blue")

    def test_what_applications_tell(self):
        """A mark in the same colour for both: a count, and a window that asks for the user."""
        self.open(self.chat)
        self.open(self.editor)
        self.fendrel.front_is(self.editor)
        place_of(COLORS["Blue"])
        self.assertFalse(pixels(grab(), BADGE))
        teller = Lines("/usr/bin/python3", "-c", COUNT)
        self.addCleanup(teller.end)
        teller.expect("told")
        eventually("a count", lambda: pixels(grab(), BADGE))
        teller.end()
        eventually("no count", lambda: not pixels(grab(), BADGE))
        xdotool("set_window", "--urgency", "1", str(wait_window("Chat")))
        eventually("the chat asks", lambda: pixels(grab(), BADGE))
        self.chat.raise_window()
        self.fendrel.front_is(self.chat)
        eventually("it was looked at", lambda: not pixels(grab(), BADGE))


if __name__ == "__main__":
    harness.main()
