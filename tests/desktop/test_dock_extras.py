"""What appears around the dock's applications: their windows, menus, minimized windows, the way back, the glow."""

import pathlib
import re
import subprocess
import time

import harness
from harness import DOCK
from windows import EAR, SECONDS, Failed, Lines, geometry, numbers, press, wait_window, xdotool

WINDOWS, UNDO, MENU, GLOW = "Fendrel windows", "Fendrel undo", "Fendrel menu", "Fendrel glow"
WIDTH, HEIGHT = 1280, 800
PILLS = 3


def on_screen(title):
    """Where windows of ours are that no window manager knows."""
    found = xdotool("search", "--onlyvisible", "--name", f"^{title}$", may_fail=True).split()
    return [place for place in map(geometry, found) if place]


def wait_shown(title):
    return EAR.expect(f"{title!r} on the screen", lambda: on_screen(title))[0]


def wait_gone(title):
    EAR.expect(f"no {title!r} on the screen", lambda: not on_screen(title))


def colours(place):
    """What is seen in a part of the screen; only a picture tells."""
    x, y, width, height = place
    text = subprocess.run(["import", "-window", "root", "-depth", "8", "-crop", f"{width}x{height}+{x}+{y}", "rgb:-"],
                          capture_output=True, check=True).stdout
    return {text[at:at + 3] for at in range(0, len(text), 3)}


def wait_seen(colour, place):
    deadline = time.monotonic() + SECONDS
    while colour not in colours(place):
        if time.monotonic() > deadline:
            raise Failed(f"expected the colour {colour.hex()} in {place}")


class Extras(harness.DesktopTest):
    def setUp(self):
        """A mode of which the editor is the only application, and a dock that is there without a movement."""
        super().setUp()
        first = self.start_with_modes()
        first.do("dock", "replace", "on")
        first.do("settings", "set", "magnify", "false")
        first.end(lambda: first.do("quit"))
        xdotool("mousemove", "5", "5")
        self.open(self.editor)
        self.fendrel = self.start()
        self.fendrel.front_is(self.editor)
        self.dock = wait_window(DOCK)

    def open_menu(self, index):
        """Of an item, by the keyboard; a menu is beside the middle of its item."""
        self.fendrel.do("dock", "focus")
        press("Home", *["Right"] * index, "Menu")
        x, _, width, _ = wait_shown(MENU)
        return x + width // 2

    def middle_of(self, index):
        x = self.open_menu(index)
        press("Escape")
        wait_gone(MENU)
        press("Escape")
        return str(x), str(HEIGHT - numbers("_NET_WM_STRUT_PARTIAL", self.dock)[3] // 2)

    def apps_of(self, mode):
        return next(each["apps"] for each in self.fendrel.do("modes") if each["id"] == mode)

    def test_the_windows_of_an_application(self):
        self.editor.tell("window")
        self.editor.tell("title Second")
        self.fendrel.front_is(self.editor, "Second")
        place = self.middle_of(PILLS)
        xdotool("mousemove", *place)
        x, y, width, height = wait_shown(WINDOWS)
        second = (x + width // 2, y, width // 2, height)
        self.assertNotIn(b"\x12\xc0\x34", colours(second))
        self.editor.tell(f"paint {0x12c034}")
        wait_seen(b"\x12\xc0\x34", second)
        self.assertNotIn(b"\x12\xc0\x34", colours((x, y, width // 2, height)), "each window has its own picture")

        xdotool("mousemove", str(x + width // 4), str(y + height // 2))  # into it, past the gap
        xdotool("click", "1")
        self.fendrel.front_is(self.editor)
        wait_gone(WINDOWS)

    def test_a_menu_by_the_keyboard_and_the_way_back(self):
        self.open_menu(PILLS)
        press("Down", "Down", "Down", "Right")  # past its window and New Window, to what it is added to
        press("Return")                         # the first that it is not in
        self.fendrel.expect("an offer", lambda state: state["undo"])
        self.assertIn(self.editor.id, self.apps_of("building"))
        x, y, width, height = wait_shown(UNDO)
        xdotool("mousemove", str(x + width - 60), str(y + height // 2), "click", "1")
        self.fendrel.expect("no offer any more", lambda state: not state["undo"])
        self.assertNotIn(self.editor.id, self.apps_of("building"))
        wait_gone(UNDO)

    def test_a_menu_goes_with_what_it_needs(self):
        self.open(self.chat)
        self.fendrel.front_is(self.chat)
        place = self.open_menu(PILLS + 1)
        self.editor.raise_window()  # which has the keyboard from then on
        wait_gone(MENU)
        xdotool("mousemove", str(place), str(HEIGHT - 1), "click", "3")  # where a pointer that is thrown there stops
        wait_shown(MENU)
        self.chat.end()
        wait_gone(MENU)

    def test_a_minimized_window(self):
        self.editor.tell(f"paint {0x12c034}")
        before = self.fendrel.do("status")["dock"]
        xdotool("windowminimize", str(wait_window("Editor")))
        self.fendrel.expect("the editor left behind", lambda state: not state["front"])
        self.assertTrue(before["replaced"])
        x, y = map(int, self.middle_of(PILLS + 1))
        wait_seen(b"\x12\xc0\x34", (x - 23, y - 23, 46, 46))  # what was last seen of it
        xdotool("mousemove", str(x), str(y), "click", "1")
        self.fendrel.front_is(self.editor)

    def test_a_file_dropped_on_the_trash(self):
        file = pathlib.Path.home() / "Letter.txt"
        file.write_text("Dear")
        source = Lines("/usr/bin/python3", "-B", pathlib.Path(__file__).with_name("drag_source.py"), file.as_uri())
        self.addCleanup(source.end)
        source.expect("its window")
        x, y, width, height = geometry(wait_window("Source"))
        self.fendrel.do("dock", "focus")
        press("End", "Menu")  # the last item is the trash
        place, _, length, _ = wait_shown(MENU)
        press("Escape")
        wait_gone(MENU)
        press("Escape")
        trash = (place + length // 2, HEIGHT - numbers("_NET_WM_STRUT_PARTIAL", self.dock)[3] // 2)
        label, deadline = (trash[0] - 10, 2 * trash[1] - HEIGHT - 30, 20, 10), time.monotonic() + SECONDS

        def is_labelled():
            return any(max(colour) < 80 for colour in colours(label))

        while is_labelled():  # it goes with the keyboard
            self.assertLess(time.monotonic(), deadline, "the label goes")
        xdotool("mousemove", str(x + width // 2), str(y + height // 2), "mousedown", "1")
        for _ in range(10):  # a window manager hands the press on before the pointer is elsewhere
            xdotool("mousemove_relative", "3", "3")
        while not is_labelled():  # until it says that it would take the file
            self.assertLess(time.monotonic(), deadline, "the trash takes a file")
            xdotool("mousemove_relative", "--", "-20", "0")
            xdotool("mousemove", *map(str, trash))
        xdotool("mouseup", "1")
        source.expect("it was taken", lambda line: line == "taken")
        trashed = pathlib.Path.home() / ".local/share/Trash/files/Letter.txt"
        deadline = time.monotonic() + SECONDS
        while not trashed.exists():
            self.assertLess(time.monotonic(), deadline, "the file is in the trash")
        self.assertFalse(file.exists())

    def test_the_glow_lies_in_no_ones_way(self):
        self.fendrel.do("settings", "set", "focusGlow", "true")
        self.assertEqual(on_screen(GLOW), [])
        self.fendrel.do("focus", "start")
        EAR.expect("a glow at every edge", lambda: len(on_screen(GLOW)) == 4)
        under = xdotool("mousemove", "1", str(HEIGHT // 2), "getmouselocation", "--shell")
        self.assertNotIn(re.search(r"WINDOW=(\d+)", under)[1], xdotool("search", "--name", GLOW).split())
        self.fendrel.do("focus", "stop")
        wait_gone(GLOW)


if __name__ == "__main__":
    harness.main()
