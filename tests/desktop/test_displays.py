"""The docks on displays that come and go, under full-screen windows, and beside other programs' panels."""

import json
import re
import subprocess

import harness
import test_docks
from harness import CONFIG, DOCK
from windows import EAR, Lines, geometry, numbers, titled, wait_window, xdotool

WIDTH, HEIGHT = 1280, 800
WHOLE = {"Left": (0, 0, WIDTH, HEIGHT)}
BESIDE = {"Left": (0, 0, 640, HEIGHT), "Right": (640, 0, 640, HEIGHT)}
STACKED = {"Left": (0, 0, WIDTH, 400), "Right": (0, 400, WIDTH, 400)}


def monitors():
    return re.findall(r"^ \d+: \+?\*?(\w+) ", subprocess.run(["xrandr", "--listmonitors"], capture_output=True,
                                                             text=True, check=True).stdout, re.MULTILINE)


def arrange(displays):
    """As when displays are plugged, unplugged and moved: what was there goes first."""
    for name in set(monitors()) & set(BESIDE):
        subprocess.run(["xrandr", "--delmonitor", name], check=True)
    for name, (x, y, width, height) in displays.items():
        output = "screen" if name == "Left" else "none"
        place = f"{width}/254x{height}/286+{x}+{y}"
        subprocess.run(["xrandr", "--setmonitor", name, place, output], check=True, stdout=subprocess.DEVNULL)


def docks():
    return [window for window in numbers("_NET_CLIENT_LIST") if titled([window], DOCK)]


def places():
    return sorted(place for window in docks() if (place := geometry(window)))


def along_bottoms(displays):
    """Whether each of these displays, and nothing else, has a dock along its lower edge."""
    return [(x, y + height, width) for x, y, width, height in places()] == sorted(
        (x, y + height, width) for x, y, width, height in displays)


def under(x, y):
    return re.search(r"WINDOW=(\d+)", xdotool("mousemove", str(x), str(y), "getmouselocation", "--shell"))[1]


def outside(window):
    """x, y, width and height with the window manager's frame."""
    x, y, width, height = geometry(window)
    left, right, top, bottom = numbers("_NET_FRAME_EXTENTS", window)[:4]
    return x - left, y - top, width + left + right, height + top + bottom


class Displays(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        arrange(BESIDE)
        self.addCleanup(arrange, {})
        self.fendrel = self.start_with_modes()
        self.open(self.editor)
        self.fendrel.front_is(self.editor)
        wait_window(DOCK)

    def set(self, name, value):
        self.fendrel.do("settings", "set", name, value)

    def docks_are_on(self, *displays):
        EAR.expect(f"docks on {displays} alone", lambda: along_bottoms(displays))

    def shown(self, **expected):
        self.fendrel.expect(f"docks shown: {expected}", lambda state: expected == {
            display["id"]: display["shown"] for display in state["dock"]["displays"]})

    def put(self, app, x, y, width=300, height=200):
        window = wait_window(app.name)
        subprocess.run(["wmctrl", "-i", "-r", hex(window), "-e", f"0,{x},{y},{width},{height}"], check=True)
        EAR.expect(f"{app.name} at {x}, {y}", lambda: outside(window)[:2] == (x, y))
        return window

    def test_they_come_and_go_with_the_displays(self):
        self.set("dockDisplay", "all")
        self.fendrel.do("status")
        before = (CONFIG / "Settings.json").read_text()
        for displays in (BESIDE, STACKED, WHOLE, BESIDE):
            with self.subTest(displays):
                arrange(displays)
                self.docks_are_on(*displays.values())
        self.assertEqual(json.loads((CONFIG / "Settings.json").read_text()), json.loads(before))

    def test_one_follows_the_active_display(self):
        self.set("dockDisplay", "active")
        self.docks_are_on(BESIDE["Left"])
        window = docks()
        self.open(self.chat)
        self.put(self.chat, 800, 300)
        for app, display in ((self.editor, "Left"), (self.chat, "Right"), (self.editor, "Left")):
            app.raise_window()
            self.docks_are_on(BESIDE[display])
        self.put(self.editor, 800, 100)  # as when it is dragged there
        self.docks_are_on(BESIDE["Right"])
        self.assertEqual(docks(), window, "another one was made")

    def test_none_covers_a_full_screen_window(self):
        self.set("dockDisplay", "all")
        self.shown(Left=True, Right=True)
        self.docks_are_on(*BESIDE.values())
        right = max(docks(), key=lambda window: geometry(window)[0])
        strut = numbers("_NET_WM_STRUT_PARTIAL", right)
        bar = 960, HEIGHT - strut[3] // 2
        self.assertGreater(strut[3], 0)
        self.open(self.chat)
        window = self.put(self.chat, 800, 300)
        takes_input = under(*bar)

        subprocess.run(["wmctrl", "-i", "-r", hex(window), "-b", "add,fullscreen"], check=True)
        self.shown(Left=True, Right=False)
        self.editor.raise_window()  # window managers let docks over a full-screen window that is not active
        EAR.expect("the dock lets the pointer through", lambda: under(*bar) != takes_input, right)
        self.assertEqual(numbers("_NET_WM_STRUT_PARTIAL", right), strut, "maximised windows would jump")

        subprocess.run(["wmctrl", "-i", "-r", hex(window), "-b", "remove,fullscreen"], check=True)
        self.shown(Left=True, Right=True)
        EAR.expect("the dock takes the pointer", lambda: under(*bar) == takes_input, right)

    def test_windows_keep_off_the_dock_of_their_own_display(self):
        self.docks_are_on(BESIDE["Left"])
        dock = docks()[0]
        def end_of_room():  # icons may become smaller on the way
            return HEIGHT - numbers("_NET_WM_STRUT_PARTIAL", dock)[3]
        self.open(self.chat)
        self.put(self.editor, 100, 300)
        self.put(self.chat, 800, 300)
        for app, lower_end in ((self.editor, end_of_room), (self.chat, lambda: HEIGHT)):
            with self.subTest(app.name):
                window = wait_window(app.name)
                subprocess.run(["wmctrl", "-i", "-r", hex(window), "-b", "add,maximized_vert,maximized_horz"],
                               check=True)
                EAR.expect(f"its lower end at {lower_end()}", lambda: sum(outside(window)[1::2]) == lower_end(), window)

    def test_it_stands_beside_other_panels(self):
        arrange(WHOLE)  # with room enough: the Trash, which comes with the replacement, makes no icon smaller
        self.docks_are_on(WHOLE["Left"])
        dock = docks()[0]
        depth = EAR.expect("a strut", lambda: numbers("_NET_WM_STRUT_PARTIAL", dock)[3])
        panel = Lines(harness.PROGRAMS / "window_program", "panel")
        self.addCleanup(panel.end)
        panel.expect("its window")
        for command in ("type DOCK", "strut 0 0 0 40"):
            panel.say(command)
            panel.expect(command)
        def lies_at(line, strut):
            return sum(geometry(dock)[1::2]) == line and numbers("_NET_WM_STRUT_PARTIAL", dock)[3] == strut
        EAR.expect("the dock above the panel", lambda: lies_at(HEIGHT - 40, depth + 40), dock)
        self.fendrel.do("dock", "replace", "on")
        EAR.expect("the dock at the edge", lambda: lies_at(HEIGHT, depth), dock)
        self.fendrel.do("dock", "replace", "off")
        EAR.expect("the dock above the panel", lambda: lies_at(HEIGHT - 40, depth + 40), dock)


class Guarded(harness.DesktopTest):
    def test_a_hidden_dock_comes_for_a_pointer_that_is_kept_off_the_edge(self):
        for service in ("ca.desrt.dconf", "org.ayatana.bamf"):
            test_docks.DockTest.serve(self, service)
        test_docks.DockTest.serve(self, "net.launchpad.plank", "plank")
        fendrel = self.start_with_modes()
        fendrel.do("settings", "set", "autoHide", "true")
        fendrel.do("dock", "replace", "on")
        xdotool("mousemove", "640", "300")
        fendrel.expect("a guarded edge and no dock", lambda state: state["dock"]["guarded"]
                       and not state["dock"]["displays"][0]["shown"])
        xdotool("mousemove_relative", "--", "0", "900")
        self.assertIn(f"x:640 y:{HEIGHT - 3} ", xdotool("getmouselocation"))
        fendrel.expect("the dock", lambda state: state["dock"]["displays"][0]["shown"])


if __name__ == "__main__":
    harness.main()
