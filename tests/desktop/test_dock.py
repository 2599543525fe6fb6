"""The dock as the rest of the desktop meets it: its place, its input and the keyboard."""

import re
import subprocess

import harness
from harness import DOCK
from windows import EAR, geometry, numbers, press, titled, wait_window, xdotool

WIDTH, HEIGHT = 1280, 800
SIDES = ("left", "right", "top", "bottom")


class Dock(harness.DesktopTest):
    def setUp(self):
        """The dock is there without a movement, as at every start but the first."""
        super().setUp()
        first = self.start_with_modes()
        first.do("switch", "building")
        first.end(lambda: first.do("quit"))
        self.open(self.editor)
        self.fendrel = self.start()
        self.fendrel.front_is(self.editor)
        self.dock = wait_window(DOCK)

    def area_beside(self, side):
        """What the dock leaves of the screen, when its strut is on this side and on no other."""
        left, right, top, bottom = numbers("_NET_WM_STRUT_PARTIAL", self.dock)[:4]
        if not (left, right, top, bottom)[SIDES.index(side)] == left + right + top + bottom > 0:
            return None
        return [left, top, WIDTH - left - right, HEIGHT - top - bottom]

    def test_it_keeps_its_place_free(self):
        for side in ("left", "right", "bottom"):
            with self.subTest(side):
                self.fendrel.do("settings", "set", "dockPosition", side)
                EAR.expect(f"the {side} kept free", lambda: numbers("_NET_WORKAREA")[:4] == self.area_beside(side))
        self.fendrel.do("settings", "set", "autoHide", "true")
        EAR.expect("the whole screen free", lambda: numbers("_NET_WORKAREA")[:4] == [0, 0, WIDTH, HEIGHT])

    def test_it_comes_to_a_pointer_at_its_edge(self):
        self.fendrel.do("settings", "set", "autoHide", "true")
        for y, shown in ((100, False), (HEIGHT - 1, True)):
            xdotool("mousemove", str(WIDTH // 2), str(y))
            self.fendrel.expect(f"the dock with the pointer at {y}: {shown}",
                                lambda state: state["dock"]["displays"][0]["shown"] == shown)

    def test_it_is_on_every_workspace(self):
        subprocess.run(["wmctrl", "-n", "2"], check=True)
        subprocess.run(["wmctrl", "-i", "-r", hex(self.dock), "-t", "0"], check=True)
        subprocess.run(["wmctrl", "-s", "1"], check=True)
        self.addCleanup(subprocess.run, ["wmctrl", "-s", "0"])
        self.fendrel.expect("the editor left behind", lambda state: not state["front"])
        EAR.expect("the dock followed", lambda: geometry(self.dock), self.dock)

    def under(self, x, y):
        return re.search(r"WINDOW=(\d+)", xdotool("mousemove", str(x), str(y), "getmouselocation", "--shell"))[1]

    def test_it_takes_the_pointer_only_where_it_is_drawn(self):
        depth = numbers("_NET_WM_STRUT_PARTIAL", self.dock)[3]
        root, middle = self.under(WIDTH - 5, 5), HEIGHT - depth // 2
        self.assertNotEqual(self.under(WIDTH // 2, middle), root)
        outside, inside = 0, WIDTH // 2  # the bar's left end lies between
        while inside - outside > 1:
            x = (outside + inside) // 2
            outside, inside = (x, inside) if self.under(x, middle) == root else (outside, x)
        self.assertGreater(inside, WIDTH // 8, "the bar is no wider than what is in it")
        for x, y in ((WIDTH - inside + 2, middle), (WIDTH // 2, HEIGHT - depth - 2), (WIDTH // 2, HEIGHT - 2)):
            self.assertEqual(self.under(x, y), root, (x, y))

        xdotool("mousemove", str(inside + 27), str(middle), "click", "1")
        self.fendrel.mode_is("writing")
        self.assertTrue(titled(numbers("_NET_ACTIVE_WINDOW"), "Editor"))

    def test_it_works_from_the_keyboard(self):
        for keys, mode in ((("Right", "Right", "Return"), "social"), (("Right", "Left", "space"), "writing")):
            self.fendrel.do("dock", "focus")
            press(*keys)
            self.fendrel.mode_is(mode)
        self.fendrel.front_is(self.editor)

    def test_the_gate_gets_the_keyboard_from_it(self):
        self.fendrel.do("switch", "writing")
        self.fendrel.do("focus", "start")
        for leaves in (True, False):
            with self.subTest(leaves=leaves):
                self.fendrel.do("dock", "focus")
                if leaves:
                    press("Escape")
                self.open(self.chat)
                self.fendrel.gate_is_on(self.chat)
                press("Escape")
                self.fendrel.gate_is_closed()
                self.fendrel.front_is(self.editor)
                self.chat.end()


if __name__ == "__main__":
    harness.main()
